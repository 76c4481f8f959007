// Saves made through the utility's own update job travel through the real
// server and the driver filter into the queue's PPD, and read back as the
// window reads them.
#include "CupsServerEnvironment.h"
#include "OVStoredSettings.h"
#include "OVUpdateJob.h"
#include "OrvoSNMPHelper.h"

#include <gtest/gtest.h>

#include <functional>

namespace {

using H = OrvoSNMPHelper;

struct Save {
    const char *name;
    std::function<void(OVSettingsSnapshot &)> change; // of the save before
    std::function<void(ppd_file_t *)> expect;
};

TEST(SaveRoundTrip, EverySaveReadsBackAsStored) {
    constexpr char queue[] = "OrvoRoundTrip";
    const QString longName(1500, 'n'); // base64 of 2000 characters: only 1200 are kept
    const Save saves[] = {
        {"NeverWritten", nullptr,
         [](ppd_file_t *ppd) {
             EXPECT_EQ(H::snmpCommunityName(ppd), "cobalt");
             EXPECT_TRUE(H::isWakeOnLan(ppd));
             EXPECT_TRUE(H::isAdminLoginModeEnabled(ppd));
             EXPECT_TRUE(H::getSharedBoxDetailsArray(ppd).isEmpty());
         }},
        {"UnicodeLongNamesAndTooManyProfiles",
         [&](OVSettingsSnapshot &s) {
             s.snmpCommunityCheck = s.overstepTheRouter = true;
             s.snmpCommunityText = "public";
             s.macAddressFields = {"0a", "1b", "2c", "3d", "4e", "5f"};
             s.printerIPAddressText = "fd00::7";
             s.allSharedBoxNames = {"営業部", "Design 🎨", longName};
             s.selectedSharedBoxIndex = {1};
             s.formNames = {"A4 invoice", "Label"};
             for (int i = 0; i < 31; ++i)
                 s.colorProfileNames << QString("Profile %1").arg(i);
         },
         [&](ppd_file_t *ppd) {
             EXPECT_EQ(H::snmpCommunityName(ppd), "public");
             EXPECT_EQ(H::getPrinterMacAddress(ppd), "0a:1b:2c:3d:4e:5f");
             EXPECT_TRUE(H::isOverTheRouter(ppd));
             EXPECT_EQ(H::getPrinterIPAddress(ppd), "fd00::7");
             EXPECT_EQ(H::getSharedBoxDetailsArray(ppd),
                       (QStringList{"営業部", "Design 🎨", longName.left(900)}));
             EXPECT_EQ(H::getSelectedSharedBoxIndexArray(ppd), QList<qint32>{1});
             EXPECT_EQ(H::getColorProfileDetailsArray(ppd).size(), 30);
         }},
        {"ShorterListsWakeOnLanAndCommunityOff",
         [](OVSettingsSnapshot &s) {
             s.snmpCommunityCheck = s.wakeOnLANCheck = false;
             s.snmpCommunityText = "ignored";
             s.formNames = {"Label"};
         },
         [](ppd_file_t *ppd) {
             EXPECT_FALSE(H::isCustomSnmpCommunity(ppd));
             EXPECT_EQ(H::snmpCommunityName(ppd), "public");
             EXPECT_FALSE(H::isWakeOnLan(ppd));
             EXPECT_EQ(H::getPrinterMacAddress(ppd), "");
             EXPECT_EQ(H::getFormDetailsArray(ppd), QStringList{"Label"});
         }},
    };
    ASSERT_TRUE(CupsServerEnvironment::server().addQueue(queue));
    OVSettingsSnapshot snapshot;
    for (const Save &save : saves) {
        SCOPED_TRACE(save.name);
        if (save.change) {
            save.change(snapshot);
            const int job = OVUpdateJob::saveOptionsToPPD(snapshot, queue);
            EXPECT_EQ(CupsServerEnvironment::server().waitForJob(job), IPP_JSTATE_COMPLETED);
        }
        EXPECT_EQ(OVStoredSettings::withQueuePPD(queue, save.expect),
                  OVStoredSettings::Status::Loaded);
    }
}

} // namespace
