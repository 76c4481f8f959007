// Update jobs are sent by anyone who may print, so whatever a job carries, the
// queue's PPD must keep its own lines and gain nothing but well-formed settings.
#include "CupsServerEnvironment.h"
#include "JobOptions.h"
#include "StoredSettings.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

namespace {

constexpr char queue[] = "OrvoSecurity";

struct SecurityCase {
    const char *what;
    StoredSettings::Values options;
    StoredSettings::Values stored = {}; // what arrives in the PPD
    bool updateJob = true;
};

void PrintTo(const SecurityCase &securityCase, std::ostream *out) {
    *out << securityCase.what;
}

class UpdateJobSecurityTest : public ::testing::TestWithParam<SecurityCase> {
protected:
    static void SetUpTestSuite() { ASSERT_TRUE(cups().addQueue(queue)); }
    static CupsServer &cups() { return CupsServerEnvironment::server(); }
};

// Apart from one line for each expected setting, the PPD keeps every line.
TEST_P(UpdateJobSecurityTest, OnlyWellFormedSettingsReachThePPD) {
    const StoredSettings::Values &stored = GetParam().stored;
    const auto others = [&stored](const QByteArray &ppd) {
        QList<QByteArray> kept;
        for (const QByteArray &line : StoredSettings::lines(ppd)) {
            const StoredSettings::Values setting = StoredSettings::in(line);
            if (setting.empty() || !stored.contains(setting.begin()->first))
                kept << line;
        }
        return kept;
    };
    const QByteArray before = cups().queuePpd(queue);
    JobOptions options;
    if (GetParam().updateJob)
        options.add("UpdatePPDOptions", "True");
    options.add(GetParam().options);
    const int job = cups().printJob(queue, options.count(), options.data());
    ASSERT_GT(job, 0) << cupsLastErrorString();
    EXPECT_EQ(cups().waitForJob(job), IPP_JSTATE_COMPLETED);

    const QByteArray after = cups().queuePpd(queue);
    EXPECT_TRUE(StoredSettings::opensWithLibcups(after));
    EXPECT_EQ(others(after), others(before));
    for (const auto &[name, value] : stored)
        EXPECT_EQ(after.count(QByteArray::fromStdString("\n*" + name + ": \"" + value + "\"\n")), 1)
            << name;
}

SecurityCase manyOptions() {
    SecurityCase many{"TenThousandOptions", {}, {{"PSFormName7_Part1", "bWFueQ=="}}};
    many.options = many.stored;
    for (int i = 0; many.options.size() < 10000; ++i)
        many.options["J" + std::to_string(i)] = "1";
    return many;
}

const StoredSettings::Values wellFormed{{"IsWakeOnLan", "1"},
                                        {"SnmpCommunityName", StoredSettings::base64("public")},
                                        {"PrinterMacAddress", ""},
                                        {"SelSharedBoxIndex99", "42"},
                                        {"ColorProfileName29_Part6", "QUJD"}};

INSTANTIATE_TEST_SUITE_P(
    HostileJobs, UpdateJobSecurityTest,
    ::testing::Values(
        SecurityCase{"WellFormedSettings", wellFormed, wellFormed},
        SecurityCase{"PPDKeywordsOfCups",
                     {{"cupsFilter2", "text/plain application/vnd.cups-raster 0 /bin/sh"},
                      {"*cupsFilter2", "text/plain 0 /bin/sh"},
                      {"*PPD-Adobe", "4.3"},
                      {"OpenUI", "*Evil: PickOne"},
                      {"cupsPreFilter", "text/plain 0 /bin/sh"}}},
        SecurityCase{"UnknownKeywords",
                     {{"isWakeOnLan", "1"}, {"IsWakeOnLanX", "1"}, {"SharedBoxName", "QUJD"}}},
        SecurityCase{"ValuesBreakingOutOfTheLine",
                     {{"SnmpCommunityName", "QUJD\"\n*cupsFilter2: \"text/plain 0 /bin/sh"},
                      {"PrinterIPAddress", "QU\\JD"},
                      {"PSFormName0_Part1", "\"QUJD\""},
                      {"PSFormName1_Part1", "QUJD QUJD"}}},
        // cupsd hands line ends to the filter unescaped, where they may split
        // one value into several options; each of them is checked on its own.
        SecurityCase{"LineEndsInValues",
                     {{"PrinterMacAddress", "QUJD\ncupsFilter2=x\r\nIsWakeOnLan=yes"}}},
        SecurityCase{"IndicesOutOfRange",
                     {{"SharedBoxName100_Part1", "QUJD"},
                      {"ColorProfileName30_Part1", "QUJD"},
                      {"SelSharedBoxIndex-1", "1"},
                      {"PSFormName99_Part7", "QUJD"},
                      {"SelSharedBoxIndex01", "1"}}},
        SecurityCase{"ValuesOfTheWrongShape",
                     {{"SnmpCommunityName", "Y29i!WF0"},
                      {"PSFormName0_Part1", "QUJ"},
                      {"PSFormName2_Part1", std::string(204, 'Q')},
                      {"PrinterIPAddress", std::string(240, 'Q')},
                      {"IsOverTheRouter", "yes"},
                      {"SelSharedBoxIndex5", "12abc"}}},
        manyOptions(), SecurityCase{"NotAnUpdateJob", {{"IsWakeOnLan", "0"}}, {}, false}),
    [](const auto &info) { return std::string(info.param.what); });

} // namespace
