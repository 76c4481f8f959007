// The main window driven by clicks and typing, against a private cupsd and printer.
#include "AlertRecorder.h"
#include "CupsServerEnvironment.h"
#include "OVCustomRestrictedTextField.h"
#include "OVMessageBar.h"
#include "OVNotificationCenter.h"
#include "OVPreferredLanguages.h"
#include "OVPrinterUtilityWindowController.h"
#include "OVQueueSetup.h"
#include "OVSecretStore.h"
#include "OVSnmpSecurityDialog.h"
#include "OVTableViewDataSource.h"
#include "PrivateNetwork.h"
#include "SecretService.h"
#include "SimulatedPrinter.h"
#include "SpawnedProcess.h"
#include "ui_MainUtilityWindiw.h"

#include <QApplication>
#include <QComboBox>
#include <QElapsedTimer>
#include <QLabel>
#include <QLoggingCategory>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <cstdio>
#include <mutex>

const bool isolated = PrivateNetwork::enter();
[[maybe_unused]] const auto cupsd = ::testing::AddGlobalTestEnvironment(new CupsServerEnvironment);

namespace {
// One Secret Service for the whole suite, as the session bus a process first reaches stays its
// bus; it ends before the print server's environment checks what its clients left behind.
class SecretServiceEnvironment : public ::testing::Environment {
public:
    void SetUp() override { s_started = s_service.emplace().start(); }
    void TearDown() override { s_service.reset(); }
    static inline std::optional<SecretService> s_service;
    static inline bool s_started = false;
};
} // namespace
[[maybe_unused]] const auto secrets =
    ::testing::AddGlobalTestEnvironment(new SecretServiceEnvironment);

namespace {

using Controller = OVPrinterUtilityWindowController;
using P = SimulatedPrinter;

void type(QLineEdit *field, const QString &text) {
    field->clear();
    QTest::keyClicks(field, text);
}
void erase(QLineEdit *field) {
    field->selectAll();
    QTest::keyClick(field, Qt::Key_Backspace);
}
// Near the left edge: a check box takes clicks only on its box and its title.
void click(QAbstractButton *button) {
    QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(6, button->height() / 2));
}
void clickRow(QTableView *table, int row) {
    const QRect cell = table->visualRect(table->model()->index(row, 0));
    QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, cell.center());
}

// A printer on loopback (IPv4 and ::1); every alert is answered at once and its text kept.
class WindowTest : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(isolated) << "the window suite needs root to get a private network";
        ASSERT_TRUE(CupsServerEnvironment::server().addQueue("Fresh"));
        ASSERT_TRUE(m_printer.start()) << m_printer.errorText().toStdString();
        m_printer.setDefaults();
    }
    void TearDown() override {
        m_window.reset();
        OVPreferredLanguages::setOverride(std::nullopt);
    }

    // The window shows at once; its settings arrive from cupsd a moment later.
    void open(const QString &queue = "Fresh") {
        m_window.reset();
        m_window = std::make_unique<Controller>();
        QSignalSpy loaded(m_window.get(), &Controller::settingsLoaded);
        m_window->applicationDidFinishLaunching({"--printer", queue});
        m_window->mainWindowObject()->show();
        m_c = &m_window->controls();
        EXPECT_FALSE(m_c->okButton->isEnabled());
        ASSERT_TRUE(loaded.wait(30000));
    }
    void openOnPrinter() {
        open();
        type(m_c->printerIPAddressText, P::loopbackAddress());
    }
    // GET requests the printer received while work ran.
    static int requestsDuring(P &to, const std::function<void()> &work) {
        const int before = to.requestCount();
        work();
        return to.requestCount() - before;
    }
    QStringList forms() const { return m_window->formTableViewDataSource()->getElementsArray(); }
    QStringList chosen() const {
        return m_window->selectedFolderTableViewDataSource()->getElementsArray();
    }

    static P::Options alsoOnIPv6() {
        P::Options options;
        options.listen += ",udp6:[::1]:161";
        return options;
    }

    P m_printer{alsoOnIPv6()};
    AlertRecorder m_alerts;
    std::unique_ptr<Controller> m_window;
    Ui::MainUtilityWindiw *m_c = nullptr;
};

