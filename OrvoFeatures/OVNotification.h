#pragma once

#include <QObject>
#include <QString>
#include <QVariant>
#include <QVariantMap>

// One named event as observers receive it. `object` is the poster (a QObject
// pointer) or, for events that name no poster, a plain value such as a string.
struct OVNotification {
    QString name;
    QVariant object;
    QVariantMap userInfo;

    // The posting object, or nullptr when the event's object is not one.
    QObject *sender() const { return object.value<QObject *>(); }
};
