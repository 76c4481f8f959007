// The main window driven by clicks and typing, against a private cupsd and printer.
#include "CupsServerEnvironment.h"
#include "OVAlert.h"
#include "OVPreferredLanguages.h"
#include "OVPrinterUtilityWindowController.h"
#include "OVTableViewDataSource.h"
#include "PrivateNetwork.h"
#include "SimulatedPrinter.h"
#include "ui_MainUtilityWindiw.h"

#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

const bool isolated = PrivateNetwork::enter();
[[maybe_unused]] const auto cupsd = ::testing::AddGlobalTestEnvironment(new CupsServerEnvironment);

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
        ASSERT_TRUE(printer.start()) << printer.errorText().toStdString();
        printer.setDefaults();
        OVAlert::setResponder([this](const OVAlert &alert) {
            alerts << alert.text();
            return 0;
        });
    }
    void TearDown() override {
        window.reset();
        OVAlert::setResponder({});
        OVPreferredLanguages::setOverride(std::nullopt);
    }

    // The window shows at once; its settings arrive from cupsd a moment later.
    void open(const QString &queue = "Fresh") {
        window.reset();
        window = std::make_unique<Controller>();
        QSignalSpy loaded(window.get(), &Controller::settingsLoaded);
        window->applicationDidFinishLaunching({"--printer", queue});
        window->mainWindowObject()->show();
        c = &window->controls();
        EXPECT_FALSE(c->okButton->isEnabled());
        ASSERT_TRUE(loaded.wait(30000));
    }
    void openOnPrinter() {
        open();
        type(c->printerIPAddressText, P::loopbackAddress());
    }
    // GET requests the printer received while work ran.
    static int requestsDuring(P &to, const std::function<void()> &work) {
        const int before = to.requestCount();
        work();
        return to.requestCount() - before;
    }
    QStringList forms() const { return window->formTableViewDataSource()->getElementsArray(); }
    QStringList chosen() const {
        return window->selectedFolderTableViewDataSource()->getElementsArray();
    }

    static P::Options alsoOnIPv6() {
        P::Options options;
        options.listen += ",udp6:[::1]:161";
        return options;
    }

    P printer{alsoOnIPv6()};
    QStringList alerts;
    std::unique_ptr<Controller> window;
    Ui::MainUtilityWindiw *c = nullptr;
};

TEST_F(WindowTest, DefaultsChooseFetchSaveAndReopen) {
    CupsServer &server = CupsServerEnvironment::server();
    ASSERT_TRUE(server.addQueue("Office"));
    printer.set(P::nameOid(P::Table::SharedBox, 1), QByteArray("営業部 🎨"));
    const QStringList folders = printer.namesInUse(P::Table::SharedBox);
    open("Office");
    EXPECT_EQ(window->registerFolderTableViewDataSource()->count(), 100u);
    EXPECT_EQ(chosen(), QStringList{"Shared Folder 1"});
    EXPECT_TRUE(c->wakeOnLANCheck->isChecked() && !c->snmpCommunityCheck->isChecked() &&
                !c->snmpCommunityText->isEnabled() && !c->folderPersonalFolderCheck->isChecked());
    EXPECT_EQ(c->snmpCommunityText->text() + c->macAddressText4->text(), "cobalt00");

    // A chosen folder keeps its register row, which the fetch renames from the printer.
    c->meinTabView->setCurrentWidget(c->folderTabViewItem);
    for (int row : {4, 2}) {
        clickRow(c->folderSharedFolderTable, row);
        click(c->folderAddButton);
    }
    clickRow(c->folderSelectedFolderTable, 1);
    click(c->folderDeleteButton);
    EXPECT_EQ(chosen(), QString("Shared Folder 1,Shared Folder 3").split(','));
    type(c->printerIPAddressText, P::loopbackAddress());
    click(c->printerGetPrinterInfoButton);
    ASSERT_TRUE(alerts.isEmpty()) << alerts.join('|').toStdString();
    EXPECT_EQ(chosen(), (QStringList{folders[0], folders[2]}));
    click(c->folderPersonalFolderCheck);
    // A job too large for cupsd: one alert, and the window stays open with its settings.
    const QStringList fetchedForms = forms();
    window->formTableViewDataSource()->setElementsArray(QStringList(100, QString(900, 'a')));
    QSignalSpy terminated(window.get(), &Controller::applicationShouldTerminate);
    click(c->okButton);
    EXPECT_EQ(alerts.size(), 1);
    window->formTableViewDataSource()->setElementsArray(fetchedForms);
    click(c->okButton);
    ASSERT_TRUE(terminated.wait(30000));
    window.reset();
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return server.queuePpd("Office").contains("*PPDOptionsUpdated: \"1\""); }, 30000));
    open("Office");
    EXPECT_EQ(window->registerFolderTableViewDataSource()->getElementsArray(), folders);
    EXPECT_EQ(chosen(), (QStringList{folders[0], folders[2]}));
    EXPECT_TRUE(c->folderPersonalFolderCheck->isChecked());
    EXPECT_EQ(c->printerIPAddressText->text(), P::loopbackAddress());
    EXPECT_EQ(c->macAddressText1->text() + c->macAddressText6->text(), "00cc");
    EXPECT_EQ(forms(), printer.namesInUse(P::Table::Form));
    EXPECT_EQ(window->barcodeAreaDefinitionTableViewDataSource()->getElementsArray(),
              printer.namesInUse(P::Table::BarcodeArea));
    EXPECT_EQ(window->colorProfileTableViewDataSource()->getElementsArray(),
              printer.namesInUse(P::Table::ColorProfile));
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
    click(c->wakeOnLANCheck);
    for (const auto &[address, missing, requests, folders] : cases) {
        SCOPED_TRACE(address.toStdString() + " without " + missing.toStdString());
        type(c->printerIPAddressText, address);
        printer.setDefaults();
        if (!missing.isEmpty())
            printer.set(missing, {});
        alerts.clear();
        EXPECT_EQ(requestsDuring(printer, [&] { click(c->printerGetPrinterInfoButton); }),
                  requests);
        const bool fails = !missing.isEmpty() || address.isEmpty();
        EXPECT_EQ(alerts, fails ? QStringList{"Failed to obtain information."} : QStringList());
        EXPECT_EQ(window->bError(), fails);
        EXPECT_EQ(window->registerFolderTableViewDataSource()->count(), folders);
    }
}

