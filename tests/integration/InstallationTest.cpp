// The installed program: `cmake --install` into a staging folder, then the
// installed filter under a private cupsd with a queue from the installed
// sample PPD, and a save and a show through the installed command line.
#include "CupsServer.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace {

struct Result {
    int exit = -1;
    QByteArray out;
    QByteArray err;
};

Result run(const QString &program, const QStringList &arguments,
           const QProcessEnvironment &environment = QProcessEnvironment::systemEnvironment()) {
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(program, arguments);
    process.waitForFinished(120000);
    return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
            process.readAllStandardOutput(), process.readAllStandardError()};
}

class InstallationTest : public ::testing::Test {
protected:
    static void SetUpTestSuite() {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("DESTDIR", staging.path());
        const Result installed =
            run("cmake", {"--install", ORVO_BINARY_DIR, "--prefix", "/usr"}, environment);
        ASSERT_EQ(installed.exit, 0) << installed.err.toStdString();
    }
    static QString installed(const QString &path) { return staging.path() + path; }
    static inline QTemporaryDir staging;
};

TEST_F(InstallationTest, FilesInTheirPlaces) {
    struct File {
        const char *path;
        unsigned mode;
    };
    const File files[] = {
        {"/usr/bin/orvo-printer-utility", 0755},
        {"/usr/bin/orvo-printer-utility-cli", 0755},
        {"/usr/lib/cups/filter/orvo-ppd-update", 0755},
        {"/usr/share/applications/orvo-printer-utility.desktop", 0644},
        {"/usr/share/icons/hicolor/scalable/apps/orvo-printer-utility.svg", 0644},
        {"/usr/share/metainfo/com.orvo.PrinterUtility.metainfo.xml", 0644},
        {"/usr/share/ppd/orvo/orvo-printer.ppd", 0644},
        {"/usr/share/doc/orvo-printer-utility/copyright", 0644},
        {"/usr/share/man/man1/orvo-printer-utility.1.gz", 0644},
        {"/usr/share/man/man1/orvo-printer-utility-cli.1.gz", 0644},
        {"/usr/share/man/man8/orvo-ppd-update.8.gz", 0644},
    };
    for (const File &file : files) {
        SCOPED_TRACE(file.path);
        struct stat status {};
        ASSERT_EQ(stat(installed(file.path).toLocal8Bit().constData(), &status), 0);
        EXPECT_EQ(status.st_mode & 07777, file.mode);
        // cupsd runs only filters that root owns; the install runs as root here.
        EXPECT_EQ(status.st_uid, 0u);
        if (QString(file.path).endsWith(".gz")) {
            const Result page = run("man", {"-l", installed(file.path)});
            EXPECT_EQ(page.exit, 0) << page.err.toStdString();
            EXPECT_TRUE(page.out.contains("NAME")) << page.out.toStdString();
            EXPECT_EQ(page.err, "");
        }
    }
}

TEST_F(InstallationTest, SaveAndShowThroughTheInstalledFilter) {
    CupsServer server(installed("/usr/lib/cups/filter/orvo-ppd-update"));
    ASSERT_TRUE(server.isRunning());
    ASSERT_TRUE(server.addQueue("orvo", installed("/usr/share/ppd/orvo/orvo-printer.ppd")));
    const QString cli = installed("/usr/bin/orvo-printer-utility-cli");
    EXPECT_EQ(run(cli, {"list"}).out, "orvo\n");
    const Result saved = run(cli, {"save", "orvo", "--forms", "Invoice", "--wakeOnLan", "no"});
    ASSERT_EQ(saved.exit, 0) << saved.err.toStdString();
    const Result shown = run(cli, {"show", "--json", "orvo"});
    ASSERT_EQ(shown.exit, 0) << shown.err.toStdString();
    const QJsonObject settings = QJsonDocument::fromJson(shown.out).object();
    EXPECT_EQ(settings["forms"], QJsonArray{"Invoice"});
    EXPECT_EQ(settings["wakeOnLan"], false);
    EXPECT_EQ(settings["optionsUpdated"], true);
    EXPECT_EQ(settings["community"], "cobalt");
}

} // namespace
