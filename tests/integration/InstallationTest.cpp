// `cmake --install` into a staging folder, then a queue from the installed sample PPD on a
// private cupsd running the installed filter, saved and shown by the installed command line.
#include "CommandLineRun.h"
#include "CupsServer.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace {

QByteArray run(const QString &program, const QStringList &arguments) {
    const CommandLineRun run(program, arguments);
    EXPECT_EQ(run.exit, 0) << run.shown.toStdString();
    return run.shown;
}

TEST(Installation, SaveAndShowThroughTheInstalledFiles) {
    QTemporaryDir staging;
    qputenv("DESTDIR", staging.path().toUtf8());
    run("cmake", {"--install", ORVO_BINARY_DIR, "--prefix", "/usr"});
    const auto installed = [&](const QString &path) { return staging.path() + path; };
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

    CupsServer::Options options;
    options.typesPath = installed(files[4].first);
    CupsServer server(installed(files[1].first), options);
    ASSERT_TRUE(server.isRunning());
    ASSERT_TRUE(server.addQueue("orvo", installed("/usr/share/ppd/orvo/orvo-printer.ppd")));
    const QString cli = installed("/usr/bin/orvo-printer-utility-cli");
    EXPECT_EQ(run(cli, {"list"}), "orvo  set up      Orvo Printer\n");
    run(cli, {"save", "orvo", "--forms", "Invoice", "--wakeOnLan", "no"});
    const auto settings = QJsonDocument::fromJson(run(cli, {"show", "--json", "orvo"})).object();
    EXPECT_EQ(settings["forms"], QJsonArray{"Invoice"});
    EXPECT_EQ(settings["wakeOnLan"], false);
    EXPECT_EQ(settings["optionsUpdated"], true);
}

} // namespace
