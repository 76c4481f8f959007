#include "OrvoPPDTestSupport.h"

#include <gtest/gtest.h>

using namespace OrvoPPDTestSupport;

namespace {

TEST(OrvoPPDLanguage, FollowsTheSystemVersion) {
    const std::tuple<const char *, QStringList, bool, const char *, const char *> cases[] = {
        {nullptr, {"en-US"}, false, "en-US", "en-US"},
        {"10.11", {"zh-HK"}, false, "zh-Hant-HK", "zh_HK"},
        {"10.12", {"zh-Hans-CN"}, false, "zh-Hans", "zh_CN"},
        {"11.0", {"fr-FR", "de-DE"}, true, "de-DE", "de"},
        {"12.1", {"zh-Hans-CN", "en"}, false, "zh-Hans-CN", "zh-Hans-CN"}};
    for (const auto &[version, preferred, fullName, language, ppdLanguage] : cases) {
        SCOPED_TRACE(version);
        const Platform platform(version, preferred);
        EXPECT_EQ(OrvoPPD::getSystemLanguage(fullName), language);
        EXPECT_EQ(OrvoPPD::ppdGetLanguage(), ppdLanguage);
    }
}

TEST(OrvoPPDLocalize, RewritesTranslatedTexts) {
    const QByteArray longText = QByteArray(79, 'l') + "\xc3\xa9";
    const TempPPD file("*OpenUI *PageSize/Media Size: PickOne\n*PageSize A4/A4: \"a4\"\n"
                       "*PageSize Letter/Letter: \"lt\"\n*CloseUI: *PageSize\n"
                       "*OpenUI *Duplex/Duplex: PickOne\n*Duplex None/Off: \"n\"\n"
                       "*CloseUI: *Duplex\n*fr.Translation PageSize/Taille: \"\"\n"
                       "*FR.PageSize A4/A4 (210 x 297 mm): \"\"\n*fr.Translation Duplex/: \"\"\n"
                       "*fr.PageSize Letter/" +
                       longText + ": \"\"\n");
    // Translations are cut at byte 80, inside the last character; a defined
    // but empty translation clears the text; the language ignores case.
    const std::pair<const char *, Lines> cases[] = {
        {"fr-FR",
         {"0 PageSize 'Taille' = [A4/A4 (210 x 297 mm)/a4] [Letter/" +
              longText.chopped(1).toStdString() + "/lt]",
          "0 Duplex '' = [None/Off/n]"}},
        {"de-DE",
         {"0 PageSize 'Media Size' = [A4/A4/a4] [Letter/Letter/lt]",
          "0 Duplex 'Duplex' = [None/Off/n]"}}};
    for (const auto &[language, options] : cases) {
        const Platform platform("10.14", {language});
        const OpenedPPD ppd = file.open();
        ASSERT_TRUE(ppd);
        EXPECT_EQ(OrvoPPD::ppdLocalize(ppd.get(), file.filePath()), 0);
        EXPECT_EQ(describe(ppd.get()), options) << language;
    }
    EXPECT_EQ(OrvoPPD::ppdLocalGetLocalize("*fr.Translation A/T: \"\"", "fr", QString(), {}), "");
}

} // namespace
