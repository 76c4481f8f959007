#include "OrvoPPDTestSupport.h"

#include "OVPreferredLanguages.h"
#include "OVSystemVersion.h"

#include <gtest/gtest.h>

#include <vector>

using namespace OrvoPPDTestSupport;

namespace {

const char basicPPD[] = "*PPD-Adobe: \"4.3\"\n"
                        "*OpenUI *PageSize/Media Size: PickOne\n"
                        "*DefaultPageSize: Letter\n"
                        "*PageSize Letter/US Letter: \"<</PageSize[612 792]>>setpagedevice\"\n"
                        "*PageSize A4/A4: \"<</PageSize[595 842]>>setpagedevice\"\n"
                        "*CloseUI: *PageSize\n"
                        "*OpenGroup: Finishing/Finishing Options\n"
                        "*OpenUI *Duplex/2-Sided: PickOne\n"
                        "*DefaultDuplex: None\n"
                        "*Duplex None/Off: \"\"\n"
                        "*Duplex DuplexNoTumble/Long Edge: \"<</Duplex true>>setpagedevice\"\n"
                        "*CloseUI: *Duplex\n"
                        "*CloseGroup: Finishing\n"
                        "*CustomPageSize True: \"pop pop pop pop pop\"\n";

struct Choice {
    std::string key, text, code; // code "-" stands for none
};
struct Option {
    std::string group, keyword, text, defchoice;
    std::vector<Choice> choices;
};

std::vector<Option> optionsOf(const ppd_file_t *ppd) {
    std::vector<Option> options;
    for (int g = 0; g < ppd->num_groups; ++g) {
        EXPECT_STREQ(ppd->groups[g].name, "");
        EXPECT_STREQ(ppd->groups[g].text, "");
        for (int o = 0; o < ppd->groups[g].num_options; ++o) {
            const ppd_option_t &option = ppd->groups[g].options[o];
            Option read{std::to_string(g), option.keyword, option.text, option.defchoice, {}};
            for (int c = 0; c < option.num_choices; ++c) {
                const ppd_choice_t &choice = option.choices[c];
                read.choices.push_back(
                    {choice.choice, choice.text, choice.code ? choice.code : "-"});
            }
            options.push_back(read);
        }
    }
    return options;
}

bool operator==(const Choice &a, const Choice &b) {
    return a.key == b.key && a.text == b.text && a.code == b.code;
}
bool operator==(const Option &a, const Option &b) {
    return a.group == b.group && a.keyword == b.keyword && a.text == b.text &&
           a.defchoice == b.defchoice && a.choices == b.choices;
}
void PrintTo(const Option &o, std::ostream *os) {
    *os << "{group " << o.group << " " << o.keyword << " '" << o.text << "' default '"
        << o.defchoice << "':";
    for (const Choice &c : o.choices)
        *os << " [" << c.key << "|" << c.text << "|" << c.code << "]";
    *os << "}";
}

TEST(OrvoPPDOpen, FillsGroupsOptionsChoicesAndAttributes) {
    TempPPD file(basicPPD);
    OpenedPPD ppd = file.open();
    ASSERT_TRUE(ppd);
    ASSERT_EQ(ppd->num_groups, 2);
    const std::vector<Option> expected = {
        {"0",
         "PageSize",
         "Media Size",
         "Letter",
         {{"Letter", "US Letter", "<</PageSize[612 792]>>setpagedevice"},
          {"A4", "A4", "<</PageSize[595 842]>>setpagedevice"},
          {"Custom", "Custom", "pop pop pop pop pop"}}},
        {"1",
         "Duplex",
         "2-Sided",
         "None",
         {{"None", "Off", ""}, {"DuplexNoTumble", "Long Edge", "<</Duplex true>>setpagedevice"}}},
    };
    EXPECT_EQ(optionsOf(ppd.get()), expected);
    // Not anchored to the line start: "*Duplex/2-Sided:" inside the OpenUI line is one.
    std::vector<std::pair<std::string, std::string>> attributes;
    for (int i = 0; i < ppd->num_attrs; ++i)
        attributes.emplace_back(ppd->attrs[i]->name, ppd->attrs[i]->value);
    const std::vector<std::pair<std::string, std::string>> expectedAttributes = {
        {"PPD-Adobe", "4.3"},          {"DefaultPageSize", "Letter"},
        {"CloseUI", "*PageSize"},      {"OpenGroup", "Finishing/Finishing Options"},
        {"Duplex/2-Sided", "PickOne"}, {"DefaultDuplex", "None"},
        {"CloseUI", "*Duplex"},        {"CloseGroup", "Finishing"},
    };
    EXPECT_EQ(attributes, expectedAttributes);
}

struct OpenCase {
    const char *name;
    const char *ppd;
    std::vector<Option> options; // empty: the open gives null
};

class OrvoPPDOpenCases : public ::testing::TestWithParam<OpenCase> {};

TEST_P(OrvoPPDOpenCases, ReadsAsTheRulesSay) {
    TempPPD file(GetParam().ppd);
    OpenedPPD ppd = file.open();
    if (GetParam().options.empty()) {
        EXPECT_FALSE(ppd);
        return;
    }
    ASSERT_TRUE(ppd);
    EXPECT_EQ(optionsOf(ppd.get()), GetParam().options);
}

INSTANTIATE_TEST_SUITE_P(
    Rules, OrvoPPDOpenCases,
    ::testing::Values(
        OpenCase{"NothingAfterAdvancedGroupEnd",
                 "*OpenGroup: Advanced/Advanced\n*OpenUI *A/A: PickOne\n*A x/X: \"1\"\n"
                 "*CloseUI: *A\n*CloseGroup: Advanced\n*OpenUI *B/B: PickOne\n*B y/Y: \"2\"\n"
                 "*CloseUI: *B\n",
                 {{"1", "A", "A", "", {{"x", "X", "1"}}}}},
        OpenCase{"OpenUIWithoutTranslationIsNoOption",
                 "*OpenUI *A: PickOne\n*A x/X: \"1\"\n*CloseUI: *A\n"
                 "*OpenUI *B/B: PickOne\n*B y/Y: \"2\"\n*CloseUI: *B\n",
                 {{"0", "B", "B", "", {{"y", "Y", "2"}}}}},
        OpenCase{"PageRegionAlwaysEndsWithCustomWithoutCode",
                 "*OpenUI *PageRegion/Region: PickOne\n*PageRegion A4/A4: \"r\"\n"
                 "*CloseUI: *PageRegion\n*CustomPageRegion True: \"c\"\n",
                 {{"0",
                   "PageRegion",
                   "Region",
                   "",
                   {{"A4", "A4", "r"}, {"Custom", "Custom", "c"}, {"Custom", "Custom", "-"}}}}},
        OpenCase{"CustomLineAloneGivesTheChoices",
                 "*OpenUI *Size/Size: PickOne\n*CloseUI: *Size\n*CustomSize True: \"a\" \"b\"\n",
                 {{"0", "Size", "Size", "", {{"Custom", "Custom", "b"}}}}},
        OpenCase{"OptionWithoutChoiceMakesFileUnreadable",
                 "*OpenUI *A/A: PickOne\n*A x/X: \"1\"\n*CloseUI: *A\n"
                 "*OpenUI *B/B: PickOne\n*B y: \"2\"\n*CloseUI: *B\n",
                 {}},
        OpenCase{"NoOptionIsNull", "*PPD-Adobe: \"4.3\"\n*ModelName: \"x\"\n", {}},
        OpenCase{"OptionsOutsideGroupsGoToGeneral",
                 "*OpenGroup: G/Group\n*OpenUI *A/A: PickOne\n*A x/X: \"1\"\n*CloseUI: *A\n"
                 "*CloseGroup: G\n*OpenUI *B/B: PickOne\n*B y/Y: \"2\"\n*CloseUI: *B\n",
                 {{"0", "B", "B", "", {{"y", "Y", "2"}}}, {"1", "A", "A", "", {{"x", "X", "1"}}}}},
        // A line feed must follow the close line's keyword, so CRLF options
        // end just before the next *OpenUI line instead.
        OpenCase{"CrLfOptionRunsToNextOpenUI",
                 "*OpenUI *A/A: PickOne\r\n*A x/X: \"1\"\r\n*CloseUI: *A\r\n*DefaultA: x\r\n"
                 "*OpenUI *B/B: PickOne\r\n*B y/Y: \"2\"\r\n*CloseUI: *B\n",
                 {{"0", "A", "A", "x", {{"x", "X", "1"}}}, {"0", "B", "B", "", {{"y", "Y", "2"}}}}},
        // The last option's choices lie after its start line when it has no end.
        OpenCase{"CrLfLastOptionLosesItsChoices",
                 "*OpenUI *A/A: PickOne\r\n*A x/X: \"1\"\r\n*CloseUI: *A\r\n",
                 {}},
        // The last *Default line of the option's own text wins; a translation
        // runs to the last colon of its line.
        OpenCase{"LastDefaultAndTextToLastColon",
                 "*OpenUI *A/A: x: PickOne\n*DefaultA: x\n*DefaultA: y\n*A y/Y: \"1\"\n"
                 "*CloseUI: *A\n",
                 {{"0", "A", "A: x", "y", {{"y", "Y", "1"}}}}}),
    [](const auto &info) { return std::string(info.param.name); });

TEST(OrvoPPDScan, GroupAndOptionKeywords) {
    const QString text = "*OpenGroup: One/First\n*OpenGroup: Two\n*OpenGroup:   Three/x/y\n"
                         "*OpenUI *A/A: PickOne\n*OpenUI *B: PickOne\n*JCLOpenUI *J/J: PickOne\n";
    EXPECT_EQ(OrvoPPD::groupKeyword(text), QStringList({"General", "One", "Three"}));
    EXPECT_EQ(OrvoPPD::optionKeywords(text), QStringList({"A", "J"}));
}

TEST(OrvoPPDScan, RangesFollowLastMatchAndOptionalLastCharacter) {
    const QString text = "*OpenUI *Slot/S: PickOne\n*CloseUI: *Slot\n"
                         "*OpenUI *Slo/S: PickOne\n*Slo a/A: \"\"\n"
                         "*OpenUI *C/C: PickOne\n";
    // The start of "Slot" is the later "*Slo/" line; its end the earlier close line.
    const qsizetype close = text.indexOf("*CloseUI: *Slot");
    const qsizetype sloEnd = text.indexOf("\n*Slo a");
    EXPECT_EQ(OrvoPPD::optionRagne(text, "Slot"), (OrvoPPDRange{close, sloEnd - close}));
    // Without a close line the option ends on the character before the next *OpenUI.
    const qsizetype slo = text.indexOf("*OpenUI *Slo/");
    EXPECT_EQ(OrvoPPD::optionRagne(text, "Slo"),
              (OrvoPPDRange{slo, text.indexOf("*OpenUI *C/") - slo}));
    // Nothing names it and the next *OpenUI line is the text's start: no range.
    EXPECT_EQ(OrvoPPD::optionRagne(text, "Missing"), OrvoPPDRange{});
}

TEST(OrvoPPDScan, GroupRangesAndLookup) {
    const QString text = "*OpenGroup: Fin/Finishing\n*OpenUI *A/A: PickOne\n*CloseGroup: Fin\n";
    const OrvoPPDRange fin = OrvoPPD::groupRange(text, "Fin");
    EXPECT_EQ(fin, (OrvoPPDRange{0, text.indexOf("\n", text.indexOf("*CloseGroup"))}));
    EXPECT_EQ(OrvoPPD::groupRange(text, "General"), OrvoPPDRange{});
    const OrvoPPD::GroupRanges ranges = {{"General", {}}, {"Fin", fin}};
    EXPECT_EQ(OrvoPPD::findGroupKey(ranges, {fin.location, 1}), "Fin");
    EXPECT_EQ(OrvoPPD::findGroupKey(ranges, {fin.end() - 1, 0}), "Fin");
    EXPECT_EQ(OrvoPPD::findGroupKey(ranges, {fin.end(), 0}), "General");
    EXPECT_EQ(OrvoPPD::findGroupKey({}, {3, 1}), "General");
}

QByteArray optionWith(const QByteArray &keyword, const QByteArray &text, const QByteArray &choice,
                      const QByteArray &choiceText) {
    return "*OpenUI *" + keyword + "/" + text + ": PickOne\n*Default" + keyword + ": " + choice +
           "\n*" + keyword + " " + choice + "/" + choiceText + ": \"c\"\n*CloseUI: *" + keyword +
           "\n";
}

struct OverflowCase {
    const char *name;
    QByteArray ppd;
    const char *field;
    int bytes;
};

class OrvoPPDOverflow : public ::testing::TestWithParam<OverflowCase> {};

TEST_P(OrvoPPDOverflow, StopsTheProgramAfterItsLogLine) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    TempPPD file(GetParam().ppd);
    const std::string line =
        "\\[Driver\\] PPD field overflow: " + std::to_string(GetParam().bytes) +
        " bytes do not fit in " + GetParam().field;
    ASSERT_EXIT(
        {
            logToStandardError();
            OrvoPPD::ppdOpenFile(file.filePath());
        },
        ::testing::KilledBySignal(SIGABRT), line);
}

