// A print server that fails in the middle of the utility's work: killed during saves, killed or
// stopped during set-ups, stopped during show and save, a paused queue, and a disk too small
// for the PPDs. The command line
// must end within its time limit and say what happened.
#include "CommandLineRun.h"
#include "CupsServer.h"
#include "OVQueueSetup.h"
#include "OrvoPPD_Interface.h"
#include "SpawnedProcess.h"

#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QMap>
#include <QRegularExpression>
#include <QTest>
#include <QThread>

#include <gtest/gtest.h>

#include <algorithm>
#include <csignal>
#include <functional>
#include <memory>
#include <optional>
#include <random>
#include <vector>

namespace {

// Runs the command line, doing `meanwhile` to the server once it has started.
CommandLineRun cli(const QStringList &arguments, const std::function<void()> &meanwhile = {}) {
    return CommandLineRun(ORVO_CLI, arguments, {}, meanwhile);
}

QStringList save(int number, int timeout = 10) {
    return {"save",   "--timeout", QString::number(timeout),
            "Office", "--forms",   QStringLiteral("Form %1").arg(number)};
}

// What cupsd serves after a crash: a PPD libcups cannot open, or a queue that no longer takes
// the update job's format, stops the queue taking saves.
bool damaged(const CupsServer &server, const QString &queue) {
    ppd_file_t *ppd = r_ppdOpenFile(server.ppdFile(queue).toLocal8Bit().constData());
    if (ppd)
        r_ppdClose(ppd);
    return !ppd ||
           !QTest::qWaitFor(
               [&] { return OVQueueSetup::state(queue) == OVQueueSetup::State::SetUp; }, 2000);
}

// Each way a killed save can end, with the words that say it.
bool saidWhatHappened(const CommandLineRun &run) {
    static const std::pair<int, const char *> designed[] = {
        {0, "the PPD holds the settings"},
        {1, "is gone from the CUPS server"},
        {1, "is damaged after the save"},
        {3, "cannot reach the CUPS server"},
        {3, "stopped answering while update job"},
        {3, "stopped answering while the update job was sent"},
        {8, "may still be applied when the queue runs"},
    };
    return std::any_of(std::begin(designed), std::end(designed), [&](const auto &outcome) {
        return run.exit == outcome.first && run.shown.contains(outcome.second);
    });
}

TEST(FaultInjection, CupsdKilledAtSeededPointsOfASave) {
    CupsServer server(QStringLiteral(ORVO_PPD_UPDATE_FILTER));
    ASSERT_TRUE(server.isRunning() && server.addQueue("Office"));
    QElapsedTimer whole;
    whole.start();
    ASSERT_EQ(cli(save(0)).exit, 0);
    const int span = int(whole.elapsed());
    std::printf("the sample queue's PPD after a typical save: %lld bytes\n",
                qlonglong(QFileInfo(server.ppdFile("Office")).size()));
    std::mt19937 seeded(20261124);
    std::uniform_int_distribution<int> killAfterMs(0, span);
    constexpr int trials = 40;
    int damagedSaves = 0;
    for (int trial = 1; trial <= trials; ++trial) {
        const int delay = killAfterMs(seeded);
        SCOPED_TRACE(delay);
        const CommandLineRun run = cli(save(trial), [&] {
            QThread::msleep(delay);
            ::kill(pid_t(server.pid()), SIGKILL);
        });
        EXPECT_TRUE(run.finished);
        EXPECT_TRUE(saidWhatHappened(run)) << run.exit << " " << run.shown.toStdString();
        ASSERT_TRUE(server.restart());
        if (damaged(server, "Office")) {
            ++damagedSaves;
            ASSERT_TRUE(server.addQueue("Office"));
        }
    }
    std::printf("cupsd killed within %d ms of a save: %d of %d saves left a damaged PPD\n", span,
                damagedSaves, trials);
    RecordProperty("damaged_saves", damagedSaves);
}

TEST(FaultInjection, StoppedServerAndPausedQueue) {
    CupsServer server(QStringLiteral(ORVO_PPD_UPDATE_FILTER));
    ASSERT_TRUE(server.isRunning() && server.addQueue("Office"));
    ::kill(pid_t(server.pid()), SIGSTOP);
    for (const QStringList &arguments :
         {QStringList{"show", "--timeout", "2", "Office"}, save(1, 2)}) {
        EXPECT_TRUE(cli(arguments).endedWith(3, "did not answer in time"));
    }
    ::kill(pid_t(server.pid()), SIGCONT);
    // A save to a paused queue waits there and is applied once the queue runs again.
    ASSERT_EQ(SpawnedProcess::execute("cupsdisable", {"-h", server.address(), "Office"}), 0);
    EXPECT_TRUE(cli(save(2, 2)).endedWith(8, "may still be applied when the queue runs"));
    ASSERT_EQ(SpawnedProcess::execute("cupsenable", {"-h", server.address(), "Office"}), 0);
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return server.queuePpd("Office").contains("*PSFormName0_Part1: \"Rm9ybSAy\""); },
        10000));
}