// Each Clear empties its list alone; the folder one restores the default folders, selects none
// chosen, leaves Add off, turns the personal folder off and the settings to not saved.
TEST_F(WindowTest, ClearButtons) {
    openOnPrinter();
    click(c->printerGetPrinterInfoButton);
    click(c->folderPersonalFolderCheck);
    window->formTableViewDataSource()->setElementsArray(QStringList(100, QString(900, 'a')));
    click(c->okButton); // too long to save: the window stays with its settings marked saved
    ASSERT_TRUE(window->isPPDOptionsUpdated());
    const auto counts = [this] {
        return QList<quint64>{window->formTableViewDataSource()->count(),
                              window->barcodeAreaDefinitionTableViewDataSource()->count(),
                              window->colorProfileTableViewDataSource()->count(),
                              window->registerFolderTableViewDataSource()->count()};
    };
    ASSERT_EQ(counts(), (QList<quint64>{100, 50, 15, 15}));
    const std::pair<QPushButton *, QList<quint64>> steps[] = {
        {c->formClearButton, {0, 50, 15, 15}},
        {c->barcodeAreaDefinitionClearButton, {0, 0, 15, 15}},
        {c->colorProfileClearButton, {0, 0, 0, 15}},
        {c->folderClearButton, {0, 0, 0, 100}}};
    for (const auto &[button, expected] : steps) {
        click(button);
        EXPECT_EQ(counts(), expected) << button->objectName().toStdString();
    }
    EXPECT_EQ(chosen(), QStringList{"Shared Folder 1"});
    EXPECT_EQ(window->selectedFolderTableViewDataSource()->getSelectedRow(), -1);
    EXPECT_FALSE(c->folderAddButton->isEnabled());
    EXPECT_FALSE(c->folderPersonalFolderCheck->isChecked());
    EXPECT_FALSE(window->isPPDOptionsUpdated());
}