TEST_F(WindowTest, DefaultsChooseFetchSaveAndReopen) {
    CupsServer &server = CupsServerEnvironment::server();
    ASSERT_TRUE(server.addQueue("Office"));
    m_printer.set(P::nameOid(P::Table::SharedBox, 1), QByteArray("営業部 🎨"));
    const QStringList folders = m_printer.namesInUse(P::Table::SharedBox);
    open("Office");
    EXPECT_EQ(m_window->registerFolderTableViewDataSource()->count(), 100u);
    EXPECT_EQ(chosen(), QStringList{"Shared Folder 1"});
    EXPECT_TRUE(m_c->wakeOnLANCheck->isChecked() && !m_c->snmpCommunityCheck->isChecked() &&
                !m_c->snmpCommunityText->isEnabled() &&
                !m_c->folderPersonalFolderCheck->isChecked());
    EXPECT_EQ(m_c->snmpCommunityText->text() + m_c->macAddressText4->text(), "cobalt00");

    // A chosen folder keeps its register row, which the fetch renames from the printer.
    m_c->meinTabView->setCurrentWidget(m_c->folderTabViewItem);
    for (int row : {4, 2}) {
        clickRow(m_c->folderSharedFolderTable, row);
        click(m_c->folderAddButton);
    }
    clickRow(m_c->folderSelectedFolderTable, 1);
    click(m_c->folderDeleteButton);
    EXPECT_EQ(chosen(), QString("Shared Folder 1,Shared Folder 3").split(','));
    type(m_c->printerIPAddressText, P::loopbackAddress());
    click(m_c->printerGetPrinterInfoButton);
    ASSERT_TRUE(m_alerts.isEmpty()) << m_alerts.join('|').toStdString();
    EXPECT_EQ(chosen(), (QStringList{folders[0], folders[2]}));
    click(m_c->folderPersonalFolderCheck);
    // A job too large for cupsd: one alert, and the window stays open with its settings.
    const QStringList fetchedForms = forms();
    m_window->formTableViewDataSource()->setElementsArray(QStringList(100, QString(900, 'a')));
    QSignalSpy terminated(m_window.get(), &Controller::applicationShouldTerminate);
    click(m_c->okButton);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !m_alerts.isEmpty(); }, 30000));
    EXPECT_EQ(m_alerts.size(), 1);
    m_window->formTableViewDataSource()->setElementsArray(fetchedForms);
    click(m_c->okButton);
    ASSERT_TRUE(terminated.wait(30000));
    m_window.reset();
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return server.queuePpd("Office").contains("*PPDOptionsUpdated: \"1\""); }, 30000));
    open("Office");
    EXPECT_EQ(m_window->registerFolderTableViewDataSource()->getElementsArray(), folders);
    EXPECT_EQ(chosen(), (QStringList{folders[0], folders[2]}));
    EXPECT_TRUE(m_c->folderPersonalFolderCheck->isChecked());
    EXPECT_EQ(m_c->printerIPAddressText->text(), P::loopbackAddress());
    EXPECT_EQ(m_c->macAddressText1->text() + m_c->macAddressText6->text(), "00cc");
    EXPECT_EQ(forms(), m_printer.namesInUse(P::Table::Form));
    EXPECT_EQ(m_window->barcodeAreaDefinitionTableViewDataSource()->getElementsArray(),
              m_printer.namesInUse(P::Table::BarcodeArea));
    EXPECT_EQ(m_window->colorProfileTableViewDataSource()->getElementsArray(),
              m_printer.namesInUse(P::Table::ColorProfile));
}

// Get Printer Info stops at the first failing step, one alert; without Wake-on-LAN the steps
// ask MAC 1, folders 4, each list 2. A failed folder step puts the default folders back.
TEST_F(WindowTest, CombinedFetchStopsAtTheFirstFailure) {
    const QString v4 = P::loopbackAddress();
    const std::tuple<QString, QByteArray, int, quint64> cases[] = {
        {v4, "", 11, 15},
        {v4, P::kMacAddress, 1, 15},
        {v4, P::nameOid(P::Table::SharedBox, 5), 5, 100},
        {v4, P::nameOid(P::Table::Form, 50), 7, 15},
        {v4, P::nameOid(P::Table::BarcodeArea, 50), 9, 15},
        {v4, P::nameOid(P::Table::ColorProfile, 30), 11, 15},
        {"::1", "", 11, 15},
        {"[::1]", "", 11, 15},
        {"", "", 0, 15}};
    open();
    click(m_c->wakeOnLANCheck);
    for (const auto &[address, missing, requests, folders] : cases) {
        SCOPED_TRACE(address.toStdString() + " without " + missing.toStdString());
        type(m_c->printerIPAddressText, address);
        m_printer.setDefaults();
        if (!missing.isEmpty())
            m_printer.set(missing, {});
        m_alerts.clear();
        EXPECT_EQ(requestsDuring(m_printer, [&] { click(m_c->printerGetPrinterInfoButton); }),
                  requests);
        const bool fails = !missing.isEmpty() || address.isEmpty();
        EXPECT_EQ(m_alerts, fails ? QStringList{"Failed to obtain information."} : QStringList());
        EXPECT_EQ(m_window->bError(), fails);
        EXPECT_EQ(m_window->registerFolderTableViewDataSource()->count(), folders);
    }
}

