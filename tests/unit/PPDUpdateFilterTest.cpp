// The filter's acceptance rules, checked by running the built filter the way
// cupsd does, without a server: options text in, PPD messages out.
#include "OrvoFilterLog.h"
#include "OrvoPPDMessageWriter.h"

#include <QProcess>

#include <cups/cups.h>
#include <gtest/gtest.h>

#include <map>
#include <string>

namespace {

using Stored = std::map<std::string, std::string>;

// Options text as cupsd's option parser reads it; `quoted` strips the quotes
// every stored PPD value must carry.
Stored parse(const QByteArray &text, bool quoted = false) {
    Stored stored;
    cups_option_t *options = nullptr;
    const int count = cupsParseOptions(text.constData(), 0, &options);
    for (int i = 0; i < count; ++i) {
        std::string value = options[i].value;
        if (quoted) {
            EXPECT_TRUE(value.size() >= 2 && value.front() == '"' && value.back() == '"') << value;
            value = value.substr(1, value.size() - 2);
        }
        stored[options[i].name] = value;
    }
    cupsFreeOptions(count, options);
    return stored;
}

struct FilterRun {
    int exitCode = -1;
    QByteArray out, err;
    Stored stored;
};

FilterRun runFilter(const QStringList &arguments) {
    QProcess process;
    process.start(ORVO_PPD_UPDATE_FILTER, arguments);
    process.write("Update");
    process.closeWriteChannel();
    EXPECT_TRUE(process.waitForFinished());
    FilterRun run{process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
                  process.readAllStandardOutput(),
                  process.readAllStandardError(),
                  {}};
    for (const QByteArray &line : run.err.split('\n')) {
        if (line.startsWith("PPD:"))
            run.stored.merge(parse(line.mid(4), true));
    }
    return run;
}

FilterRun runJob(const std::string &options) {
    return runFilter({"7", "lp", "UpdatePPDOptions", "1", QString::fromStdString(options)});
}

std::string q(std::size_t length) {
    return std::string(length, 'Q');
}

// Longest PrinterIPAddress value that fits on one PPD line, in whole base64
// groups: 255 minus the name and the framing `*: ""`.
constexpr std::size_t longestAddress = (255 - 16 - 5) / 4 * 4;

TEST(PPDUpdateFilter, StoresExactlyTheWellFormedSettings) {
    const std::pair<std::string, std::string> cases[] = {
        {"UpdatePPDOptions PPDOptionsUpdated=1 IsWakeOnLan=0 SnmpCommunityName=Y29iYWx0 "
         "PrinterMacAddress= SharedBoxName0_Part1=QQ== SharedBoxName0_Part2= "
         "SelSharedBoxIndex3=42 SelSharedBoxIndex4=",
         "PPDOptionsUpdated=1 IsWakeOnLan=0 SnmpCommunityName=Y29iYWx0 PrinterMacAddress= "
         "SharedBoxName0_Part1=QQ== SharedBoxName0_Part2= SelSharedBoxIndex3=42 "
         "SelSharedBoxIndex4="},
        {"UpdatePPDOptions=True UsePersonalFolder=1", "UsePersonalFolder=1"},
        {"UpdatePPDOptions=false UsePersonalFolder=1", ""},
        {"UsePersonalFolder=1 AdminLoginModeEnabled=0", ""},
        {"UpdatePPDOptions cupsFilter2=x \\*cupsFilter=x isWakeOnLan=1 IsWakeOnLan_Part1=1 "
         "IsWakeOnLanX=1 OpenUI=x job-uuid=urn:x",
         ""},
        {"UpdatePPDOptions SharedBoxName99_Part6=QUJD SharedBoxName100_Part1=QUJD "
         "ColorProfileName29_Part1=QUJD ColorProfileName30_Part1=QUJD SelSharedBoxIndex0=1 "
         "SelSharedBoxIndex-1=1 SelSharedBoxIndex00=1 SelSharedBoxIndex=1 "
         "SelSharedBoxIndex1000000000000=1",
         "SharedBoxName99_Part6=QUJD ColorProfileName29_Part1=QUJD SelSharedBoxIndex0=1"},
        {"UpdatePPDOptions PSFormName1_Part0=QUJD PSFormName1_Part7=QUJD PSFormName1=QUJD "
         "PSFormName1_Part1x=QUJD PSFormName1_part1=QUJD PSFormName_Part1=QUJD "
         "BarcodeAreaDefName2_Part3=QUJD",
         "BarcodeAreaDefName2_Part3=QUJD"},
        {"UpdatePPDOptions IsWakeOnLan=yes IsOverTheRouter=2 UsePersonalFolder= "
         "AdminLoginModeEnabled=01 IsCustomSnmpCommunity=1 SelSharedBoxIndex1=12abc "
         "SelSharedBoxIndex2=-3 SelSharedBoxIndex3=1234567890 SelSharedBoxIndex4=123456789",
         "IsCustomSnmpCommunity=1 SelSharedBoxIndex4=123456789"},
        {"UpdatePPDOptions PrinterIPAddress=QUJ PrinterMacAddress=Q=JD SnmpCommunityName=Q=== "
         "PSFormName0_Part1=QUJD! PSFormName1_Part1='QU JD' PSFormName2_Part1=\"QUJD\\\"\" "
         "PSFormName3_Part1=QUJD\\\\ PSFormName4_Part1='QUJD\n*cupsFilter2: x' "
         "PSFormName5_Part1=QU-_",
         ""},
        {"UpdatePPDOptions PSFormName0_Part1=" + q(200) + " PSFormName0_Part2=" + q(204),
         "PSFormName0_Part1=" + q(200)},
        {"UpdatePPDOptions PrinterIPAddress=" + q(longestAddress) +
             " SnmpCommunityName=" + q(longestAddress + 4),
         "PrinterIPAddress=" + q(longestAddress)}};
    for (const auto &[options, stored] : cases) {
        SCOPED_TRACE(options.substr(0, 80));
        const FilterRun run = runJob(options);
        EXPECT_EQ(run.exitCode, 0);
        EXPECT_TRUE(run.out.isEmpty());
        EXPECT_EQ(run.stored, parse(QByteArray::fromStdString(stored)));
    }
}

TEST(PPDUpdateFilter, ManySettingsAreSplitOverLinesCupsdReadsWhole) {
    std::string options = "UpdatePPDOptions";
    Stored expected;
    for (int i = 0; i < 300; ++i) {
        const std::string name =
            "SharedBoxName" + std::to_string(i / 3) + "_Part" + std::to_string(i % 3 + 1);
        options += " " + name + "=" + q(200);
        expected[name] = q(200);
    }
    const FilterRun run = runJob(options);
    EXPECT_EQ(run.stored, expected);
    EXPECT_GT(run.err.count("PPD:"), 1);
    for (const QByteArray &line : run.err.split('\n'))
        EXPECT_LE(std::size_t(line.size()) + 1, OrvoPPDMessageWriter::messageLimit);
}

TEST(PPDUpdateFilter, RefusalsAreListedUpToALimitAndCannotForgeLogLines) {
    std::string options = "UpdatePPDOptions Bad\\\"\\\\Name=1";
    for (int i = 0; i < 500; ++i)
        options += " Junk" + std::to_string(i) + "=1";
    const FilterRun run = runJob(options);
    EXPECT_TRUE(run.stored.empty());
    EXPECT_EQ(run.err.count("WARNING: Refused option"), qsizetype(OrvoFilterLog::listedLimit));
    EXPECT_EQ(run.err.count("Refused option \"Bad????Name\""), 1);
    EXPECT_EQ(run.err.count("more refused options are not listed"), 1);
}

// Five or six arguments as cupsd passes them; the print file is never read.
TEST(PPDUpdateFilter, ArgumentCount) {
    const QString options = "UpdatePPDOptions IsWakeOnLan=1";
    const std::pair<QStringList, int> cases[] = {
        {{}, 1},
        {{"1", "lp", "t", "1"}, 1},
        {{"1", "lp", "t", "1", options, "/dev/null", "x"}, 1},
        {{"1", "lp", "t", "1", options, "/nonexistent"}, 0}};
    for (const auto &[arguments, exitCode] : cases) {
        const FilterRun run = runFilter(arguments);
        EXPECT_EQ(run.exitCode, exitCode) << arguments.size();
        EXPECT_EQ(run.stored, exitCode ? Stored() : Stored({{"IsWakeOnLan", "1"}}));
        EXPECT_TRUE(run.out.isEmpty());
    }
}

} // namespace
