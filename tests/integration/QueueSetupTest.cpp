// Setting up queues that print: each style of PPD a real queue has, on the private cupsd with
// the machine's CUPS filters, printing to file: devices whose output the test compares.
#include "CupsServerEnvironment.h"
#include "OVQueueSetup.h"
#include "OVStoredSettings.h"
#include "OVUpdateJob.h"
#include "OrvoSettingsKeywords.h"

#include <QFile>
#include <QRegularExpression>
#include <QThread>

#include <gtest/gtest.h>

namespace {

namespace K = OrvoSettingsKeywords;
using Outcome = OVQueueSetup::Outcome;

// What differs between two prints of the same file: job numbers, times, document IDs and the
// random tags of embedded font subsets.
QByteArray normalised(QByteArray output) {
    static const QRegularExpression variable(QStringLiteral(
        "/ID ?\\[<[0-9a-fA-F]+> ?<[0-9a-fA-F]+>\\]|D:\\d{14}[^)]*|"
        "%%CreationDate:[^\\n]*|DISPLAY = \"\\d+ |/(BaseFont|FontName) /[A-Z]{5,6}"));
    return QString::fromLatin1(output).replace(variable, "#").toLatin1();
}

// The PPD without the utility's settings lines, which saves change.
QByteArray withoutSettings(const QByteArray &ppd) {
    QStringList alternatives;
    for (const K::Keyword &keyword : K::all)
        alternatives << keyword.name;
    const QRegularExpression settings(
        QStringLiteral("^\\*(%1)\\w*: [^\\n]*\\n").arg(alternatives.join('|')),
        QRegularExpression::MultilineOption);
    return QString::fromLatin1(ppd).remove(settings).toLatin1();
}

// The filters cupsd started for a job, as its log names them.
QStringList filtersOf(const QByteArray &log, int job) {
    QStringList names;
    const QRegularExpression started(
        QStringLiteral("\\[Job %1\\] Started filter \\S*/([^/ ]+) ").arg(job));
    for (const auto &match : started.globalMatch(QString::fromLatin1(log)))
        names << match.captured(1);
    return names;
}

struct Style {
    const char *what;
    QString ppd; // empty: a driverless queue of the second server's printer
};

TEST(QueueSetup, PrintingQueuesOfEveryStyleKeepPrintingAndTakeSaves) {
    CupsServer &cups = CupsServerEnvironment::server();
    CupsServer::Options second;
    second.clientsUseIt = false;
    CupsServer remote(QStringLiteral(ORVO_PPD_UPDATE_FILTER), second);
    ASSERT_TRUE(remote.isRunning());
    const Style styles[] = {
        {"DriverWithFilters", "/usr/share/ppd/cupsfilters/pxlmono.ppd"},
        {"PdfPassThrough", "/usr/share/ppd/cupsfilters/Generic-PDF_Printer-PDF.ppd"},
        {"PostScriptWithoutFilters",
         ORVO_PPD_CORPUS "/postscript-hp__ppd_hplip_HP_hp-laserjet_4_plus-ps.ppd"},
        {"Driverless", {}},
    };
    const QString text = cups.outputPath("hello.txt"), pdf = "/usr/share/cups/data/classified.pdf";
    CupsServer::writeFile(text, "Hello, printer.\n");
    int remoteJobs = 0;
    for (const auto &[what, ppd] : styles) {
        SCOPED_TRACE(what);
        const QString queue = what;
        const bool driverless = ppd.isEmpty();
        const QString device = driverless ? remote.outputPath("device") : cups.outputPath(queue);
        if (driverless) {
            ASSERT_TRUE(remote.addQueue("Remote", CupsServer::samplePpdPath(), "file:" + device));
            const QString uri = QStringLiteral("ipp://%1/printers/Remote").arg(remote.address());
            ASSERT_TRUE(cups.lpadmin({"-p", queue, "-E", "-v", uri, "-m", "everywhere"}));
            // cupsd rebuilds a driverless queue's page sizes from an installed PPD, which moves
            // text by 0.01 pt; compare with the queue as any lpadmin -P leaves it.
            QByteArray made; // the server makes the PPD in the background
            for (int poll = 0; poll < 100 && made.isEmpty(); ++poll, QThread::msleep(50))
                made = cups.queuePpd(queue);
            CupsServer::writeFile(cups.outputPath("driverless.ppd"), made);
            ASSERT_TRUE(cups.lpadmin({"-p", queue, "-P", cups.outputPath("driverless.ppd")}));
        } else {
            ASSERT_TRUE(cups.addQueue(queue, ppd, "file:" + device));
        }
        // What reached the device, once the job (and the job it forwards) ended.
        const auto print = [&](const QString &file, const char *format,
                               const QByteArray &options = {}) {
            QFile::remove(device);
            EXPECT_EQ(cups.waitForJob(cups.printFile(queue, file, format, options)),
                      IPP_JSTATE_COMPLETED);
            if (driverless) {
                EXPECT_EQ(remote.waitForJob(++remoteJobs), IPP_JSTATE_COMPLETED);
            }
            return normalised(CupsServer::readFile(device));
        };
        const QByteArray textBefore = print(text, "text/plain");
        const QByteArray pdfBefore = print(pdf, "application/pdf");
        EXPECT_FALSE(textBefore.isEmpty() || pdfBefore.isEmpty());
        const QByteArray ppdBefore = cups.queuePpd(queue);
        EXPECT_EQ(OVQueueSetup::state(queue), OVQueueSetup::State::NotSetUp);

        EXPECT_EQ(OVQueueSetup::setUp(queue).outcome, Outcome::Changed);
        const QByteArray ppdSetUp = cups.queuePpd(queue);
        EXPECT_EQ(OVQueueSetup::setUp(queue).outcome, Outcome::Unchanged);
        EXPECT_EQ(OVQueueSetup::state(queue), OVQueueSetup::State::SetUp);
        EXPECT_TRUE(print(text, "text/plain") == textBefore);
        EXPECT_TRUE(print(pdf, "application/pdf") == pdfBefore);
        // A print job with the update marker and settings as its options prints as usual.
        EXPECT_TRUE(print(text, "text/plain", "UpdatePPDOptions=True PSFormName0_Part1=QUJD") ==
                    textBefore);
        EXPECT_EQ(cups.queuePpd(queue), ppdSetUp);

        // An update job runs the filter alone: nothing reaches the device or the second server.
        OVSettingsSnapshot settings;
        settings.formNames = {"Invoice", QString::fromUtf8("請求書")};
        QFile::remove(device);
        const qsizetype remoteJobsLogged = remote.errorLog().count("Queued on");
        const int job = OVUpdateJob::saveOptionsToPPD(settings, queue);
        EXPECT_EQ(cups.waitForJob(job), IPP_JSTATE_COMPLETED);
        EXPECT_EQ(filtersOf(cups.errorLog(), job), QStringList{K::driverFilter});
        EXPECT_EQ(CupsServer::readFile(device), QByteArray());
        EXPECT_EQ(remote.errorLog().count("Queued on"), remoteJobsLogged);
        OVSettingsSnapshot stored;
        EXPECT_EQ(OVStoredSettings::load(queue, stored), OVStoredSettings::Status::Loaded);
        EXPECT_EQ(stored.formNames, settings.formNames);

        EXPECT_EQ(OVQueueSetup::remove(queue).outcome, Outcome::Changed);
        EXPECT_EQ(OVQueueSetup::state(queue), OVQueueSetup::State::NotSetUp);
        EXPECT_EQ(withoutSettings(cups.queuePpd(queue)), withoutSettings(ppdBefore));
        EXPECT_EQ(OVStoredSettings::load(queue, stored), OVStoredSettings::Status::Loaded);
        EXPECT_EQ(stored.formNames, settings.formNames);
        EXPECT_TRUE(print(pdf, "application/pdf") == pdfBefore);
    }
}

} // namespace
