// The MAC-address style field: refused keys, the editable length, trimming of
// pasted text and the events that name the editing phase.
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

struct MacCase {
    const char *name;
    QString typed;
    QString expected;
    QStringList methods;
};

class MacFieldTest : public ::testing::TestWithParam<MacCase> {};

TEST_P(MacFieldTest, typing) {
    const MacCase &c = GetParam();
    OVCustomRestrictedTextField field;
    field.setValidCharacters(ControlSets::hexadecimal());
    field.setMaxEditableTextLength(2);
    field.setSendNotification(true);
    EventRecorder events(OVCustomRestrictedTextField::Notification);

    typeText(&field, c.typed);

    EXPECT_EQ(field.text(), c.expected);
    EXPECT_EQ(methodNames(events), c.methods);
    for (const OVNotification &event : events.events) {
        EXPECT_EQ(event.sender(), &field);
    }
}

const QStringList changes(int count) {
    return QStringList(count, OVCustomRestrictedTextField::TextDidChangeMethod);
}

INSTANTIATE_TEST_SUITE_P(Cases, MacFieldTest,
                         ::testing::Values(MacCase{"thirdCharacterRestores", "A1F", "A1",
                                                   changes(2)},
                                           MacCase{"invalidIntoEmpty", "G", "", {}},
                                           MacCase{"invalidAfterValid", "aG", "a", changes(1)},
                                           MacCase{"lowerCaseHex", "ff", "ff", changes(2)}),
                         [](const auto &info) { return std::string(info.param.name); });

TEST(CustomRestrictedTextFieldTest, autoTrimKeepsValidPartOfPaste) {
    OVCustomRestrictedTextField field;
    field.setValidCharacters("ab");
    field.setAllowAutoTrim();
    field.setSendNotification(true);
    EventRecorder events(OVCustomRestrictedTextField::Notification);

    paste(&field, "a-b");

    EXPECT_EQ(field.text(), "ab");
    EXPECT_EQ(methodNames(events), changes(1));
}

TEST(CustomRestrictedTextFieldTest, silentWithoutNotifications) {
    OVCustomRestrictedTextField field;
    EventRecorder events(OVCustomRestrictedTextField::Notification);
    typeText(&field, "ab");
    QTest::keyClick(&field, Qt::Key_Return);
    EXPECT_TRUE(events.events.isEmpty());
    EXPECT_EQ(field.oldString(), "ab");
}

// Tab and Back-tab follow the window's key-view chain, and focus changes
// announce themselves.
TEST(CustomRestrictedTextFieldTest, tabKeysFollowKeyViewChain) {
    QWidget window;
    auto *layout = new QHBoxLayout(&window);
    QList<OVCustomRestrictedTextField *> octets;
    for (int i = 0; i < 3; ++i) {
        octets.append(new OVCustomRestrictedTextField);
        octets.last()->setSendNotification(true);
        layout->addWidget(octets.last());
    }
    auto *community = new OVRestrictedTextField;
    layout->addWidget(community);
    // The chain runs octet 0 → 2 → 1 → community, not in layout order.
    QWidget::setTabOrder(octets[0], octets[2]);
    QWidget::setTabOrder(octets[2], octets[1]);
    QWidget::setTabOrder(octets[1], community);
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    octets[0]->setFocus(Qt::OtherFocusReason);
    EventRecorder become(OVCustomRestrictedTextField::BecomeNotification);
    EventRecorder phases(OVCustomRestrictedTextField::Notification);

    QTest::keyClick(octets[0], Qt::Key_Tab);
    EXPECT_TRUE(octets[2]->hasFocus());
    QTest::keyClick(octets[2], Qt::Key_Tab);
    EXPECT_TRUE(octets[1]->hasFocus());
    QTest::keyClick(octets[1], Qt::Key_Tab);
    EXPECT_TRUE(community->hasFocus());
    QTest::keyClick(community, Qt::Key_Backtab);
    EXPECT_TRUE(octets[1]->hasFocus());

    ASSERT_EQ(become.events.size(), 3);
    EXPECT_EQ(become.events[0].sender(), octets[2]);
    EXPECT_EQ(become.events[2].sender(), octets[1]);
    EXPECT_EQ(methodNames(phases), QStringList(3, "textDidEndEditing"));
}

} // namespace
