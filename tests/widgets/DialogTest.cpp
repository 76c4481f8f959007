// The settings window and the queue chooser behave as desktop dialogs: titles,
// keys, questions before something is dropped, messages that say why, MAC
// entry, size, mnemonics, the chooser's choice and servers, the bar's notes.
// They read private cupsd servers; nothing here reaches a printer.
#include "AlertRecorder.h"
#include "CupsServerEnvironment.h"
#include "OVAlert.h"
#include "OVFetchFailureText.h"
#include "OVMessageBar.h"
#include "OVMnemonics.h"
#include "OVPreferredLanguages.h"
#include "OVPrinterUtilityWindowController.h"
#include "OVQueueChooser.h"
#include "OVQueueDevice.h"
#include "OVQueueSetup.h"
#include "OVSnmpSecurityDialog.h"
#include "ui_MainUtilityWindiw.h"

#include <QAbstractItemModel>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDialogButtonBox>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QSettings>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <csignal>

[[maybe_unused]] const auto cupsd = ::testing::AddGlobalTestEnvironment(new CupsServerEnvironment);

namespace {

using Controller = OVPrinterUtilityWindowController;

class DialogTest : public ::testing::Test {
protected:
    // "Plain", "Bare" and "Spare" are not set up: their bar offers Set Up….
    static void SetUpTestSuite() {
        CupsServer &cups = CupsServerEnvironment::server();
        ASSERT_TRUE(cups.addQueue("Office") && cups.addQueue("Lab") && cups.addQueue("Plain") &&
                    cups.addQueue("Bare") && cups.addQueue("Spare"));
        for (const char *queue : {"Plain", "Bare", "Spare"})
            ASSERT_EQ(OVQueueSetup::remove(queue).outcome, OVQueueSetup::Outcome::Changed);
    }
    void TearDown() override {
        Controller::setInformationDictionary(std::nullopt);
        OVPreferredLanguages::setOverride(std::nullopt);
    }

    void open(const QString &queue = "Office") {
        m_window = std::make_unique<Controller>();
        QSignalSpy loaded(m_window.get(), &Controller::settingsLoaded);
        m_window->applicationDidFinishLaunching({"--printer", queue});
        m_window->mainWindowObject()->show();
        m_c = &m_window->controls();
        ASSERT_TRUE(loaded.wait(30000));
    }
    // Whether the window ended (closed and asked the application to quit).
    bool ends(const std::function<void()> &action) {
        QSignalSpy terminated(m_window.get(), &Controller::applicationShouldTerminate);
        action();
        return !terminated.isEmpty() && !m_window->mainWindowObject()->isVisible();
    }

