// Saves made through the utility's own update job travel through the real
// server and the driver filter into the queue's PPD, and read back as the
// window reads them. Each save starts from the one before, as a user editing
// the same queue does.
#include "CupsServerEnvironment.h"
#include "OVStoredSettings.h"
#include "OVUpdateJob.h"
#include "OrvoSNMPHelper.h"

#include <gtest/gtest.h>

#include <functional>

namespace {

using H = OrvoSNMPHelper;

TEST(SaveRoundTrip, EverySaveReadsBackAsStored) {
    constexpr char queue[] = "OrvoRoundTrip";
    ASSERT_TRUE(CupsServerEnvironment::server().addQueue(queue));
    const auto readBack = [&](const std::function<void(ppd_file_t *)> &expect) {
        EXPECT_EQ(OVStoredSettings::withQueuePPD(queue, expect), OVStoredSettings::Status::Loaded);
    };
    const auto save = [&](const OVSettingsSnapshot &snapshot) {
        const int job = OVUpdateJob::saveOptionsToPPD(snapshot, queue);
        EXPECT_EQ(CupsServerEnvironment::server().waitForJob(job), IPP_JSTATE_COMPLETED);
    };
    readBack([](ppd_file_t *ppd) { // never written: the defaults
        EXPECT_EQ(H::snmpCommunityName(ppd), "cobalt");
        EXPECT_TRUE(H::isWakeOnLan(ppd));
        EXPECT_TRUE(H::isAdminLoginModeEnabled(ppd));
        EXPECT_TRUE(H::getSharedBoxDetailsArray(ppd).isEmpty());
    });

    const QString longName(1500, 'n'); // base64 of 2000 characters: only 1200 are kept
    OVSettingsSnapshot s;
    s.snmpCommunityCheck = s.overstepTheRouter = true;
    s.snmpCommunityText = "public";
    s.macAddressFields = {"0a", "1b", "2c", "3d", "4e", "5f"};
    s.printerIPAddressText = "fd00::7";
    s.allSharedBoxNames = {"営業部", "Design 🎨", longName};
    s.selectedSharedBoxIndex = {1};
    s.formNames = {"A4 invoice", "Label"};
    for (int i = 0; i < 31; ++i)
        s.colorProfileNames << QString("Profile %1").arg(i);
    save(s);
    readBack([&](ppd_file_t *ppd) {
        EXPECT_EQ(H::snmpCommunityName(ppd), "public");
        EXPECT_EQ(H::getPrinterMacAddress(ppd), "0a:1b:2c:3d:4e:5f");
        EXPECT_TRUE(H::isOverTheRouter(ppd));
        EXPECT_EQ(H::getPrinterIPAddress(ppd), "fd00::7");
        EXPECT_EQ(H::getSharedBoxDetailsArray(ppd),
                  (QStringList{"営業部", "Design 🎨", longName.left(900)}));
        EXPECT_EQ(H::getSelectedSharedBoxIndexArray(ppd), QList<qint32>{1});
        EXPECT_EQ(H::getColorProfileDetailsArray(ppd).size(), 30);
    });

    s.snmpCommunityCheck = s.wakeOnLANCheck = false;
    s.snmpCommunityText = "ignored";
    s.formNames = {"Label"};
    save(s);
    readBack([](ppd_file_t *ppd) {
        EXPECT_FALSE(H::isCustomSnmpCommunity(ppd));
        EXPECT_EQ(H::snmpCommunityName(ppd), "public");
        EXPECT_FALSE(H::isWakeOnLan(ppd));
        EXPECT_EQ(H::getPrinterMacAddress(ppd), "");
        EXPECT_EQ(H::getFormDetailsArray(ppd), QStringList{"Label"});
    });
}

} // namespace
