// The utility as a desktop user meets it, against private cupsd servers, also
// through a proxy that makes the server slow: the queue chooser, the window on a
// queue that is not set up or whose saves fail, and the password prompt.
#include "AlertRecorder.h"
#include "CupsServerEnvironment.h"
#include "DelayingProxy.h"
#include "EventLoopStallMeter.h"
#include "OVBackgroundTask.h"
#include "OVChooserTexts.h"
#include "OVMessageBar.h"
#include "OVPasswordPrompt.h"
#include "OVPrinterUtilityWindowController.h"
#include "OVQueueChooser.h"
#include "OVQueueSetup.h"
#include "OVSettingsSave.h"
#include "OVTableViewDataSource.h"
#include "ui_MainUtilityWindiw.h"

#include <QDialogButtonBox>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include <grp.h>
#include <sched.h>
#include <sys/mount.h>

[[maybe_unused]] const auto cupsd = ::testing::AddGlobalTestEnvironment(new CupsServerEnvironment);

namespace {

using namespace std::chrono_literals;

// A PPD of another model that is not set up for the utility.
QString plainPpd(const QTemporaryDir &dir) {
    return CupsServerEnvironment::notSetUpPpd(dir, "Lab Colour Laser");
}

// cupsd checks a print administrator's password through PAM against the
// machine's accounts. In a mount namespace of this test's own, which its cupsd
// servers share, the account files are copies with one administrator added (in
// the group cupsd counts as administrators); the machine's files stay as they
// are. Done before any thread starts.
constexpr char administratorName[] = "orvo-admin";
constexpr char administratorPassword[] = "orvo-test-password";
// The SHA-512 crypt of the password, with the salt "orvotest".
constexpr char administratorHash[] =
    "$6$orvotest$venweop9nWrRr7izjuU3uUUFOWYwLSqdun.lLQBIR.hoeDYgVgaL/"
    "LfHuuIHih5kx.OPLb9lJtEOiOCG6VPOh1";

bool bindCopyWithLine(const char *file, const QString &line) {
    static QTemporaryDir copies;
    const QString copy = copies.filePath(QFileInfo(file).fileName());
    CupsServer::writeFile(copy, CupsServer::readFile(file) + line.toUtf8() + '\n');
    return mount(copy.toLocal8Bit().constData(), file, nullptr, MS_BIND, nullptr) == 0;
}

bool addAdministrator() {
    const group *administrators = getgrnam("lpadmin");
    if (!administrators || unshare(CLONE_NEWNS) != 0 ||
        mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0)
        return false;
    return bindCopyWithLine("/etc/passwd",
                            QStringLiteral("%1:x:4242:%2::/nonexistent:/usr/sbin/nologin")
                                .arg(administratorName)
                                .arg(administrators->gr_gid)) &&
           bindCopyWithLine("/etc/shadow", QStringLiteral("%1:%2:20000:0:99999:7:::")
                                               .arg(administratorName, administratorHash));
}
const bool administrator = addAdministrator();

// libcups keeps the server per thread: the worker's is the one that counts.
void useServer(const QString &address) {
    OVBackgroundTask::wait([address] { cupsSetServer(address.toUtf8().constData()); });
}

// Loading fonts for the first window of the process is not the code under test's doing.
void warmUp() {
    QDialog first;
    first.show();
    QTest::qWait(50);
}

QStringList column(const QTableView *table, int column) {
    QStringList cells;
    for (int row = 0; row < table->model()->rowCount(); ++row)
        cells << table->model()->index(row, column).data().toString();
    return cells;
}

class QueueChooserTest : public ::testing::Test {
protected:
    static void SetUpTestSuite() {
        CupsServer &cups = CupsServerEnvironment::server();
        QTemporaryDir dir;
        ASSERT_TRUE(cups.addQueue("Alpha") && cups.addQueue("Beta") &&
                    cups.addQueue("Gamma", plainPpd(dir)) &&
                    cups.lpadmin({"-p", "Gamma", "-D", "Lab on the second floor\u202E"}));
        // A second server whose queue changes need an administrator's
        // password, with exactly one queue set up.
        s_withPassword = std::make_unique<CupsServer>(
            QStringLiteral(ORVO_PPD_UPDATE_FILTER),
            CupsServer::Options{.clientsUseIt = false, .adminNeedsPassword = true});
        ASSERT_TRUE(s_withPassword->isRunning() && s_withPassword->addQueue("Only") &&
                    s_withPassword->addQueue("Plain", plainPpd(dir)));
    }
    static void TearDownTestSuite() { s_withPassword.reset(); }
    void SetUp() override { useServer(CupsServerEnvironment::server().address()); }

