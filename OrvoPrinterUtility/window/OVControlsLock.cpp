#include "OVControlsLock.h"

OVControlsLock::OVControlsLock(const QList<QWidget *> &controls) {
    for (QWidget *control : controls) {
        held_.append({control, control->isEnabled()});
        control->setEnabled(false);
    }
}

void OVControlsLock::release() {
    for (const auto &[control, enabled] : std::as_const(held_)) {
        if (control)
            control->setEnabled(enabled);
    }
    held_.clear();
}