INSTANTIATE_TEST_SUITE_P(
    Fields, OrvoPPDOverflow,
    ::testing::Values(
        OverflowCase{"OptionText", optionWith("A", QByteArray(81, 't'), "c", "C"), "option text",
                     81},
        OverflowCase{"Keyword", optionWith(QByteArray(41, 'K'), "T", "c", "C"), "option keyword",
                     41},
        OverflowCase{"Default", optionWith("A", "T", QByteArray(41, 'c'), "C"), "default choice",
                     41},
        OverflowCase{"ChoiceText", optionWith("A", "T", "c", QByteArray(79, 't') + "\xc3\xa9"),
                     "choice text", 81},
        OverflowCase{"AttributeName",
                     optionWith("A", "T", "c", "C") + "*" + QByteArray(41, 'n') + ": v\n",
                     "attribute name", 41}),
    [](const auto &info) { return std::string(info.param.name); });

TEST(OrvoPPDOverflow, FieldsFilledToTheirLimitsAreKept) {
    // A blank in the text and no *Default line: the attribute scan would
    // otherwise read too long a name from the OpenUI or Default line.
    const QByteArray text = QByteArray(39, 't') + " " + QByteArray(38, 't') + "\xc3\xa9";
    const QByteArray keyword(40, 'K');
    const QByteArray choice(40, 'c');
    TempPPD file("*OpenUI *" + keyword + "/" + text + ": PickOne\n*" + keyword + " " + choice +
                 "/" + text + ": \"c\"\n*CloseUI: *" + keyword + "\n");
    OpenedPPD ppd = file.open();
    ASSERT_TRUE(ppd);
    const ppd_option_t &option = ppd->groups[0].options[0];
    EXPECT_EQ(QByteArray(option.keyword), QByteArray(40, 'K'));
    EXPECT_EQ(QByteArray(option.text), text);
    EXPECT_EQ(QByteArray(option.choices[0].choice), QByteArray(40, 'c'));
}

