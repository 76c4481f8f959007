// The alert's button order and result codes, answered by the seam and by a
// real dialog.
#include "OVAlert.h"
#include "ControlTestSupport.h"

#include <QPushButton>
#include <QTimer>

#include <gtest/gtest.h>

namespace {

TEST(OVAlertTest, panelOrderAndResults) {
    const std::tuple<QStringList, QStringList, QList<int>> cases[] = {
        {{QString(), QString(), QString()}, {"OK"}, {1}},
        {{"Save", "Cancel", QString()}, {"Save", "Cancel"}, {1, 0}},
        {{"Save", "Cancel", "Discard"}, {"Save", "Discard", "Cancel"}, {1, -1, 0}},
        {{"Save", QString(), "Discard"}, {"Save", "Discard"}, {1, -1}}};
    for (const auto &[titles, panelOrder, resultPerButton] : cases) {
        // Index -1 stands for closing the panel without a button.
        for (int pressed = -1; pressed < resultPerButton.size(); ++pressed) {
            AlertRecorder recorder(pressed);
            const auto alert =
                OVAlert::alertWithMessageText("Message", titles[0], titles[1], titles[2], "%@");
            EXPECT_EQ(alert->buttonTitles(), panelOrder);
            EXPECT_EQ(alert->runModal(), pressed < 0 ? 1 : resultPerButton[pressed])
                << panelOrder.join(",").toStdString() << " button " << pressed;
        }
    }
}

// A real dialog, answered from a timer: the first button sits rightmost, as
// on macOS, and the pressed button maps to its result.
TEST(OVAlertTest, realDialogAnsweredFromTimer) {
    const auto alert = OVAlert::alertWithMessageText("Failed", "OK", "Cancel", "Retry",
                                                     "%@ of %@ at 100%% %@", {"3", "5"});
    EXPECT_EQ(alert->informativeText(), "3 of 5 at 100% ");
    QList<int> buttonX;
    QTimer timer;
    timer.setInterval(20);
    QObject::connect(&timer, &QTimer::timeout, [&] {
        auto *shown = qobject_cast<OVAlert *>(QApplication::activeModalWidget());
        if (shown == nullptr || !shown->isVisible())
            return;
        timer.stop();
        for (QPushButton *button : shown->panelButtons())
            buttonX.append(button->mapTo(shown, QPoint(0, 0)).x());
        shown->panelButtons().at(1)->click();
    });
    timer.start();

    EXPECT_EQ(alert->runModal(), OVAlert::OtherReturn);
    ASSERT_EQ(buttonX.size(), 3);
    EXPECT_GT(buttonX[0], buttonX[1]);
    EXPECT_GT(buttonX[1], buttonX[2]);
}

} // namespace
