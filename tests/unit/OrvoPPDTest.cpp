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

// Own searches match names exactly; marking finds the option through libcups,
// which ignores case, and an unknown choice leaves the marks alone.
TEST(OrvoPPDQueries, FindAndMark) {
    const OpenedPPD ppd =
        TempPPD("*DefaultPageSize: A4\n*OpenUI *PageSize/Size: PickOne\n*DefaultPageSize: A4\n"
                "*PageSize A4/A4: \"a\"\n*PageSize Letter/Letter: \"l\"\n*CloseUI: *PageSize\n"
                "*OpenUI *Duplex/Duplex: PickOne\n*DefaultDuplex: Simplex\n"
                "*Duplex None/Off: \"n\"\n*CloseUI: *Duplex\n")
            .open();
    ASSERT_TRUE(ppd);
    ppd_option_t *pageSize = OrvoPPD::ppdFindOption(ppd.get(), "PageSize");
    ASSERT_TRUE(pageSize);
    EXPECT_EQ(OrvoPPD::ppdFindAttr(ppd.get(), "DefaultPageSize", ""), ppd->attrs[0]);
    EXPECT_EQ(OrvoPPD::ppdFindAttr(ppd.get(), "DefaultPageSize", "A4"), nullptr);
    EXPECT_EQ(OrvoPPD::ppdFindOption(ppd.get(), "pagesize"), nullptr);
    EXPECT_EQ(OrvoPPD::ppdFindChoice(pageSize, "letter"), nullptr);
    const auto marks = [&] {
        return std::pair<int, int>(pageSize->choices[0].marked, pageSize->choices[1].marked);
    };
    EXPECT_EQ(OrvoPPD::ppdMarkOption(ppd.get(), "PageSize", nullptr), 0);
    EXPECT_EQ(OrvoPPD::ppdMarkOption(ppd.get(), "pagesize", "Letter"), 1);
    EXPECT_EQ(OrvoPPD::ppdMarkOption(ppd.get(), "PageSize", "Tabloid"), 1);
    EXPECT_EQ(marks(), std::pair(0, 1));
    EXPECT_STREQ(OrvoPPD::ppdFindMarkedChoice(ppd.get(), "PageSize")->choice, "Letter");
    OrvoPPD::ppdMarkDefaults(ppd.get());
    EXPECT_EQ(marks(), std::pair(1, 0));
    EXPECT_EQ(OrvoPPD::ppdFindMarkedChoice(ppd.get(), "Duplex"), nullptr);
    ppd_file_t empty{};
    EXPECT_EQ(OrvoPPD::ppdFindOption(&empty, "A"), nullptr);
    EXPECT_EQ(OrvoPPD::ppdMarkOption(&empty, "A", "B"), 1);
}

} // namespace
