#include "OrvoPPDGroupLookup.h"
#include "OrvoPPDRegex.h"
#include "OrvoPPDScanIndex.h"
#include "OrvoPPDTestSupport.h"

#include <QDir>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QSet>
#include <QStringDecoder>

#include <gtest/gtest.h>

#include <cups/ppd.h>

#include <iostream>

using namespace OrvoPPDTestSupport;

namespace {

// The reader's rules done the slow way: every option scans the whole text with
// its own expressions. The fast reader must give exactly this.
struct NaiveOption {
    QString group, keyword, text, defchoice;
    QStringList choiceKeys, choiceTexts, choiceCodes;
    bool operator==(const NaiveOption &) const = default;
};
struct NaiveReading {
    bool utf8 = false;
    bool readable = false; // options found and every one has a choice
    std::string nullReason;
    std::vector<NaiveOption> options;
    std::vector<std::pair<QString, QString>> attributes;
};

enum class Verdict { Null, Stops, Structure };
const char *verdictName(Verdict v) {
    return v == Verdict::Null ? "null" : v == Verdict::Stops ? "stops" : "structure";
}

QString cutText(const QByteArray &bytes, bool &utf8) {
    QStringDecoder decoder(QStringConverter::Utf8, QStringConverter::Flag::Stateless);
    QString text = decoder.decode(bytes);
    utf8 = !decoder.hasError();
    const qsizetype cut = text.indexOf(u"*CloseGroup: Advanced");
    if (cut >= 0)
        text.truncate(cut + 21);
    return text;
}

QString lastCapture(const QString &text, OrvoPPDRange range, const QString &pattern) {
    const auto match = OrvoPPDRegex(pattern).findLast(text, range.location, range.end());
    return match ? match->capture(text, 1).toString() : QString();
}

std::vector<std::pair<QString, QString>> naiveAttributes(const QString &text) {
    std::vector<std::pair<QString, QString>> attributes;
    const OrvoPPDRegex quoted(QStringLiteral("\"(.*)\""));
    for (const auto &match : OrvoPPDRegex(QStringLiteral("\\*([^ ]*?):[ ]*(.*)")).findAll(text)) {
        QString value = match.capture(text, 2).toString();
        if (const auto inner = quoted.findFirst(value, 0, value.size()))
            value = inner->capture(value, 1).toString();
        attributes.emplace_back(match.capture(text, 1).toString(), value);
    }
    return attributes;
}

QStringList naiveCustomCodes(const QString &text, const QString &keyword) {
    QStringList codes;
    const OrvoPPDRegex custom(OrvoPPDRegex::format(u"\\*Custom%@[ ]+(.*?):.*\"(.*)\"", {keyword}));
    for (const auto &match : custom.findAll(text))
        codes.append(match.capture(text, 2).toString());
    return codes;
}

bool naiveOption(const QString &text, const QString &keyword, OrvoPPDRange range,
                 NaiveOption &option) {
    option.keyword = keyword;
    option.text =
        lastCapture(text, range, OrvoPPDRegex::format(u"\\*OpenUI.*\\*%@?/(.*):", {keyword}));
    option.defchoice =
        lastCapture(text, range, OrvoPPDRegex::format(u"\\*Default%@:[ ]*(.*)", {keyword}));
    const auto choices =
        OrvoPPDRegex(OrvoPPDRegex::format(u"\\*%@[ ]+(.*?)/(.*?):.*\"(.*)\"", {keyword}))
            .findAll(text, range.location, range.end());
    for (const auto &match : choices) {
        option.choiceKeys << match.capture(text, 1).toString();
        option.choiceTexts << match.capture(text, 2).toString();
        option.choiceCodes << match.capture(text, 3).toString();
    }
    for (const QString &code : naiveCustomCodes(text, keyword)) {
        option.choiceKeys << "Custom";
        option.choiceTexts << "Custom";
        option.choiceCodes << code;
    }
    if (keyword == "PageRegion") {
        option.choiceKeys << "Custom";
        option.choiceTexts << "Custom";
        option.choiceCodes << QString();
    }
    return !option.choiceKeys.isEmpty();
}

NaiveReading naiveRead(const QByteArray &bytes) {
    NaiveReading reading;
    const QString text = cutText(bytes, reading.utf8);
    if (!reading.utf8) {
        reading.nullReason = "not UTF-8";
        return reading;
    }
    const QStringList groups = OrvoPPD::groupKeyword(text);
    OrvoPPD::GroupRanges ranges;
    for (const QString &group : groups)
        ranges.append({group, OrvoPPD::groupRange(text, group)});
    std::vector<std::vector<NaiveOption>> byGroup(size_t(groups.size()));
    const QStringList keywords = OrvoPPD::optionKeywords(text);
    for (const QString &keyword : keywords) {
        const OrvoPPDRange range = OrvoPPD::optionRagne(text, keyword);
        if (range.isNotFound())
            continue;
        NaiveOption option;
        option.group = OrvoPPD::findGroupKey(ranges, range);
        if (!naiveOption(text, keyword, range, option)) {
            reading.nullReason = "no choice for " + keyword.toStdString();
            return reading;
        }
        for (qsizetype g = 0; g < groups.size(); ++g)
            if (groups[g] == option.group)
                byGroup[size_t(g)].push_back(option);
    }
    reading.readable = !keywords.isEmpty();
    if (keywords.isEmpty())
        reading.nullReason = "no option";
    for (const auto &group : byGroup)
        reading.options.insert(reading.options.end(), group.begin(), group.end());
    reading.attributes = naiveAttributes(text);
    return reading;
}

Verdict verdictOf(const NaiveReading &reading) {
    if (!reading.readable)
        return Verdict::Null;
    auto tooLong = [](const QString &value, int limit) { return value.toUtf8().size() > limit; };
    for (const NaiveOption &option : reading.options) {
        if (tooLong(option.keyword, 40) || tooLong(option.defchoice, 40) ||
            tooLong(option.text, 80))
            return Verdict::Stops;
        for (qsizetype c = 0; c < option.choiceKeys.size(); ++c)
            if (tooLong(option.choiceKeys[c], 40) || tooLong(option.choiceTexts[c], 80))
                return Verdict::Stops;
    }
    for (const auto &attribute : reading.attributes)
        if (tooLong(attribute.first, 40))
            return Verdict::Stops;
    return Verdict::Structure;
}

// The structure as the naive reading describes it (group names become the
// options' group positions).
std::vector<NaiveOption> structureOptions(const ppd_file_t *ppd, const QStringList &groups) {
    std::vector<NaiveOption> options;
    for (int g = 0; g < ppd->num_groups; ++g) {
        for (int o = 0; o < ppd->groups[g].num_options; ++o) {
            const ppd_option_t &source = ppd->groups[g].options[o];
            NaiveOption option{
                groups.value(g), source.keyword, source.text, source.defchoice, {}, {}, {}};
            for (int c = 0; c < source.num_choices; ++c) {
                option.choiceKeys << source.choices[c].choice;
                option.choiceTexts << source.choices[c].text;
                option.choiceCodes << (source.choices[c].code ? source.choices[c].code : QString());
            }
            options.push_back(option);
        }
    }
    return options;
}

QByteArray readAll(const QString &path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QStringList corpusFiles() {
    QStringList files;
    for (const QString &name : QDir(ORVO_PPD_CORPUS).entryList({"*.ppd"}, QDir::Files, QDir::Name))
        files << QDir(ORVO_PPD_CORPUS).filePath(name);
    return files;
}

// Opens a file in a child process and reports how the child ended.
void expectVerdict(const QString &path, const QByteArray &bytes, const NaiveReading &reading) {
    const QByteArray file = path.toUtf8();
    switch (verdictOf(reading)) {
    case Verdict::Null:
        EXPECT_EQ(OpenedPPD(OrvoPPD::ppdOpenFile(file.constData())), nullptr);
        break;
    case Verdict::Stops:
        EXPECT_EXIT(
            {
                logToStandardError();
                OrvoPPD::ppdOpenFile(file.constData());
            },
            ::testing::KilledBySignal(SIGABRT), "\\[Driver\\] PPD field overflow: ");
        break;
    case Verdict::Structure: {
        OpenedPPD ppd(OrvoPPD::ppdOpenFile(file.constData()));
        ASSERT_TRUE(ppd);
        bool utf8 = false;
        const QStringList groups = OrvoPPD::groupKeyword(cutText(bytes, utf8));
        EXPECT_EQ(structureOptions(ppd.get(), groups), reading.options);
        std::vector<std::pair<QString, QString>> attributes;
        for (int i = 0; i < ppd->num_attrs; ++i)
            attributes.emplace_back(ppd->attrs[i]->name, ppd->attrs[i]->value);
        EXPECT_EQ(attributes, reading.attributes);
        break;
    }
    }
}

TEST(OrvoPPDCorpus, EveryFileGetsTheVerdictOfTheRules) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const QStringList files = corpusFiles();
    ASSERT_EQ(files.size(), 43);
    std::map<Verdict, int> counts;
    for (const QString &path : files) {
        SCOPED_TRACE(path.toStdString());
        const QByteArray bytes = readAll(path);
        const NaiveReading reading = naiveRead(bytes);
        const Verdict verdict = verdictOf(reading);
        ++counts[verdict];
        std::cout << verdictName(verdict) << "\t" << QFileInfo(path).fileName().toStdString()
                  << "\t" << reading.nullReason << "\n";
        expectVerdict(path, bytes, reading);
    }
    std::cout << "null " << counts[Verdict::Null] << ", stops " << counts[Verdict::Stops]
              << ", structure " << counts[Verdict::Structure] << "\n";
}

// The one-pass scans against the per-keyword expressions, on every text.
void expectSameScans(const QString &text) {
    const OrvoPPDScanIndex index(text);
    ASSERT_EQ(index.groupKeywords(), OrvoPPD::groupKeyword(text));
    ASSERT_EQ(index.optionKeywords(), OrvoPPD::optionKeywords(text));
    OrvoPPD::GroupRanges ranges;
    for (const QString &group : index.groupKeywords()) {
        EXPECT_EQ(index.groupRange(group), OrvoPPD::groupRange(text, group)) << group.toStdString();
        ranges.append({group, OrvoPPD::groupRange(text, group)});
    }
    const OrvoPPDGroupLookup lookup(ranges);
    for (const QString &keyword : index.optionKeywords()) {
        EXPECT_EQ(index.optionRange(keyword), OrvoPPD::optionRagne(text, keyword))
            << keyword.toStdString();
        QStringList customCodes;
        for (const QStringView code : index.customCodes(keyword))
            customCodes << code.toString();
        EXPECT_EQ(customCodes, naiveCustomCodes(text, keyword)) << keyword.toStdString();
        const OrvoPPDRange range = OrvoPPD::optionRagne(text, keyword);
        if (range.isNotFound())
            continue;
        EXPECT_EQ(lookup.find(range), OrvoPPD::findGroupKey(ranges, range));
        NaiveOption naive;
        naiveOption(text, keyword, range, naive);
        EXPECT_EQ(index.optionText(keyword, range).value_or(QStringView()).toString(), naive.text);
        EXPECT_EQ(index.defaultChoice(keyword, range).value_or(QStringView()).toString(),
                  naive.defchoice);
        QStringList keys, texts, codes;
        for (const OrvoPPDModel::Choice &choice : index.choices(keyword, range))
            keys << choice.key.toString(), texts << choice.text.toString(),
                codes << choice.code.toString();
        const qsizetype ordinary = keys.size();
        EXPECT_EQ(keys, naive.choiceKeys.mid(0, ordinary)) << keyword.toStdString();
        EXPECT_EQ(texts, naive.choiceTexts.mid(0, ordinary));
        EXPECT_EQ(codes, naive.choiceCodes.mid(0, ordinary));
    }
    std::vector<std::pair<QString, QString>> attributes;
    for (const auto &attribute : index.attributes())
        attributes.emplace_back(attribute.name.toString(), attribute.value.toString());
    const auto expected = naiveAttributes(text);
    ASSERT_EQ(attributes.size(), expected.size());
    // Values compare before the quotes come off.
    for (size_t i = 0; i < expected.size(); ++i)
        EXPECT_EQ(attributes[i].first, expected[i].first);
}

TEST(OrvoPPDScanEquivalence, CorpusFiles) {
    for (const QString &path : corpusFiles()) {
        SCOPED_TRACE(path.toStdString());
        bool utf8 = false;
        const QString text = cutText(readAll(path), utf8);
        if (utf8)
            expectSameScans(text);
    }
}

class OrvoPPDScanEquivalenceCases : public ::testing::TestWithParam<const char *> {};

TEST_P(OrvoPPDScanEquivalenceCases, TrickyTexts) {
    expectSameScans(QString::fromUtf8(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(
    Texts, OrvoPPDScanEquivalenceCases,
    ::testing::Values(
        // prefixes of keywords, last character optional, several *OpenUI on a line
        "*OpenUI *Slot/S: PickOne\n*CloseUI: *Slot\n*OpenUI *Slo/S: *OpenUI *Slot/x\n"
        "*Slo a/A: \"\"\n*OpenUI *S/S: PickOne\n*OpenUI */E: x\n",
        // close lines with trailing blanks, a longer name, CR, a keyword inside another
        "*OpenUI *Size/S: PickOne\n*CloseUI: *PageSize  \n*OpenUI *PageSize/P: PickOne\n"
        "*CloseUI: *Size \r\n*CloseUI:*Size*CloseUI: *Size\n*OpenUI *Page/P: x\n",
        // keywords with expression syntax, blanks, empty names
        "*OpenUI *Page.Size/S: PickOne\n*OpenUI *A(B/x: y\n*OpenUI *Two Words/T: x\n"
        "*CloseUI: *Page.Size\n*CustomPage.Size True: \"a\"\n*OpenUI */empty: x\n",
        // custom lines: several per line, no blank, duplicates, quotes
        "*OpenUI *PageSize/P: x\n*CustomPageSize True: \"a\" \"b\" *CustomPageSize x: \"c\"\n"
        "*CustomPageSize: \"n\"\n*CustomPageSizeX y: \"d\"\n*CustomPageSize  z:\"e\"\"f\"\n",
        // groups: prefixes, no slash, blanks, duplicates, closes that start with the name
        "*OpenGroup: Fin/F\n*OpenGroup:Fi/x\n*OpenGroup: Fin\n*CloseGroup: Finishing\n"
        "*CloseGroup:   Fin\n*OpenGroup: Fin/again\n*OpenGroup: My Group/M\n*CloseGroup: My Group\n"
        "*OpenGroup: /E\n*CloseGroup: \n*OpenGroup: G/*OpenGroup: H/x\n",
        // translations, defaults and choices inside an option's own text
        "*OpenUI *A/T1: x: y *OpenUI *A/T2:z\n*DefaultA: one *DefaultA: two\n*DefaultA:   \n"
        "*A  k/t:\"a\"\"b\"\n*A k2/t2:\"only\n*A k3 /t:3: \"c\" *A k4/t4: \"d\"\n*A "
        "k5:/x\"e\"\"f\"\n"
        "*A k6/t6 \"g\": \"h\"\n*A/x: \"i\"\n*CloseUI: *A\n*OpenUI *Ab/T: x\n*A k7/t7: \"j\"\n",
        // attributes across lines and blanks
        "*End\n*Foo: bar\n** :x\n*a*b:c \"q\" \"r\"\n*\n:\n*x:\n*y\r\n*z:v\n", ""));

TEST(OrvoPPDScanEquivalence, LineTerminatorsBeyondLineFeed) {
    for (const char16_t terminator : {u'\r', u'\v', u'\f', u'\x85', u'\u2028', u'\u2029'}) {
        QString text = "*OpenUI *A/A: x\n*CloseUI: *A\n*OpenUI *B/B: y\n*CustomA v: \"c\"\n"
                       "*OpenGroup: G/g\n*CloseGroup: G\n*D:e\n";
        text.replace(u'\n', QChar(terminator));
        expectSameScans(text);
    }
}

// Where the rules and libcups read the same file differently, the reason.
struct Difference {
    std::string what;
    std::string reason; // empty: unexplained
};

bool hasChoiceLine(const QString &text, const QString &keyword, const QString &choice,
                   bool translated) {
    const QString pattern = translated ? "\\*%@[ ]+%@/.*:.*\".*\"" : "\\*%@[ ]+%@[:/]";
    return OrvoPPDRegex(OrvoPPDRegex::format(pattern, {keyword, choice}))
        .findFirst(text, 0, text.size())
        .has_value();
}

std::string missingChoiceReason(const QString &text, const QString &keyword,
                                const QString &choice) {
    if (choice == "Custom")
        return "libcups adds Custom for a custom option";
    if (!hasChoiceLine(text, keyword, choice, false))
        return "";
    if (!hasChoiceLine(text, keyword, choice, true))
        return "choice line without translation, or code not closed on its line";
    return "";
}

std::string extraAttributeReason(const QString &text, const QString &name) {
    static const QStringList structural = {
        "OpenUI",    "CloseUI",    "OpenGroup", "CloseGroup", "OpenSubGroup",   "CloseSubGroup",
        "JCLOpenUI", "JCLCloseUI", "End",       "Default",    "OrderDependency"};
    if (name.contains(QRegularExpression("[\\n\\r]")))
        return "attribute name runs over lines";
    if (name.contains(u'/'))
        return "keyword/translation inside another line";
    for (const QString &keyword : structural)
        if (name.startsWith(keyword))
            return "structure keyword libcups keeps apart";
    if (name == "PPD-Adobe")
        return "format header libcups checks apart";
    if (name.endsWith("Constraints"))
        return "constraints libcups keeps apart";
    const qsizetype at = text.indexOf(u'\n' + ('*' + name) + u':');
    if (at < 0)
        return "an asterisk inside a value, not at a line start";
    if (text.first(at).count(u'"') % 2)
        return "a line inside a quoted value over several lines";
    return "";
}

std::vector<Difference> compareWithLibcups(const QString &text, const ppd_file_t *ours,
                                           ppd_file_t *theirs) {
    std::vector<Difference> differences;
    std::map<QString, const ppd_option_t *> ourOptions, theirOptions;
    for (int g = 0; g < ours->num_groups; ++g)
        for (int o = 0; o < ours->groups[g].num_options; ++o)
            ourOptions[ours->groups[g].options[o].keyword] = &ours->groups[g].options[o];
    for (ppd_option_t *option = ppdFirstOption(theirs); option; option = ppdNextOption(theirs))
        theirOptions[option->keyword] = option;
    for (const auto &[keyword, option] : theirOptions) {
        const auto own = ourOptions.find(keyword);
        if (own == ourOptions.end()) {
            differences.push_back({"option " + keyword.toStdString() + " only in libcups", ""});
            continue;
        }
        if (strcmp(own->second->defchoice, option->defchoice) != 0)
            differences.push_back({"default of " + keyword.toStdString(), ""});
        QStringList ourChoices, theirChoices;
        for (int c = 0; c < own->second->num_choices; ++c)
            ourChoices << own->second->choices[c].choice;
        for (int c = 0; c < option->num_choices; ++c)
            theirChoices << option->choices[c].choice;
        for (const QString &choice : theirChoices)
            if (!ourChoices.contains(choice))
                differences.push_back({"choice " + keyword.toStdString() + "=" +
                                           choice.toStdString() + " only in libcups",
                                       missingChoiceReason(text, keyword, choice)});
        for (const QString &choice : ourChoices)
            if (!theirChoices.contains(choice))
                differences.push_back(
                    {"choice " + keyword.toStdString() + "=" + choice.toStdString() + " only here",
                     choice == "Custom" ? "Custom added by the rules" : ""});
    }
    for (const auto &[keyword, option] : ourOptions)
        if (!theirOptions.count(keyword))
            differences.push_back({"option " + keyword.toStdString() + " only here", ""});
    QSet<QString> ourNames, theirNames;
    for (int i = 0; i < ours->num_attrs; ++i)
        ourNames << ours->attrs[i]->name;
    for (int i = 0; i < theirs->num_attrs; ++i)
        theirNames << theirs->attrs[i]->name;
    for (const QString &name : ourNames)
        if (!theirNames.contains(name))
            differences.push_back({"attribute " + name.toStdString() + " only here",
                                   extraAttributeReason(text, name)});
    for (const QString &name : theirNames)
        if (!ourNames.contains(name))
            differences.push_back(
                {"attribute " + name.toStdString() + " only in libcups",
                 "read with an option qualifier or translation (a blank before its colon)"});
    return differences;
}

// Files where the rules and libcups should agree: nothing cut, every *OpenUI
// with a translation and closed.
bool rulesAgreeWithLibcups(const QString &text) {
    if (text.contains(u"*CloseGroup: Advanced"))
        return false;
    const auto opens = OrvoPPDRegex(QStringLiteral("\\*OpenUI.*")).findAll(text);
    const auto translated = OrvoPPDRegex(QStringLiteral("\\*OpenUI[^/\\n]*/")).findAll(text);
    const auto closes = OrvoPPDRegex(QStringLiteral("\\*CloseUI:")).findAll(text);
    return opens.size() == translated.size() && opens.size() == closes.size();
}

TEST(OrvoPPDCorpus, AgreesWithLibcupsWhereTheRulesDo) {
    int compared = 0;
    for (const QString &path : corpusFiles()) {
        const QByteArray bytes = readAll(path);
        bool utf8 = false;
        const QString text = cutText(bytes, utf8);
        const std::string name = QFileInfo(path).fileName().toStdString();
        if (!utf8 || !rulesAgreeWithLibcups(text) ||
            verdictOf(naiveRead(bytes)) != Verdict::Structure) {
            std::cout << "not compared: " << name << "\n";
            continue;
        }
        SCOPED_TRACE(name);
        const QByteArray file = path.toUtf8();
        OpenedPPD ours(OrvoPPD::ppdOpenFile(file.constData()));
        ppd_file_t *theirs = ppdOpenFile(file.constData());
        ASSERT_TRUE(ours && theirs);
        ++compared;
        std::map<std::string, int> reasons;
        for (const Difference &difference : compareWithLibcups(text, ours.get(), theirs)) {
            EXPECT_FALSE(difference.reason.empty()) << difference.what;
            ++reasons[difference.reason.empty() ? difference.what : difference.reason];
        }
        std::cout << (reasons.empty() ? "same as libcups: " : "differs from libcups: ") << name
                  << "\n";
        for (const auto &[reason, count] : reasons)
            std::cout << "    " << count << " x " << reason << "\n";
        ppdClose(theirs);
    }
    EXPECT_GT(compared, 10);
}

const QByteArray smallPPD = "*PPD-Adobe: \"4.3\"\n*OpenUI *PageSize/Media Size: PickOne\n"
                            "*DefaultPageSize: A4\n*PageSize A4/A4: \"<</PageSize[595 842]>>\"\n"
                            "*CloseUI: *PageSize\n*OpenUI *Duplex/Duplex: PickOne\n"
                            "*Duplex None/Off: \"n\"\n*CloseUI: *Duplex\n";

QByteArray randomBytes(int size, int ceiling) {
    QRandomGenerator random(42);
    QByteArray bytes(size, 0);
    for (char &byte : bytes)
        byte = char(random.bounded(ceiling));
    return bytes;
}

struct BadInput {
    const char *name;
    QByteArray content;
};

class OrvoPPDBadInput : public ::testing::TestWithParam<BadInput> {};

TEST_P(OrvoPPDBadInput, GivesNullOrTheStructureOfTheRules) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    TempPPD file(GetParam().content);
    expectVerdict(QString::fromUtf8(file.filePath()), GetParam().content,
                  naiveRead(GetParam().content));
}

INSTANTIATE_TEST_SUITE_P(
    Files, OrvoPPDBadInput,
    ::testing::Values(BadInput{"Empty", ""}, BadInput{"Binary", randomBytes(65536, 256)},
                      BadInput{"ControlCharacters", randomBytes(16384, 128)},
                      BadInput{"NoNewline", QByteArray(smallPPD).replace('\n', ' ')},
                      BadInput{"CarriageReturnsOnly", QByteArray(smallPPD).replace('\n', '\r')},
                      BadInput{"TruncatedCharacter", smallPPD + "*A: \xc3"},
                      BadInput{"ByteOrderMark", "\xef\xbb\xbf" + smallPPD},
                      BadInput{"NulBytes", QByteArray(smallPPD).replace(' ', '\0')}),
    [](const auto &info) { return std::string(info.param.name); });

TEST(OrvoPPDBadInput, MissingFileIsNullAndLogged) {
    QStringList lines;
    OVSystemLog::setSink([&](int, const QString &line) { lines << line; });
    EXPECT_EQ(OrvoPPD::ppdOpenFile("/nonexistent/x.ppd"), nullptr);
    EXPECT_EQ(OrvoPPD::ppdOpenFile(nullptr), nullptr);
    OVSystemLog::setSink({});
    EXPECT_EQ(lines, QStringList({"[Driver] PPD file open Error!!! - /nonexistent/x.ppd",
                                  "[Driver] PPD file open Error!!! - (null)"}));
}

// 50 MB of comment lines after a small file read the same as the small file,
// in time that grows with the size.
TEST(OrvoPPDBadInput, FiftyMegabytes) {
    QByteArray content = smallPPD;
    const QByteArray filler = "*% a comment line that no expression takes for anything at all\n";
    content.reserve(50 << 20);
    while (content.size() < (50 << 20))
        content += filler;
    TempPPD large(content);
    TempPPD small(smallPPD);
    OpenedPPD read = large.open();
    OpenedPPD expected = small.open();
    ASSERT_TRUE(read && expected);
    const QStringList groups = OrvoPPD::groupKeyword(QString::fromUtf8(smallPPD));
    EXPECT_EQ(structureOptions(read.get(), groups), structureOptions(expected.get(), groups));
    EXPECT_EQ(read->num_attrs, expected->num_attrs);
}

} // namespace