// Each Clear empties its list alone; the folder one restores the default folders, selects none
// chosen, leaves Add off, turns the personal folder off and the settings to not saved.
TEST_F(WindowTest, ClearButtons) {
    openOnPrinter();
    click(m_c->printerGetPrinterInfoButton);
    click(m_c->folderPersonalFolderCheck);
    m_window->formTableViewDataSource()->setElementsArray(QStringList(100, QString(900, 'a')));
    click(m_c->okButton); // too long to save: the window stays with its settings marked saved
    ASSERT_TRUE(QTest::qWaitFor([&] { return !m_alerts.isEmpty(); }, 30000));
    ASSERT_TRUE(m_window->isPPDOptionsUpdated());
    const auto counts = [this] {
        return QList<quint64>{m_window->formTableViewDataSource()->count(),
                              m_window->barcodeAreaDefinitionTableViewDataSource()->count(),
                              m_window->colorProfileTableViewDataSource()->count(),
                              m_window->registerFolderTableViewDataSource()->count()};
    };
    ASSERT_EQ(counts(), (QList<quint64>{100, 50, 15, 15}));
    const std::pair<QPushButton *, QList<quint64>> steps[] = {
        {m_c->formClearButton, {0, 50, 15, 15}},
        {m_c->barcodeAreaDefinitionClearButton, {0, 0, 15, 15}},
        {m_c->colorProfileClearButton, {0, 0, 0, 15}},
        {m_c->folderClearButton, {0, 0, 0, 100}}};
    for (const auto &[button, expected] : steps) {
        click(button);
        EXPECT_EQ(counts(), expected) << button->objectName().toStdString();
    }
    EXPECT_EQ(chosen(), QStringList{"Shared Folder 1"});
    EXPECT_EQ(m_window->selectedFolderTableViewDataSource()->getSelectedRow(), -1);
    EXPECT_FALSE(m_c->folderAddButton->isEnabled());
    EXPECT_FALSE(m_c->folderPersonalFolderCheck->isChecked());
    EXPECT_FALSE(m_window->isPPDOptionsUpdated());
}

// MAC fields follow Wake-on-LAN; Another Network needs it and MAC text, keeps its state if off.
TEST_F(WindowTest, WakeOnLanControls) {
    open();
    click(m_c->overstepTheRouter);
    const QList<QLineEdit *> macs = {m_c->macAddressText1, m_c->macAddressText2,
                                     m_c->macAddressText3, m_c->macAddressText4,
                                     m_c->macAddressText5, m_c->macAddressText6};
    for (QLineEdit *field : macs)
        erase(field);
    const std::tuple<std::function<void()>, bool, bool> steps[] = {
        {[] {}, true, false},
        {[&] { QTest::keyClicks(m_c->macAddressText5, "f"); }, true, true},
        {[&] { click(m_c->wakeOnLANCheck); }, false, false},
        {[&] { click(m_c->wakeOnLANCheck); }, true, true},
        {[&] { erase(m_c->macAddressText5); }, true, false}};
    int step = 0;
    for (const auto &[act, macsEnabled, overRouterEnabled] : steps) {
        act();
        SCOPED_TRACE(step++);
        for (QLineEdit *field : macs)
            EXPECT_EQ(field->isEnabled(), macsEnabled);
        EXPECT_EQ(m_c->overstepTheRouter->isEnabled(), overRouterEnabled);
        EXPECT_TRUE(m_c->overstepTheRouter->isChecked());
    }
}

// A custom community (U+200B too) reaches the wake check and the queries exactly as typed.
TEST_F(WindowTest, CustomCommunityReachesThePrinter) {
    P::Options options;
    options.listen = options.counterPeer = "udp:127.0.0.3:161";
    options.community = "office\u200B";
    P office(options);
    ASSERT_TRUE(office.start()) << office.errorText().toStdString();
    office.setDefaults();
    open();
    click(m_c->snmpCommunityCheck);
    m_c->snmpCommunityText->setText(QString::fromUtf8("office\u200B"));
    m_c->macAddressText6->setText("cc"); // a MAC to wake: the flow asks the sleep mode
    type(m_c->printerIPAddressText, "127.0.0.3");
    EXPECT_EQ(requestsDuring(office, [&] { click(m_c->formGetPrinterInfoButton); }), 3);
    EXPECT_EQ(m_alerts, QStringList());
    EXPECT_EQ(forms(), office.namesInUse(P::Table::Form));
}

