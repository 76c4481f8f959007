#include "OrvoPPD.h"
#include "OVSystemLog.h"
#include "OrvoPPDGroupLookup.h"
#include "OrvoPPDKeywordScan.h"
#include "OrvoPPDRegex.h"
#include "OrvoPPDScanIndex.h"
#include "OrvoPPDTestSupport.h"
#include "OrvoPPD_Interface.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>

#include <gtest/gtest.h>

#include <memory>
#include <set>
#include <span>

namespace {

using Lines = std::vector<std::string>;
using OpenedPPD =
    std::unique_ptr<ppd_file_t, decltype([](ppd_file_t *ppd) { OrvoPPD::ppdClose(ppd); })>;

struct TempPPD {
    explicit TempPPD(const QByteArray &content) {
        QFile file(QString::fromUtf8(path));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
    }

    QTemporaryDir dir;
    QByteArray path = dir.filePath("test.ppd").toUtf8();
};

// Per option "<group index><group name, text> keyword 'text' =default [key/text/code]..."
// ("-" for no code), then "name: value" per attribute.
Lines describe(const ppd_file_t *ppd) {
    Lines lines;
    for (int g = 0; g < ppd->num_groups; ++g) {
        const ppd_group_t &group = ppd->groups[g];
        for (const ppd_option_t &o : std::span(group.options, size_t(group.num_options))) {
            std::string line = std::to_string(g) + group.name + group.text + " " + o.keyword +
                               " '" + o.text + "' =" + o.defchoice;
            for (const ppd_choice_t &c : std::span(o.choices, size_t(o.num_choices)))
                line += std::string(" [") + c.choice + "/" + c.text + "/" +
                        (c.code ? c.code : "-") + "]";
            lines.push_back(line);
        }
    }
    for (const ppd_attr_t *a : std::span(ppd->attrs, size_t(ppd->num_attrs)))
        lines.push_back(std::string(a->name) + ": " + a->value);
    return lines;
}

std::string str(QStringView text) {
    return text.toString().toStdString();
}

std::string str(OrvoPPDRange r) {
    return " " + std::to_string(r.location) + "+" + std::to_string(r.length);
}

// Groups and options with their ranges, each option's custom codes, group, text, default and
// choices, then the attributes: from the one-pass index, or from the per-keyword expressions
// that define what the index must answer.
Lines describeScan(const QString &text, bool indexed) {
    using K = OrvoPPDKeywordScan;
    const OrvoPPDScanIndex index(text);
    Lines lines;
    OrvoPPD::GroupRanges groups;
    for (const QString &group : indexed ? index.groupKeywords() : K::groupNames(text)) {
        groups.append({group, indexed ? index.groupRange(group) : K::groupRange(text, group)});
        lines.push_back("group " + str(group) + str(groups.back().second));
    }
    const OrvoPPDGroupLookup lookup(groups);
    for (const QString &keyword : indexed ? index.optionKeywords() : K::optionKeywords(text)) {
        const OrvoPPDRange in =
            indexed ? index.optionRange(keyword) : K::optionRange(text, keyword);
        lines.push_back("option " + str(keyword) + str(in));
        for (const QStringView code :
             indexed ? index.customCodes(keyword) : K::customCodes(text, keyword))
            lines.push_back("custom " + str(code));
        if (in.isNotFound())
            continue;
        const auto optionText =
            indexed ? index.optionText(keyword, in) : K::optionText(text, keyword, in);
        const auto defaultChoice =
            indexed ? index.defaultChoice(keyword, in) : K::defaultChoice(text, keyword, in);
        lines.push_back(str(indexed ? lookup.find(in) : K::findGroupKey(groups, in)) + " '" +
                        str(optionText.value_or(u"")) + "' =" + str(defaultChoice.value_or(u"")));
        for (const OrvoPPDModel::Choice &c :
             indexed ? index.choices(keyword, in) : K::choices(text, keyword, in))
            lines.push_back(str(c.key) + "/" + str(c.text) + "/" + str(c.code));
    }
    if (indexed) {
        for (const OrvoPPDScanIndex::Attribute &a : index.attributes())
            lines.push_back(str(a.name) + ": " + str(a.value));
    } else {
        for (const auto &m : OrvoPPDRegex(QStringLiteral("\\*([^ ]*?):[ ]*(.*)")).findAll(text))
            lines.push_back(str(m.capture(text, 1)) + ": " + str(m.capture(text, 2)));
    }
    return lines;
}

QByteArray readAll(const QString &path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

struct CorpusFile {
    std::string path, verdict, vsLibcups; // text before a colon checked, the rest says why
};

std::vector<CorpusFile> corpus() {
    const QDir dir(ORVO_PPD_CORPUS);
    QList<QByteArray> rows = readAll(dir.filePath("MANIFEST.tsv")).trimmed().split('\n');
    const QList<QByteArray> header = rows.takeFirst().split('\t');
    std::vector<CorpusFile> files;
    for (const QByteArray &row : rows) {
        const QList<QByteArray> cells = row.split('\t');
        files.push_back({dir.filePath(cells[0]).toStdString(),
                         cells[header.indexOf("orvoppd")].toStdString(),
                         cells[header.indexOf("vs_libcups")].toStdString()});
    }
    EXPECT_EQ(files.size(), dir.entryList({"*.ppd"}).size());
    return files;
}

// "null", or the size of what the reading holds and a digest of it.
std::string verdictOf(const char *path) {
    const OpenedPPD ppd(OrvoPPD::ppdOpenFile(path));
    if (!ppd)
        return "null";
    QCryptographicHash digest(QCryptographicHash::Sha1);
    for (const std::string &line : describe(ppd.get()))
        digest.addData(QByteArray::fromStdString(line + "\n"));
    return std::to_string(ppd->num_attrs) + " attributes " +
           digest.result().toHex().left(12).toStdString();
}

// A stop aborts a child process after its log line, sent to stderr for the death test to see.
void expectVerdict(const char *path, const std::string &verdict) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const auto open = [path] {
        OVSystemLog::setSink(
            [](int, const QString &line) { fprintf(stderr, "%s\n", line.toUtf8().constData()); });
        OrvoPPD::ppdOpenFile(path);
    };
    if (verdict.starts_with("stops: "))
        EXPECT_EXIT(open(), ::testing::KilledBySignal(SIGABRT),
                    "\\[Driver\\] PPD field overflow: " + verdict.substr(7));
    else
        EXPECT_EQ(verdictOf(path), verdict.substr(0, verdict.find(':')));
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
        const Platform platform(version, preferred);
        EXPECT_EQ(OrvoPPD::getSystemLanguage(fullName), language);
        EXPECT_EQ(OrvoPPD::ppdGetLanguage(), ppdLanguage);
    }
}

