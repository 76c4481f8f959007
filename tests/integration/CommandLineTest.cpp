// The command line run as administrators run it: a separate process talking to
// the private cupsd (queue commands) and to the simulated printer (fetch).
#include "CupsServerEnvironment.h"
#include "MagicPacketListener.h"
#include "SimulatedPrinter.h"
#include "TestNetworkNamespaces.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

struct Result {
    int exit = -1;
    QByteArray out;
    QByteArray err;
};

// netns: run in that network namespace (empty: this one).
Result cli(const QStringList &arguments, const QByteArray &input = {}, const QString &netns = {}) {
    QProcess process;
    if (netns.isEmpty())
        process.start(ORVO_CLI, arguments);
    else
        process.start("ip", QStringList{"netns", "exec", netns, ORVO_CLI} + arguments);
    process.write(input);
    process.closeWriteChannel();
    process.waitForFinished(120000);
    return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
            process.readAllStandardOutput(), process.readAllStandardError()};
}

struct Step {
    QStringList arguments;
    QByteArray input;
    int exit;
    QByteArray expected; // in stdout on success, in stderr otherwise
    QByteArray absent = {};
};

void check(const Step &step) {
    const Result run = cli(step.arguments, step.input);
    SCOPED_TRACE(step.arguments.join(' ').left(120).toStdString());
    EXPECT_EQ(run.exit, step.exit) << run.err.toStdString();
    const QByteArray &shown = step.exit == 0 ? run.out : run.err;
    EXPECT_TRUE(shown.contains(step.expected)) << shown.toStdString();
    if (!step.absent.isEmpty()) {
        EXPECT_FALSE(run.out.contains(step.absent)) << run.out.toStdString();
    }
}

QStringList repeated(const QString &option, const QString &value, int count) {
    QStringList arguments;
    for (int i = 0; i < count; ++i)
        arguments << option << value + QString::number(i);
    return arguments;
}

// Lists too long together for one job argument, though each name fits.
QByteArray oversizedSettings() {
    QJsonArray names;
    for (int i = 0; i < 100; ++i)
        names.append(QString(897, QChar('a' + i % 26)) + QString::number(i).rightJustified(3, '0'));
    return QJsonDocument(QJsonObject{{"sharedFolders", names}, {"forms", names}}).toJson();
}

class CommandLineTest : public ::testing::Test {
protected:
    static void SetUpTestSuite() {
        CupsServer &server = CupsServerEnvironment::server();
        ASSERT_TRUE(server.addQueue("orvo"));
        QFile ppd(CupsServer::testPpdPath());
        ASSERT_TRUE(ppd.open(QIODevice::ReadOnly));
        const QString plainPath = scratch.filePath("plain.ppd");
        QFile plain(plainPath);
        ASSERT_TRUE(plain.open(QIODevice::WriteOnly));
        plain.write(ppd.readAll().replace("*cupsFilter: \"text/plain 0 orvo-ppd-update\"\n", ""));
        plain.close();
        ASSERT_TRUE(server.addQueue("plain", plainPath));
    }
    static inline QTemporaryDir scratch;
};

