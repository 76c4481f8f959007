// Setting up queues that print: each style of PPD a real queue has, on the private cupsd with
// the machine's CUPS filters, printing to file: devices whose output the test compares.
#include "CupsServerEnvironment.h"
#include "OVQueueSetup.h"
#include "OVSettingsRoute.h"
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

// A one-page PostScript document, as applications send them.
constexpr char postScriptPage[] = "%!PS-Adobe-3.0\n%%Pages: 1\n%%EndComments\n%%Page: 1 1\n"
                                  "/Helvetica findfont 24 scalefont setfont\n"
                                  "72 720 moveto (Hello, printer.) show\nshowpage\n%%EOF\n";

// What the device and accounting see of one job.
struct Printed {
    QByteArray bytes; // normalised
    int pages;        // in cupsd's page log
    int impressions;  // job-impressions-completed
    bool operator==(const Printed &) const = default;
};

struct Style {
    const char *what;
    QString source; // a PPD file, a driver the server has (lpadmin -m), or none: driverless
};

// Every style of PPD a queue gets: from a driver package (with *cupsFilter lines, foomatic,
// gutenprint), a PDF pass-through, PostScript PPDs without any filter line (vendors', one with
// CRLF line ends and PJL, CUPS's own generic one), and driverless over IPP to a second server
// (*cupsFilter2 lines).
QList<Style> styles() {
    const QString corpus = ORVO_PPD_CORPUS "/";
    return {
        {"DriverWithFilters", "/usr/share/ppd/cupsfilters/pxlmono.ppd"},
        {"PdfPassThrough", "/usr/share/ppd/cupsfilters/Generic-PDF_Printer-PDF.ppd"},
        {"PostScriptWithoutFilters",
         corpus + "postscript-hp__ppd_hplip_HP_hp-laserjet_4_plus-ps.ppd"},
        {"OfficePostScriptWithJcl",
         corpus + "openprinting-ppds__ppd_openprinting_Kyocera_de_Kyocera_CS-C2525E_de.ppd"},
        {"GenericPostScript", "drv:///sample.drv/generic.ppd"},
        {"Foomatic",
         corpus + "foomatic-db-compressed-ppds__ppd_foomatic-ppd_Canon-BJC-1000-bjc250gs.ppd"},
        {"Gutenprint", "gutenprint.5.3://escp2-p7000c/expert"},
        {"Driverless", {}},
    };
}

