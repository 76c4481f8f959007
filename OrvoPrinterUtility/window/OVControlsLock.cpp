#include "OVControlsLock.h"

OVControlsLock::OVControlsLock(const QList<QWidget *> &controls) {
    for (QWidget *control : controls) {
        m_held.append({control, control->isEnabled()});
        control->setEnabled(false);
    }
}

void OVControlsLock::release() {
    for (const auto &[control, enabled] : std::as_const(m_held)) {
        if (control)
            control->setEnabled(enabled);
    }
    m_held.clear();
}
