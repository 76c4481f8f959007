#include "OrvoPPDTestSupport.h"

#include "OVPreferredLanguages.h"
#include "OVSystemVersion.h"

#include <gtest/gtest.h>

using namespace OrvoPPDTestSupport;

namespace {

struct OpenCase {
    const char *ppd;
    Lines options; // empty: the open gives null
};

TEST(OrvoPPDOpen, ReadsOptionsAsTheRulesSay) {
    const OpenCase cases[] = {
        {"*OpenUI *PageSize/Media Size: PickOne\n*DefaultPageSize: Letter\n"
         "*PageSize Letter/US Letter: \"<</PageSize[612 792]>>\"\n*PageSize A4/A4: \"a4\"\n"
         "*CloseUI: *PageSize\n*OpenGroup: Finishing/Finishing Options\n"
         "*OpenUI *Duplex/2-Sided: PickOne\n*DefaultDuplex: None\n*Duplex None/Off: \"\"\n"
         "*CloseUI: *Duplex\n*CloseGroup: Finishing\n*CustomPageSize True: \"pop pop\"\n",
         {"0 PageSize 'Media Size' =Letter [Letter/US Letter/<</PageSize[612 792]>>] [A4/A4/a4] "
          "[Custom/Custom/pop pop]",
          "1 Duplex '2-Sided' =None [None/Off/]"}},
        // Nothing after the end of the Advanced group is read.
        {"*OpenGroup: Advanced/Advanced\n*OpenUI *A/A: PickOne\n*A x/X: \"1\"\n*CloseUI: *A\n"
         "*CloseGroup: Advanced\n*OpenUI *B/B: PickOne\n*B y/Y: \"2\"\n*CloseUI: *B\n",
         {"1 A 'A' = [x/X/1]"}},
        {"*OpenUI *A: PickOne\n*A x/X: \"1\"\n*CloseUI: *A\n"
         "*OpenUI *B/B: PickOne\n*B y/Y: \"2\"\n*CloseUI: *B\n",
         {"0 B 'B' = [y/Y/2]"}},
        {"*OpenUI *PageRegion/Region: PickOne\n*PageRegion A4/A4: \"r\"\n"
         "*CloseUI: *PageRegion\n*CustomPageRegion True: \"c\"\n",
         {"0 PageRegion 'Region' = [A4/A4/r] [Custom/Custom/c] [Custom/Custom/-]"}},
        {"*OpenUI *Size/Size: PickOne\n*CloseUI: *Size\n*CustomSize True: \"a\" \"b\"\n",
         {"0 Size 'Size' = [Custom/Custom/b]"}},
        // An option without a choice makes the whole file unreadable.
        {"*OpenUI *A/A: PickOne\n*A x/X: \"1\"\n*CloseUI: *A\n"
         "*OpenUI *B/B: PickOne\n*B y: \"2\"\n*CloseUI: *B\n",
         {}},
        {"*PPD-Adobe: \"4.3\"\n*ModelName: \"x\"\n", {}},
        {"*OpenGroup: G/Group\n*OpenUI *A/A: PickOne\n*A x/X: \"1\"\n*CloseUI: *A\n"
         "*CloseGroup: G\n*OpenUI *B/B: PickOne\n*B y/Y: \"2\"\n*CloseUI: *B\n",
         {"0 B 'B' = [y/Y/2]", "1 A 'A' = [x/X/1]"}},
        // A line feed must follow the close line's keyword, so CRLF options
        // end just before the next *OpenUI line instead, and the last one
        // loses its choices.
        {"*OpenUI *A/A: PickOne\r\n*A x/X: \"1\"\r\n*CloseUI: *A\r\n*DefaultA: x\r\n"
         "*OpenUI *B/B: PickOne\r\n*B y/Y: \"2\"\r\n*CloseUI: *B\n",
         {"0 A 'A' =x [x/X/1]", "0 B 'B' = [y/Y/2]"}},
        {"*OpenUI *A/A: PickOne\r\n*A x/X: \"1\"\r\n*CloseUI: *A\r\n", {}},
        // The last *Default line wins; a translation runs to the last colon.
        {"*OpenUI *A/A: x: PickOne\n*DefaultA: x\n*DefaultA: y\n*A y/Y: \"1\"\n*CloseUI: *A\n",
         {"0 A 'A: x' =y [y/Y/1]"}},
    };
    for (const OpenCase &c : cases) {
        SCOPED_TRACE(c.ppd);
        const OpenedPPD ppd = TempPPD(c.ppd).open();
        EXPECT_EQ(ppd ? describe(ppd.get()) : Lines(), c.options);
    }
    // Attributes are not anchored to the line start: "*B/B:" inside the
    // OpenUI line is one.
    const OpenedPPD ppd = TempPPD(cases[7].ppd).open();
    ASSERT_TRUE(ppd);
    EXPECT_EQ(describe(ppd.get(), true),
              Lines({"0 B 'B' = [y/Y/2]", "1 A 'A' = [x/X/1]", "OpenGroup: G/Group", "A/A: PickOne",
                     "CloseUI: *A", "CloseGroup: G", "B/B: PickOne", "CloseUI: *B"}));
}

TEST(OrvoPPDScan, OptionRangeFollowsLastMatchAndOptionalLastCharacter) {
    const QString text = "*OpenUI *Slot/S: PickOne\n*CloseUI: *Slot\n*OpenUI *Slo/S: PickOne\n"
                         "*Slo a/A: \"\"\n*OpenUI *C/C: PickOne\n";
    // The start of "Slot" is the later "*Slo/" line; its end the earlier close line.
    const qsizetype close = text.indexOf("*CloseUI: *Slot"), slo = text.indexOf("*OpenUI *Slo/");
    EXPECT_EQ(OrvoPPD::optionRagne(text, "Slot"),
              (OrvoPPDRange{close, text.indexOf("\n*Slo a") - close}));
    // Without a close line the option ends on the character before the next *OpenUI.
    EXPECT_EQ(OrvoPPD::optionRagne(text, "Slo"),
              (OrvoPPDRange{slo, text.indexOf("*OpenUI *C/") - slo}));
    EXPECT_EQ(OrvoPPD::optionRagne(text, "Missing"), OrvoPPDRange{});
}

QByteArray optionWith(const QByteArray &keyword, const QByteArray &text, const QByteArray &choice,
                      const QByteArray &choiceText) {
    return "*OpenUI *" + keyword + "/" + text + ": PickOne\n*Default" + keyword + ": " + choice +
           "\n*" + keyword + " " + choice + "/" + choiceText + ": \"c\"\n*CloseUI: *" + keyword +
           "\n";
}

TEST(OrvoPPDOverflow, StopsTheProgramAfterItsLogLine) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const std::tuple<QByteArray, const char *, int> cases[] = {
        {optionWith("A", QByteArray(81, 't'), "c", "C"), "option text", 81},
        {optionWith(QByteArray(41, 'K'), "T", "c", "C"), "option keyword", 41},
        {optionWith("A", "T", QByteArray(41, 'c'), "C"), "default choice", 41},
        {optionWith("A", "T", "c", QByteArray(79, 't') + "\xc3\xa9"), "choice text", 81},
        {optionWith("A", "T", "c", "C") + "*" + QByteArray(41, 'n') + ": v\n", "attribute name",
         41}};
    for (const auto &[content, field, bytes] : cases) {
        TempPPD file(content);
        EXPECT_EXIT(
            {
                logToStandardError();
                OrvoPPD::ppdOpenFile(file.filePath());
            },
            ::testing::KilledBySignal(SIGABRT),
            "\\[Driver\\] PPD field overflow: " + std::to_string(bytes) + " bytes do not fit in " +
                field);
    }
    // Filled to their limits the fields are kept. A blank in the text and no
    // *Default line: the attribute scan would otherwise read too long a name.
    const QByteArray text = QByteArray(39, 't') + " " + QByteArray(38, 't') + "\xc3\xa9";
    const QByteArray keyword(40, 'K'), choice(40, 'c');
    const OpenedPPD ppd =
        TempPPD("*OpenUI *" + keyword + "/" + text + ": PickOne\n*" + keyword + " " + choice + "/" +
                text + ": \"c\"\n*CloseUI: *" + keyword + "\n")
            .open();
    ASSERT_TRUE(ppd);
    EXPECT_EQ(describe(ppd.get()),
              Lines({("0 " + keyword + " '" + text + "' = [" + choice + "/" + text + "/c]")
                         .toStdString()}));
}