struct LanguageCase {
    const char *version; // "" : no version file
    QStringList preferred;
    bool fullName;
    const char *language;
    const char *ppdLanguage;
};

class OrvoPPDLanguage : public ::testing::TestWithParam<LanguageCase> {
protected:
    void SetUp() override {
        OVPreferredLanguages::setOverride(GetParam().preferred);
        const QString path = dir.filePath("SystemVersion.plist");
        QFile plist(path);
        if (*GetParam().version && plist.open(QIODevice::WriteOnly))
            plist.write(QByteArray("<?xml version=\"1.0\"?><plist><dict><key>ProductVersion</key>"
                                   "<string>") +
                        GetParam().version + "</string></dict></plist>");
        OVSystemVersion::setPlistPath(path);
    }
    void TearDown() override {
        OVPreferredLanguages::setOverride(std::nullopt);
        OVSystemVersion::setPlistPath(QString());
    }
    QTemporaryDir dir;
};

TEST_P(OrvoPPDLanguage, FollowsTheSystemVersion) {
    EXPECT_EQ(OrvoPPD::getSystemLanguage(GetParam().fullName), GetParam().language);
    EXPECT_EQ(OrvoPPD::ppdGetLanguage(), GetParam().ppdLanguage);
}

INSTANTIATE_TEST_SUITE_P(
    Versions, OrvoPPDLanguage,
    ::testing::Values(LanguageCase{"", {"en-US"}, false, "en-US", "en-US"},
                      LanguageCase{"10.14", {"en-US"}, false, "en", "en"},
                      LanguageCase{"10.14", {"en-US"}, true, "en-US", "en"},
                      LanguageCase{"10.14", {"en"}, false, "en", "en"},
                      LanguageCase{"10.11", {"en-US"}, false, "en-US", "en-US"},
                      LanguageCase{"10.11", {"zh-HK"}, false, "zh-Hant-HK", "zh_HK"},
                      LanguageCase{"10.12", {"zh-Hans-CN"}, false, "zh-Hans", "zh_CN"},
                      LanguageCase{"10.13", {"zh-Hant-HK"}, false, "zh-Hant-HK", "zh_HK"},
                      LanguageCase{"10.15", {"fr-FR", "de-DE"}, false, "de", "de"},
                      LanguageCase{"11.0", {"fr-FR", "de-DE"}, true, "de-DE", "de"},
                      LanguageCase{"10.15", {"ja-JP"}, false, "ja", "ja"},
                      LanguageCase{
                          "12.1", {"zh-Hans-CN", "en"}, false, "zh-Hans-CN", "zh-Hans-CN"}));

