// Repairing queues whose PPD a failing server left damaged: removed, cut short while cupsd
// wrote it, or without the set-up line. The repaired queue prints, takes saves and keeps the
// settings the damaged PPD still held whole.
#include "CommandLineRun.h"
#include "CupsServer.h"
#include "OVQueueSetup.h"
#include "OVSettingsSave.h"
#include "OVStoredSettings.h"
#include "SpawnedProcess.h"

#include <QFile>
#include <QThread>

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

namespace {

using State = OVQueueSetup::State;

CommandLineRun cli(const QStringList &arguments) {
    return CommandLineRun(ORVO_CLI, arguments);
}

// The name under which the server's drivers list a PPD file, as lpadmin -m takes it.
QString driverNamed(const QString &fileName) {
    SpawnedProcess lpinfo;
    lpinfo.start("lpinfo", {"-m"});
    lpinfo.waitForFinished(30000);
    for (const QByteArray &line : lpinfo.standardOutput().split('\n')) {
        if (line.contains(fileName.toUtf8()))
            return QString::fromUtf8(line.left(line.indexOf(' ')));
    }
    return {};
}

OVSettingsSnapshot savedSettings() {
    OVSettingsSnapshot settings;
    settings.isPPDOptionsUpdated = true;
    settings.snmpCommunityCheck = true;
    settings.snmpCommunityText = "officenet";
    settings.formNames = {"Invoice", QString::fromUtf8("請求書")};
    return settings;
}

// What each damage leaves of the saved settings.
enum class Kept { Nothing, Forms, All };

struct Damage {
    const char *what;
    std::function<QByteArray(const QByteArray &)> apply; // empty result: the PPD is removed
    Kept kept;
    bool damaged; // false: whole, only not set up, as setup --remove leaves a PPD
};

// A PPD cut three bytes into the line after the forms, as a full disk cuts it: cupsd writes
// the saved settings first, so the forms are whole and everything after them is gone.
QByteArray cutAfterForms(const QByteArray &ppd) {
    const qsizetype lastForm = ppd.lastIndexOf("\n*PSFormName");
    return ppd.left(ppd.indexOf('\n', lastForm + 1) + 4);
}

const Damage damages[] = {
    {"Removed", [](const QByteArray &) { return QByteArray(); }, Kept::Nothing, true},
    {"CutShort", cutAfterForms, Kept::Forms, true},
    {"WithoutSetUpLine",
     [](QByteArray ppd) { return ppd.replace("*OrvoSettingsUpdate: \"Accepted\"\n", ""); },
     Kept::All, false},
};

class QueueRepair : public ::testing::Test {
protected:
    void SetUp() override {
        m_remote = std::make_unique<CupsServer>(QStringLiteral(ORVO_PPD_UPDATE_FILTER),
                                                CupsServer::Options{.clientsUseIt = false});
        ASSERT_TRUE(m_cups.isRunning() && m_remote->isRunning());
        ASSERT_TRUE(m_remote->addQueue("Remote", CupsServer::samplePpdPath(),
                                       "file:" + m_remote->outputPath("device")));
    }

    // A queue with the given driver (lpadmin -m), set up and holding savedSettings().
    void makeQueue(const QString &queue, const QString &driver) {
        if (driver == "everywhere") {
            const QString uri = QStringLiteral("ipp://%1/printers/Remote").arg(m_remote->address());
            ASSERT_TRUE(m_cups.lpadmin({"-p", queue, "-E", "-v", uri, "-m", driver}));
            for (int poll = 0; poll < 100 && m_cups.queuePpd(queue).isEmpty(); ++poll)
                QThread::msleep(50);
        } else {
            ASSERT_TRUE(m_cups.lpadmin(
                {"-p", queue, "-E", "-v", "file:" + m_cups.outputPath(queue), "-m", driver}));
        }
        ASSERT_EQ(OVQueueSetup::setUp(queue).outcome, OVQueueSetup::Outcome::Changed);
        ASSERT_EQ(OVSettingsSave::save(savedSettings(), queue).result,
                  OVSettingsSave::Result::Stored);
    }

    void damage(const QString &queue, const Damage &how) {
        const QByteArray damaged = how.apply(CupsServer::readFile(m_cups.ppdFile(queue)));
        if (damaged.isEmpty()) {
            ASSERT_TRUE(QFile::remove(m_cups.ppdFile(queue)));
            ASSERT_TRUE(m_cups.restart()); // as after the crash that lost it
        } else {
            CupsServer::writeFile(m_cups.ppdFile(queue), damaged);
        }
    }

