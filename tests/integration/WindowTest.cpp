// The main window driven with real clicks and typing against the real peers:
// a private cupsd with the driver filter and a simulated printer, all inside a
// network namespace of this process's own so no wake packet can get out.
#include "CupsServerEnvironment.h"
#include "OVAlert.h"
#include "OVPrinterUtilityWindowController.h"
#include "OVTableViewDataSource.h"
#include "PrivateNetwork.h"
#include "SimulatedPrinter.h"
#include "ui_MainUtilityWindiw.h"

#include <QSignalSpy>
#include <QTest>
#include <QThread>
#include <QTimer>

#include <gtest/gtest.h>

namespace {

const bool isolated = PrivateNetwork::enter();
[[maybe_unused]] ::testing::Environment *const cupsd =
    ::testing::AddGlobalTestEnvironment(new CupsServerEnvironment);

using Controller = OVPrinterUtilityWindowController;
using Table = SimulatedPrinter::Table;
const QString failureText = "Failed to obtain information.";

QList<SimulatedPrinter::Entry> sharedBoxes() {
    QList<SimulatedPrinter::Entry> boxes;
    for (int i = 1; i <= 30; ++i)
        boxes.append({i % 3 == 2 ? 0 : 1, "Box" + QByteArray::number(i)});
    boxes[0].name = "営業部";
    boxes[2].name = "Design 🎨";
    return boxes;
}

QStringList inUse(const QList<SimulatedPrinter::Entry> &entries) {
    QStringList names;
    for (const auto &entry : entries) {
        if (entry.state == 1)
            names << QString::fromUtf8(entry.name);
    }
    return names;
}

class WindowTest : public ::testing::Test {
protected:
    static void SetUpTestSuite() {
        ASSERT_TRUE(isolated) << "the window suite needs root to get a private network";
        SimulatedPrinter::Options options;
        options.listen += ",udp6:[::1]:161";
        printer = new SimulatedPrinter(options);
        ASSERT_TRUE(printer->start()) << printer->errorText().toStdString();
    }
    static void TearDownTestSuite() { delete printer; }

    void SetUp() override {
        printer->setDefaults();
        printer->setTable(Table::SharedBox, sharedBoxes());
        OVAlert::setResponder([this](const OVAlert &alert) {
            alerts << alert.text();
            return 0;
        });
    }
    void TearDown() override { OVAlert::setResponder({}); }

    static std::unique_ptr<Controller> open(const QString &queue) {
        auto controller = std::make_unique<Controller>();
        controller->applicationDidFinishLaunching({"--printer", queue});
        controller->mainWindowObject()->show();
        return controller;
    }
    static void click(QAbstractButton *button) { QTest::mouseClick(button, Qt::LeftButton); }
    static void type(QLineEdit *field, const QString &text) {
        field->setFocus();
        field->selectAll();
        QTest::keyClick(field, Qt::Key_Delete);
        QTest::keyClicks(field, text);
    }
    static void clickRow(QTableView *table, int row) {
        const QRect cell = table->visualRect(table->model()->index(row, 0));
        QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, cell.center());
    }
    // The queue's PPD once a save has reached it.
    static QByteArray savedPpd(const QString &queue) {
        for (int tries = 0; tries < 300; ++tries) {
            const QByteArray ppd = CupsServerEnvironment::server().queuePpd(queue);
            if (ppd.contains("*PPDOptionsUpdated: \"1\""))
                return ppd;
            QThread::msleep(100);
        }
        return {};
    }

    static SimulatedPrinter *printer;
    QStringList alerts;
};
SimulatedPrinter *WindowTest::printer = nullptr;