    // Starts the chooser and waits for the server's answer.
    void list() {
        QSignalSpy listed(&m_chooser, &OVQueueChooser::listed);
        m_chooser.start();
        ASSERT_TRUE(listed.wait(30000));
    }

    static inline std::unique_ptr<CupsServer> s_withPassword;
    OVQueueChooser m_chooser;
};

TEST_F(QueueChooserTest, ListsEveryQueueWithItsStateAndFilters) {
    list();
    ASSERT_TRUE(m_chooser.isVisible());
    const QTableView *table = m_chooser.queueTable();
    EXPECT_EQ(column(table, 0), (QStringList{"Alpha", "Beta", "Gamma"}));
    // Characters that would reorder the line show by their code.
    EXPECT_EQ(column(table, 1).last(), "Lab on the second floor\\u202e");
    EXPECT_EQ(column(table, 2), (QStringList{"Orvo Printer", "Orvo Printer", "Lab Colour Laser"}));
    EXPECT_EQ(column(table, 3), (QStringList{"Set up", "Set up", "Not set up"}));
    EXPECT_EQ(m_chooser.chosenQueue(), "Alpha");
    EXPECT_EQ(m_chooser.filterField()->accessibleName(), "Filter");
    const std::pair<const char *, QStringList> filters[] = {
        {"second FLOOR", {"Gamma"}}, // description
        {"lab colour", {"Gamma"}},   // make and model
        {"bet", {"Beta"}},           // name
        {"orvo", {"Alpha", "Beta"}},
        {"not set up", {}}, // the state is not searched
        {"", {"Alpha", "Beta", "Gamma"}},
    };
    for (const auto &[filter, shown] : filters) {
        SCOPED_TRACE(filter);
        m_chooser.filterField()->setText(filter);
        EXPECT_EQ(column(table, 0), shown);
        // A choice that stays in sight stays chosen.
        EXPECT_TRUE(shown.isEmpty() ? m_chooser.chosenQueue().isEmpty()
                                    : shown.contains(m_chooser.chosenQueue()));
        EXPECT_EQ(m_chooser.openButton()->isEnabled(), !shown.isEmpty());
    }
}

// Open, a double click and Enter all choose the queue; Cancel chooses none.
TEST_F(QueueChooserTest, OpensTheChosenQueue) {
    const std::function<void(QTableView *, int row)> ways[] = {
        [this](QTableView *table, int row) {
            table->selectRow(row);
            QTest::mouseClick(m_chooser.openButton(), Qt::LeftButton);
        },
        [](QTableView *table, int row) {
            const QRect cell = table->visualRect(table->model()->index(row, 1));
            QTest::mouseDClick(table->viewport(), Qt::LeftButton, {}, cell.center());
        },
        [](QTableView *table, int row) {
            table->selectRow(row);
            QTest::keyClick(table, Qt::Key_Return);
        },
    };
    for (const auto &open : ways) {
        list();
        open(m_chooser.queueTable(), 2);
        EXPECT_EQ(m_chooser.result(), QDialog::Accepted);
        EXPECT_EQ(m_chooser.chosenQueue(), "Gamma");
    }
    list();
    QTest::keyClick(m_chooser.queueTable(), Qt::Key_Escape);
    EXPECT_EQ(m_chooser.result(), QDialog::Rejected);
}

TEST_F(QueueChooserTest, TheOneSetUpQueueOpensAtOnce) {
    useServer(s_withPassword->address());
    QSignalSpy accepted(&m_chooser, &QDialog::accepted);
    list();
    EXPECT_EQ(accepted.count(), 1);
    EXPECT_EQ(m_chooser.chosenQueue(), "Only");
    EXPECT_FALSE(m_chooser.isVisible());
}

// An unreachable server is said, with a Retry that lists the queues once it answers.
TEST_F(QueueChooserTest, SaysWhenTheServerCannotBeReached) {
    useServer("127.0.0.1:1");
    list();
    EXPECT_TRUE(m_chooser.isVisible());
    EXPECT_EQ(m_chooser.statusText(),
              "The print server 127.0.0.1:1 cannot be reached. Check that it "
              "is running, then try again.");
    EXPECT_FALSE(m_chooser.openButton()->isEnabled());
    EXPECT_EQ(m_chooser.queueTable()->model()->rowCount(), 0);
    useServer(CupsServerEnvironment::server().address());
    QSignalSpy listed(&m_chooser, &OVQueueChooser::listed);
    QTest::mouseClick(m_chooser.retryButton(), Qt::LeftButton);
    ASSERT_TRUE(listed.wait(30000));
    EXPECT_EQ(m_chooser.statusText(), "");
    EXPECT_EQ(m_chooser.queueTable()->model()->rowCount(), 3);
}

// Every answer of the server comes half a second late; the chooser shows its
// loading state meanwhile and its event loop keeps turning. The bound is the
// GUI thread's own work only (the network waits are on the worker), so it holds
// on a loaded machine too; the first window of the process is shown beforehand,
// as loading fonts is not the chooser's doing.
TEST_F(QueueChooserTest, ASlowServerNeverStallsTheChooser) {
    warmUp();
    const DelayingProxy proxy(CupsServerEnvironment::server().address(), 500ms);
    ASSERT_TRUE(proxy.isListening());
    useServer(proxy.address());
    const EventLoopStallMeter meter;
    QSignalSpy listed(&m_chooser, &OVQueueChooser::listed);
    m_chooser.start();
    ASSERT_TRUE(QTest::qWaitFor([&] { return m_chooser.isVisible(); }, 5000));
    EXPECT_EQ(m_chooser.statusText(), "Asking the print server for its queues...");
    EXPECT_TRUE(listed.isEmpty());
    ASSERT_TRUE(listed.wait(30000));
    EXPECT_EQ(m_chooser.queueTable()->model()->rowCount(), 3);
    EXPECT_LT(meter.largestGap(), 100ms);
}

// The settings window on a queue of the server; every alert is answered at once and kept.
class WindowOnServerTest : public QueueChooserTest {
protected:
    using Controller = OVPrinterUtilityWindowController;

