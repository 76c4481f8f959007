// Keyboard and assistive technology: Tab reaches every control of the settings
// window and of the queue chooser, and each control it stops at has a name a
// screen reader can say. The window and the chooser read a private cupsd.
#include "CupsServerEnvironment.h"
#include "OVMessageBar.h"
#include "OVPrinterUtilityWindowController.h"
#include "OVQueueChooser.h"
#include "OVQueueSetup.h"
#include "ui_MainUtilityWindiw.h"

#include <QAccessible>
#include <QApplication>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

[[maybe_unused]] const auto cupsd = ::testing::AddGlobalTestEnvironment(new CupsServerEnvironment);

namespace {

QString spokenName(QWidget *widget) {
    QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(widget);
    return accessible ? accessible->text(QAccessible::Name) : QString();
}

std::string describe(QWidget *widget) {
    return (widget->metaObject()->className() + (" " + widget->objectName()) + " \"" +
            spokenName(widget) + '"')
        .toStdString();
}

// The controls a user can work with: shown, on and taking focus from Tab. A
// compound control (the tab widget) counts as the child it hands focus to.
QSet<QWidget *> interactiveControls(QWidget *window) {
    QSet<QWidget *> controls;
    for (QWidget *widget : window->findChildren<QWidget *>())
        if (widget->isVisible() && widget->isEnabled() && !widget->focusProxy() &&
            (widget->focusPolicy() & Qt::TabFocus))
            controls << widget;
    return controls;
}

// Presses Tab on the focused control until the focus is back on the first.
QList<QWidget *> walkWithTab(QWidget *window) {
    EXPECT_TRUE(QTest::qWaitForWindowActive(window));
    QWidget *first = QApplication::focusWidget();
    QList<QWidget *> reached;
    for (QWidget *focused = first; focused && !reached.contains(focused);
         focused = QApplication::focusWidget()) {
        reached << focused;
        QTest::keyClick(focused, Qt::Key_Tab);
    }
    EXPECT_EQ(QApplication::focusWidget(), first) << "Tab goes round without the first control";
    return reached;
}

void expectTabReachesEveryNamedControl(QWidget *window, const std::string &where) {
    SCOPED_TRACE(where);
    const QList<QWidget *> reached = walkWithTab(window);
    const QSet<QWidget *> controls = interactiveControls(window);
    EXPECT_GE(controls.size(), 4);
    for (QWidget *control : controls)
        EXPECT_TRUE(reached.contains(control)) << "not reached: " << describe(control);
    for (QWidget *control : reached) {
        EXPECT_TRUE(controls.contains(control)) << "a stop on no control: " << describe(control);
        EXPECT_FALSE(spokenName(control).trimmed().isEmpty()) << "no name: " << describe(control);
    }
}

class WindowFocusTest : public ::testing::Test {
protected:
    static void SetUpTestSuite() {
        // Two queues set up for the utility, so that the chooser shows its list,
        // and one that is not, whose window shows the bar with its button.
        CupsServer &cups = CupsServerEnvironment::server();
        ASSERT_TRUE(cups.addQueue("Office") && cups.addQueue("Lab") && cups.addQueue("Plain"));
        ASSERT_EQ(OVQueueSetup::remove("Plain").outcome, OVQueueSetup::Outcome::Changed);
    }
};

TEST_F(WindowFocusTest, EveryTabOfTheSettingsWindow) {
    OVPrinterUtilityWindowController controller;
    QSignalSpy loaded(&controller, &OVPrinterUtilityWindowController::settingsLoaded);
    controller.applicationDidFinishLaunching({"--printer", "Plain"});
    QWidget *window = controller.mainWindowObject();
    window->show();
    ASSERT_TRUE(loaded.wait(30000));
    ASSERT_TRUE(controller.messageBar()->actionButton()->isVisible());
    Ui::MainUtilityWindiw &c = controller.controls();
    // Turns the community field and Add on.
    c.snmpCommunityCheck->click();
    c.folderSharedFolderTable->selectRow(1);
    QTabWidget *tabs = c.meinTabView;
    for (int tab = 0; tab < tabs->count(); ++tab) {
        tabs->setCurrentIndex(tab);
        c.snmpCommunityCheck->setFocus();
        expectTabReachesEveryNamedControl(window, tabs->tabText(tab).toStdString());
    }
    // The labels' mnemonics go to the fields they name.
    for (const auto &[key, field] :
         {std::pair{Qt::Key_M, c.macAddressText1}, std::pair{Qt::Key_I, c.printerIPAddressText}}) {
        QTest::keyClick(QApplication::focusWidget(), key, Qt::AltModifier);
        EXPECT_EQ(QApplication::focusWidget(), field) << describe(field);
    }
}

TEST_F(WindowFocusTest, QueueChooser) {
    OVQueueChooser chooser;
    QSignalSpy listed(&chooser, &OVQueueChooser::listed);
    chooser.start();
    ASSERT_TRUE(listed.wait(30000));
    ASSERT_TRUE(chooser.filterField()->isEnabled());
    expectTabReachesEveryNamedControl(&chooser, "queue chooser");
}

} // namespace
