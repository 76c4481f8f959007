#pragma once

#include <QList>
#include <QObject>
#include <QPointer>

#include <memory>
#include <utility>
#include <vector>

class QAbstractButton;
class QEvent;
class QWidget;

// Holds the user's input to one window while that window waits for the
// printer, so that no click or key changes its controls between two steps of
// a fetch. Input aimed at one of the refused buttons is dropped for good; the
// rest is delivered, in the order it came, when the hold ends. Input to other
// windows (an alert shown meanwhile) passes at once.
class OVInputHold : public QObject {
public:
    OVInputHold(QWidget *window, QList<QAbstractButton *> refused);
    ~OVInputHold() override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool isInWindow(QObject *object) const;

    QWidget *m_window;
    QList<QAbstractButton *> m_refused;
    std::vector<std::pair<QPointer<QObject>, std::unique_ptr<QEvent>>> m_held;
};