    std::unique_ptr<Controller> m_window;
    Ui::MainUtilityWindiw *m_c = nullptr;
};

TEST_F(DialogTest, TitleNamesTheQueue) {
    const std::pair<std::optional<QVariantMap>, const char *> cases[] = {
        {std::nullopt, "Orvo Printer Utility — Office"},
        {QVariantMap{{"Orvo Printer - Model Name", "X-900"}}, "X-900 - Utility — Office"}};
    for (const auto &[dictionary, title] : cases) {
        Controller::setInformationDictionary(dictionary);
        open();
        EXPECT_EQ(m_window->mainWindowObject()->windowTitle(), QString::fromUtf8(title));
    }
}

TEST_F(DialogTest, ReturnIsOkAndEscapeIsClose) {
    AlertRecorder alerts;
    open();
    QTest::keyClick(m_c->printerIPAddressText, Qt::Key_Return);
    EXPECT_EQ(m_window->state(), Controller::State::Saving);
    m_window->cancelButtonClicked(m_c->cancelButton);
    open();
    EXPECT_TRUE(ends([&] { QTest::keyClick(m_c->printerIPAddressText, Qt::Key_Escape); }));
    EXPECT_TRUE(alerts.isEmpty()) << alerts.join('\n').toStdString();
}

// Close and the window's own close button ask only when something changed,
// and the answer Cancel keeps the window and what was typed.
TEST_F(DialogTest, ClosingAsksBeforeChangesAreDropped) {
    const struct {
        bool change;
        int answer; // 0: Discard, 1: Cancel
        bool viaWindow;
        int questions;
        bool closes;
    } cases[] = {{false, 1, false, 0, true},
                 {false, 1, true, 0, true},
                 {true, 0, false, 1, true},
                 {true, 1, false, 1, false},
                 {true, 1, true, 1, false}};
    for (const auto &c : cases) {
        AlertRecorder alerts(c.answer);
        open();
        if (c.change)
            QTest::keyClicks(m_c->printerIPAddressText, "192.0.2.1");
        QWidget *window = m_window->mainWindowObject();
        EXPECT_EQ(ends([&] { c.viaWindow ? void(window->close()) : m_c->closeButton->click(); }),
                  c.closes);
        ASSERT_EQ(alerts.size(), c.questions);
        if (c.questions) {
            EXPECT_TRUE(alerts[0].startsWith("Discard the changes"));
        }
        if (!c.closes) {
            EXPECT_TRUE(window->isVisible() && m_c->printerIPAddressText->text() == "192.0.2.1");
        }
    }
}

// The alert keeps its message and says why as its informative text: the
// window's own empty address, then each failure kind of a step.
TEST_F(DialogTest, FetchFailureSaysWhy) {
    AlertRecorder alerts(0, true);
    open();
    m_c->printerGetPrinterInfoButton->click();
    EXPECT_EQ(alerts, QStringList{"Failed to obtain information.|The IP address of the "
                                  "printer is empty. Enter it, then try again."});
    using R = OVSNMPHelper::Reason;
    using S = OVPrinterInfoFetch::Step;
    constexpr auto v1 = OVSnmpCredentials::Version::V1;
    constexpr auto v3 = OVSnmpCredentials::Version::V3;
    const std::tuple<R, S, OVSnmpCredentials::Version, const char *> cases[] = {
        {R::NoAnswer, S::MacAddress, v1,
         "The printer at ::1 did not answer when asked for its MAC address. The IP address or the "
         "SNMP community name may be wrong."},
        {R::NoAnswer, S::Folders, v3,
         "The printer at ::1 did not answer when asked for its shared folders. The IP address or "
         "the SNMPv3 privacy passphrase may be wrong."},
        {R::Refused, S::Forms, v1,
         "The printer at ::1 answered with an error when asked for its forms. It may not keep "
         "this information."},
        {R::Unreadable, S::ColorProfiles, v3,
         "The printer at ::1 sent an answer that cannot be read when asked for its color "
         "profiles."},
        {R::UnknownUser, S::MacAddress, v3,
         "The printer at ::1 has no SNMPv3 user of this name (asked for its MAC address). Check "
         "the user name under SNMP Security."},
        {R::WrongPassphrase, S::Forms, v3,
         "The printer at ::1 refused the authentication passphrase of the SNMPv3 user when asked "
         "for its forms. Enter it again under SNMP Security."},
        {R::UnsupportedSecurityLevel, S::BarcodeAreas, v3,
         "The printer at ::1 does not accept the SNMPv3 user with privacy as chosen (asked for "
         "its barcode area definitions). Check the privacy protocol under SNMP Security."},
        {R::UnknownHost, S::MacAddress, v3,
         "No host is known as \"::1\". Check the printer's IP address."}};
    for (const auto &[reason, step, version, text] : cases)
        EXPECT_EQ(OVFetchFailureText::reason("::1", {step, {reason, "detail"}}, version), text);
}

// The SNMP security dialog takes OK only for what can be asked: a v3 user with a name, no
// passphrase too short for a key and, when it opened before a fetch, every passphrase the
// security level needs. It gives back the user and protocols it was given.
TEST(SnmpSecurityDialog, OkOnlyForWhatCanBeAsked) {
    using Choice = OVSnmpSecurityDialog::Choice;
    const auto v3 = [](const char *user, const char *auth, const char *priv, const char *privPass) {
        return Choice{true, user, "SHA-512", priv, auth, privPass};
    };
    // The choice, whether the dialog opened before a fetch, whether OK is on.
    const std::tuple<const char *, Choice, bool, bool> cases[] = {
        {"v1", Choice{}, true, true},
        {"noUser", v3("", "", "", ""), false, false},
        {"userAlone", v3("admin", "", "AES-128", ""), false, true},
        {"userAloneBeforeFetch", v3("admin", "", "AES-128", ""), true, false},
        {"shortPassphrase", v3("admin", "1234567", "", ""), false, false},
        {"authNoPriv", v3("admin", "12345678", "", ""), true, true},
        {"privPassphraseMissing", v3("admin", "12345678", "AES-256", ""), true, false},
        {"authPriv", v3("admin", "12345678", "DES", "12345678"), true, true},
    };
    for (const auto &[label, choice, beforeFetch, enabled] : cases) {
        SCOPED_TRACE(label);
        OVSnmpSecurityDialog dialog(choice, beforeFetch ? "asked" : "", nullptr);
        auto *buttons = dialog.findChild<QDialogButtonBox *>();
        QAbstractButton *ok = buttons->buttons().first();
        for (QAbstractButton *button : buttons->buttons())
            if (buttons->buttonRole(button) == QDialogButtonBox::AcceptRole)
                ok = button;
        EXPECT_EQ(ok->isEnabled(), enabled);
        const Choice back = dialog.choice();
        EXPECT_EQ(back.v3, choice.v3);
        if (choice.v3) {
            EXPECT_EQ(QStringList({back.user, back.authProtocol, back.privProtocol}),
                      QStringList({choice.user, "SHA-512", choice.privProtocol}));
        }
    }
}

// A refused character is named with what is allowed; the text typed before
// and after it stays.
TEST_F(DialogTest, CommunityMessageNamesTheRefusedCharacter) {
    AlertRecorder alerts(0, true);
    open();
    m_c->snmpCommunityCheck->click();
    m_c->snmpCommunityText->clear();
    QTest::keyClicks(m_c->snmpCommunityText, "ab#cd");
    EXPECT_EQ(m_c->snmpCommunityText->text(), "abcd");
    EXPECT_EQ(alerts,
              QStringList{"The SNMP community name cannot contain \"#\".|It may hold the letters "
                          "A-Z and a-z, the digits 0-9 and these characters: , . / : ; @ [ \\ "
                          "\u00A5 ] ^ _"});
}

// Typing runs on from byte to byte. A whole address pasted into any byte fills
// all six, in each usual form, by key or by the field's menu; anything else
// pasted is refused. (The menu leaves the window inactive: pasting goes last.)
TEST_F(DialogTest, MacAddressPasteAndTyping) {
    open();
    const std::array<QLineEdit *, 6> fields = {m_c->macAddressText1, m_c->macAddressText2,
                                               m_c->macAddressText3, m_c->macAddressText4,
                                               m_c->macAddressText5, m_c->macAddressText6};
    const auto mac = [&] {
        QStringList bytes;
        for (QLineEdit *field : fields)
            bytes << field->text();
        return bytes.join(':');
    };
    const std::pair<const char *, const char *> typing[] = {{"aabbccddeeff", "aa:bb:cc:dd:ee:ff"},
                                                            {"1:2-3", "1:2:3:00:00:00"}};
    for (const auto &[keys, expected] : typing) {
        m_window->setMacAddressStr("00:00:00:00:00:00");
        fields[0]->setFocus();
        fields[0]->selectAll();
        for (const char key : std::string_view(keys))
            QTest::keyClick(QApplication::focusWidget(), key);
        EXPECT_EQ(mac(), expected) << keys;
    }
    // Pasted by the key, or by the field's own menu.
    const std::tuple<const char *, int, const char *, bool> pastes[] = {
        {"00:1B:63:84:45:E6", 0, "00:1B:63:84:45:E6", false},
        {"00-1b-63-84-45-e6", 3, "00:1B:63:84:45:E6", false},
        {" 001b638445E6\n", 5, "00:1B:63:84:45:E6", false},
        {"00:1B:63", 1, "00:00:00:00:00:00", false},
        {"00:1B-63:84:45:E6", 1, "00:00:00:00:00:00", false},
        {"00-1b-63-84-45-e6", 2, "00:1B:63:84:45:E6", true},
        {"00:1B:63", 4, "00:00:00:00:00:00", true}};
    for (const auto &[text, field, expected, viaMenu] : pastes) {
        m_window->setMacAddressStr("00:00:00:00:00:00");
        QApplication::clipboard()->setText(text);
        fields[field]->setFocus();
        if (viaMenu) {
            QTimer::singleShot(0, [] {
                QWidget *menu = QApplication::activePopupWidget();
                ASSERT_NE(menu, nullptr);
                for (QAction *action : menu->actions()) {
                    if (action->text().startsWith("&Paste"))
                        action->trigger();
                }
                menu->close();
            });
            QContextMenuEvent menu(QContextMenuEvent::Mouse, QPoint(1, 1), QPoint(1, 1));
            QApplication::sendEvent(fields[field], &menu);
        } else {
            QTest::keyClick(fields[field], Qt::Key_V, Qt::ControlModifier);
        }
        EXPECT_EQ(mac(), expected) << text;
    }
}

// The window fits the screen's available area with OK and Close in view; the
// suite also runs at 200 % on a 1920×1200 screen.
TEST_F(DialogTest, WindowFitsTheScreen) {
    open();
    QWidget *window = m_window->mainWindowObject();
    const QScreen *screen = window->screen();
    if (qEnvironmentVariable("QT_SCALE_FACTOR") == "2") {
        EXPECT_EQ(screen->geometry().size() * screen->devicePixelRatio(), QSize(1920, 1200));
    }
    const QRect available = screen->availableGeometry();
    EXPECT_LE(window->frameGeometry().width(), available.width());
    EXPECT_LE(window->frameGeometry().height(), available.height());
    for (QWidget *button : {m_c->okButton, m_c->closeButton}) {
        const QRect inWindow(button->mapTo(window, QPoint(0, 0)), button->size());
        EXPECT_TRUE(button->isVisible() && window->rect().contains(inWindow));
    }
}

// Every button, check box and tab (the bar's Set Up… too) has an Alt+letter of
// its own in every shipped language: none shared among the controls a user
// sees at once, the tab page on show and everything outside the pages.
TEST_F(DialogTest, MnemonicsInEveryLanguage) {
    for (const char *language : {"en-US", "de-DE", "fr-FR", "ja-JP", "zh-Hans-CN", "zh-TW"}) {
        OVPreferredLanguages::setOverride(QStringList{language});
        open("Plain");
        QTabWidget *tabs = m_c->meinTabView;
        QStringList outside = {m_c->macAddressLabel->text(), m_c->printerIPAddressLabel->text()};
        for (int i = 0; i < tabs->count(); ++i)
            outside << tabs->tabText(i);
        for (const QAbstractButton *button :
             m_window->mainWindowObject()->findChildren<QAbstractButton *>())
            if (!tabs->isAncestorOf(button) && !button->text().isEmpty())
                outside << button->text();
        EXPECT_GE(outside.size(), 12);
        for (int page = 0; page < tabs->count(); ++page) {
            QStringList seen = outside;
            for (const QAbstractButton *button :
                 tabs->widget(page)->findChildren<QAbstractButton *>())
                if (!button->text().isEmpty())
                    seen << button->text();
            QSet<QChar> letters;
            for (const QString &text : seen) {
                const QChar letter = OVMnemonics::mnemonicOf(text);
                EXPECT_FALSE(letter.isNull()) << language << ": " << text.toStdString();
                EXPECT_FALSE(letters.contains(letter)) << language << ": " << text.toStdString();
                letters << letter;
            }
        }
    }
}

// The folder tab's Clear asks before it drops the registered folders; Cancel keeps them.
TEST_F(DialogTest, FolderClearAsks) {
    for (const auto &[answer, kept] : {std::pair{1, true}, std::pair{0, false}}) {
        AlertRecorder alerts(answer);
        open();
        m_window->folderAddButtonClicked(nullptr);
        const QStringList before = m_window->selectedSharedBoxNames();
        m_c->folderClearButton->click();
        EXPECT_EQ(alerts.size(), 1);
        EXPECT_EQ(m_window->selectedSharedBoxNames() == before, kept);
    }
}

// OK on a queue that is not set up says so and offers the bar's Set Up….
TEST_F(DialogTest, OkOffersSetUp) {
    AlertRecorder alerts(1);
    open("Bare");
    m_c->okButton->click();
    ASSERT_EQ(alerts.size(), 1);
    EXPECT_TRUE(alerts[0].startsWith("The print queue \"Bare\" is not set up"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return m_window->messageBar()->isHidden(); }, 60000));
    EXPECT_EQ(OVQueueSetup::state("Bare"), OVQueueSetup::State::SetUp);
}