// Each way an interrupted set-up or removal can end, with the words that say it, and what the
// queue must then be once the server runs again (nullopt: either, as the words say).
struct SetUpEnd {
    int exit;
    const char *words;
    std::optional<bool> setUp;
};

const SetUpEnd setUpEnds[] = {
    {0, "\" is set up: saves reach", true},
    {0, "was already set up; nothing changed", true},
    {0, "no longer takes the utility's saves", false},
    {0, "was not set up; nothing changed", false},
    {3, "whether \"Office\" took it is unknown; run the same command again", std::nullopt},
};

// The server's answer about the queue once it runs again; a PPD that a kill cut while cupsd
// wrote it is repaired, as the set-up would then say.
OVQueueSetup::State settledState(const CupsServer &server) {
    OVQueueSetup::State state = OVQueueSetup::state("Office");
    if (state == OVQueueSetup::State::Damaged) {
        EXPECT_EQ(cli({"setup", "Office"}).exit, 1);
        EXPECT_EQ(cli({"setup", "--repair", "Office"}).exit, 0);
        state = OVQueueSetup::state("Office");
    }
    return server.isRunning() ? state : OVQueueSetup::State::ServerUnreachable;
}

// cupsd killed or stopped at seeded points of setup and setup --remove: every run ends within
// its time limit with words that are true of the queue once the server runs again, and a
// scratch queue an earlier version left behind is never listed and is gone after a change.
TEST(FaultInjection, SetUpInterruptedAtSeededPoints) {
    CupsServer server(QStringLiteral(ORVO_PPD_UPDATE_FILTER));
    ASSERT_TRUE(server.isRunning());
    ASSERT_TRUE(server.lpadmin({"-p", "Office", "-E", "-v", "file:/dev/null", "-P",
                                "/usr/share/ppd/cupsfilters/pxlmono.ppd"}));
    const QString scratch = QStringLiteral("orvo-setup-check-4711");
    QElapsedTimer whole;
    whole.start();
    ASSERT_EQ(cli({"setup", "Office"}).exit, 0);
    const int span = int(whole.elapsed());
    std::mt19937 seeded(20261125);
    std::uniform_int_distribution<int> afterMs(0, span);
    constexpr int trials = 16, timeout = 1;
    QMap<QByteArray, int> said;
    qint64 longest = 0;
    for (int trial = 0; trial < trials; ++trial) {
        const bool remove = trial % 2, stop = trial % 4 >= 2;
        const bool wasSetUp = OVQueueSetup::state("Office") == OVQueueSetup::State::SetUp;
        ASSERT_TRUE(server.lpadmin({"-p", scratch, "-v", "file:/dev/null"}));
        const int delay = afterMs(seeded);
        SCOPED_TRACE(QStringLiteral("%1 %2 after %3 ms")
                         .arg(stop ? "stopped" : "killed", remove ? "remove" : "setup")
                         .arg(delay)
                         .toStdString());
        QStringList arguments{"setup", "--timeout", QString::number(timeout), "Office"};
        if (remove)
            arguments << "--remove";
        whole.restart();
        const CommandLineRun run = cli(arguments, [&] {
            QThread::msleep(delay);
            ::kill(pid_t(server.pid()), stop ? SIGSTOP : SIGKILL);
        });
        longest = std::max(longest, whole.elapsed());
        EXPECT_LT(whole.elapsed(), (timeout + 1) * 1000);
        if (stop)
            ::kill(pid_t(server.pid()), SIGCONT);
        else
            ASSERT_TRUE(server.restart());
        const bool unreachable = run.exit == 3 && (run.shown.contains("did not answer in time") ||
                                                   run.shown.contains("cannot reach"));
        const auto end = std::find_if(std::begin(setUpEnds), std::end(setUpEnds), [&](auto &e) {
            return run.exit == e.exit && run.shown.contains(e.words);
        });
        ASSERT_TRUE(unreachable || end != std::end(setUpEnds))
            << run.exit << " " << run.shown.toStdString();
        ++said[unreachable ? QByteArray("no answer, unchanged") : QByteArray(end->words)];
        // Asked again once the server has worked through what it was sent.
        QThread::msleep(200);
        const bool setUp = settledState(server) == OVQueueSetup::State::SetUp;
        if (unreachable) {
            EXPECT_EQ(setUp, wasSetUp) << "the server was said not to answer before any change";
        } else if (end->setUp) {
            EXPECT_EQ(setUp, *end->setUp);
        }
        EXPECT_FALSE(cli({"list"}).shown.contains("orvo-setup-check-"));
        // Running it again settles it, and removes the scratch queue for good (a kill may
        // undo a removal cupsd had not yet written to its configuration).
        EXPECT_EQ(cli(arguments).exit, 0);
        EXPECT_EQ(OVQueueSetup::state(scratch), OVQueueSetup::State::QueueUnknown);
    }
    std::printf("set-ups interrupted within %d ms, the longest run %lld ms with --timeout %d:\n",
                span, qlonglong(longest), timeout);
    for (auto it = said.begin(); it != said.end(); ++it)
        std::printf("  %2d  %s\n", it.value(), it.key().constData());
}

