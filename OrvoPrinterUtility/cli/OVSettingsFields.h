#pragma once

#include "OVSettingsSnapshot.h"
#include "OrvoSettingsVerdict.h"

#include <QCommandLineOption>
#include <QCommandLineParser>
#include <QJsonObject>
#include <QList>
#include <QString>

// The stored settings under the names administrators use: the keys of
// `show --json`, the lines of `show` and the options and JSON keys `save`
// accepts are all this one table.
class OVSettingsFields {
public:
    static QJsonObject toJson(const OVSettingsSnapshot &settings);
    static QString toText(const OVSettingsSnapshot &settings);

    // Every field an administrator sets as a `save` option: --kebab-key VALUE
    // (--camelKey too); list fields repeat. The utility's own bookkeeping
    // (whether it saved, the chosen folders' rows) is JSON only.
    static QList<QCommandLineOption> options();
    // Applies the JSON object's keys, then the options given; an empty result
    // on success, else what was wrong.
    static QString apply(const QJsonObject &json, OVSettingsSnapshot &settings);
    static QString apply(const QCommandLineParser &parser, OVSettingsSnapshot &settings);
    // A verdict of the settings' rules, naming the field by its key:
    // "\"macAddress\" is not six two-digit hexadecimal numbers joined by colons".
    static QString verdictText(const OrvoSettingsVerdict &verdict);
};