// Points the system version at a file holding the version, none for "".
struct SystemVersion {
    explicit SystemVersion(const char *version) {
        QFile plist(dir.filePath("SystemVersion.plist"));
        if (*version && plist.open(QIODevice::WriteOnly))
            plist.write(QByteArray("<plist><dict><key>ProductVersion</key><string>") + version +
                        "</string></dict></plist>");
        OVSystemVersion::setPlistPath(plist.fileName());
    }
    ~SystemVersion() {
        OVSystemVersion::setPlistPath(QString());
        OVPreferredLanguages::setOverride(std::nullopt);
    }
    QTemporaryDir dir;
};

TEST(OrvoPPDLanguage, FollowsTheSystemVersion) {
    const std::tuple<const char *, QStringList, bool, const char *, const char *> cases[] = {
        {"", {"en-US"}, false, "en-US", "en-US"},
        {"10.14", {"en-US"}, false, "en", "en"},
        {"10.14", {"en-US"}, true, "en-US", "en"},
        {"10.11", {"en-US"}, false, "en-US", "en-US"},
        {"10.11", {"zh-HK"}, false, "zh-Hant-HK", "zh_HK"},
        {"10.12", {"zh-Hans-CN"}, false, "zh-Hans", "zh_CN"},
        {"10.13", {"zh-Hant-HK"}, false, "zh-Hant-HK", "zh_HK"},
        {"10.15", {"fr-FR", "de-DE"}, false, "de", "de"},
        {"11.0", {"fr-FR", "de-DE"}, true, "de-DE", "de"},
        {"10.15", {"ja-JP"}, false, "ja", "ja"},
        {"12.1", {"zh-Hans-CN", "en"}, false, "zh-Hans-CN", "zh-Hans-CN"}};
    for (const auto &[version, preferred, fullName, language, ppdLanguage] : cases) {
        SCOPED_TRACE(std::string(version) + " " + preferred.join(",").toStdString());
        const SystemVersion system(version);
        OVPreferredLanguages::setOverride(preferred);
        EXPECT_EQ(OrvoPPD::getSystemLanguage(fullName), language);
        EXPECT_EQ(OrvoPPD::ppdGetLanguage(), ppdLanguage);
    }
}