// OK refuses what the settings' rules refuse, one field of each kind: one alert naming it, and
// the window stays open with what was typed; no job reaches the queue.
TEST_F(WindowTest, OkRefusesWhatTheSettingsRulesRefuse) {
    open();
    const QStringList colorProfiles = QStringList(31, "Profile");
    // What is entered, what the window then shows of it, the alert.
    using Enter = std::function<void()>;
    using Shown = std::function<QString()>;
    const std::tuple<const char *, Enter, Shown, QString> cases[] = {
        {"MacByteCleared", [&] { erase(m_c->macAddressText1); },
         [&] { return m_c->macAddressText1->text() + m_c->macAddressText2->text(); },
         "The MAC address of the printer is incomplete: each of its six bytes needs two "
         "hexadecimal digits (0-9, A-F)."},
        {"CommunityCharacter",
         [&] {
             type(m_c->macAddressText1, "0a");
             click(m_c->snmpCommunityCheck);
             m_c->snmpCommunityText->setText("bad-char");
         },
         [&] { return m_c->snmpCommunityText->text(); },
         "The SNMP community name cannot contain \"-\"."},
        {"Address",
         [&] {
             click(m_c->snmpCommunityCheck);
             type(m_c->printerIPAddressText, "printer 1");
         },
         [&] { return m_c->printerIPAddressText->text(); },
         "The IP address of the printer must be an IPv4 or IPv6 address, or a host name of at "
         "most 174 characters."},
        {"List",
         [&] {
             type(m_c->printerIPAddressText, "printer-1");
             m_window->colorProfileTableViewDataSource()->setElementsArray(colorProfiles);
         },
         [&] { return m_window->colorProfileTableViewDataSource()->getElementsArray().join(','); },
         "The list \"Color profile\" holds more than 30 entries."},
    };
    QSignalSpy terminated(m_window.get(), &Controller::applicationShouldTerminate);
    const QByteArray before = CupsServerEnvironment::server().queuePpd("Fresh");
    for (const auto &[what, enter, shown, alert] : cases) {
        SCOPED_TRACE(what);
        enter();
        const QString entered = shown();
        m_alerts.clear();
        click(m_c->okButton);
        ASSERT_TRUE(QTest::qWaitFor([&] { return !m_alerts.isEmpty(); }, 30000));
        EXPECT_EQ(m_alerts, QStringList{alert});
        EXPECT_EQ(shown(), entered);
        EXPECT_TRUE(m_c->okButton->isEnabled());
    }
    EXPECT_EQ(terminated.count(), 0);
    EXPECT_EQ(CupsServerEnvironment::server().queuePpd("Fresh"), before);
}

// Personal folder enabled only at admin login mode 1, its state kept; empty lists change nothing.
TEST_F(WindowTest, FetchesKeepWhatThePrinterDoesNotChange) {
    openOnPrinter();
    const std::pair<long, bool> modes[] = {{1, true}, {2, false}, {1, true}, {0, false}};
    for (const auto &[mode, enabled] : modes) {
        m_printer.set(P::kAdminLoginMode, mode);
        click(m_c->folderGetPrinterInfoButton);
        EXPECT_EQ(m_c->folderPersonalFolderCheck->isEnabled(), enabled) << mode;
        if (!m_c->folderPersonalFolderCheck->isChecked())
            click(m_c->folderPersonalFolderCheck);
        EXPECT_TRUE(m_c->folderPersonalFolderCheck->isChecked()) << mode;
    }
    click(m_c->formGetPrinterInfoButton);
    const QStringList fetched = forms();
    for (int index = 1; index <= 100; ++index)
        m_printer.set(P::stateOid(P::Table::Form, index), 0L);
    click(m_c->formGetPrinterInfoButton);
    EXPECT_EQ(fetched.size(), 50);
    EXPECT_EQ(forms(), fetched);
    EXPECT_EQ(m_alerts, QStringList());
}

// The window's texts, default folders and alerts follow the user's language.
TEST_F(WindowTest, TextsInTheUsersLanguage) {
    OVPreferredLanguages::setOverride(QStringList{"de-DE"});
    open();
    click(m_c->folderGetPrinterInfoButton); // no address: fails
    EXPECT_EQ(m_c->meinTabView->tabText(0).remove('&'), "Ordner");
    EXPECT_EQ(m_c->folderClearButton->text().remove('&'), "Leeren");
    EXPECT_EQ(m_c->folderPersonalFolderCheck->text().remove('&'), "Persönlichen Ordner verwenden");
    EXPECT_EQ(m_window->registerFolderTableViewDataSource()->getElementAtRow(0),
              "Freigegebener Ordner 1");
    EXPECT_EQ(m_alerts, QStringList{"Die Informationen konnten nicht abgerufen werden."});
}

