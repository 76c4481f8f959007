// The alert's button order and result codes, answered by the seam and by a
// real dialog.
#include "OVAlert.h"
#include "ControlTestSupport.h"

#include <QPushButton>
#include <QTimer>

#include <gtest/gtest.h>

namespace {

struct ButtonCase {
    const char *name;
    QString defaultTitle;
    QString alternateTitle;
    QString otherTitle;
    QStringList panelOrder;
    QList<int> resultPerButton;
};

class AlertButtonTest : public ::testing::TestWithParam<ButtonCase> {};

TEST_P(AlertButtonTest, panelOrderAndResults) {
    const ButtonCase &c = GetParam();
    for (int pressed = 0; pressed < c.resultPerButton.size(); ++pressed) {
        AlertRecorder recorder(pressed);
        const auto alert = OVAlert::alertWithMessageText("Message", c.defaultTitle,
                                                         c.alternateTitle, c.otherTitle, "%@");
        EXPECT_EQ(alert->buttonTitles(), c.panelOrder);
        EXPECT_EQ(alert->runModal(), c.resultPerButton[pressed]) << "button " << pressed;
    }
}

INSTANTIATE_TEST_SUITE_P(
    Titles, AlertButtonTest,
    ::testing::Values(
        ButtonCase{"none", QString(), QString(), QString(), {"OK"}, {1}},
        ButtonCase{"defaultAndAlternate", "Save", "Cancel", QString(), {"Save", "Cancel"}, {1, 0}},
        ButtonCase{"all", "Save", "Cancel", "Discard", {"Save", "Discard", "Cancel"}, {1, -1, 0}},
        ButtonCase{"defaultAndOther", "Save", QString(), "Discard", {"Save", "Discard"}, {1, -1}}),
    [](const auto &info) { return std::string(info.param.name); });

TEST(OVAlertTest, closingWithoutAButtonAnswersDefault) {
    AlertRecorder recorder(-1);
    const auto alert = OVAlert::alertWithMessageText("m", "A", "B", "C", QString());
    EXPECT_EQ(alert->runModal(), OVAlert::DefaultReturn);
}

TEST(OVAlertTest, informativeTextFillsFormat) {
    const auto alert = OVAlert::alertWithMessageText(QString(), QString(), QString(), QString(),
                                                     "%@ of %@ at 100%%", {"3", "5"});
    EXPECT_EQ(alert->informativeText(), "3 of 5 at 100%");
    EXPECT_TRUE(alert->text().isEmpty());
    const auto missing =
        OVAlert::alertWithMessageText("m", QString(), QString(), QString(), "%@ and %@", {"one"});
    EXPECT_EQ(missing->informativeText(), "one and ");
}

// A real dialog, answered from a timer: the first button sits rightmost, as
// on macOS, and the pressed button maps to its result.
TEST(OVAlertTest, realDialogAnsweredFromTimer) {
    const auto alert =
        OVAlert::alertWithMessageText("Failed", "OK", "Cancel", "Retry", "%@", {"details"});
    QList<int> buttonX;
    QTimer timer;
    timer.setInterval(20);
    QObject::connect(&timer, &QTimer::timeout, [&] {
        auto *shown = qobject_cast<OVAlert *>(QApplication::activeModalWidget());
        if (shown == nullptr || !shown->isVisible()) {
            return;
        }
        timer.stop();
        for (QPushButton *button : shown->panelButtons()) {
            buttonX.append(button->mapTo(shown, QPoint(0, 0)).x());
        }
        shown->panelButtons().at(1)->click();
    });
    timer.start();

    EXPECT_EQ(alert->runModal(), OVAlert::OtherReturn);
    ASSERT_EQ(buttonX.size(), 3);
    EXPECT_GT(buttonX[0], buttonX[1]);
    EXPECT_GT(buttonX[1], buttonX[2]);
}

} // namespace
