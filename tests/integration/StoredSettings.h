#pragma once

#include <QByteArray>

#include <map>

// The settings the utility keeps in a queue's PPD, as the tests see them.
class StoredSettings {
public:
    using Values = std::map<QByteArray, QByteArray>;

    // Every setting in its index and part forms, each value naming its save.
    static Values completeSet(int save);
    // The options text of an update job carrying these settings.
    static QByteArray jobOptions(const Values &values);
    // The `*Keyword: "value"` lines of a PPD text whose keyword is a setting.
    static Values in(const QByteArray &ppd);
};