// Cancel ends a set-up that waits on a server that stopped answering.
TEST_F(DialogTest, CancelEndsASetUp) {
    open("Spare");
    const auto cupsd = pid_t(CupsServerEnvironment::server().pid());
    ::kill(cupsd, SIGSTOP);
    m_window->messageBar()->actionButton()->click();
    EXPECT_EQ(m_window->state(), Controller::State::SettingUp);
    EXPECT_TRUE(m_c->cancelButton->isVisible());
    QElapsedTimer sinceCancel;
    sinceCancel.start();
    m_c->cancelButton->click();
    ::kill(cupsd, SIGCONT);
    EXPECT_EQ(m_window->state(), Controller::State::Idle);
    EXPECT_LT(sinceCancel.elapsed(), 1000);
    EXPECT_TRUE(m_window->messageBar()->actionButton()->isEnabled());
}

// Runs action (the chooser's start, say) and waits for the chooser to list a server's queues;
// their names, sorted.
QStringList listedQueues(OVQueueChooser &chooser, const std::function<void()> &action) {
    QSignalSpy listed(&chooser, &OVQueueChooser::listed);
    action();
    EXPECT_TRUE(listed.wait(30000));
    QStringList names;
    for (int row = 0; row < chooser.queueTable()->model()->rowCount(); ++row)
        names << chooser.queueTable()->model()->index(row, 0).data().toString();
    names.sort();
    return names;
}