TEST(OrvoPPDVersion, WritesOnlyTheLeadingPartsItHas) {
    int32_t major = 7, middle = 7, minor = 7;
    {
        const SystemVersion system("10.13");
        OrvoPPD::getSystemVersion(&major, &middle, &minor);
        OrvoPPD::getSystemVersion(nullptr, &middle, nullptr);
    }
    EXPECT_EQ(std::tuple(major, middle, minor), std::tuple(10, 13, 7));
    const SystemVersion missing("");
    OrvoPPD::getSystemVersion(&major, &middle, &minor);
    EXPECT_EQ(std::tuple(major, middle, minor), std::tuple(10, 13, 7));
}

TEST(OrvoPPDLocalize, RewritesTranslatedTexts) {
    const QByteArray longText = QByteArray(79, 'l') + "\xc3\xa9";
    const TempPPD file(
        "*OpenUI *PageSize/Media Size: PickOne\n*DefaultPageSize: A4\n*PageSize A4/A4: \"a4\"\n"
        "*PageSize Letter/Letter: \"lt\"\n*CloseUI: *PageSize\n*OpenUI *Duplex/Duplex: PickOne\n"
        "*Duplex None/Off: \"n\"\n*CloseUI: *Duplex\n*fr.Translation PageSize/Taille: \"\"\n"
        "*fr.PageSize A4/A4 (210 x 297 mm): \"\"\n*fr.Translation Duplex/: \"\"\n"
        "*fr.PageSize Letter/" +
        longText + ": \"\"\n");
    // Translations are cut at byte 80, inside the last character; a defined
    // but empty translation clears the text.
    const std::pair<const char *, Lines> cases[] = {
        {"fr-FR",
         {("0 PageSize 'Taille' =A4 [A4/A4 (210 x 297 mm)/a4] [Letter/" + longText.chopped(1) +
           "/lt]")
              .toStdString(),
          "0 Duplex '' = [None/Off/n]"}},
        {"de-DE",
         {"0 PageSize 'Media Size' =A4 [A4/A4/a4] [Letter/Letter/lt]",
          "0 Duplex 'Duplex' = [None/Off/n]"}}};
    for (const auto &[language, options] : cases) {
        const SystemVersion system("10.14");
        OVPreferredLanguages::setOverride(QStringList{language});
        const OpenedPPD ppd = file.open();
        ASSERT_TRUE(ppd);
        EXPECT_EQ(OrvoPPD::ppdLocalize(ppd.get(), file.filePath()), 0);
        EXPECT_EQ(describe(ppd.get()), options) << language;
    }
}

