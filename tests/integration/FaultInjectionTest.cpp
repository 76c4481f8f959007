// A print server that fails in the middle of the utility's work: killed during saves, stopped
// during show and save, a paused queue, and a disk too small for the PPDs. The command line
// must end within its time limit and say what happened.
#include "CommandLineRun.h"
#include "CupsServer.h"
#include "OVQueueSetup.h"
#include "OrvoPPD_Interface.h"

#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QTest>
#include <QThread>

#include <gtest/gtest.h>

#include <algorithm>
#include <csignal>
#include <functional>
#include <random>

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
        {1, "is gone from the server"},
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
        const CommandLineRun run = cli(arguments);
        EXPECT_TRUE(run.finished);
        EXPECT_EQ(run.exit, 3);
        EXPECT_TRUE(run.shown.contains("did not answer in time")) << run.shown.toStdString();
    }
    ::kill(pid_t(server.pid()), SIGCONT);
    // A save to a paused queue waits there and is applied once the queue runs again.
    ASSERT_EQ(QProcess::execute("cupsdisable", {"-h", server.address(), "Office"}), 0);
    const CommandLineRun queued = cli(save(2, 2));
    EXPECT_EQ(queued.exit, 8);
    EXPECT_TRUE(queued.shown.contains("may still be applied when the queue runs"));
    ASSERT_EQ(QProcess::execute("cupsenable", {"-h", server.address(), "Office"}), 0);
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return server.queuePpd("Office").contains("*PSFormName0_Part1: \"Rm9ybSAy\""); },
        10000));
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
    const CommandLineRun run = cli(arguments);
    EXPECT_TRUE(run.finished);
    EXPECT_EQ(run.exit, 1);
    EXPECT_TRUE(run.shown.contains("is damaged after the save: restore the route with"))
        << run.shown.toStdString();
}

} // namespace
