// Who may save settings on a queue: setup names them, the filter on the server stores
// nothing of anyone else's update job, and the command line refuses before it sends.
#include "CommandLineRun.h"
#include "CupsServerEnvironment.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

constexpr char queue[] = "Savers";
constexpr char group[] = "orvo-savers-office";
// A local user put in the group for the test: who may save by the group alone.
constexpr char groupMember[] = "daemon";

// The group exists for the test only.
struct TestGroup {
    TestGroup() {
        // A group left by an earlier run that was killed goes first.
        SpawnedProcess::execute("groupdel", {group});
        created = SpawnedProcess::execute("groupadd", {"-U", groupMember, group}) == 0;
    }
    ~TestGroup() { SpawnedProcess::execute("groupdel", {group}); }
    bool created = false;
};

// The command line as the given user, as the server knows it.
CommandLineRun cliAs(const char *user, const QStringList &arguments) {
    qputenv("CUPS_USER", user);
    CommandLineRun run(ORVO_CLI, arguments);
    qunsetenv("CUPS_USER");
    return run;
}

QByteArray saversLine(const QByteArray &ppd) {
    const qsizetype at = ppd.indexOf("*OrvoSettingsSavers:");
    return at < 0 ? QByteArray() : ppd.mid(at, ppd.indexOf('\n', at) - at);
}

// A form name of the queue's PPD, which each save below sets to a name of its own.
QByteArray formLine(const QByteArray &name) {
    return "*PSFormName0_Part1: \"" + name.toBase64() + "\"";
}

TEST(Savers, OnlyTheNamedUsersAndGroupsSave) {
    const TestGroup office;
    ASSERT_TRUE(office.created);
    CupsServer &cups = CupsServerEnvironment::server();
    ASSERT_TRUE(cups.addQueue(queue));
    const QString named = QStringLiteral("alice, @%1").arg(group);
    ASSERT_EQ(cliAs("root", {"setup", queue, "--savers", named}).exit, 0);
    const QByteArray listed = QByteArray("alice,@") + group;
    EXPECT_EQ(saversLine(cups.queuePpd(queue)), "*OrvoSettingsSavers: \"" + listed + "\"");

    // list and show name them; save passes over the key in what show --json printed.
    const QJsonArray rows =
        QJsonDocument::fromJson(cliAs("root", {"list", "--json"}).shown).array();
    ASSERT_EQ(rows.size(), 1);
    EXPECT_EQ(rows[0]["savers"].toString().toUtf8(), listed);
    EXPECT_TRUE(cliAs("root", {"list"}).shown.contains("(saved by: " + listed + ")"));
    EXPECT_TRUE(cliAs("root", {"show", queue}).shown.contains("savers: " + listed + "\n"));

    // Who saves, the exit code, whether the PPD then holds the save.
    const std::tuple<const char *, int, bool> saves[] = {
        {"mallory", 7, false}, {"alice", 0, true}, {groupMember, 0, true}, {"root", 7, false}};
    for (const auto &[user, exit, stored] : saves) {
        SCOPED_TRACE(user);
        const QByteArray before = cups.queuePpd(queue);
        const int jobsBefore = cups.lastJob();
        const CommandLineRun run = cliAs(user, {"save", queue, "--forms", user});
        EXPECT_EQ(run.exit, exit) << run.shown.toStdString();
        EXPECT_EQ(cups.queuePpd(queue).contains(formLine(user)), stored);
        if (!stored) {
            EXPECT_TRUE(run.shown.contains("you may not change this queue's settings: \"Savers\""));
            EXPECT_EQ(cups.lastJob(), jobsBefore); // refused before anything was sent
            EXPECT_EQ(cups.queuePpd(queue), before);
        }
    }

    // Raw update jobs through the server: another user's stores nothing and is logged; an
    // allowed user's job that names everyone as savers changes only its settings.
    const std::tuple<const char *, const char *, bool> jobs[] = {
        {"mallory", "", false},
        {"mallory", "OrvoSettingsSavers=all", false},
        {"alice", "OrvoSettingsSavers=all OrvoSettingsUpdate=Refused", true}};
    for (const auto &[user, options, stored] : jobs) {
        SCOPED_TRACE((QByteArray(user) + " " + options).toStdString());
        const QByteArray name = QByteArray("raw-") + user + QByteArray::number(cups.lastJob());
        cupsSetUser(user);
        const int job = cups.printJob(
            queue, "UpdatePPDOptions PSFormName0_Part1=" + name.toBase64() + " " + options);
        cupsSetUser(nullptr);
        ASSERT_GT(job, 0) << cupsLastErrorString();
        EXPECT_EQ(cups.waitForJob(job), IPP_JSTATE_COMPLETED);
        const QByteArray ppd = cups.queuePpd(queue);
        EXPECT_EQ(ppd.contains(formLine(name)), stored);
        EXPECT_EQ(saversLine(ppd), "*OrvoSettingsSavers: \"" + listed + "\"");
        EXPECT_TRUE(ppd.contains("*OrvoSettingsUpdate: \"Accepted\""));
        const QString refused = QStringLiteral("[Job %1] User \\\"%2\\\" may not save settings on "
                                               "this queue, nothing stored; who may: %3");
        EXPECT_EQ(cups.errorLog().contains(refused.arg(job).arg(user, listed).toUtf8()), !stored);
    }

    // "all" takes the list out again: everyone saves, as on a queue never restricted.
    ASSERT_EQ(cliAs("root", {"setup", queue, "--savers", "all"}).exit, 0);
    EXPECT_EQ(saversLine(cups.queuePpd(queue)), QByteArray());
    EXPECT_EQ(cliAs("mallory", {"save", queue, "--forms", "mallory"}).exit, 0);
    EXPECT_TRUE(cups.queuePpd(queue).contains(formLine("mallory")));
    EXPECT_TRUE(cliAs("root", {"show", queue}).shown.contains("savers: all\n"));
}

// A list that could break the PPD line, read as an option or name no one is refused before
// the queue is touched.
TEST(Savers, SetupRefusesWhatIsNoList) {
    CupsServer &cups = CupsServerEnvironment::server();
    ASSERT_TRUE(cups.addQueue("Unlisted"));
    const QByteArray before = cups.queuePpd("Unlisted");
    for (const QString &list : QStringList{
             "alice\"\n*cupsFilter2: \"x", "", "a,,b", "-o", "@", "all,bob", QString(33, 'x'),
             QString("abcdefgh,").repeated(23) + "x", "b\u00f6b", "alice bob"}) {
        SCOPED_TRACE(list.toStdString());
        EXPECT_TRUE(
            cliAs("root", {"setup", "Unlisted", "--savers", list}).endedWith(2, "--savers takes"));
    }
    EXPECT_EQ(cups.queuePpd("Unlisted"), before);
}

} // namespace