TEST_F(CommandLineTest, QueueCommands) {
    const QString down = "127.0.0.1:1";
    const Step steps[] = {
        {{"list"}, {}, 0, "orvo\n", "plain"},
        {{"list", "--json"}, {}, 0, "\"orvo\"", "plain"},
        {{"list", "-h", down}, {}, 3, "cannot reach the CUPS server"},
        {{"show", "orvo"}, {}, 0, "community: cobalt\n"},
        {{"show", "orvo"}, {}, 0, "chosenFolders: (1)\n  Shared Folder 1\n"},
        {{"show", "nosuch"}, {}, 4, "no queue \"nosuch\""},
        {{"show", "-h", down, "orvo"}, {}, 3, "cannot reach the CUPS server"},
        {{"show"}, {}, 2, "Usage: orvo-printer-utility-cli show [options] QUEUE"},
        {{"frobnicate"}, {}, 2, "unknown command \"frobnicate\""},
        {{"save", "--help"}, {}, 0, "--colorProfiles <value>"},
        {{"save", "orvo", "--settings", "-"}, "{", 2, "bad JSON in -"},
        {{"save", "orvo", "--settings", "-"}, "[]", 2, "not an object"},
        {{"save", "orvo", "--settings", "-"},
         "{\"wakeOnLan\":\"yes\"}",
         2,
         "invalid value for \"wakeOnLan\""},
        {{"save", "orvo", "--settings", "-"}, "{\"color\":1}", 2, "unknown setting \"color\""},
        {{"save", "orvo", "--macAddress", "00:11"}, {}, 2, "invalid value for \"macAddress\""},
        {{"save", "orvo", "--chosenFolderIndexes", "x"}, {}, 2, "\"chosenFolderIndexes\""},
        {QStringList{"save", "orvo"} + repeated("--colorProfiles", "P", 31),
         {},
         6,
         "\"colorProfiles\" holds at most 30 entries"},
        {{"save", "orvo", "--forms", QString(901, 'f')}, {}, 6, "longer than 900 bytes"},
        {{"save", "orvo", "--settings", "-"}, oversizedSettings(), 6, "too large"},
        {{"save", "nosuch", "--forms", "A"}, {}, 4, "no queue \"nosuch\""},
        {{"save", "plain", "--forms", "A"}, {}, 6, "does not use the orvo-ppd-update filter"},
        // None of the refusals above sent a job.
        {{"show", "--json", "orvo"}, {}, 0, "\"optionsUpdated\": false"},
        {{"save", "orvo", "--customCommunity", "yes", "--community", "blue", "--forms", "A",
          "--forms", "B"},
         {},
         0,
         "the PPD holds the settings"},
        {{"show", "orvo"}, {}, 0, "customCommunity: yes\ncommunity: blue\n"},
        {{"show", "orvo"}, {}, 0, "forms: (2)\n  A\n  B\n"},
        {{"save", "orvo", "--json", "--wakeOnLan", "no"}, {}, 0, "\"stored\": true"},
        // Stored as sent, read as the window reads it.
        {{"save", "orvo", "--settings", "-"},
         "{\"chosenFolders\":[],\"chosenFolderIndexes\":[]}",
         0,
         "the PPD holds the settings"},
        {{"show", "orvo"}, {}, 0, "chosenFolders: (0)\nchosenFolderIndexes: (1)\n  0\n"},
        {{"save", "orvo", "--adminLoginMode", "no", "--personalFolder", "yes"}, {}, 0, "holds"},
        {{"show", "orvo"}, {}, 0, "personalFolder: no\nadminLoginMode: no\n"},
    };
    for (const Step &step : steps)
        check(step);
}

// What show --json prints, save takes back unchanged but for the edits.
TEST_F(CommandLineTest, JsonRoundTrip) {
    const Result shown = cli({"show", "--json", "orvo"});
    ASSERT_EQ(shown.exit, 0);
    QJsonObject settings = QJsonDocument::fromJson(shown.out).object();
    settings["barcodeAreas"] = QJsonArray{"Zone \"1\"", "区域 2"};
    settings["chosenFolders"] = QJsonArray{"Shared Folder 7"};
    settings["chosenFolderIndexes"] = QJsonArray{6};
    const Result saved = cli({"save", "orvo", "--settings", "-"}, QJsonDocument(settings).toJson());
    ASSERT_EQ(saved.exit, 0) << saved.err.toStdString();
    EXPECT_EQ(QJsonDocument::fromJson(cli({"show", "--json", "orvo"}).out).object(), settings);
}

TEST(CommandLineFetchTest, AgainstTheSimulatedPrinter) {
    SimulatedPrinter printer;
    ASSERT_TRUE(printer.start()) << printer.errorText().toStdString();
    printer.setDefaults();
    const QString address = SimulatedPrinter::loopbackAddress();
    const Step steps[] = {
        {{"fetch", "--address", address}, {}, 0, "macAddress: 00:11:22:aa:bb:cc\n"},
        {{"fetch", "--address", address}, {}, 0, "sharedFolders: (30)\n  Box1 ["},
        {{"fetch", "--address", address}, {}, 0, "forms: (50)\n  Form1\n  Form3\n"},
        {{"fetch", "--json", "--address", address}, {}, 0, "\"adminLoginMode\": true"},
        {{"fetch"}, {}, 2, "--address is required"},
        {{"fetch", "--address", address, "--wake"}, {}, 2, "--wake needs --mac"},
        {{"fetch", "--address", address, "--community", "wrong"},
         {},
         5,
         "did not answer (MAC address)"},
    };
    for (const Step &step : steps)
        check(step);
    printer.setSilent(true);
    check({{"fetch", "--address", address}, {}, 5, "did not answer"});
}

} // namespace