// The controls a user can reach, other than the window's Close and Cancel.
QList<QWidget *> settingsControlsOn(QWidget *window, const Ui::MainUtilityWindiw &c) {
    QList<QWidget *> on;
    for (QWidget *control : window->findChildren<QWidget *>()) {
        const bool reachable = qobject_cast<QAbstractButton *>(control) ||
                               qobject_cast<QLineEdit *>(control) ||
                               qobject_cast<QAbstractItemView *>(control);
        if (reachable && control != c.closeButton && control != c.cancelButton &&
            control->isEnabled() && control->isVisible())
            on << control;
    }
    return on;
}

// While a fetch or a save runs, what would re-enable a control when idle (a field's text
// notification, the check boxes' toggles, typing) turns none on, and the progress says what
// runs. Both tasks are held on a peer that is slow (the printer) or stopped (cupsd); Cancel
// ends each at once, and the cancelled fetch changes no list.
TEST_F(WindowTest, ATaskAloneDecidesTheControls) {
    openOnPrinter();
    m_c->macAddressText6->setText("cc");
    const auto poke = [&](const char *progress) {
        EXPECT_TRUE(m_c->progressIndicatorText->isVisible());
        EXPECT_EQ(m_c->progressIndicatorText->text(), progress);
        const auto toggle = [&] {
            m_c->wakeOnLANCheck->toggle();
            m_window->wakeOnLANCheckClicked(m_c->wakeOnLANCheck);
            m_c->snmpCommunityCheck->toggle();
            m_window->customSnmpCommunityClicked(m_c->snmpCommunityCheck);
        };
        OVNotificationCenter::defaultCenter().postNotification(
            OVCustomRestrictedTextField::notification, m_c->macAddressText1);
        toggle();
        QTest::keyClicks(m_c->macAddressText1, "1");
        EXPECT_EQ(settingsControlsOn(m_window->mainWindowObject(), *m_c), QList<QWidget *>());
        EXPECT_TRUE(m_c->cancelButton->isEnabled() && m_c->closeButton->isEnabled());
        toggle();
    };
    const QStringList before = forms();
    m_printer.setResponseDelayMs(300);
    QElapsedTimer sinceCancel;
    QTimer::singleShot(100, [&] { poke("Getting information from printer..."); });
    QTimer::singleShot(450, [&] {
        sinceCancel.start();
        click(m_c->cancelButton);
    });
    click(m_c->printerGetPrinterInfoButton);
    m_printer.setResponseDelayMs(0);
    EXPECT_LT(sinceCancel.elapsed(), 1000);
    EXPECT_EQ(forms(), before);
    EXPECT_EQ(m_window->state(), Controller::State::Idle);

    const pid_t cupsd = pid_t(CupsServerEnvironment::server().pid());
    ::kill(cupsd, SIGSTOP);
    click(m_c->okButton);
    poke("Saving settings...");
    click(m_c->cancelButton);
    ::kill(cupsd, SIGCONT);
    EXPECT_EQ(m_window->state(), Controller::State::Idle);
    EXPECT_TRUE(m_c->okButton->isEnabled() && m_c->macAddressText1->isEnabled());
    EXPECT_FALSE(m_c->cancelButton->isVisible());
    EXPECT_EQ(m_alerts, QStringList());
}

// Closing during Get Printer Info ends it at once, while the printer keeps quiet and while
// the wake flow waits for a printer going to sleep (5 s between questions): no further
// question to the printer, no alert but whether to drop the typed address.
TEST_F(WindowTest, ClosingEndsAFetchAtOnce) {
    const std::function<void()> waits[] = {
        [&] { m_c->wakeOnLANCheck->setChecked(false), m_printer.setSilent(true); },
        [&] { m_c->macAddressText6->setText("cc"), m_printer.set(P::kSleepMode, 2L); }};
    for (const auto &wait : waits) {
        openOnPrinter();
        wait();
        QSignalSpy terminated(m_window.get(), &Controller::applicationShouldTerminate);
        QElapsedTimer sinceClose;
        QTimer::singleShot(300, m_window.get(), [&] {
            sinceClose.start();
            m_window->mainWindowObject()->close();
        });
        EXPECT_LE(requestsDuring(m_printer, [&] { click(m_c->formGetPrinterInfoButton); }), 1);
        EXPECT_LT(sinceClose.elapsed(), 1000);
        EXPECT_FALSE(m_window->mainWindowObject()->isVisible());
        EXPECT_EQ(terminated.count(), 1);
        EXPECT_EQ(m_alerts, QStringList{"Discard the changes to the settings?"});
        m_alerts.clear();
        m_printer.setDefaults();
    }
}

