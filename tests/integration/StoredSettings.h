#pragma once

#include <QByteArray>
#include <QList>

#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

// The settings the utility keeps in a queue's PPD, as the tests see them:
// every keyword in its index and part forms, a complete settings set of the
// kind one save submits, and the settings found in a PPD text.
class StoredSettings {
public:
    using Values = std::map<std::string, std::string>;

    static const std::vector<std::string> &names();
    // Every setting, each value telling which save it came from.
    static Values completeSet(int save);
    // The settings attributes of a PPD text, by keyword.
    static Values in(const QByteArray &ppd);
    // True when the line is `*Keyword: "value"` for a settings keyword.
    static bool isSettingLine(const QByteArray &line);

    static QList<QByteArray> lines(const QByteArray &ppd);
    // Whether libcups' own PPD reader accepts the text, as cupsd must.
    static bool opensWithLibcups(const QByteArray &ppd);

    static std::string base64(const std::string &text);

private:
    static std::optional<std::pair<std::string, std::string>> settingOf(const QByteArray &line);
};