// A sleeping printer woken by its magic packets before the queries, all of it
// between two test namespaces, in real time (about 15 s of the flow's waits).
TEST(CommandLineFetchTest, WakesThePrinterFirst) {
    TestNetworkNamespaces namespaces;
    QString error;
    ASSERT_TRUE(namespaces.create(&error)) << error.toStdString();
    SimulatedPrinter::Options options;
    options.netns = namespaces.printerName();
    options.listen = "udp:161";
    options.counterPeer = "udp:127.0.0.1:161";
    options.source4 = "default";
    SimulatedPrinter printer(options);
    ASSERT_TRUE(printer.start()) << printer.errorText().toStdString();
    printer.setDefaults();
    constexpr long asleep = 4;
    printer.setInteger(SimulatedPrinter::kSleepMode, asleep);
    const QByteArray mac = QByteArray::fromHex("001122aabbcc");
    MagicPacketListener listener(namespaces.printerName(), TestNetworkNamespaces::kPrinterInterface,
                                 printer.directory(), mac, 200);
    ASSERT_TRUE(listener.isListening()) << listener.errorText().toStdString();

    const Result woken = cli({"fetch", "--address", TestNetworkNamespaces::kPrinterIPv4, "--wake",
                              "--mac", "00:11:22:aa:bb:cc", "--over-router"},
                             {}, namespaces.clientName());
    EXPECT_EQ(woken.exit, 0) << woken.err.toStdString();
    EXPECT_TRUE(woken.out.startsWith("macAddress: 00:11:22:aa:bb:cc\n"));
    EXPECT_EQ(woken.err, ""); // no progress line off a terminal
    const auto packets = listener.packets();
    ASSERT_FALSE(packets.isEmpty());
    EXPECT_EQ(packets.first().destination, TestNetworkNamespaces::kPrinterIPv4);
}

// PPDs the reader shows, and the ones it refuses, which must not take the
// command down with them.
TEST(CommandLinePpdTest, ReadsOrRefusesPlainly) {
    QTemporaryDir dir;
    QFile source(CupsServer::testPpdPath());
    ASSERT_TRUE(source.open(QIODevice::ReadOnly));
    const QByteArray ppd = source.readAll();
    const auto variant = [&](const char *name, const QByteArray &text) {
        QFile file(dir.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(text) == text.size());
        return file.fileName();
    };
    const QString translated = variant(
        "de.ppd", ppd + "*de.Translation Duplex/Beidseitig: \"\"\n*de.Duplex None/Aus: \"\"\n");
    const QString overflow =
        variant("long.ppd", QByteArray(ppd).replace("Long Edge", QByteArray(90, 'L')));
    const QString latin1 = variant("latin1.ppd", QByteArray(ppd).replace("Off", "Arr\xeat"));
    const Step steps[] = {
        {{"ppd", CupsServer::testPpdPath()}, {}, 0, "Duplex \"Two-Sided\" (default None)\n"},
        {{"ppd", CupsServer::testPpdPath()}, {}, 0, "  *cupsFilter: text/plain 0 orvo-ppd-update"},
        {{"ppd", "--json", CupsServer::testPpdPath()}, {}, 0, "\"keyword\": \"PageSize\""},
        {{"ppd", "--lang", "de", translated},
         {},
         0,
         "Duplex \"Beidseitig\" (default None)\n    None \"Aus\""},
        {{"ppd", overflow}, {}, 1, "longer than the PPD reader's fixed fields allow"},
        {{"ppd", latin1}, {}, 1, "is not UTF-8 text"},
        {{"ppd", dir.filePath("none.ppd")}, {}, 1, "cannot read"},
    };
    for (const Step &step : steps)
        check(step);
}