// Saves to one queue run one after another on the server: each says whether the PPD holds its
// settings or which later save replaced them, and the PPD ends with one whole set.
TEST(FaultInjection, ConcurrentSavesSayWhatBecameOfEach) {
    CupsServer server(QStringLiteral(ORVO_PPD_UPDATE_FILTER));
    ASSERT_TRUE(server.isRunning() && server.addQueue("Office"));
    constexpr int saves = 10;
    std::vector<std::unique_ptr<SpawnedProcess>> running;
    for (int number = 1; number <= saves; ++number) {
        running.push_back(std::make_unique<SpawnedProcess>());
        running.back()->start(ORVO_CLI, save(number) << "--json");
    }
    static const QRegularExpression replaced(
        QStringLiteral("^\\S+: update job (\\d+) completed; a later save to the queue \\(job "
                       "(\\d+)\\) then replaced its settings; the PPD holds that save's "
                       "values for: PSFormName0_Part1\n$"));
    int held = 0;
    for (int number = 1; number <= saves; ++number) {
        SpawnedProcess &process = *running[number - 1];
        ASSERT_TRUE(process.waitForFinished(60000));
        const QByteArray said = process.standardError();
        SCOPED_TRACE(said.toStdString());
        if (process.exitCode() == 0) {
            ++held;
            continue;
        }
        EXPECT_EQ(process.exitCode(), 1);
        const QRegularExpressionMatch match = replaced.match(QString::fromUtf8(said));
        ASSERT_TRUE(match.hasMatch());
        EXPECT_GT(match.captured(2).toInt(), match.captured(1).toInt());
    }
    EXPECT_GE(held, 1);
    std::printf("%d saves sent at once: %d held, %d replaced by a later one\n", saves, held,
                saves - held);
    const QByteArray ppd = server.queuePpd("Office");
    EXPECT_EQ(ppd.count("*PSFormName0_Part1:"), 1);
}

// With no room left for the PPD, cupsd writes a cut one: the save says so and how to recover.
TEST(FaultInjection, PpdFolderWithoutRoom) {
    CupsServer::Options options;
    options.ppdFolderKiB = 16;
    CupsServer server(QStringLiteral(ORVO_PPD_UPDATE_FILTER), options);
    ASSERT_TRUE(server.isRunning() && server.addQueue("Office"));
    QStringList arguments{"save", "Office"};
    for (int i = 0; i < 100; ++i)
        arguments << "--forms" << QString(150, QChar('a' + i % 26));
    EXPECT_TRUE(cli(arguments).endedWith(1, "is damaged after the save: repair it with: "
                                            "orvo-printer-utility-cli setup --repair Office"));
    // The cut PPD still opens and reads as the defaults: show must not present them as stored.
    EXPECT_TRUE(cli({"show", "Office"}).endedWith(1, "is damaged"));
    EXPECT_EQ(cli({"setup", "Office"}).exit, 1);
}

} // namespace
