#include "OVPreferredLanguages.h"
#include "OVPrinterUtilityHelper.h"
#include "OVStoredSettings.h"
#include "OVSystemVersion.h"
#include "OVWindowTexts.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTranslator>

#include <gtest/gtest.h>

namespace {

// Points the system version at a plist of its own (or at none) and sets the
// preferred languages for the life of one case.
class PlatformScope {
public:
    PlatformScope(const char *version, const QStringList &languages) {
        if (version) {
            const QString path = dir.filePath("SystemVersion.plist");
            QFile file(path);
            EXPECT_TRUE(file.open(QIODevice::WriteOnly));
            file.write(QByteArray("<plist><dict><key>ProductVersion</key><string>") + version +
                       "</string></dict></plist>");
            OVSystemVersion::setPlistPath(path);
        } else {
            OVSystemVersion::setPlistPath(dir.filePath("absent.plist"));
        }
        OVPreferredLanguages::setOverride(languages);
    }
    ~PlatformScope() {
        OVSystemVersion::setPlistPath(QString());
        OVPreferredLanguages::setOverride(std::nullopt);
    }

private:
    QTemporaryDir dir;
};

struct LanguageCase {
    const char *version;
    const char *language;
    bool fullName;
    const char *expected;
};

class SystemLanguageTest : public ::testing::TestWithParam<LanguageCase> {};

TEST_P(SystemLanguageTest, FollowsSystemVersionRule) {
    const LanguageCase &c = GetParam();
    PlatformScope scope(c.version, {c.language});
    const QString result = OVPrinterUtilityHelper::getSystemLanguage(c.fullName);
    EXPECT_EQ(result, c.expected);
    EXPECT_FALSE(result.isNull());
}

INSTANTIATE_TEST_SUITE_P(Versions, SystemLanguageTest,
                         ::testing::Values(LanguageCase{"10.13", "en", false, ""},
                                           LanguageCase{"10.13", "en-US", false, "en"},
                                           LanguageCase{"10.12.6", "zh-Hans-CN", false, "zh-Hans"},
                                           LanguageCase{"10.13", "en-US", true, "en-US"},
                                           LanguageCase{"10.11", "en-US", false, "en-US"},
                                           LanguageCase{"11.0", "en-US", false, "en-US"},
                                           LanguageCase{nullptr, "ja-JP", false, "ja-JP"}));

struct LookupCase {
    const char *version;
    QStringList languages;
    const char *key;
    const char *expected;
};

class LocalizedStringTest : public ::testing::TestWithParam<LookupCase> {};

TEST_P(LocalizedStringTest, FindsFolderOrFallsBack) {
    const LookupCase &c = GetParam();
    PlatformScope scope(c.version, c.languages);
    EXPECT_EQ(OVPrinterUtilityHelper::getLocalizedStringFor(c.key), QString::fromUtf8(c.expected));
}

INSTANTIATE_TEST_SUITE_P(
    Folders, LocalizedStringTest,
    ::testing::Values(
        // Linux has no system version: the full language names no folder, so
        // the best shipped match of the preferred languages answers.
        LookupCase{nullptr, {"ja-JP"}, "Close", "閉じる"},
        LookupCase{nullptr, {"zh-TW"}, "Close", "關閉"},
        LookupCase{nullptr, {"zh-Hans-CN"}, "Close", "关闭"},
        LookupCase{nullptr, {"ko-KR", "fr-FR"}, "Close", "Fermer"},
        LookupCase{nullptr, {"ko-KR"}, "Close", "Close"},
        LookupCase{nullptr, {"de-DE"}, "Shared Folder 100", "Freigegebener Ordner 100"},
        // On 10.12 and later the short form names the folder.
        LookupCase{"10.13", {"ja-JP"}, "Close", "閉じる"},
        LookupCase{"10.13", {"en"}, "Close", "Close"},
        LookupCase{nullptr, {"ja-JP"}, "No such key", "No such key"}));

// Every text the window shows, the 100 default folder names included, has a
// translation in every shipped language.
TEST(Translations, EveryLanguageHasEveryWindowKey) {
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

} // namespace