TEST(OrvoPPDVersion, WritesOnlyTheLeadingPartsItHas) {
    QTemporaryDir dir;
    const QString path = dir.filePath("SystemVersion.plist");
    QFile plist(path);
    ASSERT_TRUE(plist.open(QIODevice::WriteOnly));
    plist.write("<plist><dict><key>ProductVersion</key><string>10.13</string></dict></plist>");
    plist.close();
    OVSystemVersion::setPlistPath(path);
    int32_t major = 7, middle = 7, minor = 7;
    OrvoPPD::getSystemVersion(&major, &middle, &minor);
    EXPECT_EQ(std::tuple(major, middle, minor), std::tuple(10, 13, 7));
    OrvoPPD::getSystemVersion(nullptr, &middle, nullptr);
    OVSystemVersion::setPlistPath(dir.filePath("missing.plist"));
    OrvoPPD::getSystemVersion(&major, &middle, &minor);
    EXPECT_EQ(std::tuple(major, middle, minor), std::tuple(10, 13, 7));
    OVSystemVersion::setPlistPath(QString());
}

const QByteArray localizedPPD =
    QByteArray("*OpenUI *PageSize/Media Size: PickOne\n*DefaultPageSize: A4\n"
               "*PageSize A4/A4: \"a4\"\n*PageSize Letter/Letter: \"lt\"\n*CloseUI: *PageSize\n"
               "*OpenUI *Duplex/Duplex: PickOne\n*Duplex None/Off: \"n\"\n*CloseUI: *Duplex\n"
               "*fr.Translation PageSize/Taille du papier: \"\"\n"
               "*fr.PageSize A4/A4 (210 x 297 mm): \"\"\n*fr.Translation Duplex/: \"\"\n"
               "*fr.PageSize Letter/") +
    QByteArray(79, 'l') + "\xc3\xa9: \"\"\n";