TEST_F(WindowTest, QueueNeverWrittenShowsDefaults) {
    ASSERT_TRUE(CupsServerEnvironment::server().addQueue("Fresh"));
    const auto window = open("Fresh");
    Ui::MainUtilityWindiw &c = window->controls();
    const QStringList shared = window->registerFolderTableViewDataSource()->getElementsArray();
    ASSERT_EQ(shared.size(), 100);
    EXPECT_EQ(shared.first(), "Shared Folder 1");
    EXPECT_EQ(shared.last(), "Shared Folder 100");
    EXPECT_EQ(window->selectedFolderTableViewDataSource()->getElementsArray(),
              QStringList{"Shared Folder 1"});
    EXPECT_EQ(window->selectedSharedBoxIndex(), QList<qint32>{0});
    EXPECT_TRUE(c.wakeOnLANCheck->isChecked());
    EXPECT_FALSE(c.snmpCommunityCheck->isChecked());
    EXPECT_EQ(c.snmpCommunityText->text(), "cobalt");
    EXPECT_FALSE(c.snmpCommunityText->isEnabled());
    EXPECT_TRUE(c.folderPersonalFolderCheck->isEnabled());
    EXPECT_FALSE(c.folderPersonalFolderCheck->isChecked());
    EXPECT_EQ(c.macAddressText4->text(), "00");
    EXPECT_EQ(c.printerIPAddressText->text(), "");
    EXPECT_TRUE(alerts.isEmpty());
}

TEST_F(WindowTest, FetchChooseSaveAndReopen) {
    ASSERT_TRUE(CupsServerEnvironment::server().addQueue("Office"));
    const QStringList printerFolders = inUse(sharedBoxes());
    {
        const auto window = open("Office");
        Ui::MainUtilityWindiw &c = window->controls();
        type(c.printerIPAddressText, SimulatedPrinter::loopbackAddress());
        click(c.printerGetPrinterInfoButton);
        ASSERT_TRUE(alerts.isEmpty()) << alerts.join('|').toStdString();
        EXPECT_EQ(window->registerFolderTableViewDataSource()->getElementsArray(), printerFolders);
        EXPECT_EQ(window->selectedFolderTableViewDataSource()->getElementsArray(),
                  QStringList{printerFolders[0]});
        EXPECT_EQ(c.macAddressText6->text(), "cc");
        EXPECT_EQ(window->formTableViewDataSource()->count(), 50u);
        EXPECT_EQ(window->colorProfileTableViewDataSource()->getElementsArray().first(),
                  "Profile1");

        c.meinTabView->setCurrentWidget(c.folderTabViewItem);
        clickRow(c.folderSharedFolderTable, 2);
        click(c.folderAddButton);
        EXPECT_FALSE(c.folderAddButton->isEnabled());
        clickRow(c.folderSelectedFolderTable, 0);
        click(c.folderDeleteButton);
        EXPECT_EQ(window->selectedSharedBoxIndex(), QList<qint32>{2});
        click(c.folderPersonalFolderCheck);
        QSignalSpy terminated(window.get(), &Controller::applicationShouldTerminate);
        click(c.okButton);
        EXPECT_EQ(terminated.count(), 1);
    }
    ASSERT_FALSE(savedPpd("Office").isEmpty());
    const auto reopened = open("Office");
    Ui::MainUtilityWindiw &c = reopened->controls();
    EXPECT_EQ(reopened->registerFolderTableViewDataSource()->getElementsArray(), printerFolders);
    EXPECT_EQ(reopened->selectedFolderTableViewDataSource()->getElementsArray(),
              QStringList{printerFolders[2]});
    EXPECT_EQ(reopened->selectedSharedBoxIndex(), QList<qint32>{2});
    EXPECT_TRUE(c.folderPersonalFolderCheck->isChecked());
    EXPECT_EQ(c.printerIPAddressText->text(), SimulatedPrinter::loopbackAddress());
    EXPECT_EQ(c.macAddressText1->text(), "00");
    EXPECT_EQ(c.macAddressText5->text(), "bb");
    EXPECT_EQ(reopened->formTableViewDataSource()->count(), 50u);
    EXPECT_EQ(reopened->barcodeAreaDefinitionTableViewDataSource()->getElementsArray().last(),
              "Barcode99");
}

struct AddressCase {
    const char *name;
    QString address;
};

class WindowAddressTest : public WindowTest, public ::testing::WithParamInterface<AddressCase> {};