// The chooser preselects the server's default queue, else the first set-up
// one, and says when the filter matches nothing.
TEST_F(DialogTest, ChooserPreselectsAndSaysWhenNothingMatches) {
    {
        OVQueueChooser chooser;
        listedQueues(chooser, [&] { chooser.start(); });
        const QAbstractItemModel *rows = chooser.queueTable()->model();
        QString firstSetUp;
        for (int row = rows->rowCount() - 1; row >= 0; --row)
            if (rows->index(row, 3).data().toString() == "Set up")
                firstSetUp = rows->index(row, 0).data().toString();
        EXPECT_FALSE(firstSetUp.isEmpty());
        EXPECT_EQ(chooser.chosenQueue(), firstSetUp);
        for (const QAbstractButton *button : chooser.findChildren<QAbstractButton *>())
            EXPECT_TRUE(button->text().isEmpty() ||
                        !OVMnemonics::mnemonicOf(button->text()).isNull())
                << button->text().toStdString();
        chooser.filterField()->setText("no such queue");
        EXPECT_EQ(chooser.statusText(), "No queue matches the filter.");
        EXPECT_FALSE(chooser.openButton()->isEnabled());
        chooser.filterField()->clear();
        EXPECT_TRUE(chooser.statusText().isEmpty());
    }
    ASSERT_TRUE(CupsServerEnvironment::server().lpadmin({"-d", "Plain"}));
    OVQueueChooser chooser;
    listedQueues(chooser, [&] { chooser.start(); });
    EXPECT_EQ(chooser.chosenQueue(), "Plain");
}

