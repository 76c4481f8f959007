#include "OVLaunchEvent.h"
#include "OVPrinterUtilityHelper.h"
#include "OVStoredSettings.h"
#include "OVWindowTexts.h"
#include "OrvoPPDTestSupport.h"

#include <QTranslator>

#include <gtest/gtest.h>

using OrvoPPDTestSupport::Platform;

namespace {

TEST(SystemVersion, ReadsTheProductVersionFromThePlist) {
    const std::tuple<QByteArray, const char *, int, int, int> cases[] = {
        {"<key>ProductName</key><string>X</string>" + Platform::version("10.13"), "10.13", 10, 13,
         0},
        {"<key>ProductVersion</key><integer>10</integer>", "", 0, 0, 0},
        {QByteArray(), "", 0, 0, 0}};
    for (const auto &[dict, productVersion, major, middle, minor] : cases) {
        const Platform platform(dict);
        int parts[3] = {-1, -1, -1};
        OVSystemVersion::components(parts[0], parts[1], parts[2]);
        EXPECT_EQ(OVSystemVersion::productVersion(), productVersion);
        EXPECT_EQ(std::tuple(parts[0], parts[1], parts[2]), std::tuple(major, middle, minor));
    }
}

TEST(Localization, SystemLanguageAndFolderFollowTheSystemVersion) {
    const std::tuple<const char *, const char *, bool, const char *> languages[] = {
        {"10.13", "en", false, ""}, // deliberately empty, not the language itself
        {"10.12.6", "zh-Hans-CN", false, "zh-Hans"},
        {"10.11", "en-US", false, "en-US"},
        {nullptr, "ja-JP", false, "ja-JP"}};
    for (const auto &[productVersion, language, fullName, expected] : languages) {
        const Platform platform(Platform::version(productVersion), {language});
        EXPECT_EQ(OVPrinterUtilityHelper::getSystemLanguage(fullName), expected);
    }
    // Without a folder of the full or short name, the first preferred language
    // some folder serves answers, else English; an unknown key is its own text.
    const std::tuple<const char *, QStringList, const char *, const char *> lookups[] = {
        {nullptr, {"ja-JP"}, "Close", "閉じる"},
        {nullptr, {"ko-KR", "fr-FR"}, "Close", "Fermer"},
        {nullptr, {"ko-KR"}, "Close", "Close"},
        {"10.13", {"zh-Hans-CN"}, "Close", "关闭"},
        {nullptr, {"de-DE"}, "Shared Folder 100", "Freigegebener Ordner 100"},
        {nullptr, {"zh-TW"}, "No such key", "No such key"}};
    for (const auto &[productVersion, preferred, key, expected] : lookups) {
        const Platform platform(Platform::version(productVersion), preferred);
        EXPECT_EQ(OVPrinterUtilityHelper::getLocalizedStringFor(key), QString::fromUtf8(expected));
    }
}

// Every text the window shows, the 100 default folder names included, has a
// translation in every shipped language.
TEST(Localization, EveryLanguageHasEveryWindowKey) {
    QStringList keys;
    for (const char *key : OVWindowTexts::localizedKeys)
        keys << key;
    for (int n = 1; n <= OVStoredSettings::defaultFolderCount; ++n)
        keys << QString("Shared Folder %1").arg(n);
    const QStringList folders = OVPrinterUtilityHelper::shippedLocalizations();
    EXPECT_EQ(folders, (QStringList{"de.lproj", "en.lproj", "fr.lproj", "ja.lproj", "zh-Hans.lproj",
                                    "zh-Hant.lproj"}));
    for (const QString &folder : folders) {
        QTranslator table;
        ASSERT_TRUE(table.load(":/" + folder + "/Localizable.qm"));
        for (const QString &key : keys)
            EXPECT_FALSE(table.translate("Localizable", key.toUtf8().constData()).isEmpty())
                << folder.toStdString() << " lacks " << key.toStdString();
    }
}

TEST(LaunchEvent, PrinterIDAndLogFollowTheArguments) {
    const std::tuple<QStringList, const char *, const char *> cases[] = {
        {{}, "", ""},
        {QStringList{"--printer"}, "Default-TestID", ""},
        {{"-x", "-p", "Lab"}, "Lab", "Printer ID|Lab"},
        {QStringList{"--printer=Q 2"}, "Q 2", "Printer ID|Q 2"}};
    for (const auto &[arguments, printerID, logged] : cases) {
        QStringList lines;
        OVSystemLog::setSink([&](int, const QString &line) { lines << line; });
        EXPECT_EQ(OVLaunchEvent::printerIDFromArguments(arguments), printerID);
        OVSystemLog::setSink({});
        EXPECT_EQ(lines.join('|'), logged);
    }
}

} // namespace
