// Saves from several windows at once queue up as separate jobs; the PPD must
// end up holding one save's settings whole, never a mix of two.
#include "CupsServerEnvironment.h"
#include "JobOptions.h"
#include "StoredSettings.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <latch>
#include <thread>
#include <vector>

TEST(UpdateJobConcurrency, SimultaneousSavesLeaveOneCompleteSettingsSet) {
    constexpr char queue[] = "OrvoConcurrency";
    constexpr int saves = 20;
    CupsServer &cups = CupsServerEnvironment::server();
    ASSERT_TRUE(cups.addQueue(queue));
    std::vector<JobOptions> jobs(saves);
    std::vector<int> jobIds(saves);
    std::latch start(saves);
    std::vector<std::thread> senders;
    for (int save = 0; save < saves; ++save) {
        jobs[save].add("UpdatePPDOptions", "True");
        jobs[save].add(StoredSettings::completeSet(save));
        senders.emplace_back([&, save] {
            start.arrive_and_wait();
            jobIds[save] = cups.printJob(queue, jobs[save].count(), jobs[save].data());
        });
    }
    for (std::thread &sender : senders)
        sender.join();
    for (int jobId : jobIds) {
        ASSERT_GT(jobId, 0);
        EXPECT_EQ(cups.waitForJob(jobId), IPP_JSTATE_COMPLETED) << jobId;
    }

    const QByteArray ppd = cups.queuePpd(queue);
    EXPECT_TRUE(StoredSettings::opensWithLibcups(ppd));
    const QList<QByteArray> lines = StoredSettings::lines(ppd);
    EXPECT_EQ(std::count_if(lines.begin(), lines.end(), StoredSettings::isSettingLine),
              qsizetype(StoredSettings::completeSet(0).size()));
    const StoredSettings::Values found = StoredSettings::in(ppd);
    int whole = 0;
    for (int save = 0; save < saves; ++save)
        whole += found == StoredSettings::completeSet(save);
    EXPECT_EQ(whole, 1);
}