struct LocalizeCase {
    const char *name;
    QStringList preferred;
    // PageSize, A4, Letter, Duplex, None
    std::vector<QByteArray> texts;
};

class OrvoPPDLocalize : public ::testing::TestWithParam<LocalizeCase> {};

TEST_P(OrvoPPDLocalize, RewritesTranslatedTexts) {
    QTemporaryDir dir;
    QFile plist(dir.filePath("SystemVersion.plist"));
    ASSERT_TRUE(plist.open(QIODevice::WriteOnly));
    plist.write("<plist><dict><key>ProductVersion</key><string>10.14</string></dict></plist>");
    plist.close();
    OVSystemVersion::setPlistPath(plist.fileName());
    OVPreferredLanguages::setOverride(GetParam().preferred);
    TempPPD file(localizedPPD);
    OpenedPPD ppd = file.open();
    ASSERT_TRUE(ppd);
    EXPECT_EQ(OrvoPPD::ppdLocalize(ppd.get(), file.filePath()), 0);
    const ppd_option_t *pageSize = OrvoPPD::ppdFindOption(ppd.get(), "PageSize");
    const ppd_option_t *duplex = OrvoPPD::ppdFindOption(ppd.get(), "Duplex");
    ASSERT_TRUE(pageSize && duplex);
    const std::vector<QByteArray> texts = {pageSize->text, pageSize->choices[0].text,
                                           pageSize->choices[1].text, duplex->text,
                                           duplex->choices[0].text};
    EXPECT_EQ(texts, GetParam().texts);
    OVPreferredLanguages::setOverride(std::nullopt);
    OVSystemVersion::setPlistPath(QString());
}

