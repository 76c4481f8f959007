// `cmake --install` into a staging folder, then a queue from the installed sample PPD on a
// private cupsd running the installed filter, saved and shown by the installed command line;
// and a private cupsd that started before the install, reloaded as the package has it.
#include "CommandLineRun.h"
#include "CupsServerEnvironment.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

#include <QThread>

#include <csignal>
#include <sys/stat.h>

namespace {

QByteArray run(const QString &program, const QStringList &arguments) {
    const CommandLineRun run(program, arguments);
    EXPECT_EQ(run.exit, 0) << run.shown.toStdString();
    return run.shown;
}

// This build installed into a staging folder.
struct Staging {
    Staging() {
        qputenv("DESTDIR", folder.path().toUtf8());
        run("cmake", {"--install", ORVO_BINARY_DIR, "--prefix", "/usr"});
        qunsetenv("DESTDIR");
    }
    QString operator()(const QString &path) const { return folder.path() + path; }

    QTemporaryDir folder;
};

TEST(Installation, SaveAndShowThroughTheInstalledFiles) {
    const Staging installed;
    // cupsd runs only filters that root owns and others cannot change.
    const std::pair<const char *, unsigned> files[] = {
        {"/usr/bin/orvo-printer-utility", 0755},
        {"/usr/lib/cups/filter/orvo-ppd-update", 0755},
        {"/usr/share/applications/orvo-printer-utility.desktop", 0644},
        {"/usr/share/man/man8/orvo-ppd-update.8.gz", 0644},
        {"/usr/share/cups/mime/orvo-printer-utility.types", 0644},
        {"/usr/share/cups/mime/orvo-printer-utility.convs", 0644}};
    for (const auto &[path, mode] : files) {
        struct stat status {};
        EXPECT_EQ(stat(installed(path).toLocal8Bit().constData(), &status), 0) << path;
        EXPECT_EQ(status.st_mode & 07777, mode) << path;
        EXPECT_EQ(status.st_uid, 0u) << path;
    }
    EXPECT_TRUE(run("man", {"-l", installed(files[3].first)}).contains("NAME"));

    CupsServer server(installed(files[1].first), {.typesPath = installed(files[4].first)});
    ASSERT_TRUE(server.isRunning());
    ASSERT_TRUE(server.addQueue("orvo", installed("/usr/share/ppd/orvo/orvo-printer.ppd")));
    const QString cli = installed("/usr/bin/orvo-printer-utility-cli");
    EXPECT_EQ(run(cli, {"list"}), "  QUEUE  STATE       MAKE AND MODEL\n"
                                  "  orvo   set up      Orvo Printer\n");
    run(cli, {"save", "orvo", "--forms", "Invoice", "--wakeOnLan", "no"});
    const auto settings = QJsonDocument::fromJson(run(cli, {"show", "--json", "orvo"})).object();
    EXPECT_EQ(settings["forms"], QJsonArray{"Invoice"});
    EXPECT_EQ(settings["wakeOnLan"], false);
    EXPECT_EQ(settings["optionsUpdated"], true);
}

// A cupsd that ran before the install lacks the update job's type: setup names the reload,
// and once cupsd has reloaded (SIGHUP, what the package's scripts have the init system do)
// setup works with no other step.
TEST(Installation, ARunningServerTakesTheMimeFilesWhenItReloads) {
    const Staging installed;
    CupsServer server(installed("/usr/lib/cups/filter/orvo-ppd-update"), {.typesPath = {}});
    ASSERT_TRUE(server.isRunning());
    QTemporaryDir dir;
    ASSERT_TRUE(server.addQueue("plain", CupsServerEnvironment::notSetUpPpd(dir)));
    qputenv("CUPS_DATADIR", installed("/usr/share/cups").toUtf8());
    qputenv("CUPS_SERVERBIN", installed("/usr/lib/cups").toUtf8());
    const QString cli = installed("/usr/bin/orvo-printer-utility-cli");
    EXPECT_TRUE(CommandLineRun(cli, {"setup", "plain"})
                    .endedWith(1, "reload CUPS so that it reads " +
                                      installed("/usr/share/cups/mime/").toUtf8() +
                                      "orvo-printer-utility.types"));
    for (const char *file : {"orvo-printer-utility.types", "orvo-printer-utility.convs"})
        ASSERT_TRUE(QFile::copy(installed("/usr/share/cups/mime/") + file, server.mimePath(file)));
    ASSERT_EQ(kill(pid_t(server.pid()), SIGHUP), 0);
    // cupsd takes a moment to read its configuration again.
    QByteArray shown;
    for (int tries = 0; tries < 100 && !shown.contains("is set up"); ++tries) {
        QThread::msleep(100);
        shown = CommandLineRun(cli, {"setup", "plain"}).shown;
    }
    EXPECT_TRUE(shown.contains("\"plain\" is set up")) << shown.toStdString();
    qunsetenv("CUPS_DATADIR");
    qunsetenv("CUPS_SERVERBIN");
}

} // namespace
