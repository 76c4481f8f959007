#pragma once

// Observers and seams shared by the control tests.
#include "OVAlert.h"
#include "OVNotificationCenter.h"

#include <QApplication>
#include <QClipboard>
#include <QList>
#include <QMessageBox>
#include <QStringList>
#include <QTest>

// Types `text` one character per key event, as a keyboard or input method
// delivers it: a surrogate pair arrives as one event.
inline void typeText(QWidget *widget, const QString &text) {
    for (qsizetype i = 0; i < text.size(); ++i) {
        const qsizetype length = text.at(i).isHighSurrogate() && i + 1 < text.size() ? 2 : 1;
        QTest::sendKeyEvent(QTest::Click, widget, Qt::Key_unknown, text.mid(i, length),
                            Qt::NoModifier);
        i += length - 1;
    }
}

inline void paste(QWidget *widget, const QString &text) {
    QApplication::clipboard()->setText(text);
    QTest::keySequence(widget, QKeySequence::Paste);
}

// Records every event of one name while it lives.
class EventRecorder {
public:
    explicit EventRecorder(const char *name)
        : m_token(OVNotificationCenter::defaultCenter().addObserver(
              QString::fromLatin1(name),
              [this](const OVNotification &notification) { events.append(notification); })) {}
    ~EventRecorder() { OVNotificationCenter::defaultCenter().removeObserver(m_token); }
    EventRecorder(const EventRecorder &) = delete;
    EventRecorder &operator=(const EventRecorder &) = delete;

    QList<OVNotification> events;

private:
    OVNotificationCenter::Token m_token;
};

// Answers every alert with one button and records what would have been shown.
class AlertRecorder {
public:
    struct Shown {
        QString text;
        QString informativeText;
        QStringList buttons;
        QMessageBox::Icon icon;
    };

    explicit AlertRecorder(int answerIndex = 0) {
        OVAlert::setResponder([this, answerIndex](const OVAlert &alert) {
            shown.append(
                {alert.text(), alert.informativeText(), alert.buttonTitles(), alert.icon()});
            return answerIndex;
        });
    }
    ~AlertRecorder() { OVAlert::setResponder({}); }
    AlertRecorder(const AlertRecorder &) = delete;
    AlertRecorder &operator=(const AlertRecorder &) = delete;

    QList<Shown> shown;
};
