// Update jobs are sent by anyone who may print, so whatever a job carries, the
// queue's PPD must keep its own lines and gain nothing but well-formed settings.
#include "CupsServerEnvironment.h"
#include "JobOptions.h"
#include "StoredSettings.h"

#include <gtest/gtest.h>

#include <iostream>
#include <ostream>
#include <string>
#include <vector>

namespace {

constexpr char queue[] = "OrvoSecurity";

struct SecurityCase {
    const char *what;
    StoredSettings::Values options;
    StoredSettings::Values stored;
    bool updateJob = true;
};

void PrintTo(const SecurityCase &securityCase, std::ostream *out) {
    *out << securityCase.what;
}

std::vector<std::string> withoutKeywords(const QByteArray &ppd,
                                         const StoredSettings::Values &keywords) {
    std::vector<std::string> kept;
    for (const QByteArray &line : StoredSettings::lines(ppd)) {
        const qsizetype colon = line.indexOf(':');
        if (!line.startsWith('*') || colon < 0 ||
            !keywords.contains(line.mid(1, colon - 1).toStdString()))
            kept.push_back(line.toStdString());
    }
    return kept;
}

// What the filter said about the job, for a failure's report.
std::string filterMessages(const QByteArray &log) {
    std::string messages;
    for (const QByteArray &line : log.split('\n')) {
        if (line.contains("Refused") || line.contains("PPD:") || line.contains("Job options"))
            messages.append(line.left(300).toStdString()).append("\n");
    }
    return messages;
}

class UpdateJobSecurityTest : public ::testing::TestWithParam<SecurityCase> {
protected:
    static void SetUpTestSuite() {
        ASSERT_TRUE(cups().addQueue(queue));
        installed = StoredSettings::lines(cups().queuePpd(queue));
        ASSERT_FALSE(installed.isEmpty());
    }

    static CupsServer &cups() { return CupsServerEnvironment::server(); }

    // Opens with libcups, holds every installed line unchanged and in order,
    // and nothing else but settings.
    static void expectIntact(const QByteArray &ppd) {
        EXPECT_TRUE(StoredSettings::opensWithLibcups(ppd));
        qsizetype next = 0;
        for (const QByteArray &line : StoredSettings::lines(ppd)) {
            if (next < installed.size() && line == installed[next])
                ++next;
            else
                EXPECT_TRUE(StoredSettings::isSettingLine(line)) << line.toStdString();
        }
        EXPECT_EQ(next, installed.size()) << "missing: " << installed.value(next).toStdString();
    }

