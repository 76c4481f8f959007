#include "OrvoPPDGroupLookup.h"
#include "OrvoPPDRegex.h"
#include "OrvoPPDScanIndex.h"
#include "OrvoPPDTestSupport.h"

#include <QDir>
#include <QRandomGenerator>
#include <QSet>
#include <QStringDecoder>

#include <gtest/gtest.h>

#include <cups/ppd.h>

#include <array>
#include <iostream>
#include <map>
#include <set>

using namespace OrvoPPDTestSupport;

namespace {

std::string str(QStringView text) {
    return text.toString().toStdString();
}

struct ScannedOption {
    QString keyword, group, text, defchoice;
    OrvoPPDRange range;
    std::vector<std::array<QString, 3>> choices; // key, text, code
    QStringList customCodes;
};
// What the scans find in a text, as lines to compare.
struct Scan {
    OrvoPPD::GroupRanges groups;
    std::vector<ScannedOption> options;
    std::vector<std::pair<QString, QString>> attributes;

    Lines lines() const {
        auto range = [](OrvoPPDRange r) {
            return " " + std::to_string(r.location) + "+" + std::to_string(r.length);
        };
        Lines lines;
        for (const auto &[name, r] : groups)
            lines.push_back("group " + str(name) + range(r));
        for (const ScannedOption &o : options) {
            lines.push_back("option " + str(o.keyword) + range(o.range) + " in " + str(o.group) +
                            " '" + str(o.text) + "' =" + str(o.defchoice));
            for (const auto &[key, choiceText, code] : o.choices)
                lines.push_back("  " + str(key) + "/" + str(choiceText) + "/" + str(code));
            for (const QString &code : o.customCodes)
                lines.push_back("  custom " + str(code));
        }
        for (const auto &[name, value] : attributes)
            lines.push_back(str(name) + ": " + str(value));
        return lines;
    }
};

QString unquoted(const QString &value) {
    const auto inner = OrvoPPDRegex(QStringLiteral("\"(.*)\"")).findFirst(value, 0, value.size());
    return inner ? inner->capture(value, 1).toString() : value;
}

QString lastCapture(const QString &text, OrvoPPDRange range, QStringView pattern,
                    const QString &keyword) {
    const auto match = OrvoPPDRegex(OrvoPPDRegex::format(pattern, {keyword}))
                           .findLast(text, range.location, range.end());
    return match ? match->capture(text, 1).toString() : QString();
}

// The reader's rules done the slow way: every option scans the whole text with
// its own expressions. The one-pass index must give exactly this.
Scan naiveScan(const QString &text) {
    Scan scan;
    for (const QString &group : OrvoPPD::groupKeyword(text))
        scan.groups.append({group, OrvoPPD::groupRange(text, group)});
    for (const QString &keyword : OrvoPPD::optionKeywords(text)) {
        ScannedOption &o = scan.options.emplace_back();
        o.keyword = keyword;
        o.range = OrvoPPD::optionRagne(text, keyword);
        for (const auto &m :
             OrvoPPDRegex(OrvoPPDRegex::format(u"\\*Custom%@[ ]+(.*?):.*\"(.*)\"", {keyword}))
                 .findAll(text))
            o.customCodes << m.capture(text, 2).toString();
        if (o.range.isNotFound())
            continue;
        o.group = OrvoPPD::findGroupKey(scan.groups, o.range);
        o.text = lastCapture(text, o.range, u"\\*OpenUI.*\\*%@?/(.*):", keyword);
        o.defchoice = lastCapture(text, o.range, u"\\*Default%@:[ ]*(.*)", keyword);
        for (const auto &m :
             OrvoPPDRegex(OrvoPPDRegex::format(u"\\*%@[ ]+(.*?)/(.*?):.*\"(.*)\"", {keyword}))
                 .findAll(text, o.range.location, o.range.end()))
            o.choices.push_back({m.capture(text, 1).toString(), m.capture(text, 2).toString(),
                                 m.capture(text, 3).toString()});
    }
    for (const auto &m : OrvoPPDRegex(QStringLiteral("\\*([^ ]*?):[ ]*(.*)")).findAll(text))
        scan.attributes.emplace_back(m.capture(text, 1).toString(),
                                     unquoted(m.capture(text, 2).toString()));
    return scan;
}

Scan indexScan(const QString &text) {
    const OrvoPPDScanIndex index(text);
    Scan scan;
    for (const QString &group : index.groupKeywords())
        scan.groups.append({group, index.groupRange(group)});
    const OrvoPPDGroupLookup lookup(scan.groups);
    for (const QString &keyword : index.optionKeywords()) {
        ScannedOption &o = scan.options.emplace_back();
        o.keyword = keyword;
        o.range = index.optionRange(keyword);
        for (const QStringView code : index.customCodes(keyword))
            o.customCodes << code.toString();
        if (o.range.isNotFound())
            continue;
        o.group = lookup.find(o.range);
        o.text = index.optionText(keyword, o.range).value_or(QStringView()).toString();
        o.defchoice = index.defaultChoice(keyword, o.range).value_or(QStringView()).toString();
        for (const OrvoPPDModel::Choice &choice : index.choices(keyword, o.range))
            o.choices.push_back(
                {choice.key.toString(), choice.text.toString(), choice.code.toString()});
    }
    for (const OrvoPPDScanIndex::Attribute &attribute : index.attributes())
        scan.attributes.emplace_back(attribute.name.toString(),
                                     unquoted(attribute.value.toString()));
    return scan;
}

// The text the reader scans, or a null string when the bytes are not UTF-8.
QString readerText(const QByteArray &bytes) {
    QStringDecoder decoder(QStringConverter::Utf8, QStringConverter::Flag::Stateless);
    QString text = decoder.decode(bytes);
    if (decoder.hasError())
        return QString();
    const qsizetype cut = text.indexOf(u"*CloseGroup: Advanced");
    return cut < 0 ? text : text.first(cut + 21);
}

enum class Verdict { Null, Stops, Structure };
const char *const verdictNames[] = {"null", "stops", "structure"};
struct Expected {
    Verdict verdict = Verdict::Null;
    std::string reason; // why null or why it stops
    Lines structure;
};

// Null, a stop on a field too long for the structure, or the structure the
// naive scan describes.
Expected expectedOf(const QByteArray &bytes) {
    const QString text = readerText(bytes);
    if (text.isNull())
        return {Verdict::Null, "not UTF-8", {}};
    const Scan scan = naiveScan(text);
    if (scan.options.empty())
        return {Verdict::Null, "no option", {}};
    Expected expected{Verdict::Structure, "", {}};
    auto check = [&](const QString &value, int limit) {
        if (value.toUtf8().size() > limit && expected.reason.empty())
            expected = {Verdict::Stops, "too long: " + str(value), {}};
        return str(value);
    };
    for (qsizetype g = 0; g < scan.groups.size(); ++g) {
        for (ScannedOption o : scan.options) {
            if (o.range.isNotFound() || o.group != scan.groups[g].first)
                continue;
            if (o.choices.empty() && o.customCodes.isEmpty())
                return {Verdict::Null, "no choice for " + str(o.keyword), {}};
            for (const QString &code : o.customCodes)
                o.choices.push_back({"Custom", "Custom", code});
            if (o.keyword == "PageRegion")
                o.choices.push_back({"Custom", "Custom", "-"});
            std::string line = std::to_string(g) + " " + check(o.keyword, 40) + " '" +
                               check(o.text, 80) + "' =" + check(o.defchoice, 40);
            for (const auto &[key, choiceText, code] : o.choices)
                line += " [" + check(key, 40) + "/" + check(choiceText, 80) + "/" + str(code) + "]";
            expected.structure.push_back(line);
        }
    }
    for (const auto &[name, value] : scan.attributes)
        expected.structure.push_back(check(name, 40) + ": " + str(value));
    return expected.verdict == Verdict::Structure ? expected
                                                  : Expected{expected.verdict, expected.reason, {}};
}

// A stop runs in a child process, which must end on the abort after its log line.
void expectVerdict(const char *path, const Expected &expected) {
    if (expected.verdict == Verdict::Null) {
        EXPECT_EQ(OpenedPPD(OrvoPPD::ppdOpenFile(path)), nullptr) << expected.reason;
    } else if (expected.verdict == Verdict::Stops) {
        EXPECT_EXIT(
            {
                logToStandardError();
                OrvoPPD::ppdOpenFile(path);
            },
            ::testing::KilledBySignal(SIGABRT), "\\[Driver\\] PPD field overflow: ")
            << expected.reason;
    } else {
        OpenedPPD ppd(OrvoPPD::ppdOpenFile(path));
        ASSERT_TRUE(ppd);
        EXPECT_EQ(describe(ppd.get(), true), expected.structure);
    }
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

TEST(OrvoPPDCorpus, EveryFileGetsTheVerdictOfTheRules) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const QStringList files = corpusFiles();
    ASSERT_EQ(files.size(), 43);
    for (const QString &path : files) {
        SCOPED_TRACE(path.toStdString());
        const Expected expected = expectedOf(readAll(path));
        std::cout << verdictNames[int(expected.verdict)] << "\t" << str(QFileInfo(path).fileName())
                  << "\t" << expected.reason << "\n";
        expectVerdict(path.toUtf8().constData(), expected);
    }
}

// Tricky texts for the one-pass index, then the corpus and every line
// terminator the expressions know.
const char *const trickyTexts[] = {
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
    "*A  k/t:\"a\"\"b\"\n*A k2/t2:\"only\n*A k3 /t:3: \"c\" *A k4/t4: \"d\"\n*A k5:/x\"e\"\"f\"\n"
    "*A k6/t6 \"g\": \"h\"\n*A/x: \"i\"\n*CloseUI: *A\n*OpenUI *Ab/T: x\n*A k7/t7: \"j\"\n",
    // attributes across lines and blanks
    "*End\n*Foo: bar\n** :x\n*a*b:c \"q\" \"r\"\n*\n:\n*x:\n*y\r\n*z:v\n", ""};

TEST(OrvoPPDScanEquivalence, IndexAnswersAsThePerKeywordExpressions) {
    QStringList texts;
    for (const char *text : trickyTexts)
        texts << QString::fromUtf8(text);
    for (const char16_t terminator : {u'\r', u'\v', u'\f', u'\x85', u'\u2028', u'\u2029'})
        texts << QString("*OpenUI *A/A: x\n*CloseUI: *A\n*OpenUI *B/B: y\n*CustomA v: \"c\"\n"
                         "*OpenGroup: G/g\n*CloseGroup: G\n*D:e\n")
                     .replace(u'\n', QChar(terminator));
    for (const QString &path : corpusFiles())
        if (const QString text = readerText(readAll(path)); !text.isNull())
            texts << text;
    for (const QString &text : texts) {
        SCOPED_TRACE(str(text.first(qMin(text.size(), 60))));
        EXPECT_EQ(indexScan(text).lines(), naiveScan(text).lines());
    }
}

// What a reading holds, item by item: "option K", "default K=D", "choice K=C",
// "attribute N".
std::set<std::pair<std::string, QString>>
itemsOf(const ppd_file_t *ppd, const std::vector<const ppd_option_t *> &options) {
    std::set<std::pair<std::string, QString>> items;
    for (const ppd_option_t *option : options) {
        items.insert({"option", option->keyword});
        items.insert({"default", QString(option->keyword) + "=" + option->defchoice});
        for (int c = 0; c < option->num_choices; ++c)
            items.insert({"choice", QString(option->keyword) + "=" + option->choices[c].choice});
    }
    for (int i = 0; i < ppd->num_attrs; ++i)
        items.insert({"attribute", ppd->attrs[i]->name});
    return items;
}

std::string attributeOnlyHereReason(const QString &text, const QString &name) {
    static const QStringList structural = {
        "OpenUI",    "CloseUI",    "OpenGroup", "CloseGroup", "OpenSubGroup",   "CloseSubGroup",
        "JCLOpenUI", "JCLCloseUI", "End",       "Default",    "OrderDependency"};
    if (name.contains(u'\n') || name.contains(u'\r'))
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
    return text.first(at).count(u'"') % 2 ? "a line inside a quoted value over several lines" : "";
}

// Why an item is in one reading of a file and not in the other; empty when
// unexplained.
std::string reasonFor(const QString &text, const std::pair<std::string, QString> &item,
                      bool onlyHere) {
    const auto &[kind, value] = item;
    if (kind == "attribute")
        return onlyHere ? attributeOnlyHereReason(text, value)
                        : "read with an option qualifier or translation (a blank before its "
                          "colon)";
    if (kind != "choice")
        return "";
    const QString keyword = value.section(u'=', 0, 0), choice = value.section(u'=', 1);
    if (choice == "Custom")
        return onlyHere ? "Custom added by the rules" : "libcups adds Custom for a custom option";
    auto hasLine = [&](QStringView pattern) {
        return OrvoPPDRegex(OrvoPPDRegex::format(pattern, {keyword, choice}))
            .findFirst(text, 0, text.size())
            .has_value();
    };
    return !onlyHere && hasLine(u"\\*%@[ ]+%@[:/]") && !hasLine(u"\\*%@[ ]+%@/.*:.*\".*\"")
               ? "choice line without translation, or code not closed on its line"
               : "";
}

// Files where the rules and libcups should agree: nothing cut, every *OpenUI
// with a translation and closed.
bool rulesAgreeWithLibcups(const QString &text) {
    auto count = [&](const char *pattern) {
        return OrvoPPDRegex(QString(pattern)).findAll(text).size();
    };
    return !text.isNull() && !text.contains(u"*CloseGroup: Advanced") &&
           count("\\*OpenUI.*") == count("\\*OpenUI[^/\\n]*/") &&
           count("\\*OpenUI.*") == count("\\*CloseUI:");
}

TEST(OrvoPPDCorpus, AgreesWithLibcupsWhereTheRulesDo) {
    int compared = 0;
    for (const QString &path : corpusFiles()) {
        const QByteArray bytes = readAll(path);
        const QString text = readerText(bytes);
        const std::string name = str(QFileInfo(path).fileName());
        if (!rulesAgreeWithLibcups(text) || expectedOf(bytes).verdict != Verdict::Structure) {
            std::cout << "not compared: " << name << "\n";
            continue;
        }
        SCOPED_TRACE(name);
        const QByteArray file = path.toUtf8();
        OpenedPPD ours(OrvoPPD::ppdOpenFile(file.constData()));
        ppd_file_t *theirs = ppdOpenFile(file.constData());
        ASSERT_TRUE(ours && theirs);
        ++compared;
        std::vector<const ppd_option_t *> ourOptions, theirOptions;
        for (int g = 0; g < ours->num_groups; ++g)
            for (int o = 0; o < ours->groups[g].num_options; ++o)
                ourOptions.push_back(&ours->groups[g].options[o]);
        for (ppd_option_t *option = ppdFirstOption(theirs); option; option = ppdNextOption(theirs))
            theirOptions.push_back(option);
        const auto here = itemsOf(ours.get(), ourOptions), there = itemsOf(theirs, theirOptions);
        std::map<std::string, int> reasons;
        for (const bool onlyHere : {true, false}) {
            for (const auto &item : onlyHere ? here : there) {
                if ((onlyHere ? there : here).count(item))
                    continue;
                const std::string what = item.first + " " + str(item.second) +
                                         (onlyHere ? " only here" : " only in libcups");
                const std::string reason = reasonFor(text, item, onlyHere);
                EXPECT_FALSE(reason.empty()) << what;
                ++reasons[reason.empty() ? what : reason];
            }
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

TEST(OrvoPPDBadInput, GivesNullOrTheStructureOfTheRules) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const std::pair<const char *, QByteArray> inputs[] = {
        {"empty", ""},
        {"binary", randomBytes(65536, 256)},
        {"control characters", randomBytes(16384, 128)},
        {"no newline", QByteArray(smallPPD).replace('\n', ' ')},
        {"carriage returns only", QByteArray(smallPPD).replace('\n', '\r')},
        {"truncated character", smallPPD + "*A: \xc3"},
        {"byte order mark", "\xef\xbb\xbf" + smallPPD},
        {"NUL bytes", QByteArray(smallPPD).replace(' ', '\0')}};
    for (const auto &[name, content] : inputs) {
        SCOPED_TRACE(name);
        TempPPD file(content);
        expectVerdict(file.filePath(), expectedOf(content));
    }
}

TEST(OrvoPPDBadInput, MissingFileIsNullAndLogged) {
    QStringList lines;
    OVSystemLog::setSink([&](int, const QString &line) { lines << line; });
    EXPECT_EQ(OrvoPPD::ppdOpenFile("/nonexistent/x.ppd"), nullptr);
    EXPECT_EQ(OrvoPPD::ppdOpenFile(nullptr), nullptr);
    OVSystemLog::setSink({});
    EXPECT_EQ(lines, QStringList({"[Driver] PPD file open Error!!! - /nonexistent/x.ppd",
                                  "[Driver] PPD file open Error!!! - (null)"}));
}

// 50 MB of comment lines after a small file read the same as the small file.
TEST(OrvoPPDBadInput, FiftyMegabytes) {
    QByteArray content = smallPPD;
    content.reserve(50 << 20);
    while (content.size() < (50 << 20))
        content += "*% a comment line that no expression takes for anything at all\n";
    const OpenedPPD read = TempPPD(content).open(), expected = TempPPD(smallPPD).open();
    ASSERT_TRUE(read && expected);
    EXPECT_EQ(describe(read.get(), true), describe(expected.get(), true));
}

} // namespace