TEST(OrvoPPDLocalize, LookupsIgnoreCaseAndNeedTextLanguageAndKeyword) {
    const QString text = "*fr.Translation PageSize/Taille: \"\"\n*FR.PageSize A4/A4 fr: \"\"\n";
    EXPECT_EQ(OrvoPPD::ppdLocalGetLocalize(text, "fr", "PageSize", QString()), "Taille");
    EXPECT_EQ(OrvoPPD::ppdLocalGetLocalize(text, "fr", "pagesize", "a4"), "A4 fr");
    EXPECT_EQ(OrvoPPD::ppdLocalGetLocalize(text, "fr", QString(), QString()), "");
    EXPECT_EQ(OrvoPPD::ppdLocalGetLocalize(QString(), "fr", "PageSize", QString()), "");
    EXPECT_TRUE(OrvoPPD::isDefinePpdLocalLocalize(text, "fr", "PageSize", "A4"));
    EXPECT_FALSE(OrvoPPD::isDefinePpdLocalLocalize(text, QString(), "PageSize", QString()));
    EXPECT_EQ(OrvoPPD::ppdGetAttributes(text, "\\*(FR)\\.page", 5), "");
}

TEST(OrvoPPDQueries, FindAndMarkByExactNames) {
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
    EXPECT_EQ(OrvoPPD::ppdFindAttr(ppd.get(), "defaultpagesize", nullptr), nullptr);
    EXPECT_EQ(OrvoPPD::ppdFindOption(ppd.get(), "pagesize"), nullptr);
    EXPECT_EQ(OrvoPPD::ppdFindChoice(pageSize, "letter"), nullptr);
    auto marks = [&](const char *keyword) {
        const ppd_option_t *option = OrvoPPD::ppdFindOption(ppd.get(), keyword);
        std::vector<int> marked;
        for (int c = 0; c < option->num_choices; ++c)
            marked.push_back(option->choices[c].marked);
        return marked;
    };
    EXPECT_EQ(OrvoPPD::ppdMarkOption(ppd.get(), "PageSize", nullptr), 0);
    EXPECT_EQ(OrvoPPD::ppdMarkOption(ppd.get(), "PageSize", "Letter"), 1);
    EXPECT_EQ(OrvoPPD::ppdMarkOption(ppd.get(), "PageSize", "Tabloid"), 1);
    EXPECT_EQ(OrvoPPD::ppdMarkOption(ppd.get(), "Missing", "A4"), 1);
    EXPECT_EQ(marks("PageSize"), (std::vector<int>{0, 1}));
    // The libcups option lookup ignores case.
    EXPECT_STREQ(OrvoPPD::ppdFindMarkedChoice(ppd.get(), "pagesize")->choice, "Letter");
    OrvoPPD::ppdMarkDefaults(ppd.get());
    EXPECT_EQ(marks("PageSize"), (std::vector<int>{1, 0}));
    EXPECT_EQ(OrvoPPD::ppdFindMarkedChoice(ppd.get(), "Duplex"), nullptr);
    // An empty structure and null arguments find nothing.
    ppd_file_t empty{};
    ppd_option_t noChoices{};
    EXPECT_EQ(OrvoPPD::ppdFindAttr(&empty, nullptr, nullptr), nullptr);
    EXPECT_EQ(OrvoPPD::ppdFindOption(nullptr, "A"), nullptr);
    EXPECT_EQ(OrvoPPD::ppdFindChoice(&noChoices, "A"), nullptr);
    EXPECT_EQ(OrvoPPD::ppdFindMarkedChoice(&empty, "A"), nullptr);
    EXPECT_EQ(OrvoPPD::ppdMarkOption(&empty, "A", "B"), 1);
}

} // namespace