// The program as users start it exits within 2 s of its window closing during Get Printer Info,
// while the printer keeps quiet and while the wake flow waits for a printer going to sleep.
TEST_F(WindowTest, ProgramExitsSoonAfterClosingDuringAFetch) {
    const std::pair<QByteArray, std::function<void()>> waits[] = {
        {"0", [&] { m_printer.setSilent(true); }},
        {"1", [&] { m_printer.set(P::kSleepMode, 2L); }}};
    for (const auto &[wake, wait] : waits) {
        SCOPED_TRACE(wake.toStdString());
        wait();
        // Qt would make its runtime folder in the client's temporary folder, which must stay empty.
        const QTemporaryDir runtime;
        SpawnedProcess program;
        program.setEnvironment({{"ORVO_SCRIPT_PRINTER", P::loopbackAddress().toUtf8()},
                                {"ORVO_SCRIPT_WAKE", wake},
                                {"XDG_RUNTIME_DIR", QFile::encodeName(runtime.path())}});
        bool finished = false;
        std::chrono::milliseconds exited{};
        const int asked = requestsDuring(m_printer, [&] {
            finished = program.start(ORVO_SCRIPTED_UTILITY, {"--printer", "Fresh"}) &&
                       program.waitForFinished(60000);
            exited = std::chrono::duration_cast<std::chrono::milliseconds>(
                std::chrono::steady_clock::now().time_since_epoch());
        });
        ASSERT_TRUE(finished) << program.errorText().toStdString();
        // The window closed while the fetch was under way: the printer was asked.
        EXPECT_GE(asked, 1);
        EXPECT_EQ(program.exitCode(), 0) << program.standardError().toStdString();
        const QByteArray closed = program.standardOutput().trimmed();
        ASSERT_FALSE(closed.isEmpty()) << program.standardError().toStdString();
        const qint64 exitMs = exited.count() - closed.toLongLong();
        std::printf("Wake-on-LAN %s: the program exited %lld ms after its window closed\n",
                    wake.constData(), static_cast<long long>(exitMs));
        EXPECT_LT(exitMs, 2000);
        m_printer.setDefaults();
    }
}

// A server that stops answering after OK costs the save its one limit of 30 s, not one per
// request; the alert says so and the window keeps what the user set.
TEST_F(WindowTest, SaveToAStoppedServerEndsWithinItsLimit) {
    openOnPrinter();
    type(m_c->printerIPAddressText, "192.0.2.7");
    const pid_t cupsd = pid_t(CupsServerEnvironment::server().pid());
    QElapsedTimer elapsed;
    elapsed.start();
    ::kill(cupsd, SIGSTOP);
    click(m_c->okButton);
    const bool ended =
        QTest::qWaitFor([&] { return m_window->state() != Controller::State::Saving; }, 40000);
    ::kill(cupsd, SIGCONT);
    EXPECT_TRUE(ended);
    EXPECT_LT(elapsed.elapsed(), 35000);
    EXPECT_EQ(m_window->state(), Controller::State::Idle);
    // Said as unreachable when it stopped before the queue's set-up was checked.
    ASSERT_EQ(m_alerts.size(), 1);
    EXPECT_TRUE(m_alerts.first().startsWith("The print server stopped answering") ||
                m_alerts.first().contains("cannot be reached"))
        << m_alerts.first().toStdString();
    EXPECT_EQ(m_c->printerIPAddressText->text(), "192.0.2.7");
}