// The chooser lists the queues of another server the user names, and lists
// that server again on the next start; text that names no server changes
// nothing.
TEST_F(DialogTest, ChooserConnectsToAnotherServerAndRemembersIt) {
    QTemporaryDir home;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, home.path());
    CupsServer other(QStringLiteral(ORVO_PPD_UPDATE_FILTER), {.clientsUseIt = false});
    ASSERT_TRUE(other.isRunning() && other.addQueue("Remote") && other.addQueue("Annex"));
    {
        OVQueueChooser chooser;
        EXPECT_TRUE(listedQueues(chooser, [&] { chooser.start(); }).contains("Office"));
        for (const char *invalid : {"", "printer/queue", "user@host", "host:port"})
            EXPECT_FALSE(chooser.connectToServer(invalid)) << invalid;
        EXPECT_EQ(listedQueues(chooser, [&] { chooser.connectToServer(other.address()); }),
                  (QStringList{"Annex", "Remote"}));
    }
    OVQueueChooser again;
    EXPECT_EQ(listedQueues(again, [&] { again.start(); }), (QStringList{"Annex", "Remote"}));
    EXPECT_EQ(OVQueueChooser::rememberedServer(), other.address());
    EXPECT_TRUE(again.connectToServer(CupsServerEnvironment::server().address()));
}

