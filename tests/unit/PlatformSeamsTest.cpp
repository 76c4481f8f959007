#include "OVChooserTexts.h"
#include "OVLaunchEvent.h"
#include "OVPrinterUtilityHelper.h"
#include "OVStoredSettings.h"
#include "OVSystemLog.h"
#include "OVWindowTexts.h"
#include "OrvoPPDTestSupport.h"

#include <QTranslator>

#include <gtest/gtest.h>

namespace {

// Without a folder of the full or short name, the first preferred language
// some folder serves answers, else English; an unknown key is its own text.
TEST(Localization, SystemLanguageAndFolderFollowTheSystemVersion) {
    const std::tuple<const char *, QStringList, const char *, const char *> cases[] = {
        {"10.13", {"en"}, "", "Close"}, // deliberately empty, not the language itself
        {"10.12.6", {"zh-Hans-CN"}, "zh-Hans", "关闭"},
        {"10.11", {"en-US"}, "en-US", "Close"},
        {nullptr, {"ja-JP"}, "ja-JP", "閉じる"},
        {nullptr, {"ko-KR", "fr-FR"}, "ko-KR", "Fermer"},
        {nullptr, {"ko-KR"}, "ko-KR", "Close"},
        {"10.13", {"zh-Hans-CN"}, "zh-Hans", "关闭"},
        {nullptr, {"zh-TW"}, "zh-TW", "關閉"}};
    for (const auto &[productVersion, preferred, language, close] : cases) {
        const Platform platform(productVersion, preferred);
        EXPECT_EQ(OVPrinterUtilityHelper::getSystemLanguage(false), language);
        EXPECT_EQ(OVPrinterUtilityHelper::getLocalizedStringFor("Close"), QString::fromUtf8(close));
        EXPECT_EQ(OVPrinterUtilityHelper::getLocalizedStringFor("No such key"), "No such key");
    }
}

// Every text the window, the queue chooser and the password prompt show, the 100 default folder
// names included, has a translation in every shipped language.
TEST(Localization, EveryLanguageHasEveryWindowKey) {
    QStringList keys;
    for (const char *key : OVWindowTexts::localizedKeys)
        keys << key;
    for (const char *key : OVChooserTexts::localizedKeys)
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