// On a queue that names who may save, and not this user, the settings show read-only with the
// reason in the bar, and the tabs still switch. Named, the user saves; taken off the list
// after the window opened, OK refuses before anything is sent.
TEST_F(WindowTest, OnlyTheNamedUsersSave) {
    CupsServer &cups = CupsServerEnvironment::server();
    ASSERT_TRUE(cups.addQueue("Named"));
    const auto name = [](const char *savers) {
        EXPECT_EQ(OVQueueSetup::setUp("Named", OrvoSavers::parse(savers)).outcome,
                  OVQueueSetup::Outcome::Changed);
    };
    name("alice,@orvo-nobody");
    open("Named");
    EXPECT_EQ(m_window->messageBar()->text(),
              "You may not change this queue's settings: the print queue \"Named\" names who may "
              "save them. They are shown read-only.");
    EXPECT_EQ(settingsControlsOn(m_window->mainWindowObject(), *m_c), QList<QWidget *>());
    EXPECT_TRUE(m_c->meinTabView->isEnabled());

    name("alice,root");
    open("Named");
    EXPECT_TRUE(m_c->okButton->isEnabled() && m_c->snmpCommunityCheck->isEnabled());
    name("alice");
    const int jobsBefore = cups.lastJob();
    click(m_c->okButton);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !m_alerts.isEmpty(); }, 30000));
    EXPECT_EQ(m_alerts, QStringList{m_window->messageBar()->text()});
    EXPECT_FALSE(m_c->okButton->isEnabled());
    EXPECT_EQ(cups.lastJob(), jobsBefore);

    name("all");
    open("Named");
    QSignalSpy terminated(m_window.get(), &Controller::applicationShouldTerminate);
    click(m_c->okButton);
    EXPECT_TRUE(terminated.wait(30000)); // saved and closed
    EXPECT_GT(cups.lastJob(), jobsBefore);
}

// Runs action, answering the SNMP security dialog if it opens: fill sets it up, then OK. The
// dialog's explanation, or nothing when the window did not ask.
std::optional<QString> securityAsked(const std::function<void()> &action,
                                     const std::function<void(OVSnmpSecurityDialog *)> &fill = {}) {
    std::optional<QString> explanation;
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, [&] {
        auto *dialog = qobject_cast<OVSnmpSecurityDialog *>(QApplication::activeModalWidget());
        if (!dialog || explanation)
            return;
        const auto *label = dialog->findChild<QLabel *>("explanation"); // when it asks itself
        explanation = label ? label->text() : QString();
        if (fill)
            fill(dialog);
        dialog->accept();
    });
    poll.start(20);
    action();
    return explanation;
}

void chooseV3(OVSnmpSecurityDialog *dialog, const char *user, const char *auth, const char *priv) {
    dialog->findChild<QRadioButton *>("snmpVersion3")->setChecked(true);
    type(dialog->findChild<QLineEdit *>("snmpUser"), user);
    auto *privacy = dialog->findChild<QComboBox *>("snmpPrivProtocol");
    privacy->setCurrentIndex(privacy->findText("AES-128"));
    type(dialog->findChild<QLineEdit *>("snmpAuthPassphrase"), auth);
    type(dialog->findChild<QLineEdit *>("snmpPrivPassphrase"), priv);
}

// The secret store keeps one entry per address, user and passphrase, and has
// none it was not given or that was forgotten.
TEST(SecretStore, KeepsEachPassphraseUnderItsOwnKey) {
    ASSERT_TRUE(SecretServiceEnvironment::s_started)
        << SecretServiceEnvironment::s_service->errorText().toStdString();
    using Part = OVSecretStore::Part;
    ASSERT_TRUE(OVSecretStore::write("192.0.2.7", "alice", Part::Auth, "alice-auth"));
    ASSERT_TRUE(OVSecretStore::write("192.0.2.7", "alice", Part::Priv, "alice-priv"));
    ASSERT_TRUE(OVSecretStore::write("192.0.2.8", "alice", Part::Auth, "other-printer"));
    const std::tuple<const char *, const char *, Part, std::optional<QByteArray>> cases[] = {
        {"192.0.2.7", "alice", Part::Auth, "alice-auth"},
        {"192.0.2.7", "alice", Part::Priv, "alice-priv"},
        {"192.0.2.8", "alice", Part::Auth, "other-printer"},
        {"192.0.2.8", "alice", Part::Priv, std::nullopt},
        {"192.0.2.7", "bob", Part::Auth, std::nullopt}};
    for (const auto &[address, user, part, expected] : cases)
        EXPECT_EQ(OVSecretStore::read(address, user, part), expected) << address << " " << user;
    OVSecretStore::forget("192.0.2.7", "alice", Part::Auth);
    EXPECT_EQ(OVSecretStore::read("192.0.2.7", "alice", Part::Auth), std::nullopt);
    EXPECT_EQ(OVSecretStore::read("192.0.2.7", "alice", Part::Priv), "alice-priv");
}

