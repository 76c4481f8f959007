#pragma once

#include <QFrame>

class QLabel;
class QPushButton;

// A bar above the window's tabs that says, in plain words, what keeps the
// window from working as expected (a server that cannot be reached, a queue
// without a PPD, a queue not yet set up), with at most one button that
// offers the way out. Hidden while there is nothing to say.
class OVMessageBar : public QFrame {
    Q_OBJECT

public:
    explicit OVMessageBar(QWidget *parent = nullptr);

    // Shows text; a button titled actionTitle is offered when that is not empty.
    void showMessage(const QString &text, const QString &actionTitle = QString());
    void clearMessage();
    QString text() const;
    QPushButton *actionButton() const { return m_action; }

signals:
    void actionTriggered();

private:
    QLabel *m_text;
    QPushButton *m_action;
};
