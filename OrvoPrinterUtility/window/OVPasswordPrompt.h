#pragma once

#include <QObject>
#include <QString>

#include <cups/http.h>

#include <string>

class QDialog;

// Answers a print server that asks for a user name and password. The window's
// CUPS requests run on the background worker thread; when one of them is
// refused for want of a password, libcups calls back there, and the prompt asks
// the user on the GUI thread while the worker waits for the answer. Each
// connection gets three tries, as the command line allows; Cancel gives up,
// and the request then fails as refused.
//
// One prompt, created on the GUI thread, serves every request from then on.
class OVPasswordPrompt : public QObject {
    Q_OBJECT

public:
    static constexpr int tries = 3;

    explicit OVPasswordPrompt(QObject *parent = nullptr);
    ~OVPasswordPrompt() override;

    // Names the queue an operation changes, for the prompt to say what the
    // password is for, while it exists (on the worker thread, around the
    // call). Its tries are its own.
    class ForQueue {
    public:
        explicit ForQueue(const QString &queue) {
            s_current = queue;
            ++s_operation;
        }
        ~ForQueue() { s_current.clear(); }
        ForQueue(const ForQueue &) = delete;
        ForQueue &operator=(const ForQueue &) = delete;

    private:
        friend class OVPasswordPrompt;
        static inline thread_local QString s_current;
        static inline thread_local int s_operation = 0;
    };

signals:
    // The dialog is about to wait for the user (tests answer it from here).
    void asking(QDialog *dialog);

private:
    struct Answer {
        QString user;
        QString password;
        bool given = false;
    };

    static const char *callback(const char *prompt, http_t *http, const char *method,
                                const char *resource, void *self);
    const char *answerOnWorker(http_t *http);
    const char *giveUp();
    Answer ask(const QString &server, const QString &queue, bool again);

    // Only the worker thread touches these.
    http_t *m_lastConnection = nullptr;
    int m_lastOperation = 0;
    int m_triesLeft = 0;
    std::string m_password;
};
