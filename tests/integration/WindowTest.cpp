// The main window driven with real clicks and typing against a private cupsd and
// a simulated printer, inside a network namespace of its own.
#include "CupsServerEnvironment.h"
#include "OVAlert.h"
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
[[maybe_unused]] ::testing::Environment *const cupsd =
    ::testing::AddGlobalTestEnvironment(new CupsServerEnvironment);

using Controller = OVPrinterUtilityWindowController;

// Closes the window if one is open, then opens one on the queue.
static Ui::MainUtilityWindiw *open(std::unique_ptr<Controller> &window, const QString &queue) {
    window.reset();
    window = std::make_unique<Controller>();
    window->applicationDidFinishLaunching({"--printer", queue});
    window->mainWindowObject()->show();
    return &window->controls();
}
static void type(QLineEdit *field, const QString &text) {
    field->clear();
    QTest::keyClicks(field, text);
}
static void clickRow(QTableView *table, int row) {
    const QRect cell = table->visualRect(table->model()->index(row, 0));
    QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, cell.center());
}

TEST(WindowTest, DefaultsFetchChooseSaveReopenAndFetchAgain) {
    const auto click = [](QAbstractButton *button) { QTest::mouseClick(button, Qt::LeftButton); };
    ASSERT_TRUE(isolated) << "the window suite needs root to get a private network";
    CupsServer &server = CupsServerEnvironment::server();
    ASSERT_TRUE(server.addQueue("Office") && server.addQueue("Fresh"));
    // The printer's 30 shared boxes: the odd ones in use, one named in other scripts.
    SimulatedPrinter::Options options;
    options.listen += ",udp6:[::1]:161";
    SimulatedPrinter printer(options);
    ASSERT_TRUE(printer.start()) << printer.errorText().toStdString();
    printer.setDefaults();
    printer.set(SimulatedPrinter::nameOid(SimulatedPrinter::Table::SharedBox, 1),
                QByteArray("営業部 🎨"));
    QStringList folders{"営業部 🎨"}, alerts;
    for (int i = 3; i < 30; i += 2)
        folders << "Box" + QString::number(i);
    OVAlert::setResponder([&alerts](const OVAlert &alert) {
        alerts << alert.text();
        return 0;
    });
    std::unique_ptr<Controller> window;
    Ui::MainUtilityWindiw *c = open(window, "Office");
    EXPECT_EQ(window->registerFolderTableViewDataSource()->count(), 100u);
    EXPECT_EQ(window->selectedFolderTableViewDataSource()->getElementsArray(),
              QStringList{"Shared Folder 1"});
    EXPECT_TRUE(c->wakeOnLANCheck->isChecked() && !c->snmpCommunityCheck->isChecked() &&
                !c->snmpCommunityText->isEnabled() && !c->folderPersonalFolderCheck->isChecked());
    EXPECT_EQ(c->snmpCommunityText->text() + c->macAddressText4->text(), "cobalt00");

    type(c->printerIPAddressText, SimulatedPrinter::loopbackAddress());
    click(c->printerGetPrinterInfoButton);
    ASSERT_TRUE(alerts.isEmpty()) << alerts.join('|').toStdString();
    c->meinTabView->setCurrentWidget(c->folderTabViewItem);
    clickRow(c->folderSharedFolderTable, 2);
    click(c->folderAddButton);
    clickRow(c->folderSelectedFolderTable, 0);
    click(c->folderDeleteButton);
    click(c->folderPersonalFolderCheck);
    // cupsd cannot hand a job this large to the driver: the window says which lists to
    // shorten and stays open instead of losing the settings.
    OVTableViewDataSource *forms = window->formTableViewDataSource();
    const QStringList fetchedForms = forms->getElementsArray();
    forms->setElementsArray(QStringList(100, QString(900, 'a')));
    QSignalSpy terminated(window.get(), &Controller::applicationShouldTerminate);
    click(c->okButton);
    EXPECT_EQ(alerts.size(), 1);
    forms->setElementsArray(fetchedForms);
    click(c->okButton);
    EXPECT_EQ(terminated.count(), 1);
    window.reset();
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return server.queuePpd("Office").contains("*PPDOptionsUpdated: \"1\""); }, 30000));
    c = open(window, "Office");
    EXPECT_EQ(window->registerFolderTableViewDataSource()->getElementsArray(), folders);
    EXPECT_EQ(window->selectedFolderTableViewDataSource()->getElementsArray(),
              QStringList{folders[2]});
    EXPECT_TRUE(c->folderPersonalFolderCheck->isChecked());
    EXPECT_EQ(c->printerIPAddressText->text(), SimulatedPrinter::loopbackAddress());
    EXPECT_EQ(c->macAddressText1->text() + c->macAddressText6->text(), "00cc");
    EXPECT_EQ(window->formTableViewDataSource()->count(), 50u);
    EXPECT_EQ(window->barcodeAreaDefinitionTableViewDataSource()->getElementsArray().last(),
              "Barcode99");
    EXPECT_EQ(window->colorProfileTableViewDataSource()->getElementsArray().first(), "Profile1");
    // Fetches in turn in a fresh window. Over IPv4 and IPv6 folders arrive; a silent printer
    // or an empty address fails with one alert and puts the default folders back; an empty
    // address sends nothing.
    const QString v4 = SimulatedPrinter::loopbackAddress();
    const std::pair<QString, bool> rows[] = {{v4, false}, {v4, true}, {"::1", false}, {"", false}};
    c = open(window, "Fresh");
    click(c->wakeOnLANCheck);
    for (const auto &[address, silent] : rows) {
        SCOPED_TRACE(address.toStdString() + (silent ? " silent" : ""));
        alerts.clear();
        type(c->printerIPAddressText, address);
        const int before = printer.requestCount();
        printer.setSilent(silent);
        click(c->folderGetPrinterInfoButton);
        printer.setSilent(false);
        const bool answers = !silent && !address.isEmpty();
        EXPECT_EQ(alerts, answers ? QStringList() : QStringList{"Failed to obtain information."});
        EXPECT_TRUE(answers || window->bError());
        EXPECT_EQ(window->registerFolderTableViewDataSource()->count(), answers ? 15u : 100u);
        EXPECT_EQ(window->selectedFolderTableViewDataSource()->getElementsArray().value(0),
                  answers ? folders[0] : "Shared Folder 1");
        EXPECT_EQ(printer.requestCount() == before, address.isEmpty());
    }

    // The printer answers each request 0.8 s late: the event loop keeps running meanwhile,
    // and a second click on a fetch button starts nothing.
    type(c->printerIPAddressText, v4);
    printer.setResponseDelayMs(800);
    const int before = printer.requestCount();
    int ticks = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] {
        if (++ticks == 5)
            click(c->formGetPrinterInfoButton);
    });
    timer.start(20);
    click(c->formGetPrinterInfoButton);
    printer.setResponseDelayMs(0);
    EXPECT_GT(ticks, 20);
    EXPECT_EQ(printer.requestCount() - before, 2);
    EXPECT_EQ(window->formTableViewDataSource()->count(), 50u);
    OVAlert::setResponder({});
}
