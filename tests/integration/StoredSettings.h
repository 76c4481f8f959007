#pragma once

#include <QByteArray>
#include <QList>

#include <map>
#include <string>

// The settings the utility keeps in a queue's PPD, as the tests see them: a
// complete set of the kind one save submits, and the settings found in a PPD.
class StoredSettings {
public:
    using Values = std::map<std::string, std::string>;

    // Every setting in its index and part forms, each value naming its save.
    static Values completeSet(int save);
    // The `*Keyword: "value"` lines of a PPD text whose keyword is a setting.
    static Values in(const QByteArray &ppd);
    static bool isSettingLine(const QByteArray &line);

    static QList<QByteArray> lines(const QByteArray &ppd);
    // Whether libcups' own PPD reader accepts the text, as cupsd must.
    static bool opensWithLibcups(const QByteArray &ppd);
    static std::string base64(const std::string &text);
};