TEST(QueueSetup, PrintingAndAccountingStayAsTheyWereWhileQueuesTakeSaves) {
    CupsServer &cups = CupsServerEnvironment::server();
    CupsServer remote(QStringLiteral(ORVO_PPD_UPDATE_FILTER), {.clientsUseIt = false});
    ASSERT_TRUE(remote.isRunning());
    const QString remoteDevice = remote.outputPath("device");
    ASSERT_TRUE(remote.addQueue("Remote", CupsServer::samplePpdPath(), "file:" + remoteDevice));
    const QString text = cups.outputPath("hello.txt"), postScript = cups.outputPath("hello.ps");
    CupsServer::writeFile(text, "Hello, printer.\n");
    CupsServer::writeFile(postScript, postScriptPage);
    const std::pair<QString, const char *> documents[] = {
        {text, "text/plain"},
        {"/usr/share/cups/data/classified.pdf", "application/pdf"},
        {postScript, "application/postscript"}};
    for (const auto &[what, source] : styles()) {
        SCOPED_TRACE(what);
        const QString queue = what;
        const bool driverless = source.isEmpty();
        const QString device = driverless ? remoteDevice : cups.outputPath(queue);
        if (driverless) {
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
            ASSERT_TRUE(cups.lpadmin({"-p", queue, "-E", "-v", "file:" + device,
                                      source.startsWith('/') ? "-P" : "-m", source}));
        }
        // What reached the device and the accounting, once the job (and the job it
        // forwards) ended.
        const auto printAll = [&](const QByteArray &options = {}) {
            QList<Printed> printed;
            for (const auto &[file, format] : documents) {
                QFile::remove(device);
                const int job = cups.printFile(queue, file, format, options);
                EXPECT_EQ(cups.waitForJob(job), IPP_JSTATE_COMPLETED) << format;
                if (driverless) {
                    EXPECT_EQ(remote.waitForJob(remote.lastJob()), IPP_JSTATE_COMPLETED);
                }
                printed.append({normalised(CupsServer::readFile(device)), cups.pagesLogged(job),
                                cups.impressionsCompleted(job)});
            }
            return printed;
        };
        const QList<Printed> before = printAll();
        for (const Printed &each : before)
            EXPECT_FALSE(each.bytes.isEmpty());
        const QByteArray ppdBefore = cups.queuePpd(queue);
        EXPECT_EQ(OVQueueSetup::state(queue), OVQueueSetup::State::NotSetUp);
        // The server routes update jobs on every queue; one that is not set up stores nothing
        // and prints nothing.
        QFile::remove(device);
        EXPECT_EQ(
            cups.waitForJob(cups.printJob(queue, "UpdatePPDOptions=True PSFormName0_Part1=QUJD")),
            IPP_JSTATE_COMPLETED);
        EXPECT_EQ(CupsServer::readFile(device), QByteArray());
        EXPECT_EQ(cups.queuePpd(queue), ppdBefore);

        EXPECT_EQ(OVQueueSetup::setUp(queue).outcome, Outcome::Changed);
        const QByteArray ppdSetUp = cups.queuePpd(queue);
        EXPECT_EQ(withoutSettings(OVSettingsRoute::removed(ppdSetUp)), withoutSettings(ppdBefore));
        EXPECT_EQ(OVQueueSetup::setUp(queue).outcome, Outcome::Unchanged);
        EXPECT_EQ(OVQueueSetup::state(queue), OVQueueSetup::State::SetUp);
        EXPECT_TRUE(printAll() == before);
        // A print job with the update marker and settings as its options prints as usual.
        EXPECT_TRUE(printAll("UpdatePPDOptions=True PSFormName0_Part1=QUJD") == before);
        EXPECT_EQ(cups.queuePpd(queue), ppdSetUp);

        // An update job runs the filter alone: nothing reaches the device or the second server.
        OVSettingsSnapshot settings;
        settings.formNames = {"Invoice", QString::fromUtf8("請求書")};
        QFile::remove(device);
        const int remoteJobs = remote.lastJob();
        const int job = OVUpdateJob::saveOptionsToPPD(settings, queue);
        EXPECT_EQ(cups.waitForJob(job), IPP_JSTATE_COMPLETED);
        EXPECT_EQ(filtersOf(cups.errorLog(), job), QStringList{K::driverFilter});
        EXPECT_EQ(CupsServer::readFile(device), QByteArray());
        EXPECT_EQ(remote.lastJob(), remoteJobs);
        OVSettingsSnapshot stored;
        EXPECT_EQ(OVStoredSettings::load(queue, stored), OVStoredSettings::Status::Loaded);
        EXPECT_EQ(stored.formNames, settings.formNames);
        EXPECT_TRUE(printAll() == before);

        EXPECT_EQ(OVQueueSetup::remove(queue).outcome, Outcome::Changed);
        EXPECT_EQ(OVQueueSetup::state(queue), OVQueueSetup::State::NotSetUp);
        // cupsd wrote every line end as LF when the save rewrote the PPD.
        EXPECT_EQ(withoutSettings(cups.queuePpd(queue)),
                  withoutSettings(QByteArray(ppdBefore).replace("\r\n", "\n")));
        EXPECT_EQ(OVStoredSettings::load(queue, stored), OVStoredSettings::Status::Loaded);
        EXPECT_EQ(stored.formNames, settings.formNames);
        EXPECT_TRUE(printAll() == before);
    }
}

// A queue set up before the update job had its route on the server carries filter lines for
// it, and a PostScript PPD a pass-through line besides; setting it up again takes them out, so
// its pages are counted again.
TEST(QueueSetup, SettingUpAgainTakesOutTheFilterLinesOfAnEarlierSetUp) {
    CupsServer &cups = CupsServerEnvironment::server();
    const QByteArray plain = CupsServer::readFile(
        ORVO_PPD_CORPUS "/postscript-hp__ppd_hplip_HP_hp-laserjet_4_plus-ps.ppd");
    const qsizetype firstLineEnd = plain.indexOf('\n') + 1;
    const QByteArray earlier =
        plain.left(firstLineEnd) +
        "*% Orvo Printer Utility: the settings update route; \"orvo-printer-utility-cli setup "
        "--remove QUEUE\" takes it out\n*cupsFilter: \"application/vnd.cups-postscript 0 -\"\n"
        "*cupsFilter: \"application/vnd.orvo-settings-update 0 orvo-ppd-update\"\n" +
        plain.mid(firstLineEnd);
    CupsServer::writeFile(cups.outputPath("earlier.ppd"), earlier);
    ASSERT_TRUE(cups.addQueue("Earlier", cups.outputPath("earlier.ppd")));
    EXPECT_EQ(OVQueueSetup::state("Earlier"), OVQueueSetup::State::NotSetUp);
    EXPECT_EQ(OVQueueSetup::setUp("Earlier").outcome, Outcome::Changed);
    const QByteArray setUp = cups.queuePpd("Earlier");
    EXPECT_FALSE(setUp.contains("cupsFilter"));
    EXPECT_EQ(OVQueueSetup::remove("Earlier").outcome, Outcome::Changed);
    EXPECT_EQ(withoutSettings(cups.queuePpd("Earlier")), withoutSettings(plain));
}

} // namespace
