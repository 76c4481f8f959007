// Saves made by the utility's own update job travel through the real server
// and the driver filter into the queue's PPD and read back as stored.
#include "CupsServerEnvironment.h"
#include "OVSettingsSnapshot.h"
#include "OVUpdateJob.h"
#include "OrvoPPD_Interface.h"
#include "OrvoSNMPHelper.h"

#include <QRegularExpression>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <functional>

namespace {

constexpr char queue[] = "OrvoRoundTrip";
const QString longName(1500, 'n'); // base64 of 2000 characters: only 1200 are kept

CupsServer &cups() {
    return CupsServerEnvironment::server();
}

// Reads the queue's current PPD with the settings reader.
void readStored(const std::function<void(ppd_file_t *)> &check) {
    QTemporaryDir dir;
    QFile file(dir.filePath("queue.ppd"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(cups().queuePpd(queue));
    file.close();
    ppd_file_t *ppd = r_ppdOpenFile(file.fileName().toLocal8Bit().constData());
    ASSERT_NE(ppd, nullptr);
    check(ppd);
    r_ppdClose(ppd);
}

int saveAndWait(const OVSettingsSnapshot &snapshot) {
    const int job = OVUpdateJob::saveOptionsToPPD(snapshot, queue);
    EXPECT_GT(job, 0);
    EXPECT_EQ(cups().waitForJob(job), IPP_JSTATE_COMPLETED);
    return job;
}

struct Save {
    const char *name;
    std::function<void(OVSettingsSnapshot &)> change;
    std::function<void(ppd_file_t *)> expect;
};

OVSettingsSnapshot firstSave() {
    OVSettingsSnapshot s;
    s.isPPDOptionsUpdated = true;
    s.snmpCommunityCheck = true;
    s.snmpCommunityText = "public";
    s.macAddressFields = {"0a", "1b", "2c", "3d", "4e", "5f"};
    s.overstepTheRouter = true;
    s.printerIPAddressText = "fd00::7";
    s.allSharedBoxNames = {"営業部", "Design 🎨", longName};
    s.selectedSharedBoxNames = {"Design 🎨"};
    s.selectedSharedBoxIndex = {1};
    s.formNames = {"A4 invoice", "Label", "Envelope DL"};
    for (int i = 0; i < 31; ++i)
        s.colorProfileNames << QString("Profile %1").arg(i);
    return s;
}

// Each save starts from the one before, as a user editing the same queue does.
const Save saves[] = {
    {"NeverWritten", nullptr,
     [](ppd_file_t *ppd) {
         EXPECT_EQ(OrvoSNMPHelper::snmpCommunityName(ppd), "cobalt");
         EXPECT_TRUE(OrvoSNMPHelper::isWakeOnLan(ppd));
         EXPECT_TRUE(OrvoSNMPHelper::isAdminLoginModeEnabled(ppd));
         EXPECT_FALSE(OrvoSNMPHelper::isPPDOptionsUpdated(ppd));
         EXPECT_TRUE(OrvoSNMPHelper::getSharedBoxDetailsArray(ppd).isEmpty());
     }},
    {"UnicodeLongNamesAndTooManyProfiles", [](OVSettingsSnapshot &s) { s = firstSave(); },
     [](ppd_file_t *ppd) {
         EXPECT_TRUE(OrvoSNMPHelper::isCustomSnmpCommunity(ppd));
         EXPECT_EQ(OrvoSNMPHelper::snmpCommunityName(ppd), "public");
         EXPECT_EQ(OrvoSNMPHelper::getPrinterMacAddress(ppd), "0a:1b:2c:3d:4e:5f");
         EXPECT_TRUE(OrvoSNMPHelper::isOverTheRouter(ppd));
         EXPECT_EQ(OrvoSNMPHelper::getPrinterIPAddress(ppd), "fd00::7");
         EXPECT_EQ(OrvoSNMPHelper::getSharedBoxDetailsArray(ppd),
                   (QStringList{"営業部", "Design 🎨", longName.left(900)}));
         EXPECT_EQ(OrvoSNMPHelper::getSelectedSharedBoxIndexArray(ppd), QList<qint32>{1});
         EXPECT_EQ(OrvoSNMPHelper::getColorProfileDetailsArray(ppd).size(), 30);
         EXPECT_EQ(OrvoSNMPHelper::getColorProfileDetailsArray(ppd).last(), "Profile 29");
     }},
    {"ShorterListsWakeOnLanAndCommunityOff",
     [](OVSettingsSnapshot &s) {
         s.snmpCommunityCheck = false;
         s.snmpCommunityText = "ignored";
         s.wakeOnLANCheck = false;
         s.formNames = {"Label"};
         s.allSharedBoxNames = {"営業部"};
     },
     [](ppd_file_t *ppd) {
         EXPECT_FALSE(OrvoSNMPHelper::isCustomSnmpCommunity(ppd));
         EXPECT_EQ(OrvoSNMPHelper::snmpCommunityName(ppd), "public");
         EXPECT_FALSE(OrvoSNMPHelper::isWakeOnLan(ppd));
         EXPECT_EQ(OrvoSNMPHelper::getPrinterMacAddress(ppd), "");
         EXPECT_FALSE(OrvoSNMPHelper::isOverTheRouter(ppd));
         EXPECT_EQ(OrvoSNMPHelper::getFormDetailsArray(ppd), QStringList{"Label"});
         EXPECT_EQ(OrvoSNMPHelper::getSharedBoxDetailsArray(ppd), QStringList{"営業部"});
     }},
};

TEST(SaveRoundTrip, EverySaveReadsBackAsStored) {
    ASSERT_TRUE(cups().addQueue(queue));
    OVSettingsSnapshot snapshot;
    for (const Save &save : saves) {
        SCOPED_TRACE(save.name);
        if (save.change) {
            save.change(snapshot);
            saveAndWait(snapshot);
        }
        readStored(save.expect);
    }
}

// The size estimate must never let through a save that cannot arrive, and
// must not refuse much that would: the largest save it accepts arrives whole.
TEST(SaveRoundTrip, LargestAcceptedSaveArrives) {
    ASSERT_TRUE(cups().addQueue(queue));
    OVSettingsSnapshot snapshot;
    snapshot.isPPDOptionsUpdated = true;
    const QString name(900, 'f');
    while (OVUpdateJob::reachesFilter(snapshot))
        snapshot.formNames << name;
    snapshot.formNames.removeLast();
    ASSERT_TRUE(OVUpdateJob::reachesFilter(snapshot));
    const qint64 logStart = cups().errorLogSize();
    const int job = saveAndWait(snapshot);
    const QRegularExpression logged(
        QString("\\[Job %1\\] Job options text is (\\d+) bytes").arg(job));
    const auto match = logged.match(QString::fromLatin1(cups().errorLogSince(logStart)));
    ASSERT_TRUE(match.hasMatch());
    const qsizetype arrived = match.captured(1).toLongLong();
    EXPECT_LT(arrived, OVUpdateJob::maxFilterArgumentBytes);
    EXPECT_GT(arrived,
              OVUpdateJob::maxFilterArgumentBytes - OVUpdateJob::cupsdArgumentMargin - 1300);
    readStored([&](ppd_file_t *ppd) {
        EXPECT_EQ(OrvoSNMPHelper::getFormDetailsArray(ppd).size(), snapshot.formNames.size());
    });
}

} // namespace
