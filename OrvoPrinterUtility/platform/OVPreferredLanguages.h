#pragma once

#include <QStringList>

#include <optional>

// The user's preferred languages in BCP 47 form ("en-US"), most preferred
// first: Qt's reading of LANGUAGE, LC_ALL and LANG. Tests override the list.
class OVPreferredLanguages {
public:
    static QStringList languages();
    static QString first();
    static void setOverride(std::optional<QStringList> languages);
};