    void TearDown() override { m_window.reset(); }

    // Shows the window at once; waitForSettings waits for them to arrive.
    void show(const QString &queue) {
        m_window = std::make_unique<Controller>();
        m_window->applicationDidFinishLaunching({"--printer", queue});
        m_window->mainWindowObject()->show();
    }
    void waitForSettings() {
        QSignalSpy loaded(m_window.get(), &Controller::settingsLoaded);
        ASSERT_TRUE(loaded.wait(30000));
    }
    // Clicks OK; whether the window closed, or else alerted.
    bool ok() {
        QSignalSpy closed(m_window.get(), &Controller::applicationShouldTerminate);
        const qsizetype alerts = m_alerts.size();
        QTest::mouseClick(m_window->controls().okButton, Qt::LeftButton);
        EXPECT_TRUE(
            QTest::qWaitFor([&] { return !closed.isEmpty() || m_alerts.size() > alerts; }, 60000));
        return !closed.isEmpty();
    }
    bool setUpFromTheBar() {
        OVMessageBar *bar = m_window->messageBar();
        QTest::mouseClick(bar->actionButton(), Qt::LeftButton);
        return QTest::qWaitFor([&] { return bar->isHidden(); }, 60000);
    }

    AlertRecorder m_alerts;
    std::unique_ptr<Controller> m_window;
};

// A PPD cut short while cupsd wrote it is said in the bar, with Repair…, and OK refuses; the
// repair rebuilds it from the queue's driver, and the window then shows the settings it kept.
TEST_F(WindowOnServerTest, ADamagedPpdIsRepairedFromTheBar) {
    CupsServer &server = CupsServerEnvironment::server();
    ASSERT_TRUE(server.lpadmin(
        {"-p", "Echo", "-E", "-v", "file:/dev/null", "-m", "drv:///sample.drv/generic.ppd"}));
    ASSERT_EQ(OVQueueSetup::setUp("Echo").outcome, OVQueueSetup::Outcome::Changed);
    OVSettingsSnapshot saved;
    saved.formNames = {"Invoice"};
    ASSERT_EQ(OVSettingsSave::save(saved, "Echo").result, OVSettingsSave::Result::Stored);
    const QByteArray ppd = CupsServer::readFile(server.ppdFile("Echo"));
    CupsServer::writeFile(server.ppdFile("Echo"), ppd.left(ppd.indexOf("\n*PageSize ")));
    show("Echo");
    waitForSettings();
    const OVMessageBar *bar = m_window->messageBar();
    ASSERT_TRUE(bar->isVisible());
    EXPECT_TRUE(bar->text().startsWith("The PPD of the print queue \"Echo\" is damaged"));
    // Its mnemonic aside, which follows the text when other controls hold each of its letters.
    EXPECT_EQ(OVChooserTexts::withoutMnemonic(bar->actionButton()->text()), "Repair\u2026");
    EXPECT_EQ(m_window->formTableViewDataSource()->getElementsArray(), QStringList());
    EXPECT_FALSE(ok());
    EXPECT_EQ(m_alerts.last(), bar->text());
    ASSERT_TRUE(setUpFromTheBar());
    EXPECT_EQ(OVQueueSetup::state("Echo"), OVQueueSetup::State::SetUp);
    EXPECT_EQ(m_window->formTableViewDataSource()->getElementsArray(), saved.formNames);
}

// The bar says the queue is not set up; OK refuses without sending anything until
// Set Up has set it up, and then closes only once the PPD holds the settings.
TEST_F(WindowOnServerTest, AQueueThatIsNotSetUpIsSetUpFromTheBar) {
    CupsServer &server = CupsServerEnvironment::server();
    QTemporaryDir dir;
    ASSERT_TRUE(server.addQueue("Delta", plainPpd(dir)));
    show("Delta");
    waitForSettings();
    const OVMessageBar *bar = m_window->messageBar();
    ASSERT_TRUE(bar->isVisible());
    EXPECT_TRUE(bar->text().startsWith("The print queue \"Delta\" is not set up"));
    EXPECT_EQ(OVChooserTexts::withoutMnemonic(bar->actionButton()->text()), "Set Up\u2026");
    m_window->formTableViewDataSource()->setElementsArray(QStringList{"Invoice"});
    const int jobsBefore = server.lastJob();
    EXPECT_FALSE(ok());
    EXPECT_EQ(m_alerts, QStringList{bar->text()});
    EXPECT_EQ(server.lastJob(), jobsBefore);
    ASSERT_TRUE(setUpFromTheBar());
    EXPECT_TRUE(ok());
    EXPECT_TRUE(server.queuePpd("Delta").contains("*PSFormName0_Part1: \"" +
                                                  QByteArray("Invoice").toBase64() + '"'));
    EXPECT_EQ(server.lastJob(), jobsBefore + 1);
}

// Without the server the window shows its defaults and OK will not save them over the
// stored settings; Retry loads those once the server answers.
TEST_F(WindowOnServerTest, AServerThatCannotBeReachedKeepsTheStoredSettings) {
    useServer("127.0.0.1:1");
    show("Alpha");
    waitForSettings();
    const OVMessageBar *bar = m_window->messageBar();
    EXPECT_TRUE(bar->text().startsWith("The print server 127.0.0.1:1 cannot be reached"));
    EXPECT_FALSE(ok());
    EXPECT_EQ(m_alerts, QStringList{bar->text()});
    useServer(CupsServerEnvironment::server().address());
    QSignalSpy loaded(m_window.get(), &Controller::settingsLoaded);
    QTest::mouseClick(bar->actionButton(), Qt::LeftButton);
    ASSERT_TRUE(loaded.wait(30000));
    EXPECT_TRUE(bar->isHidden());
    EXPECT_TRUE(ok());
}

// A queue whose filter fails ends the update job unsaved: the window says so and keeps
// what the user set, so that OK can be tried again.
TEST_F(WindowOnServerTest, ASaveThatDoesNotArriveKeepsTheWindowOpen) {
    CupsServer failing(QStringLiteral("/bin/false"), {.clientsUseIt = false});
    ASSERT_TRUE(failing.isRunning() && failing.addQueue("Office") &&
                failing.lpadmin({"-p", "Office", "-o", "printer-error-policy=abort-job"}));
    useServer(failing.address());
    show("Office");
    waitForSettings();
    EXPECT_TRUE(m_window->messageBar()->isHidden());
    QLineEdit *address = m_window->controls().printerIPAddressText;
    address->setText("192.0.2.7");
    EXPECT_FALSE(ok());
    ASSERT_EQ(m_alerts.size(), 1);
    EXPECT_TRUE(m_alerts[0].startsWith("The print server ended update job"))
        << m_alerts[0].toStdString();
    EXPECT_EQ(address->text(), "192.0.2.7");
    EXPECT_TRUE(m_window->controls().okButton->isEnabled());
}

// Every answer of the server comes half a second late: the window shows at once, loads,
// sets up and saves without its event loop pausing.
TEST_F(WindowOnServerTest, ASlowServerNeverStallsTheWindow) {
    warmUp();
    QTemporaryDir dir;
    ASSERT_TRUE(CupsServerEnvironment::server().addQueue("Epsilon", plainPpd(dir)));
    const DelayingProxy proxy(CupsServerEnvironment::server().address(), 500ms);
    ASSERT_TRUE(proxy.isListening());
    useServer(proxy.address());
    const EventLoopStallMeter meter;
    show("Epsilon");
    ASSERT_TRUE(QTest::qWaitForWindowExposed(m_window->mainWindowObject()));
    EXPECT_EQ(m_window->controls().progressIndicatorText->text(), "Loading settings...");
    EXPECT_FALSE(m_window->controls().okButton->isEnabled());
    waitForSettings();
    ASSERT_TRUE(setUpFromTheBar());
    EXPECT_TRUE(ok());
    EXPECT_LT(meter.largestGap(), 100ms);
}

// The password is asked on the GUI thread while the set-up waits on the worker.
// Cancel gives up at once and a refused password is asked three times, leaving
// the queue as it was; an administrator's password sets it up.
TEST_F(QueueChooserTest, PasswordPromptAnswersTheServer) {
    ASSERT_TRUE(administrator) << "the suite needs root for a mount namespace";
    CupsServer &server = *s_withPassword;
    useServer(server.address());
    const QByteArray before = server.queuePpd("Plain");
    OVPasswordPrompt prompt;
    const struct {
        const char *what;
        const char *user, *password;
        bool cancel;
        int asked;
        OVQueueSetup::Outcome outcome;
    } cases[] = {
        {"Cancel", "nobody", "wrong", true, 1, OVQueueSetup::Outcome::NotAuthorized},
        {"Refused", "nobody", "wrong", false, 3, OVQueueSetup::Outcome::NotAuthorized},
        {"Accepted", administratorName, administratorPassword, false, 1,
         OVQueueSetup::Outcome::Changed},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.what);
        QStringList texts;
        const auto answer =
            QObject::connect(&prompt, &OVPasswordPrompt::asking, [&](QDialog *dialog) {
                texts << dialog->findChild<QLabel *>("explanation")->text();
                QMetaObject::invokeMethod(
                    dialog,
                    [dialog, c] {
                        QLineEdit *password = dialog->findChild<QLineEdit *>("password");
                        dialog->findChild<QLineEdit *>("userName")->setText(c.user);
                        QTest::keyClicks(password, c.password);
                        if (c.cancel)
                            dialog->reject();
                        else
                            QTest::keyClick(password, Qt::Key_Return);
                    },
                    Qt::QueuedConnection);
            });
        std::optional<OVQueueSetup::Result> result;
        OVBackgroundTask::run(
            &prompt,
            [] {
                const OVPasswordPrompt::ForQueue forQueue("Plain");
                return OVQueueSetup::setUp("Plain");
            },
            [&](const OVQueueSetup::Result &done) { result = done; });
        ASSERT_TRUE(QTest::qWaitFor([&] { return result.has_value(); }, 60000));
        QObject::disconnect(answer);
        EXPECT_EQ(result->outcome, c.outcome);
        ASSERT_EQ(texts.size(), c.asked);
        EXPECT_TRUE(texts.first().contains(server.address()) && texts.first().contains("\"Plain\""))
            << texts.first().toStdString();
        EXPECT_EQ(texts.last().endsWith("Try again."), c.asked > 1);
        EXPECT_EQ(server.queuePpd("Plain") == before, c.outcome != OVQueueSetup::Outcome::Changed);
    }
    // The other tests want the queue as it was.
    QTemporaryDir dir;
    EXPECT_TRUE(server.lpadmin({"-p", "Plain", "-P", plainPpd(dir)}));
}

} // namespace
