#include "OVInputHold.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QEvent>
#include <QWidget>

#include <algorithm>

namespace {

// What a user does to a control; moves and hovers only show where the pointer
// is, and a shortcut override only asks, so they pass.
bool isUserAction(QEvent::Type type) {
    switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Wheel:
    case QEvent::InputMethod:
        return true;
    default:
        return false;
    }
}

} // namespace

OVInputHold::OVInputHold(QWidget *window, QList<QAbstractButton *> refused)
    : m_window(window)
    , m_refused(std::move(refused)) {
    QCoreApplication::instance()->installEventFilter(this);
}

OVInputHold::~OVInputHold() {
    QCoreApplication::instance()->removeEventFilter(this);
    for (const auto &[receiver, event] : m_held) {
        if (receiver)
            QCoreApplication::sendEvent(receiver, event.get());
    }
}

bool OVInputHold::isInWindow(QObject *object) const {
    const auto *widget = qobject_cast<QWidget *>(object);
    return widget && (widget == m_window || m_window->isAncestorOf(widget));
}

bool OVInputHold::eventFilter(QObject *watched, QEvent *event) {
    if (!isUserAction(event->type()) || !isInWindow(watched))
        return false;
    const bool refused =
        std::find(m_refused.cbegin(), m_refused.cend(), watched) != m_refused.cend();
    if (!refused)
        m_held.emplace_back(watched, event->clone());
    return true;
}
