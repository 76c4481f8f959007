// cupsd hands all of a job's options to the filter as one argument, and Linux
// refuses to start a program with an argument of 128 KiB or more (its
// terminating zero included).
#include "CupsServerEnvironment.h"
#include "OVStoredSettings.h"
#include "OVUpdateJob.h"
#include "OrvoSNMPHelper.h"
#include "StoredSettings.h"

#include <QRegularExpression>

#include <gtest/gtest.h>

namespace {

constexpr char queue[] = "OrvoSizeLimit";
constexpr qsizetype limit = OVUpdateJob::maxFilterArgumentBytes;

// The length of the options text cupsd handed to the job's filter, as it logs it.
qsizetype handedOver(int job) {
    const QString log = QString::fromLatin1(CupsServerEnvironment::server().errorLog());
    return QRegularExpression(QString("\\[Job %1\\] Job options text is (\\d+) bytes").arg(job))
        .match(log)
        .captured(1)
        .toLongLong();
}

// The size estimate must never let through a save that cannot arrive, and
// must not refuse much that would: the largest save it accepts arrives whole.
TEST(UpdateJobSizeLimit, LargestAcceptedSaveArrives) {
    ASSERT_TRUE(CupsServerEnvironment::server().addQueue(queue));
    OVSettingsSnapshot snapshot;
    while (OVUpdateJob::reachesFilter(snapshot))
        snapshot.formNames << QString(900, 'f');
    snapshot.formNames.removeLast();
    const int job = OVUpdateJob::saveOptionsToPPD(snapshot, queue);
    EXPECT_EQ(CupsServerEnvironment::server().waitForJob(job), IPP_JSTATE_COMPLETED);
    EXPECT_GT(handedOver(job), limit - OVUpdateJob::cupsdArgumentMargin - 1300);
    const auto stored = [&](ppd_file_t *ppd) {
        EXPECT_EQ(OrvoSNMPHelper::getFormDetailsArray(ppd), snapshot.formNames);
    };
    EXPECT_EQ(OVStoredSettings::withQueuePPD(queue, stored), OVStoredSettings::Status::Loaded);
}

// A save just below the limit arrives whole; one at the limit stops the job
// and leaves the PPD as it was.
TEST(UpdateJobSizeLimit, LongestOptionsTextArrivesOneMoreByteKeepsThePPD) {
    CupsServer &cups = CupsServerEnvironment::server();
    ASSERT_TRUE(cups.addQueue(queue));
    const int probe = cups.printJob(queue, "UpdatePPDOptions");
    EXPECT_EQ(cups.waitForJob(probe), IPP_JSTATE_COMPLETED);
    const qsizetype added = handedOver(probe) - qsizetype(sizeof "UpdatePPDOptions" - 1);
    // A complete save padded with options the filter refuses, so that cupsd
    // hands over exactly `length` bytes; the last two pads share the rest.
    const auto submit = [&](int save, qsizetype length) {
        QByteArray options = StoredSettings::jobOptions(StoredSettings::completeSet(save));
        while (const qsizetype missing = length - added - options.size()) {
            const QByteArray name = " Padding" + QByteArray::number(options.size()) + "=";
            const qsizetype value = missing > 400   ? 200
                                    : missing > 200 ? missing / 2 - name.size()
                                                    : missing - name.size();
            options += name + QByteArray(value, 'x');
        }
        return cups.printJob(queue, options);
    };
    const int longest = submit(1, limit - 1);
    EXPECT_EQ(cups.waitForJob(longest), IPP_JSTATE_COMPLETED);
    EXPECT_EQ(handedOver(longest), limit - 1);
    const QByteArray stored = cups.queuePpd(queue);
    EXPECT_EQ(StoredSettings::in(stored), StoredSettings::completeSet(1));

    const int tooLong = submit(2, limit);
    EXPECT_EQ(cups.waitForJob(tooLong), IPP_JSTATE_STOPPED);
    EXPECT_TRUE(cups.errorLog().contains("Argument list too long"));
    EXPECT_EQ(cups.queuePpd(queue), stored);
    cupsCancelJob2(CUPS_HTTP_DEFAULT, queue, tooLong, 0);
}

} // namespace
