// Saves from several windows at once queue up as separate jobs; the PPD must
// end up holding one save's settings whole, never a mix of two.
#include "CupsServerEnvironment.h"
#include "OVStoredSettings.h"
#include "StoredSettings.h"

#include <gtest/gtest.h>

#include <latch>
#include <thread>
#include <vector>

TEST(UpdateJobConcurrency, SimultaneousSavesLeaveOneCompleteSettingsSet) {
    constexpr char queue[] = "OrvoConcurrency";
    constexpr int saves = 20;
    CupsServer &cups = CupsServerEnvironment::server();
    ASSERT_TRUE(cups.addQueue(queue));
    std::vector<int> jobIds(saves);
    std::latch start(saves);
    std::vector<std::thread> senders;
    for (int save = 0; save < saves; ++save) {
        senders.emplace_back([&, save] {
            const QByteArray options =
                StoredSettings::jobOptions(StoredSettings::completeSet(save));
            start.arrive_and_wait();
            jobIds[save] = cups.printJob(queue, options);
        });
    }
    for (std::thread &sender : senders)
        sender.join();
    for (int jobId : jobIds)
        EXPECT_EQ(cups.waitForJob(jobId), IPP_JSTATE_COMPLETED) << jobId;

    EXPECT_EQ(OVStoredSettings::withQueuePPD(queue, [](ppd_file_t *) {}),
              OVStoredSettings::Status::Loaded);
    const StoredSettings::Values found = StoredSettings::in(cups.queuePpd(queue));
    int whole = 0;
    for (int save = 0; save < saves; ++save)
        whole += found == StoredSettings::completeSet(save);
    EXPECT_EQ(whole, 1);
}