// A queue without a printer address offers the host of its device URI, which
// Use puts in the field; other device URIs offer nothing.
TEST_F(DialogTest, AddressSuggestedFromTheDeviceUri) {
    const std::pair<const char *, const char *> cases[] = {
        {"socket://192.0.2.10:9100", "192.0.2.10"},
        {"ipp://printer.example/ipp/print", "printer.example"},
        {"ipps://[2001:db8::5]/ipp/print", "2001:db8::5"},
        {"lpd://192.0.2.11/queue", "192.0.2.11"},
        {"http://192.0.2.12:631/ipp", "192.0.2.12"},
        {"https://printer.example/ipp", "printer.example"},
        {"file:/dev/null", ""},
        {"usb://Maker/Model", ""}};
    for (const auto &[uri, host] : cases)
        EXPECT_EQ(OVQueueDevice::hostOf(uri), host) << uri;
    CupsServer &cups = CupsServerEnvironment::server();
    ASSERT_TRUE(cups.lpadmin({"-p", "Office", "-v", "socket://192.0.2.10:9100"}));
    open();
    const OVMessageBar *bar = m_window->messageBar();
    EXPECT_TRUE(bar->isVisible() && bar->text().endsWith("It prints to 192.0.2.10."));
    EXPECT_TRUE(m_c->printerIPAddressText->text().isEmpty());
    bar->actionButton()->click();
    EXPECT_EQ(m_c->printerIPAddressText->text(), "192.0.2.10");
    EXPECT_TRUE(bar->isHidden());
    // A stopped queue says so first.
    ASSERT_EQ(SpawnedProcess::execute("cupsdisable", {"Office"}), 0);
    open();
    EXPECT_TRUE(m_window->messageBar()->text().contains("is stopped"));
    ASSERT_EQ(SpawnedProcess::execute("cupsenable", {"Office"}), 0);
    ASSERT_TRUE(cups.lpadmin({"-p", "Office", "-v", "file:/dev/null"}));
}

TEST(AlertTitle, IsTheApplicationsDisplayName) {
    QApplication::setApplicationDisplayName("Orvo Printer Utility");
    const auto alert = OVAlert::alertWithMessageText("Text", {}, {}, {}, {});
    EXPECT_EQ(alert->windowTitle(), "Orvo Printer Utility");
}

} // namespace
