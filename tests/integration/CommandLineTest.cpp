// The command line as a separate process against the private cupsd and the
// simulated printer, with the exit codes and messages its manual documents.
#include "CommandLineRun.h"
#include "CupsServerEnvironment.h"
#include "OVSnmpSecrets.h"
#include "SettingsInputs.h"
#include "SimulatedPrinter.h"
#include "SpawnedProcess.h"
#include "TestNetworkNamespaces.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QScopeGuard>
#include <QTest>

namespace {

CommandLineRun cli(const QStringList &arguments, const QByteArray &input = {}) {
    return CommandLineRun(ORVO_CLI, arguments, input);
}

// One run: its exit code and a text it shows.
void check(const QStringList &arguments, int exit, const QByteArray &expected,
           const QByteArray &input = {}) {
    EXPECT_TRUE(cli(arguments, input).endedWith(exit, expected))
        << arguments.join(' ').left(120).toStdString();
}

// Names any user who may print can store, and how text output shows them:
// control characters escaped, so that none reaches the terminal as a command
// or a forged line; characters that reorder or break a line by their code, so
// that the line reads as it is. JSON keeps them exactly.
const std::pair<QString, QByteArray> kStoredNames[] = {
    {QString::fromUtf8("\x1b[2J\r\nforms: (0)\xc2\x9b\\"), "\\x1b[2J\\x0d\\x0aforms: (0)\\x9b\\\\"},
    {QStringLiteral("report\u202Efdp.exe"), "report\\u202efdp.exe"},
    {QStringLiteral("\u2067Box\u2069 \u202A1\u202C \u202B2\u202D"),
     "\\u2067Box\\u2069 \\u202a1\\u202c \\u202b2\\u202d"},
    {QStringLiteral("a\u200Eb\u200Fc\u061Cd\u2066e\u2068f"),
     "a\\u200eb\\u200fc\\u061cd\\u2066e\\u2068f"},
    {QStringLiteral("line\u2028paragraph\u2029\uFEFFend"), "line\\u2028paragraph\\u2029\\ufeffend"},
};

TEST(CommandLine, QueueAndPpdCommands) {
    QTemporaryDir dir;
    const QByteArray ppd = CupsServer::readFile(CupsServer::samplePpdPath());
    const auto variant = [&](const char *name, const QByteArray &text) {
        CupsServer::writeFile(dir.filePath(name), text);
        return dir.filePath(name);
    };
    CupsServer &server = CupsServerEnvironment::server();
    ASSERT_TRUE(server.addQueue("orvo"));
    ASSERT_TRUE(server.addQueue("plain", CupsServerEnvironment::notSetUpPpd(dir)));
    // Servers whose update job route leads to a filter that fails on the job, or to one that
    // completes it without storing anything.
    CupsServer failing("/usr/lib/cups/filter/pdftopdf", {.clientsUseIt = false});
    CupsServer forgetful("/usr/lib/cups/filter/gziptoany", {.clientsUseIt = false});
    ASSERT_TRUE(failing.addQueue("orvo") && forgetful.addQueue("orvo"));
    QStringList tooManyProfiles{"save", "orvo"};
    QJsonArray names; // each fits, all together do not fit in one job
    for (int i = 0; i < 100; ++i) {
        if (i < 31)
            tooManyProfiles << "--colorProfiles" << QString::number(i);
        names.append(QString::number(i).rightJustified(900, 'a'));
    }
    const QByteArray tooLarge =
        QJsonDocument(QJsonObject{{"sharedFolders", names}, {"forms", names}}).toJson();
    ASSERT_TRUE(server.lpadmin({"-d", "orvo"}));
    EXPECT_EQ(cli({"list"}).shown, "  QUEUE  STATE       MAKE AND MODEL\n"
                                   "* orvo   set up      Orvo Printer\n"
                                   "  plain  not set up  Orvo Printer\n");
    const QString german = variant("de.ppd", ppd + "*de.Translation Duplex/Beidseitig: \"\"\n");
    const QString longNames =
        variant("long.ppd", QByteArray(ppd).replace("Long Edge", QByteArray(90, 'L')));
    const QString latin1 = variant("latin1.ppd", QByteArray(ppd).replace("Off", "Arr\xeat"));
    // cupsd logs each job request it is sent, taken or not.
    const auto jobRequests = [&] { return server.errorLog().count("] Create-Job "); };
    const qsizetype jobsBefore = jobRequests();
    // Messages about the server name it; hints repeat the -h given.
    const QByteArray here = server.address().toUtf8();
    check({"list", "-h", "127.0.0.1:1"}, 3, "cannot reach the CUPS server 127.0.0.1:1\n");
    check({"show", "nosuch"}, 4, "no queue \"nosuch\" on the CUPS server " + here + "\n");
    check({"save", "--help"}, 0, "--colorProfiles <value>");
    check({"save", "orvo", "--settings", "-"}, 2, "bad JSON in -", "{");
    check(tooManyProfiles, 6, "\"colorProfiles\" holds at most 30 entries");
    check({"save", "orvo", "--settings", "-"}, 6,
          "too large for one update job (shorten \"sharedFolders\", \"forms\")", tooLarge);
    check({"save", "-h", server.address(), "plain", "--forms", "A"}, 6,
          "Set it up with: orvo-printer-utility-cli setup -h " + here + " plain\n");
    // None of the refusals above sent a job.
    EXPECT_EQ(jobRequests(), jobsBefore);
    check({"show", "--json", "orvo"}, 0, "\"optionsUpdated\": false");
    check({"save", "-h", failing.address(), "orvo", "--forms", "A"}, 1, "did not complete (state");
    check({"save", "-h", forgetful.address(), "orvo", "--forms", "A"}, 1,
          "the PPD does not hold: PPDOptionsUpdated");
    const QStringList blue{"save",        "orvo", "--customCommunity", "yes",
                           "--community", "blue", "--forms",           "A"};
    check(blue, 0, "the PPD holds the settings");
    // The same save again changes nothing, so it sends nothing.
    const qsizetype jobsSaved = jobRequests();
    check(blue, 0, "The PPD holds these settings already; no update job was sent.\n");
    EXPECT_EQ(jobRequests(), jobsSaved);
    check({"show", "orvo"}, 0, "customCommunity: yes\ncommunity: blue\n");
    check({"show", "orvo"}, 0, "forms: (1)\n  A\n");
    check({"ppd", CupsServer::samplePpdPath()}, 0, "Duplex \"Two-Sided\" (default None)\n");
    check({"ppd", "--lang", "de", german}, 0, "Duplex \"Beidseitig\" (default None)\n");
    check({"ppd", longNames}, 1, "longer than the PPD reader's fixed fields allow");
    check({"ppd", latin1}, 1, "is not UTF-8 text");
    // What show --json prints, save takes back unchanged but for the edits.
    QJsonObject settings = QJsonDocument::fromJson(cli({"show", "--json", "orvo"}).shown).object();
    // Stored names in folder and barcode area lists.
    QJsonArray folders = settings["sharedFolders"].toArray();
    QJsonArray barcodeAreas{"Zone \"1\"", "区域 2"};
    for (int i = 0; i < int(std::size(kStoredNames)); ++i) {
        folders[i] = kStoredNames[i].first;
        barcodeAreas.append(kStoredNames[i].first);
    }
    settings["sharedFolders"] = folders;
    settings["barcodeAreas"] = barcodeAreas;
    settings["chosenFolderIndexes"] = QJsonArray{6};
    EXPECT_EQ(cli({"save", "orvo", "--settings", "-"}, QJsonDocument(settings).toJson()).exit, 0);
    EXPECT_EQ(QJsonDocument::fromJson(cli({"show", "--json", "orvo"}).shown).object(), settings);
    const QByteArray shown = cli({"show", "orvo"}).shown;
    for (const auto &[name, escaped] : kStoredNames)
        EXPECT_EQ(shown.count("\n  " + escaped + "\n"), 2) << shown.toStdString();
    // A queue's name and its make and model, in lists and in messages.
    const QString queue = QStringLiteral("q\u202Eabc\u2066");
    const QString makeAndModel = QStringLiteral("Orvo \u2067Printer\u2069\u2028");
    ASSERT_TRUE(server.addQueue(
        queue,
        variant("bidi.ppd", QByteArray(ppd)
                                .replace("*LanguageEncoding: ISOLatin1", "*LanguageEncoding: UTF-8")
                                .replace("*NickName: \"Orvo Printer\"",
                                         "*NickName: \"" + makeAndModel.toUtf8() + "\""))));
    check({"list"}, 0, "\n  q\\u202eabc\\u2066  set up      Orvo \\u2067Printer\\u2069\\u2028\n");
    const QJsonArray queues = QJsonDocument::fromJson(cli({"list", "--json"}).shown).array();
    const auto listed = std::find_if(queues.begin(), queues.end(),
                                     [&](const QJsonValue &row) { return row["queue"] == queue; });
    ASSERT_NE(listed, queues.end());
    EXPECT_EQ(QJsonValue(*listed)["makeAndModel"], makeAndModel);
    check({"show", queue + "x"}, 4, "no queue \"q\\u202eabc\\u2066x\"");
    check({"setup", queue}, 0, "\"q\\u202eabc\\u2066\" was already set up");
}

// A host name no resolver knows is a mistake in the argument, not a printer that stays silent: the
// fetch says so from the reason its first query gives, with SNMP v1 or v3, and before a wake flow
// that would wait for it. The lookups run in a network namespace of their own with loopback
// alone, so that they never leave this machine.
TEST(CommandLine, UnknownHostIsAUsageError) {
    // SNMPv3's passphrase comes from the environment rather than a prompt.
    const QStringList isolated{"--net", "env", "ORVO_SNMP_AUTH_PASSPHRASE=passphrase", ORVO_CLI};
    const QStringList fetch = isolated + QStringList{"fetch", "--address", "printer.invalid"};
    const QStringList runs[] = {
        {},
        {"--snmp-version", "3", "--snmp-user", "orvo"},
        {"--wake", "--mac-address", "00:11:22:aa:bb:cc"},
    };
    for (const QStringList &options : runs) {
        const CommandLineRun run("unshare", fetch + options);
        EXPECT_EQ(run.exit, 2) << options.join(' ').toStdString();
        EXPECT_TRUE(run.shown.contains("--address: no host is known as \"printer.invalid\"\n"))
            << run.shown.toStdString();
    }
}

// A printer known by a host name that has only an IPv6 address answers: the query goes to the
// address the resolver gave, where Net-SNMP's own lookup would look for IPv4 alone. The name is
// in the client namespace's hosts file, which `ip netns exec` puts over /etc/hosts.
TEST(CommandLine, AHostNameWithOnlyAnIPv6AddressReachesItsPrinter) {
    TestNetworkNamespaces namespaces;
    QString error;
    ASSERT_TRUE(namespaces.create(&error)) << error.toStdString();
    SimulatedPrinter printer({.listen = "udp:161,udp6:161",
                              .netns = namespaces.printer,
                              .counterPeer = "udp:127.0.0.1:161",
                              .source4 = "default"});
    ASSERT_TRUE(printer.start()) << printer.errorText().toStdString();
    printer.setDefaults();
    const QDir hosts("/etc/netns/" + namespaces.client);
    ASSERT_TRUE(hosts.mkpath("."));
    const auto removeHosts = qScopeGuard([&] {
        QDir(hosts).removeRecursively();
        QDir("/etc").rmdir("netns"); // only when no other namespace has a folder there
    });
    CupsServer::writeFile(hosts.filePath("hosts"),
                          QByteArray(TestNetworkNamespaces::kPrinterULA) + " printer6.test\n");
    const CommandLineRun run("ip", {"netns", "exec", namespaces.client, ORVO_CLI, "fetch",
                                    "--address", "printer6.test"});
    EXPECT_TRUE(run.endedWith(0, "macAddress: 00:11:22:aa:bb:cc\n"));
}

// What each command takes: the version, options only where they act, one documented spelling
// with the older one as an alias, and arguments checked before anything is sent.
TEST(CommandLine, OptionsActWhereTheyAreListed) {
    const std::tuple<QStringList, int, QByteArray> runs[] = {
        {{"--version"}, 0, "orvo-printer-utility-cli " ORVO_VERSION "\n"},
        {{"ppd", "-h", "127.0.0.1", CupsServer::samplePpdPath()}, 2, "Unknown option 'h'"},
        {{"ppd", "--timeout", "5", CupsServer::samplePpdPath()}, 2, "Unknown option 'timeout'"},
        {{"fetch", "-h", "127.0.0.1", "--address", "127.0.0.1"}, 2, "Unknown option 'h'"},
        {{"save", "q", "--optionsUpdated", "no"}, 2, "Unknown option 'optionsUpdated'"},
        {{"save", "q", "--chosenFolderIndexes", "1"}, 2, "Unknown option 'chosenFolderIndexes'"},
        {{"save", "--help"}, 0, "--mac-address, --macAddress <value>"},
        {{"fetch", "--help"}, 0, "--mac-address, --mac <mac>"},
        {{"fetch", "--address", "192.168.0.300"}, 2, "--address takes an IPv4 or IPv6 address"},
        {{"fetch", "--address", "not an address"}, 2, "a host name, not \"not an address\"\n"},
    };
    for (const auto &[arguments, exit, shown] : runs)
        check(arguments, exit, shown);
    // Both spellings of an option set the same thing.
    ASSERT_TRUE(CupsServerEnvironment::server().addQueue("spelled"));
    const std::tuple<QString, QString, QString, bool> spellings[] = {
        {"--mac-address", "--over-router", "00:11:22:33:44:01", true},
        {"--macAddress", "--overRouter", "00:11:22:33:44:02", false}};
    for (const auto &[mac, router, address, overRouter] : spellings) {
        ASSERT_EQ(cli({"save", "spelled", "--wake-on-lan", "yes", mac, address, router,
                       overRouter ? "yes" : "no"})
                      .exit,
                  0);
        const QJsonObject shown =
            QJsonDocument::fromJson(cli({"show", "--json", "spelled"}).shown).object();
        EXPECT_EQ(shown["macAddress"], address);
        EXPECT_EQ(shown["overRouter"], overRouter);
    }
    for (const char *mac : {"--mac-address", "--mac"})
        check({"fetch", "--address", "127.0.0.1", "--wake", mac, "00:11"}, 2,
              "--mac-address takes six hexadecimal octets");
}

// save refuses what the settings' rules refuse, naming the field, before anything is sent: a
// value no setting may have is a usage error, settings the PPD or one job cannot hold are
// refused. What the rules accept is saved.
TEST(CommandLine, SaveAppliesTheSettingsRules) {
    CupsServer &server = CupsServerEnvironment::server();
    ASSERT_TRUE(server.addQueue("rules"));
    for (const SettingsInput &input : settingsInputs()) {
        SCOPED_TRACE(input.what);
        const OrvoSettingsVerdict verdict = input.snapshot().check();
        const QByteArray before = server.queuePpd("rules");
        const CommandLineRun run =
            cli({"save", "rules", "--settings", "-"}, QJsonDocument(input.settings).toJson());
        if (verdict.ok()) {
            EXPECT_EQ(run.exit, 0) << run.shown.toStdString();
            continue;
        }
        EXPECT_EQ(run.exit, verdict.doesNotFit() ? 6 : 2);
        EXPECT_EQ(QString::fromUtf8(run.shown),
                  "orvo-printer-utility-cli: " + OVSettingsFields::verdictText(verdict) +
                      "; nothing was sent\n");
        EXPECT_EQ(server.queuePpd("rules"), before);
    }
    // The options say the same as the JSON.
    check({"save", "rules", "--wakeOnLan", "yes", "--macAddress", ":11:22:aa:bb:cc"}, 2,
          "\"macAddress\" is not six two-digit hexadecimal numbers joined by colons");
    check({"save", "rules", "--customCommunity", "yes", "--community", "bad-char"}, 2,
          "\"community\" may not contain U+002D (-)");
}

// Lines of a PPD that the utility could not have written are named by show, which shows the
// settings' defaults for them.
TEST(CommandLine, ShowNamesTheLinesItIgnored) {
    QTemporaryDir dir;
    const QString forged = dir.filePath("forged.ppd");
    CupsServer::writeFile(forged, CupsServer::readFile(CupsServer::samplePpdPath()) +
                                      "*PrinterMacAddress: \"OjExOjIyOmFhOmJiOmNj\"\n"
                                      "*SelSharedBoxIndex0: \"-99999999999999999999\"\n");
    ASSERT_TRUE(CupsServerEnvironment::server().addQueue("forged", forged));
    const CommandLineRun run = cli({"show", "--json", "forged"});
    EXPECT_EQ(run.exit, 0);
    const QJsonObject shown = QJsonDocument::fromJson(run.shown).object();
    EXPECT_EQ(shown["macAddress"], "00:00:00:00:00:00");
    EXPECT_EQ(shown["chosenFolderIndexes"], QJsonArray{0});
    SpawnedProcess process;
    process.start(ORVO_CLI, {"show", "forged"});
    ASSERT_TRUE(process.waitForFinished(60000));
    EXPECT_EQ(process.standardError(),
              "orvo-printer-utility-cli: ignored a line of the PPD: *PrinterMacAddress is not six "
              "two-digit hexadecimal numbers joined by colons; its default is shown\n"
              "orvo-printer-utility-cli: ignored a line of the PPD: *SelSharedBoxIndex0 holds an "
              "index outside -1 to 99; its default is shown\n");
}

// Setting up needs a server that knows the update job's format and an administrator; without
// either the queue stays as it was.
TEST(CommandLine, SetupRefusalsLeaveTheQueueAsItWas) {
    const struct {
        const char *what;
        bool typesFile, password, installedHere;
        const char *user; // null: root
        int exit;
        const char *message;
    } refusals[] = {
        {"NoTypesFile", false, false, false, nullptr, 1, "install the Orvo Printer Utility"},
        {"InstalledButNotRead", false, false, true, nullptr, 1,
         "has not read the utility's MIME files installed on this machine: reload CUPS"},
        {"NoPassword", true, true, false, "alice", 7,
         "refused alice: changing a queue needs a print administrator"},
    };
    QTemporaryDir dir;
    const QString plain = CupsServerEnvironment::notSetUpPpd(dir);
    // The utility's filter and MIME files installed where this machine's CUPS reads them.
    QDir(dir.path()).mkpath("data/mime");
    QDir(dir.path()).mkpath("bin/filter");
    const QDir mime = QFileInfo(ORVO_TYPES_FILE).dir();
    for (const QString &file : mime.entryList({"orvo-printer-utility.*"}))
        QFile::copy(mime.filePath(file), dir.filePath("data/mime/" + file));
    QFile::copy(ORVO_PPD_UPDATE_FILTER, dir.filePath("bin/filter/orvo-ppd-update"));
    for (const auto &[what, typesFile, password, installedHere, user, exit, message] : refusals) {
        SCOPED_TRACE(what);
        CupsServer server(QStringLiteral(ORVO_PPD_UPDATE_FILTER),
                          {.typesPath = typesFile ? ORVO_TYPES_FILE : "",
                           .clientsUseIt = false,
                           .adminNeedsPassword = password});
        ASSERT_TRUE(server.isRunning() && server.addQueue("plain", plain));
        const QByteArray before = server.queuePpd("plain");
        qputenv("CUPS_DATADIR", dir.filePath(installedHere ? "data" : "none").toUtf8());
        qputenv("CUPS_SERVERBIN", dir.filePath("bin").toUtf8());
        check(QStringList{"setup", "-h", server.address()} +
                  (user ? QStringList{"-U", user} : QStringList()) + QStringList{"plain"},
              exit, message);
        qunsetenv("CUPS_DATADIR");
        qunsetenv("CUPS_SERVERBIN");
        EXPECT_EQ(server.queuePpd("plain"), before);
        check({"list", "-h", server.address()}, 0, "  plain  not set up");
    }
}

TEST(CommandLine, FetchesFromTheSimulatedPrinter) {
    using P = SimulatedPrinter;
    P printer;
    ASSERT_TRUE(printer.start()) << printer.errorText().toStdString();
    printer.setDefaults();
    const QString address = P::loopbackAddress();
    check({"fetch", "--address", address}, 0, "macAddress: 00:11:22:aa:bb:cc\n");
    check({"fetch", "--json", "--address", address}, 0, "\"adminLoginMode\": true");
    check({"fetch"}, 2, "--address is required");
    const auto &[name, escaped] = kStoredNames[1];
    printer.set(P::nameOid(P::Table::Form, 2), name.toUtf8());
    check({"fetch", "--address", address}, 0, "\nforms: (50)\n  " + escaped + "\n");
    const CommandLineRun json = cli({"fetch", "--json", "--address", address});
    EXPECT_EQ(QJsonDocument::fromJson(json.shown)["forms"][0], name);
    // The folder names take the shape of the stored setting, so that save takes them as they are;
    // each folder's state stands at its index.
    const QJsonObject fetched = QJsonDocument::fromJson(json.shown).object();
    EXPECT_EQ(fetched["sharedFolderStates"].toArray().size(),
              fetched["sharedFolders"].toArray().size());
    ASSERT_TRUE(CupsServerEnvironment::server().addQueue("fetched"));
    const QJsonObject folders{{"sharedFolders", fetched["sharedFolders"]}};
    ASSERT_EQ(cli({"save", "fetched", "--settings", "-"}, QJsonDocument(folders).toJson()).exit, 0);
    EXPECT_EQ(QJsonDocument::fromJson(cli({"show", "--json", "fetched"}).shown)["sharedFolders"],
              fetched["sharedFolders"]);
    // Each failure names the step and its reason, and prints nothing fetched.
    const std::tuple<QByteArray, P::Value, int, const char *> failures[] = {
        {P::kMacAddress, QByteArray("00:11:22:aa:bb:cc\x1b[2J\n"), 9,
         "answered the MAC address query with data that cannot be read: a MAC address that is "
         "not six two-digit hexadecimal octets\n"},
        {P::kAdminLoginMode, 4294967295L, 9,
         "answered the shared folders query with data that cannot be read: a number wider than "
         "32 bits\n"},
        {P::stateOid(P::Table::ColorProfile, 30), QByteArray("\xff"), 9,
         "answered the colour profiles query with data that cannot be read: a text where a "
         "number belongs\n"},
        {P::nameOid(P::Table::Form, 50), P::Value(), 9,
         "answered the forms query with an error: (noSuchName)"},
        {"silent", 1L, 5,
         "did not answer (MAC address); the address or the SNMP community may be wrong\n"},
    };
    for (const auto &[oid, value, exit, message] : failures) {
        printer.setDefaults();
        printer.set(oid, value);
        check({"fetch", "--address", address}, exit, message);
    }
}

// --timeout bounds the whole fetch: a printer that answers the first queries and then goes
// silent costs the command its limit once, not a timeout and retries per query.
TEST(CommandLine, FetchEndsAtItsTimeoutWhenThePrinterFallsSilent) {
    using P = SimulatedPrinter;
    P printer;
    ASSERT_TRUE(printer.start()) << printer.errorText().toStdString();
    printer.setDefaults();
    printer.setResponseDelayMs(100);
    QElapsedTimer elapsed;
    elapsed.start();
    bool answered = false;
    const CommandLineRun run(
        ORVO_CLI, {"fetch", "--timeout", "10", "--address", P::loopbackAddress()}, {}, [&] {
            answered = QTest::qWaitFor([&] { return printer.requestCount() >= 2; }, 5000);
            printer.setSilent(true);
        });
    EXPECT_TRUE(answered);
    EXPECT_LT(elapsed.elapsed(), 12000);
    EXPECT_TRUE(run.endedWith(5, "did not answer"));
}

// Whether any process's argument list, which every user can read, holds text.
bool onAnArgumentList(const QByteArray &text) {
    for (const QFileInfo &process : QDir("/proc").entryInfoList(QDir::Dirs)) {
        QFile arguments(process.filePath() + "/cmdline");
        if (arguments.open(QIODevice::ReadOnly) && arguments.readAll().contains(text))
            return true;
    }
    return false;
}

// SNMPv3 passphrases reach a printer with v1 switched off from a file only their owner may read
// or from the environment, and are found nowhere else: on no argument list, in no message or
// log line, not in the queue's PPD nor in the server's log after a save.
TEST(CommandLine, SnmpV3PassphrasesStaySecret) {
    using P = SimulatedPrinter;
    P::Options options;
    options.v1Off = true;
    P printer(options);
    ASSERT_TRUE(printer.start()) << printer.errorText().toStdString();
    printer.setDefaults();
    printer.setResponseDelayMs(20); // long enough a fetch to be watched
    const QByteArray wrongPassphrase = "not-the-priv-phrase";
    const auto leaks = [&](const QByteArray &text) {
        return text.contains(P::kAuthPassphrase) || text.contains(P::kPrivPassphrase) ||
               text.contains(wrongPassphrase);
    };
    bool listed = false, watched = false;
    const auto watch = [&] {
        for (int look = 0; look < 20; ++look, QTest::qWait(20)) {
            watched = watched || onAnArgumentList("--snmp-user");
            listed = listed || onAnArgumentList(P::kAuthPassphrase) ||
                     onAnArgumentList(P::kPrivPassphrase) || onAnArgumentList(wrongPassphrase);
        }
    };
    QTemporaryDir dir;
    const QString secrets = dir.filePath("secrets");
    CupsServer::writeFile(secrets, QByteArray(OVSnmpSecrets::authName) + "=" + P::kAuthPassphrase +
                                       "\n" + OVSnmpSecrets::privName + "=" + P::kPrivPassphrase +
                                       "\n");
    QFile::setPermissions(secrets, QFile::ReadOwner | QFile::WriteOwner);
    const QStringList fetch = {"fetch",          "--address",   P::loopbackAddress(),
                               "--snmp-version", "3",           "--snmp-user",
                               P::kPrivUser,     "--snmp-priv", "AES-128"};
    const CommandLineRun fromFile(ORVO_CLI, fetch + QStringList{"--snmp-secrets", secrets}, {},
                                  watch);
    EXPECT_TRUE(fromFile.endedWith(0, "macAddress: 00:11:22:aa:bb:cc"));
    check({"fetch", "--address", P::loopbackAddress()}, 5, "the SNMP community may be wrong");
    QFile::setPermissions(secrets, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup);
    check(fetch + QStringList{"--snmp-secrets", secrets}, 2, "readable by you alone (chmod 600)");

    // From the environment, with the log on: a wrong privacy passphrase leaves the printer
    // silent, and the message suspects it without showing it.
    qputenv("QT_LOGGING_RULES", "orvo.*=true");
    qputenv(OVSnmpSecrets::authName, P::kAuthPassphrase);
    qputenv(OVSnmpSecrets::privName, wrongPassphrase);
    const CommandLineRun wrong(ORVO_CLI, fetch, {}, watch);
    EXPECT_TRUE(wrong.endedWith(5, "the SNMPv3 privacy passphrase may be wrong"));
    EXPECT_TRUE(wrong.shown.contains("SNMP request to")) << "the log is on";
    EXPECT_FALSE(leaks(wrong.shown)) << wrong.shown.toStdString();
    qputenv(OVSnmpSecrets::privName, P::kPrivPassphrase);
    EXPECT_EQ(cli(fetch).exit, 0);

    // A save of the SNMPv3 settings while the passphrases are in the environment.
    CupsServer &server = CupsServerEnvironment::server();
    ASSERT_TRUE(server.addQueue("secured"));
    const QJsonObject v3{{"snmpVersion", "3"}, {"snmpUser", P::kPrivUser}, {"snmpPriv", "AES-128"}};
    check({"save", "secured", "--settings", "-"}, 0, "", QJsonDocument(v3).toJson());
    check({"show", "secured"}, 0, "snmpVersion: 3\nsnmpUser: orvo_admin\n");
    qunsetenv("QT_LOGGING_RULES");
    qunsetenv(OVSnmpSecrets::authName);
    qunsetenv(OVSnmpSecrets::privName);
    EXPECT_FALSE(leaks(server.queuePpd("secured")));
    EXPECT_FALSE(leaks(server.errorLog()));
    EXPECT_TRUE(watched);
    EXPECT_FALSE(listed);
}

} // namespace