INSTANTIATE_TEST_SUITE_P(Languages, OrvoPPDLocalize,
                         ::testing::Values(
                             // Translations cut at byte 80, inside the last character; a defined
                             // but empty translation clears the text.
                             LocalizeCase{"French",
                                          {"fr-FR"},
                                          {"Taille du papier", "A4 (210 x 297 mm)",
                                           QByteArray(79, 'l') + "\xc3", "", "Off"}},
                             LocalizeCase{"NoLinesForLanguage",
                                          {"de-DE"},
                                          {"Media Size", "A4", "Letter", "Duplex", "Off"}}),
                         [](const auto &info) { return std::string(info.param.name); });

TEST(OrvoPPDLocalize, LookupsNeedTextLanguageAndKeyword) {
    const QString text = "*fr.Translation PageSize/Taille: \"\"\n*FR.PageSize A4/A4 fr: \"\"\n";
    EXPECT_EQ(OrvoPPD::ppdLocalGetLocalize(text, "fr", "PageSize", QString()), "Taille");
    EXPECT_EQ(OrvoPPD::ppdLocalGetLocalize(text, "fr", "pagesize", "a4"), "A4 fr");
    EXPECT_EQ(OrvoPPD::ppdLocalGetLocalize(text, "fr", QString(), QString()), "");
    EXPECT_EQ(OrvoPPD::ppdLocalGetLocalize(QString(), "fr", "PageSize", QString()), "");
    EXPECT_TRUE(OrvoPPD::isDefinePpdLocalLocalize(text, "fr", "PageSize", "A4"));
    EXPECT_FALSE(OrvoPPD::isDefinePpdLocalLocalize(text, QString(), "PageSize", QString()));
    EXPECT_EQ(OrvoPPD::ppdGetAttributes(text, "\\*(FR)\\.page", 1), "FR");
    EXPECT_EQ(OrvoPPD::ppdGetAttributes(text, "\\*(FR)\\.page", 5), "");
    EXPECT_EQ(OrvoPPD::ppdGetAttributes(text, QString(), 0), "");
}

class OrvoPPDQueries : public ::testing::Test {
protected:
    TempPPD file{"*DefaultPageSize: A4\n*OpenUI *PageSize/Size: PickOne\n*DefaultPageSize: A4\n"
                 "*PageSize A4/A4: \"a\"\n*PageSize Letter/Letter: \"l\"\n*CloseUI: *PageSize\n"
                 "*OpenUI *Duplex/Duplex: PickOne\n*DefaultDuplex: Simplex\n"
                 "*Duplex None/Off: \"n\"\n*CloseUI: *Duplex\n"};
    OpenedPPD ppd = file.open();