    // A text and a PDF job reach the device.
    void printsOn(const QString &queue, const QString &device, CupsServer &deviceServer) {
        const QString text = m_cups.outputPath("hello.txt");
        CupsServer::writeFile(text, "Hello, printer.\n");
        for (const auto &[file, format] :
             {std::pair{text, "text/plain"},
              std::pair{QStringLiteral("/usr/share/cups/data/classified.pdf"),
                        "application/pdf"}}) {
            QFile::remove(device);
            EXPECT_EQ(m_cups.waitForJob(m_cups.printFile(queue, file, format)),
                      IPP_JSTATE_COMPLETED)
                << format;
            if (&deviceServer != &m_cups) {
                EXPECT_EQ(deviceServer.waitForJob(deviceServer.lastJob()), IPP_JSTATE_COMPLETED);
            }
            EXPECT_FALSE(CupsServer::readFile(device).isEmpty()) << format;
        }
    }

    CupsServer m_cups{QStringLiteral(ORVO_PPD_UPDATE_FILTER)};
    std::unique_ptr<CupsServer> m_remote;
};

// Every command that reads the queue says it is damaged, and names the repair.
void saidDamaged(const QString &queue) {
    EXPECT_EQ(OVQueueSetup::state(queue), State::Damaged);
    EXPECT_TRUE(cli({"show", queue})
                    .endedWith(1, "is damaged: repair it with: orvo-printer-utility-cli setup "
                                  "--repair"));
    EXPECT_TRUE(cli({"setup", queue}).shown.contains("is damaged"));
    const CommandLineRun list = cli({"list"});
    const QList<QByteArray> listed = list.shown.split('\n');
    EXPECT_TRUE(std::any_of(listed.begin(), listed.end(), [&](const QByteArray &line) {
        return line.mid(2).startsWith(queue.toUtf8() + ' ') && line.contains(" damaged ");
    })) << list.shown.toStdString();
}

TEST_F(QueueRepair, DamagedPpdsAreNamedAndRepairedWithTheirReadableSettings) {
    const QString pxlmono = driverNamed("pxlmono.ppd");
    ASSERT_FALSE(pxlmono.isEmpty());
    const std::tuple<const char *, QString, QList<Damage>> queues[] = {
        {"Driver", pxlmono, {std::begin(damages), std::end(damages)}},
        {"PostScript", "drv:///sample.drv/generic.ppd", {std::begin(damages), std::end(damages)}},
        // Each job to the second server takes the ipp backend seconds: one damage, the worst.
        {"Driverless", "everywhere", {damages[0]}},
    };
    for (const auto &[what, driver, ways] : queues) {
        for (const Damage &how : ways) {
            const QString queue = QStringLiteral("%1_%2").arg(what, how.what);
            SCOPED_TRACE(queue.toStdString());
            makeQueue(queue, driver);
            damage(queue, how);

            if (how.damaged)
                saidDamaged(queue);
            else
                EXPECT_EQ(OVQueueSetup::state(queue), State::NotSetUp);
            const CommandLineRun repaired = cli({"setup", "--repair", queue});
            ASSERT_EQ(repaired.exit, 0) << repaired.shown.toStdString();
            EXPECT_EQ(OVQueueSetup::state(queue), State::SetUp);
            OVSettingsSnapshot stored;
            ASSERT_EQ(OVStoredSettings::load(queue, stored), OVStoredSettings::Status::Loaded);
            const OVSettingsSnapshot saved = savedSettings();
            EXPECT_EQ(stored.formNames,
                      how.kept == Kept::Nothing ? QStringList() : saved.formNames);
            EXPECT_EQ(stored.snmpCommunityText == saved.snmpCommunityText, how.kept == Kept::All);
            const bool driverless = driver == "everywhere";
            printsOn(queue, driverless ? m_remote->outputPath("device") : m_cups.outputPath(queue),
                     driverless ? *m_remote : m_cups);
            EXPECT_EQ(OVSettingsSave::save(saved, queue).result, OVSettingsSave::Result::Stored);
            EXPECT_EQ(cli({"setup", "--repair", queue}).shown,
                      '"' + queue.toUtf8() + "\" is set up and whole; nothing changed.\n");
        }
    }
}

// A queue whose make and model no driver of the server has is not guessed at: the repair
// names the command that gives it one.
TEST_F(QueueRepair, WithoutADriverTheRepairNamesTheCommandThatGivesOne) {
    QByteArray own = CupsServer::readFile(CupsServer::samplePpdPath());
    own.replace("*NickName: \"Orvo Printer\"", "*NickName: \"Nobody's Model 9000\"");
    CupsServer::writeFile(m_cups.outputPath("own.ppd"), own);
    ASSERT_TRUE(m_cups.addQueue("Own", m_cups.outputPath("own.ppd")));
    damage("Own", damages[0]);
    const CommandLineRun run = cli({"setup", "--repair", "Own"});
    EXPECT_TRUE(run.endedWith(1, "no driver on the server has the queue's make and model"));
    EXPECT_TRUE(run.shown.contains("lpadmin -p Own -m DRIVER")) << run.shown.toStdString();
}

} // namespace