// MAC fields follow Wake-on-LAN; Another Network needs it and MAC text, keeps its state if off.
TEST_F(WindowTest, WakeOnLanControls) {
    open();
    click(c->overstepTheRouter);
    const QList<QLineEdit *> macs = {c->macAddressText1, c->macAddressText2, c->macAddressText3,
                                     c->macAddressText4, c->macAddressText5, c->macAddressText6};
    for (QLineEdit *field : macs)
        erase(field);
    const std::tuple<std::function<void()>, bool, bool> steps[] = {
        {[] {}, true, false},
        {[&] { QTest::keyClicks(c->macAddressText5, "f"); }, true, true},
        {[&] { click(c->wakeOnLANCheck); }, false, false},
        {[&] { click(c->wakeOnLANCheck); }, true, true},
        {[&] { erase(c->macAddressText5); }, true, false}};
    int step = 0;
    for (const auto &[act, macsEnabled, overRouterEnabled] : steps) {
        act();
        SCOPED_TRACE(step++);
        for (QLineEdit *field : macs)
            EXPECT_EQ(field->isEnabled(), macsEnabled);
        EXPECT_EQ(c->overstepTheRouter->isEnabled(), overRouterEnabled);
        EXPECT_TRUE(c->overstepTheRouter->isChecked());
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
    click(c->snmpCommunityCheck);
    c->snmpCommunityText->setText(QString::fromUtf8("office\u200B"));
    c->macAddressText6->setText("cc"); // a MAC to wake: the flow asks the sleep mode
    type(c->printerIPAddressText, "127.0.0.3");
    EXPECT_EQ(requestsDuring(office, [&] { click(c->formGetPrinterInfoButton); }), 3);
    EXPECT_EQ(alerts, QStringList());
    EXPECT_EQ(forms(), office.namesInUse(P::Table::Form));
}

// Personal folder enabled only at admin login mode 1, its state kept; empty lists change nothing.
TEST_F(WindowTest, FetchesKeepWhatThePrinterDoesNotChange) {
    openOnPrinter();
    const std::pair<long, bool> modes[] = {{1, true}, {2, false}, {1, true}, {0, false}};
    for (const auto &[mode, enabled] : modes) {
        printer.set(P::kAdminLoginMode, mode);
        click(c->folderGetPrinterInfoButton);
        EXPECT_EQ(c->folderPersonalFolderCheck->isEnabled(), enabled) << mode;
        if (!c->folderPersonalFolderCheck->isChecked())
            click(c->folderPersonalFolderCheck);
        EXPECT_TRUE(c->folderPersonalFolderCheck->isChecked()) << mode;
    }
    click(c->formGetPrinterInfoButton);
    const QStringList fetched = forms();
    for (int index = 1; index <= 100; ++index)
        printer.set(P::stateOid(P::Table::Form, index), 0L);
    click(c->formGetPrinterInfoButton);
    EXPECT_EQ(fetched.size(), 50);
    EXPECT_EQ(forms(), fetched);
    EXPECT_EQ(alerts, QStringList());
}

// The window's texts, default folders and alerts follow the user's language.
TEST_F(WindowTest, TextsInTheUsersLanguage) {
    OVPreferredLanguages::setOverride(QStringList{"de-DE"});
    open();
    click(c->folderGetPrinterInfoButton); // no address: fails
    EXPECT_EQ(c->meinTabView->tabText(0), "Ordner");
    EXPECT_EQ(c->folderClearButton->text(), "Leeren");
    EXPECT_EQ(c->folderPersonalFolderCheck->text(), "Persönlichen Ordner verwenden");
    EXPECT_EQ(window->registerFolderTableViewDataSource()->getElementAtRow(0),
              "Freigegebener Ordner 1");
    EXPECT_EQ(alerts, QStringList{"Die Informationen konnten nicht abgerufen werden."});
}

// During a slow fetch (0.3 s, the timeout 1 s) fetch clicks are dropped and typing waits.
TEST_F(WindowTest, InputWaitsForAFetchAndFetchClicksAreDropped) {
    openOnPrinter();
    printer.setResponseDelayMs(300);
    QString duringFetch;
    QTimer::singleShot(0, [&] {
        for (QPushButton *button :
             {c->printerGetPrinterInfoButton, c->folderGetPrinterInfoButton,
              c->formGetPrinterInfoButton, c->barcodeAreaDefinitionGetPrinterInfoButton,
              c->colorProfileGetPrinterInfoButton})
            click(button);
        QTest::keyClicks(c->printerIPAddressText, "9");
        duringFetch = c->printerIPAddressText->text();
    });
    EXPECT_EQ(requestsDuring(printer, [&] { click(c->formGetPrinterInfoButton); }), 2);
    EXPECT_EQ(duringFetch, P::loopbackAddress());
    EXPECT_EQ(c->printerIPAddressText->text(), P::loopbackAddress() + "9");
    EXPECT_EQ(forms(), printer.namesInUse(P::Table::Form));
}

// Closing the window during a wake wait ends the flow at once: no further question to the
// printer, no alert.
TEST_F(WindowTest, ClosingEndsAWakeWait) {
    openOnPrinter();
    c->macAddressText6->setText("cc");
    printer.set(P::kSleepMode, 2L); // going to sleep: the flow waits 5 s between questions
    QSignalSpy terminated(window.get(), &Controller::applicationShouldTerminate);
    QTimer::singleShot(100, window.get(), [this] { window->mainWindowObject()->close(); });
    EXPECT_EQ(requestsDuring(printer, [&] { click(c->formGetPrinterInfoButton); }), 1);
    EXPECT_EQ(terminated.count(), 1);
    EXPECT_EQ(alerts, QStringList());
}

} // namespace
