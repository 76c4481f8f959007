// The filter's acceptance rules, checked by running the built filter the way
// cupsd does, without a server: options text in, PPD messages out.
#include "OrvoFilterLog.h"
#include "OrvoPPDMessageWriter.h"

#include <QProcess>

#include <cups/cups.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <string>

namespace {

using Stored = std::map<std::string, std::string>;

struct FilterRun {
    int exitCode = -1;
    QByteArray out;
    QList<QByteArray> errLines;
    Stored stored;
};

// Reads the attributes back the way cupsd does: the option parser on the text
// after "PPD:", each value being the quoted PPD value.
void collectStored(const QByteArray &line, Stored &stored) {
    cups_option_t *options = nullptr;
    const int count = cupsParseOptions(line.mid(4).constData(), 0, &options);
    for (int i = 0; i < count; ++i) {
        const std::string value = options[i].value;
        EXPECT_TRUE(value.size() >= 2 && value.front() == '"' && value.back() == '"') << value;
        stored[options[i].name] = value.substr(1, value.size() - 2);
    }
    cupsFreeOptions(count, options);
}

FilterRun runFilter(const QStringList &arguments) {
    QProcess process;
    process.start(ORVO_PPD_UPDATE_FILTER, arguments);
    EXPECT_TRUE(process.waitForStarted());
    process.write("Update");
    process.closeWriteChannel();
    EXPECT_TRUE(process.waitForFinished());
    FilterRun run;
    run.exitCode = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    run.out = process.readAllStandardOutput();
    run.errLines = process.readAllStandardError().split('\n');
    for (const QByteArray &line : run.errLines) {
        if (line.startsWith("PPD:"))
            collectStored(line, run.stored);
    }
    return run;
}

FilterRun runJob(const QByteArray &options) {
    return runFilter({"7", "lp", "UpdatePPDOptions", "1", QString::fromLatin1(options)});
}

qsizetype countLines(const QList<QByteArray> &lines, const char *text) {
    return std::count_if(lines.begin(), lines.end(),
                         [text](const QByteArray &line) { return line.contains(text); });
}

std::string base64Of(std::size_t length) {
    return std::string(length, 'Q');
}

struct RuleCase {
    const char *what;
    std::string options;
    Stored stored;
};

class FilterRulesTest : public ::testing::TestWithParam<RuleCase> {};

TEST_P(FilterRulesTest, StoresExactlyTheWellFormedSettings) {
    const FilterRun run = runJob(QByteArray::fromStdString(GetParam().options));
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_TRUE(run.out.isEmpty());
    EXPECT_EQ(run.stored, GetParam().stored);
}

// Longest value of PrinterIPAddress that fits on one PPD line, in whole
// base64 groups: 255 minus the name and the framing `*: ""`.
constexpr std::size_t longestAddress = (255 - 16 - 5) / 4 * 4;

INSTANTIATE_TEST_SUITE_P(
    Options, FilterRulesTest,
    ::testing::Values(
        RuleCase{"EveryEncoding",
                 "UpdatePPDOptions PPDOptionsUpdated=1 IsWakeOnLan=0 SnmpCommunityName=Y29iYWx0 "
                 "PrinterMacAddress= SharedBoxName0_Part1=QQ== SharedBoxName0_Part2= "
                 "SelSharedBoxIndex3=42 SelSharedBoxIndex4=",
                 {{"PPDOptionsUpdated", "1"},
                  {"IsWakeOnLan", "0"},
                  {"SnmpCommunityName", "Y29iYWx0"},
                  {"PrinterMacAddress", ""},
                  {"SharedBoxName0_Part1", "QQ=="},
                  {"SharedBoxName0_Part2", ""},
                  {"SelSharedBoxIndex3", "42"},
                  {"SelSharedBoxIndex4", ""}}},
        RuleCase{"MarkerAsText",
                 "UpdatePPDOptions=True UsePersonalFolder=1",
                 {{"UsePersonalFolder", "1"}}},
        RuleCase{"MarkerFalse", "UpdatePPDOptions=false UsePersonalFolder=1", {}},
        RuleCase{"NoMarker", "UsePersonalFolder=1 AdminLoginModeEnabled=0", {}},
        RuleCase{"MarkerNeverStored",
                 "UpdatePPDOptions PPDOptionsUpdated=0",
                 {{"PPDOptionsUpdated", "0"}}},
        RuleCase{"ForeignNames",
                 "UpdatePPDOptions cupsFilter2=x \\*cupsFilter=x isWakeOnLan=1 ISWAKEONLAN=1 "
                 "IsWakeOnLan_Part1=1 IsWakeOnLanX=1 OpenUI=x job-uuid=urn:x",
                 {}},
        RuleCase{"IndexForms",
                 "UpdatePPDOptions SharedBoxName99_Part6=QUJD SharedBoxName100_Part1=QUJD "
                 "ColorProfileName29_Part1=QUJD ColorProfileName30_Part1=QUJD "
                 "SelSharedBoxIndex0=1 SelSharedBoxIndex-1=1 SelSharedBoxIndex00=1 "
                 "SelSharedBoxIndex07=1 SelSharedBoxIndex=1 SelSharedBoxIndex1000000000000=1",
                 {{"SharedBoxName99_Part6", "QUJD"},
                  {"ColorProfileName29_Part1", "QUJD"},
                  {"SelSharedBoxIndex0", "1"}}},
        RuleCase{"PartForms",
                 "UpdatePPDOptions PSFormName1_Part0=QUJD PSFormName1_Part7=QUJD "
                 "PSFormName1=QUJD PSFormName1_Part1x=QUJD PSFormName1_part1=QUJD "
                 "PSFormName_Part1=QUJD BarcodeAreaDefName2_Part3=QUJD",
                 {{"BarcodeAreaDefName2_Part3", "QUJD"}}},
        RuleCase{"FlagValues",
                 "UpdatePPDOptions IsWakeOnLan=yes IsOverTheRouter=2 UsePersonalFolder= "
                 "AdminLoginModeEnabled=01 IsCustomSnmpCommunity=1",
                 {{"IsCustomSnmpCommunity", "1"}}},
        RuleCase{"DecimalValues",
                 "UpdatePPDOptions SelSharedBoxIndex1=12abc SelSharedBoxIndex2=-3 "
                 "SelSharedBoxIndex3=1234567890 SelSharedBoxIndex4=123456789",
                 {{"SelSharedBoxIndex4", "123456789"}}},
        RuleCase{"Base64Values",
                 "UpdatePPDOptions PrinterIPAddress=QUJ PrinterMacAddress=Q=JD "
                 "SnmpCommunityName=Q=== PSFormName0_Part1=QUJD! PSFormName1_Part1='QU JD' "
                 "PSFormName2_Part1=\"QUJD\\\"\" PSFormName3_Part1=QUJD\\\\ "
                 "PSFormName4_Part1='QUJD\n*cupsFilter2: x' PSFormName5_Part1=QU-_",
                 {}},
        RuleCase{"PartLength",
                 "UpdatePPDOptions PSFormName0_Part1=" + base64Of(200) +
                     " PSFormName0_Part2=" + base64Of(204),
                 {{"PSFormName0_Part1", base64Of(200)}}},
        RuleCase{"PPDLineLength",
                 "UpdatePPDOptions PrinterIPAddress=" + base64Of(longestAddress) +
                     " SnmpCommunityName=" + base64Of(longestAddress + 4),
                 {{"PrinterIPAddress", base64Of(longestAddress)}}}),
    [](const auto &info) { return std::string(info.param.what); });

TEST(FilterMessages, ManySettingsAreSplitOverLinesCupsdReadsWhole) {
    std::string options = "UpdatePPDOptions";
    Stored expected;
    for (int i = 0; i < 100; ++i) {
        for (int part = 1; part <= 3; ++part) {
            const std::string name =
                "SharedBoxName" + std::to_string(i) + "_Part" + std::to_string(part);
            options += " " + name + "=" + base64Of(200);
            expected[name] = base64Of(200);
        }
    }
    const FilterRun run = runJob(QByteArray::fromStdString(options));
    EXPECT_EQ(run.stored, expected);
    int ppdLines = 0;
    for (const QByteArray &line : run.errLines) {
        EXPECT_LE(std::size_t(line.size()) + 1, OrvoPPDMessageWriter::messageLimit);
        ppdLines += line.startsWith("PPD:");
    }
    EXPECT_GT(ppdLines, 1);
}

TEST(FilterMessages, RefusedOptionsAreListedUpToALimit) {
    std::string options = "UpdatePPDOptions";
    for (int i = 0; i < 500; ++i)
        options += " Junk" + std::to_string(i) + "=1";
    const FilterRun run = runJob(QByteArray::fromStdString(options));
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(countLines(run.errLines, "WARNING: Refused option"),
              qsizetype(OrvoFilterLog::listedLimit));
    EXPECT_EQ(countLines(run.errLines, "more refused options are not listed"), 1);
}

TEST(FilterMessages, RefusalsCannotForgeLogLines) {
    const FilterRun run = runJob("UpdatePPDOptions Bad\\\"\\\\Name=1");
    EXPECT_TRUE(run.stored.empty());
    EXPECT_EQ(countLines(run.errLines, "Refused option \"Bad????Name\""), 1);
}

TEST(FilterArguments, WrongArgumentCountIsAUsageError) {
    for (const QStringList &arguments :
         {QStringList{}, QStringList{"1", "lp", "t", "1"},
          QStringList{"1", "lp", "t", "1", "UpdatePPDOptions IsWakeOnLan=1", "/dev/null", "x"}}) {
        const FilterRun run = runFilter(arguments);
        EXPECT_EQ(run.exitCode, 1);
        EXPECT_TRUE(run.stored.empty());
        EXPECT_TRUE(run.out.isEmpty());
    }
}

TEST(FilterArguments, PrintFileArgumentIsIgnored) {
    const FilterRun run =
        runFilter({"1", "lp", "t", "1", "UpdatePPDOptions IsWakeOnLan=1", "/nonexistent"});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.stored, (Stored{{"IsWakeOnLan", "1"}}));
}

} // namespace
