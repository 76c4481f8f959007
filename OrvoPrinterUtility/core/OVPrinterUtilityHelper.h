#pragma once

#include <QString>
#include <QStringList>

// Language code and localized texts of the window. Translations ship as Qt
// resources ":/<language>.lproj/Localizable.qm" (context "Localizable", the
// English text as key), one folder per language, which is what the language
// matching below chooses between.
class OVPrinterUtilityHelper {
public:
    static constexpr const char *stringTable = "Localizable";

    // The user's language in the form that names localization folders.
    static QString getSystemLanguage(bool fullName);
    static QString getLocalizedStringFor(const QString &key);
    // The folders ("ja.lproj", ...) shipped as resources.
    static QStringList shippedLocalizations();

private:
    static QString folderFor(const QString &language);
    static QString bestShippedFolder();
    static QString lookup(const QString &folder, const QString &key);
};
