// The MAC-address style field: refused keys, the editable length, trimming of
// pasted text, the key-view chain and the events that name the editing phase.
#include "CharacterSets.h"
#include "ControlTestSupport.h"
#include "OVCustomRestrictedTextField.h"
#include "OVRestrictedTextField.h"

#include <QHBoxLayout>

#include <gtest/gtest.h>

namespace {

QStringList methodNames(const EventRecorder &recorder) {
    QStringList names;
    for (const OVNotification &event : recorder.events) {
        names.append(event.userInfo.value(OVCustomRestrictedTextField::MethodNameKey).toString());
    }
    return names;
}

TEST(CustomRestrictedTextFieldTest, macAddressOctet) {
    const std::tuple<QString, QString, qsizetype> cases[] = {
        {"A1F", "A1", 2}, {"G", "", 0}, {"aG", "a", 1}, {"ff", "ff", 2}};
    for (const auto &[typed, expected, changes] : cases) {
        OVCustomRestrictedTextField field;
        field.setValidCharacters(ControlSets::hexadecimal());
        field.setMaxEditableTextLength(2);
        field.setSendNotification(true);
        EventRecorder events(OVCustomRestrictedTextField::Notification);
        typeText(&field, typed);
        EXPECT_EQ(field.text(), expected) << typed.toStdString();
        EXPECT_EQ(methodNames(events), QStringList(changes, "textDidChange"));
        EXPECT_TRUE(events.events.isEmpty() || events.events[0].sender() == &field);
    }
}

TEST(CustomRestrictedTextFieldTest, autoTrimKeepsValidPartOfPaste) {
    OVCustomRestrictedTextField field;
    field.setValidCharacters("ab");
    field.setAllowAutoTrim();
    field.setSendNotification(true);
    EventRecorder events(OVCustomRestrictedTextField::Notification);
    paste(&field, "a-b");
    EXPECT_EQ(field.text(), "ab");
    EXPECT_EQ(methodNames(events), QStringList{"textDidChange"});
}

// Tab and Back-tab follow the window's key-view chain; focus arriving and
// leaving announces itself, and leaving a numeric field clamps it.
TEST(CustomRestrictedTextFieldTest, tabKeysFollowKeyViewChain) {
    QWidget window;
    auto *layout = new QHBoxLayout(&window);
    QList<OVCustomRestrictedTextField *> octets;
    for (int i = 0; i < 3; ++i) {
        octets.append(new OVCustomRestrictedTextField);
        octets.last()->setSendNotification(true);
        layout->addWidget(octets.last());
    }
    auto *number = new OVRestrictedTextField;
    number->setNumeric();
    number->restrictMinValue(100);
    number->restrictMaxValue(200);
    number->setNotifyEditing(true);
    number->setText("340");
    layout->addWidget(number);
    // The chain runs octet 0 → 2 → 1 → number, not in layout order.
    QWidget::setTabOrder(octets[0], octets[2]);
    QWidget::setTabOrder(octets[2], octets[1]);
    QWidget::setTabOrder(octets[1], number);
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    octets[0]->setFocus(Qt::OtherFocusReason);
    EventRecorder become(OVCustomRestrictedTextField::BecomeNotification);
    EventRecorder phases(OVCustomRestrictedTextField::Notification);
    EventRecorder numberEdits(OVRestrictedTextField::DidEditingNotification);

    const QList<std::pair<Qt::Key, QWidget *>> steps = {{Qt::Key_Tab, octets[2]},
                                                        {Qt::Key_Tab, octets[1]},
                                                        {Qt::Key_Tab, number},
                                                        {Qt::Key_Backtab, octets[1]}};
    for (const auto &[key, expected] : steps) {
        QTest::keyClick(QApplication::focusWidget(), key);
        EXPECT_EQ(QApplication::focusWidget(), expected);
    }
    ASSERT_EQ(become.events.size(), 3);
    EXPECT_EQ(become.events[0].sender(), octets[2]);
    EXPECT_EQ(methodNames(phases), QStringList(3, "textDidEndEditing"));
    EXPECT_EQ(number->text(), "200");
    EXPECT_EQ(numberEdits.events.size(), 1);
}

} // namespace