TEST_P(WindowAddressTest, FormsArriveOverEachAddressFamily) {
    const auto window = open("Fresh");
    type(window->controls().printerIPAddressText, GetParam().address);
    click(window->controls().formGetPrinterInfoButton);
    EXPECT_TRUE(alerts.isEmpty());
    EXPECT_EQ(window->formTableViewDataSource()->getElementsArray().value(1), "Form3");
}

INSTANTIATE_TEST_SUITE_P(Families, WindowAddressTest,
                         ::testing::Values(AddressCase{"IPv4", SimulatedPrinter::loopbackAddress()},
                                           AddressCase{"IPv6", "::1"}),
                         [](const auto &info) { return info.param.name; });

TEST_F(WindowTest, EmptyAddressFailsOnceWithoutTraffic) {
    const auto window = open("Fresh");
    const int before = printer->requestCount();
    click(window->controls().printerGetPrinterInfoButton);
    EXPECT_EQ(alerts, QStringList{failureText});
    EXPECT_TRUE(window->bError());
    EXPECT_EQ(printer->requestCount(), before + 0);
}

TEST_F(WindowTest, SilentPrinterRestoresDefaultFolders) {
    const auto window = open("Fresh");
    Ui::MainUtilityWindiw &c = window->controls();
    type(c.printerIPAddressText, SimulatedPrinter::loopbackAddress());
    click(c.folderGetPrinterInfoButton);
    ASSERT_EQ(window->registerFolderTableViewDataSource()->count(), 20u);
    click(c.wakeOnLANCheck);
    printer->setSilent(true);
    click(c.folderGetPrinterInfoButton);
    printer->setSilent(false);
    EXPECT_EQ(alerts, QStringList{failureText});
    EXPECT_EQ(window->registerFolderTableViewDataSource()->count(), 100u);
    EXPECT_EQ(window->selectedFolderTableViewDataSource()->getElementsArray(),
              QStringList{"Shared Folder 1"});
}

// cupsd cannot hand a job this large to the driver: the window says which
// lists to shorten and stays open instead of losing the settings.
TEST_F(WindowTest, SaveThatCannotArriveKeepsWindowOpen) {
    ASSERT_TRUE(CupsServerEnvironment::server().addQueue("Crowded"));
    const auto window = open("Crowded");
    QStringList longNames;
    for (int i = 0; i < 100; ++i)
        longNames << QString(900, QChar('a' + i % 26));
    window->formTableViewDataSource()->setElementsArray(longNames);
    QSignalSpy terminated(window.get(), &Controller::applicationShouldTerminate);
    const QByteArray before = CupsServerEnvironment::server().queuePpd("Crowded");
    click(window->controls().okButton);
    EXPECT_EQ(terminated.count(), 0);
    ASSERT_EQ(alerts.size(), 1);
    EXPECT_TRUE(window->mainWindowObject()->isVisible());
    QThread::msleep(500);
    EXPECT_EQ(CupsServerEnvironment::server().queuePpd("Crowded"), before);
}

// The printer answers each request 0.8 s late: the event loop keeps running
// meanwhile, and a second click on a fetch button starts nothing.
TEST_F(WindowTest, WindowStaysResponsiveDuringFetch) {
    const auto window = open("Fresh");
    Ui::MainUtilityWindiw &c = window->controls();
    type(c.printerIPAddressText, SimulatedPrinter::loopbackAddress());
    click(c.wakeOnLANCheck);
    printer->setResponseDelayMs(800);
    const int before = printer->requestCount();
    int ticks = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] {
        if (++ticks == 5)
            click(c.formGetPrinterInfoButton);
    });
    timer.start(20);
    click(c.formGetPrinterInfoButton);
    timer.stop();
    printer->setResponseDelayMs(0);
    EXPECT_GT(ticks, 20);
    EXPECT_EQ(printer->requestCount() - before, 2);
    EXPECT_EQ(window->formTableViewDataSource()->count(), 50u);
    EXPECT_TRUE(alerts.isEmpty());
}

} // namespace