    std::vector<int> marks(const char *keyword) {
        std::vector<int> marked;
        const ppd_option_t *option = OrvoPPD::ppdFindOption(ppd.get(), keyword);
        for (int c = 0; option && c < option->num_choices; ++c)
            marked.push_back(option->choices[c].marked);
        return marked;
    }
};

TEST_F(OrvoPPDQueries, FindsByExactName) {
    ASSERT_TRUE(ppd);
    const ppd_attr_t *attribute = OrvoPPD::ppdFindAttr(ppd.get(), "DefaultPageSize", nullptr);
    ASSERT_TRUE(attribute);
    EXPECT_EQ(attribute, ppd->attrs[0]);
    EXPECT_EQ(OrvoPPD::ppdFindAttr(ppd.get(), "DefaultPageSize", ""), attribute);
    EXPECT_EQ(OrvoPPD::ppdFindAttr(ppd.get(), "DefaultPageSize", "A4"), nullptr);
    EXPECT_EQ(OrvoPPD::ppdFindAttr(ppd.get(), "defaultpagesize", nullptr), nullptr);
    EXPECT_EQ(OrvoPPD::ppdFindAttr(ppd.get(), nullptr, nullptr), nullptr);
    ppd_option_t *pageSize = OrvoPPD::ppdFindOption(ppd.get(), "PageSize");
    ASSERT_TRUE(pageSize);
    EXPECT_EQ(OrvoPPD::ppdFindOption(ppd.get(), "pagesize"), nullptr);
    EXPECT_STREQ(OrvoPPD::ppdFindChoice(pageSize, "Letter")->code, "l");
    EXPECT_EQ(OrvoPPD::ppdFindChoice(pageSize, "letter"), nullptr);
    EXPECT_EQ(OrvoPPD::cupsGetPPD2("Office"), "/etc/cups/ppd/Office.ppd");
}

TEST_F(OrvoPPDQueries, MarksOnlyKnownChoices) {
    ASSERT_TRUE(ppd);
    EXPECT_EQ(OrvoPPD::ppdMarkOption(ppd.get(), "PageSize", nullptr), 0);
    EXPECT_EQ(OrvoPPD::ppdMarkOption(ppd.get(), "PageSize", "Letter"), 1);
    EXPECT_EQ(marks("PageSize"), (std::vector<int>{0, 1}));
    EXPECT_EQ(OrvoPPD::ppdMarkOption(ppd.get(), "PageSize", "Tabloid"), 1);
    EXPECT_EQ(OrvoPPD::ppdMarkOption(ppd.get(), "Missing", "A4"), 1);
    EXPECT_EQ(marks("PageSize"), (std::vector<int>{0, 1}));
    // The libcups option lookup ignores case.
    EXPECT_STREQ(OrvoPPD::ppdFindMarkedChoice(ppd.get(), "pagesize")->choice, "Letter");
    OrvoPPD::ppdMarkDefaults(ppd.get());
    EXPECT_EQ(marks("PageSize"), (std::vector<int>{1, 0}));
    EXPECT_EQ(marks("Duplex"), (std::vector<int>{0}));
    EXPECT_EQ(OrvoPPD::ppdFindMarkedChoice(ppd.get(), "Duplex"), nullptr);
    EXPECT_EQ(OrvoPPD::ppdFindMarkedChoice(ppd.get(), "Missing"), nullptr);
}

TEST(OrvoPPDQueriesEmpty, EmptyStructureFindsNothing) {
    ppd_file_t empty{};
    ppd_option_t noChoices{};
    EXPECT_EQ(OrvoPPD::ppdFindAttr(&empty, "A", nullptr), nullptr);
    EXPECT_EQ(OrvoPPD::ppdFindOption(&empty, "A"), nullptr);
    EXPECT_EQ(OrvoPPD::ppdFindChoice(&noChoices, "A"), nullptr);
    EXPECT_EQ(OrvoPPD::ppdFindMarkedChoice(&empty, "A"), nullptr);
    EXPECT_EQ(OrvoPPD::ppdMarkOption(&empty, "A", "B"), 1);
    EXPECT_EQ(OrvoPPD::ppdFindOption(nullptr, "A"), nullptr);
}

} // namespace