    static inline QList<QByteArray> installed;
};

TEST_P(UpdateJobSecurityTest, OnlyWellFormedSettingsReachThePPD) {
    const QByteArray before = cups().queuePpd(queue);
    const qint64 logStart = cups().errorLogSize();
    JobOptions options;
    if (GetParam().updateJob)
        options.add("UpdatePPDOptions", "True");
    options.add(GetParam().options);
    const int job = cups().printJob(queue, options.count(), options.data());
    ASSERT_GT(job, 0) << cupsLastErrorString();
    EXPECT_EQ(cups().waitForJob(job), IPP_JSTATE_COMPLETED);

    const QByteArray after = cups().queuePpd(queue);
    expectIntact(after);
    const StoredSettings::Values &stored = GetParam().stored;
    EXPECT_EQ(withoutKeywords(after, stored), withoutKeywords(before, stored));
    const StoredSettings::Values found = StoredSettings::in(after);
    for (const auto &[name, value] : stored) {
        EXPECT_EQ(found.count(name) ? found.at(name) : "(absent)", value) << name;
        EXPECT_EQ(StoredSettings::lines(after).count(QByteArray::fromStdString(name).prepend('*') +
                                                     ": \"" + value.c_str() + '"'),
                  1)
            << name;
    }
    if (HasFailure())
        std::cout << filterMessages(cups().errorLogSince(logStart));
}

SecurityCase manyOptions() {
    SecurityCase many{"TenThousandOptions", {}, {{"PSFormName7_Part1", "bWFueQ=="}}};
    for (int i = 0; many.options.size() < 9999; ++i)
        many.options["J" + std::to_string(i)] = "1";
    many.options.insert(*many.stored.begin());
    return many;
}

const std::string community = StoredSettings::base64("public");

INSTANTIATE_TEST_SUITE_P(
    HostileJobs, UpdateJobSecurityTest,
    ::testing::Values(
        SecurityCase{"WellFormedSettings",
                     {{"IsWakeOnLan", "1"},
                      {"SnmpCommunityName", community},
                      {"PrinterMacAddress", ""},
                      {"SelSharedBoxIndex99", "42"},
                      {"ColorProfileName29_Part6", "QUJD"}},
                     {{"IsWakeOnLan", "1"},
                      {"SnmpCommunityName", community},
                      {"PrinterMacAddress", ""},
                      {"SelSharedBoxIndex99", "42"},
                      {"ColorProfileName29_Part6", "QUJD"}}},
        SecurityCase{"PPDKeywordsOfCups",
                     {{"cupsFilter2", "text/plain application/vnd.cups-raster 0 /bin/sh"},
                      {"cupsFilter", "text/plain 0 /bin/sh"},
                      {"*cupsFilter2", "text/plain 0 /bin/sh"},
                      {"*PPD-Adobe", "4.3"},
                      {"OpenUI", "*Evil: PickOne"},
                      {"cupsPreFilter", "text/plain 0 /bin/sh"}},
                     {}},
        SecurityCase{"UnknownKeywords",
                     {{"isWakeOnLan", "1"},
                      {"IsWakeOnLanX", "1"},
                      {"SharedBoxName", "QUJD"},
                      {"Orvo", "1"},
                      {"UpdatePPDOptionsX", "1"}},
                     {}},
        SecurityCase{"ValuesBreakingOutOfTheLine",
                     {{"SnmpCommunityName", "QUJD\"\n*cupsFilter2: \"text/plain 0 /bin/sh"},
                      {"PrinterIPAddress", "QU\\JD"},
                      {"PSFormName0_Part1", "\"QUJD\""},
                      {"PSFormName1_Part1", "QUJD QUJD"}},
                     {}},
        // cupsd hands line ends to the filter unescaped, where they may split
        // one value into several options; each of them is checked on its own.
        SecurityCase{"LineEndsInValues",
                     {{"PrinterMacAddress", "QUJD\ncupsFilter2=x\r\nIsWakeOnLan=yes"}},
                     {}},
        SecurityCase{"IndicesOutOfRange",
                     {{"SharedBoxName100_Part1", "QUJD"},
                      {"ColorProfileName30_Part1", "QUJD"},
                      {"SelSharedBoxIndex-1", "1"},
                      {"SelSharedBoxIndex100", "1"},
                      {"PSFormName99_Part7", "QUJD"}},
                     {}},
        SecurityCase{"IndicesWithLeadingZeros",
                     {{"SelSharedBoxIndex01", "1"},
                      {"SharedBoxName00_Part1", "QUJD"},
                      {"BarcodeAreaDefName007_Part1", "QUJD"}},
                     {}},
        SecurityCase{"ValuesOfTheWrongShape",
                     {{"SnmpCommunityName", "Y29i!WF0"},
                      {"PSFormName0_Part1", "QUJ"},
                      {"PSFormName2_Part1", std::string(204, 'Q')},
                      {"PrinterIPAddress", std::string(240, 'Q')},
                      {"IsOverTheRouter", "yes"},
                      {"SelSharedBoxIndex5", "12abc"}},
                     {}},
        manyOptions(),
        SecurityCase{
            "NotAnUpdateJob", {{"IsWakeOnLan", "0"}, {"SnmpCommunityName", "bm90"}}, {}, false}),
    [](const auto &info) { return std::string(info.param.what); });

} // namespace
