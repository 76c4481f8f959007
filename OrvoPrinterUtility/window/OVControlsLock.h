#pragma once

#include <QList>
#include <QPointer>
#include <QWidget>

// Disables a set of controls for a while (the window's settings while they
// load) and gives each back the enabled state it had, so that what the
// controls' own rules decided meanwhile is not lost.
class OVControlsLock {
public:
    explicit OVControlsLock(const QList<QWidget *> &controls);
    // Gives the controls their states back; a second call does nothing.
    void release();

private:
    QList<std::pair<QPointer<QWidget>, bool>> m_held;
};
