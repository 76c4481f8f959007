#include "OrvoPPDTestSupport.h"

#include <gtest/gtest.h>

using namespace OrvoPPDTestSupport;

namespace {

// Each paragraph of the file a PPD, its lines after "> " what the reader makes
// of it; none when it gives null.
TEST(OrvoPPDOpen, ReadsTheListedCases) {
    QFile file(ORVO_PPD_CORPUS "/reader-cases.txt");
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    for (const QString &paragraph : QString(file.readAll()).split("\n\n")) {
        QByteArray content;
        Lines expected;
        for (const QString &line : paragraph.split(u'\n'))
            if (line.startsWith("> "))
                expected.push_back(line.mid(2).toStdString());
            else
                content += line.toUtf8() + "\n";
        SCOPED_TRACE(content.constData());
        const OpenedPPD ppd = TempPPD(content).open();
        EXPECT_EQ(ppd ? describe(ppd.get(), true) : Lines(), expected);
    }
}

TEST(OrvoPPDOverflow, StopsTheProgramAfterItsLogLineOnlyPastTheLimit) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    auto option = [](const QByteArray &keyword, const QByteArray &text, const QByteArray &choice,
                     const QByteArray &choiceText, const QByteArray &more = "") {
        return "*OpenUI *" + keyword + "/" + text + ": PickOne\n" + more + "*" + keyword + " " +
               choice + "/" + choiceText + ": \"c\"\n*CloseUI: *" + keyword + "\n";
    };
    const std::tuple<QByteArray, const char *, int> cases[] = {
        {option("A", QByteArray(81, 't'), "c", "C"), "option text", 81},
        {option(QByteArray(41, 'K'), "T", "c", "C"), "option keyword", 41},
        {option("A", "T", "c", "C", "*DefaultA: " + QByteArray(41, 'c') + "\n"), "default choice",
         41},
        {option("A", "T", "c", QByteArray(79, 't') + "\xc3\xa9"), "choice text", 81},
        {option("A", "T", "c", "C", "*" + QByteArray(41, 'n') + ": v\n"), "attribute name", 41}};
    for (const auto &[content, field, bytes] : cases) {
        const TempPPD file(content);
        EXPECT_EXIT(
            {
                logToStandardError();
                OrvoPPD::ppdOpenFile(file.filePath());
            },
            ::testing::KilledBySignal(SIGABRT),
            "\\[Driver\\] PPD field overflow: " + std::to_string(bytes) + " bytes do not fit in " +
                field);
    }
    // A blank in the text, or the attribute scan would read too long a name.
    const QByteArray keyword(40, 'K'), choice(40, 'c'),
        text = QByteArray(39, 't') + " " + QByteArray(38, 't') + "\xc3\xa9";
    const OpenedPPD ppd = TempPPD(option(keyword, text, choice, text)).open();
    ASSERT_TRUE(ppd);
    EXPECT_EQ(describe(ppd.get()),
              Lines({("0 " + keyword + " '" + text + "' = [" + choice + "/" + text + "/c]")
                         .toStdString()}));
}

TEST(OrvoPPDLanguage, FollowsTheSystemVersion) {
    const std::tuple<const char *, QStringList, bool, const char *, const char *> cases[] = {
        {nullptr, {"en-US"}, false, "en-US", "en-US"},
        {"10.11", {"zh-HK"}, false, "zh-Hant-HK", "zh_HK"},
        {"10.12", {"zh-Hans-CN"}, false, "zh-Hans", "zh_CN"},
        {"11.0", {"fr-FR", "de-DE"}, true, "de-DE", "de"},
        {"12.1", {"zh-Hans-CN", "en"}, false, "zh-Hans-CN", "zh-Hans-CN"}};
    for (const auto &[version, preferred, fullName, language, ppdLanguage] : cases) {
        SCOPED_TRACE(version);
        const Platform platform(Platform::version(version), preferred);
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
        const Platform platform(Platform::version("10.14"), {language});
        const OpenedPPD ppd = file.open();
        ASSERT_TRUE(ppd);
        EXPECT_EQ(OrvoPPD::ppdLocalize(ppd.get(), file.filePath()), 0);
        EXPECT_EQ(describe(ppd.get()), options) << language;
    }
    EXPECT_EQ(OrvoPPD::ppdLocalGetLocalize("*fr.Translation A/T: \"\"", "fr", QString(), {}), "");
}

} // namespace
