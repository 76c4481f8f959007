#pragma once

#include "OVNotification.h"

#include <QObject>
#include <QPointer>

#include <functional>
#include <map>

// The process-wide centre for named events. Delivery is synchronous, in the
// order observers were added; an observer added twice is called twice.
// Main thread only, like the controls that post through it.
class OVNotificationCenter {
public:
    using Observer = std::function<void(const OVNotification &)>;
    using Token = quint64;

    OVNotificationCenter() = default;
    ~OVNotificationCenter();
    OVNotificationCenter(const OVNotificationCenter &) = delete;
    OVNotificationCenter &operator=(const OVNotificationCenter &) = delete;

    static OVNotificationCenter &defaultCenter();

    // When `context` is given the observer goes away with it.
    Token addObserver(const QString &name, Observer observer, QObject *context = nullptr);
    void removeObserver(Token token);
    void postNotification(const QString &name, const QVariant &object,
                          const QVariantMap &userInfo = {});
    // Convenience for the usual case: the poster is the object.
    void postNotification(const QString &name, QObject *object, const QVariantMap &userInfo = {});

private:
    struct Entry {
        QString name;
        Observer observer;
        bool hasContext = false;
        QPointer<QObject> context;
        QMetaObject::Connection contextGone;
    };

    std::map<Token, Entry> m_entries;
    Token m_nextToken = 1;
};