// Searches match names exactly; marking (via libcups) ignores case; unknown choices mark nothing.
TEST(OrvoPPDQueries, FindAndMark) {
    const OpenedPPD ppd(OrvoPPD::ppdOpenFile(
        TempPPD("*DefaultPageSize: A4\n*OpenUI *PageSize/Size: PickOne\n*DefaultPageSize: A4\n"
                "*PageSize A4/A4: \"a\"\n*PageSize Letter/Letter: \"l\"\n*CloseUI: *PageSize\n"
                "*OpenUI *Duplex/Duplex: PickOne\n*DefaultDuplex: Simplex\n"
                "*Duplex None/Off: \"n\"\n*CloseUI: *Duplex\n")
            .path.constData()));
    ppd_option_t *pageSize = ppd ? OrvoPPD::ppdFindOption(ppd.get(), "PageSize") : nullptr;
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

// Each paragraph of the file a PPD, its lines after "> " what the reader makes
// of it (none when it gives null), localized for the language after "@ ".
TEST(OrvoPPDOpen, ReadsTheListedCases) {
    for (const QString &paragraph :
         QString(readAll(ORVO_PPD_CORPUS "/reader-cases.txt")).split("\n\n")) {
        QByteArray content;
        Lines expected;
        QString language;
        for (const QString &line : paragraph.split(u'\n'))
            if (line.startsWith("> "))
                expected.push_back(line.mid(2).toStdString());
            else if (line.startsWith("@ "))
                language = line.mid(2);
            else
                content += line.toUtf8() + "\n";
        SCOPED_TRACE(content.constData());
        const TempPPD file(content);
        const char *path = file.path.constData();
        const Platform platform("10.14", {language});
        if (!expected.empty() && expected[0].starts_with("stops: ")) {
            expectVerdict(path, expected[0]);
            continue;
        }
        const OpenedPPD ppd(OrvoPPD::ppdOpenFile(path));
        EXPECT_EQ(ppd && !language.isEmpty() ? OrvoPPD::ppdLocalize(ppd.get(), path) : 0, 0);
        Lines lines = ppd ? describe(ppd.get()) : Lines();
        for (std::string &line : lines) // as read from the file: a cut character is U+FFFD
            line = QString::fromStdString(line).toStdString();
        EXPECT_EQ(lines, expected);
    }
}

// Edge cases, each with every line terminator the expressions know, then the corpus.
TEST(OrvoPPDScanEquivalence, IndexAnswersAsThePerKeywordExpressions) {
    QStringList texts;
    for (const QString &text :
         QString(readAll(ORVO_PPD_CORPUS "/index-edge-cases.txt")).split("\n\n"))
        for (const char16_t end : {u'\n', u'\r', u'\v', u'\f', u'\x85', u'\u2028', u'\u2029'})
            texts << QString(text).replace(u'\n', QChar(end));
    for (const CorpusFile &file : corpus())
        texts << QString(readAll(QString::fromStdString(file.path)));
    for (const QString &text : texts) {
        SCOPED_TRACE(text.first(qMin(text.size(), 60)).toStdString());
        EXPECT_EQ(describeScan(text, true), describeScan(text, false));
    }
}

// Options, defaults, choices (not Custom: each reader adds its own) only one reader finds, and
// attributes without option keyword or translation libcups reads and ours does not.
std::string differenceFromLibcups(const char *path) {
    const OpenedPPD ours(OrvoPPD::ppdOpenFile(path));
    const std::unique_ptr<ppd_file_t, decltype(&r_ppdClose)> theirs(r_ppdOpenFile(path),
                                                                    &r_ppdClose);
    if (!ours || !theirs)
        return "-";
    std::set<std::string> here, there;
    const auto addOption = [](std::set<std::string> &items, const ppd_option_t &o) {
        items.insert(std::string(o.keyword) + "=" + o.defchoice);
        for (const ppd_choice_t &c : std::span(o.choices, size_t(o.num_choices)))
            if (std::string_view(c.choice) != "Custom")
                items.insert(std::string(o.keyword) + " " + c.choice);
    };
    for (const ppd_group_t &group : std::span(ours->groups, size_t(ours->num_groups)))
        for (const ppd_option_t &option : std::span(group.options, size_t(group.num_options)))
            addOption(here, option);
    for (ppd_option_t *option = r_ppdFirstOption(theirs.get()); option;
         option = r_ppdNextOption(theirs.get()))
        addOption(there, *option);
    for (const ppd_attr_t *a : std::span(theirs->attrs, size_t(theirs->num_attrs)))
        if (!*a->spec && !*a->text)
            there.insert(std::string("*") + a->name);
    for (const ppd_attr_t *a : std::span(ours->attrs, size_t(ours->num_attrs)))
        if (there.count(std::string("*") + a->name))
            here.insert(std::string("*") + a->name);
    auto only = [](const auto &a, const auto &b) {
        return std::to_string(std::ranges::count_if(a, [&](auto &i) { return !b.count(i); }));
    };
    return only(here, there) + " only here, " + only(there, here) + " only in libcups";
}

TEST(OrvoPPDCorpus, EveryFileReadsAsListed) {
    for (const CorpusFile &file : corpus()) {
        SCOPED_TRACE(file.path);
        expectVerdict(file.path.c_str(), file.verdict);
        if (file.vsLibcups != "-") { // the file is read by both
            EXPECT_EQ(differenceFromLibcups(file.path.c_str()),
                      file.vsLibcups.substr(0, file.vsLibcups.find(':')));
        }
    }
}

// A missing file is logged as well.
TEST(OrvoPPDBadInput, GivesNullAStopOrAStructure) {
    const QByteArray small =
        readAll(ORVO_PPD_CORPUS "/fs__usr_share_ppd_hplip_HP_HP-Fax3-hpcups.ppd");
    const std::string read = verdictOf(TempPPD(small).path.constData());
    const std::tuple<const char *, QByteArray, std::string> inputs[] = {
        {"empty", "", "null"},
        {"binary", readAll(QCoreApplication::applicationFilePath()), "null"},
        {"no newline", QByteArray(small).replace('\n', ' '),
         "stops: 1801 bytes do not fit in default choice"},
        {"carriage returns only", QByteArray(small).replace('\n', '\r'), "null"},
        {"truncated character", small + "*A: \xc3", "null"},
        {"NUL bytes", QByteArray(small).replace(' ', '\0'), "null"},
        {"byte order mark", "\xef\xbb\xbf" + small, read},
        {"50 MB",
         small +
             QByteArray("*% a comment that no expression reads as anything\n").repeated(1 << 20),
         read}};
    for (const auto &[name, content, verdict] : inputs) {
        SCOPED_TRACE(name);
        expectVerdict(TempPPD(content).path.constData(), verdict);
    }
    QStringList lines;
    OVSystemLog::setSink([&](int, const QString &line) { lines << line; });
    EXPECT_EQ(OrvoPPD::ppdOpenFile("/nonexistent/x.ppd"), nullptr);
    EXPECT_EQ(OrvoPPD::ppdOpenFile(nullptr), nullptr);
    OVSystemLog::setSink({});
    EXPECT_EQ(lines, QStringList({"[Driver] PPD file open Error!!! - /nonexistent/x.ppd",
                                  "[Driver] PPD file open Error!!! - (null)"}));
}

} // namespace