// On a printer with v1 switched off the window asks as the SNMPv3 user the
// dialog names, keeps the passphrases in the secret store and finds them
// there on the next fetch; a refused passphrase is named and dropped. No
// passphrase reaches the queue's PPD, the update job, cupsd's log or the utility's.
TEST_F(WindowTest, SnmpV3UserWithPassphrasesInTheSecretStore) {
    ASSERT_TRUE(SecretServiceEnvironment::s_started);
    // Every log line of the window and the core, on for this test; the worker logs too.
    static QStringList logged;
    static std::mutex loggedLock;
    QLoggingCategory::setFilterRules("orvo.*=true");
    const QtMessageHandler before =
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &text) {
            const std::lock_guard<std::mutex> hold(loggedLock);
            logged << text;
        });
    P::Options options;
    options.listen = options.counterPeer = "udp:127.0.0.5:161";
    options.v1Off = true;
    P secured(options);
    ASSERT_TRUE(secured.start()) << secured.errorText().toStdString();
    secured.setDefaults();
    CupsServer &server = CupsServerEnvironment::server();
    ASSERT_TRUE(server.addQueue("Secured"));
    open("Secured");
    type(m_c->printerIPAddressText, "127.0.0.5");
    click(m_c->formGetPrinterInfoButton);
    EXPECT_EQ(m_alerts, QStringList{"Failed to obtain information."}) << "v1 is off";
    m_alerts.clear();

    EXPECT_TRUE(securityAsked([&] { click(m_c->snmpSecurityButton); },
                              [](OVSnmpSecurityDialog *dialog) {
                                  chooseV3(dialog, P::kPrivUser, P::kAuthPassphrase,
                                           P::kPrivPassphrase);
                              }));
    EXPECT_FALSE(m_c->snmpCommunityCheck->isEnabled());
    click(m_c->formGetPrinterInfoButton);
    EXPECT_EQ(m_alerts, QStringList());
    EXPECT_EQ(forms(), secured.namesInUse(P::Table::Form));
    EXPECT_EQ(OVSecretStore::read("127.0.0.5", P::kPrivUser, OVSecretStore::Part::Auth),
              P::kAuthPassphrase);

    QSignalSpy terminated(m_window.get(), &Controller::applicationShouldTerminate);
    click(m_c->okButton);
    ASSERT_TRUE(terminated.wait(30000));
    m_window.reset();
    const QByteArray job = server.jobControlFile(server.lastJob());
    EXPECT_TRUE(job.contains("UpdatePPDOptions")) << "the update job is kept";
    const QByteArray ppd = server.queuePpd("Secured");
    EXPECT_TRUE(ppd.contains("*SnmpVersion: \"3\"")) << ppd.toStdString();
    for (const QByteArray &kept : {ppd, job, server.errorLog()})
        EXPECT_FALSE(kept.contains(P::kAuthPassphrase) || kept.contains(P::kPrivPassphrase));

    // Reopened, the window finds the passphrases in the store without asking.
    open("Secured");
    m_c->macAddressText6->setText("cc"); // a MAC to wake: the flow asks the sleep mode over v3
    EXPECT_FALSE(securityAsked([&] { click(m_c->barcodeAreaDefinitionGetPrinterInfoButton); }));
    EXPECT_EQ(m_alerts, QStringList());
    EXPECT_EQ(m_window->barcodeAreaDefinitionTableViewDataSource()->getElementsArray(),
              secured.namesInUse(P::Table::BarcodeArea));

    // A wrong authentication passphrase in the store: named, dropped, asked for next time.
    ASSERT_TRUE(OVSecretStore::write("127.0.0.5", P::kPrivUser, OVSecretStore::Part::Auth,
                                     "wrong-auth-phrase"));
    open("Secured");
    const AlertRecorder alerts(0, true);
    click(m_c->formGetPrinterInfoButton);
    ASSERT_EQ(alerts.size(), 1);
    EXPECT_TRUE(alerts[0].contains("|The printer at 127.0.0.5 refused the authentication "
                                   "passphrase"))
        << alerts[0].toStdString();
    EXPECT_EQ(OVSecretStore::read("127.0.0.5", P::kPrivUser, OVSecretStore::Part::Auth),
              std::nullopt);
    const auto explanation = securityAsked(
        [&] { click(m_c->formGetPrinterInfoButton); },
        [](OVSnmpSecurityDialog *dialog) {
            type(dialog->findChild<QLineEdit *>("snmpAuthPassphrase"), P::kAuthPassphrase);
        });
    EXPECT_TRUE(explanation.value_or("").contains("as the SNMPv3 user orvo_admin"));
    EXPECT_EQ(alerts.size(), 1);
    qInstallMessageHandler(before);
    QLoggingCategory::setFilterRules(QString());
    const QString log = [] {
        const std::lock_guard<std::mutex> hold(loggedLock);
        return logged.join('\n');
    }();
    EXPECT_TRUE(log.contains("SNMP request to 127.0.0.5")) << "the log was on";
    for (const char *passphrase : {P::kAuthPassphrase, P::kPrivPassphrase, "wrong-auth-phrase"})
        EXPECT_FALSE(log.contains(passphrase)) << passphrase;
}

} // namespace
