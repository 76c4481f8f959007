// Typing into the restricted text field as a person would: key events and
// pastes, the text restored after a refused edit, alerts and edit events.
#include "CharacterSets.h"
#include "ControlTestSupport.h"
#include "OVRestrictedTextField.h"

#include <QSpinBox>
#include <QTest>
#include <QVBoxLayout>

#include <gtest/gtest.h>

namespace {

void configureCommunity(OVRestrictedTextField &field, bool showMessage) {
    field.setValidCharacters(ControlSets::community());
    field.setInvalidCharacters(ControlSets::communityInvalid());
    field.setMaxLength(ControlSets::communityMaxLength);
    field.setNotifyEditing(true);
    field.showMessageIfInvalid(showMessage);
    field.setInvalidMessageString("Only letters, digits and , . / : ; @ [ \\ ] ^ _",
                                  "Invalid community name");
}

struct TypingCase {
    const char *name;
    bool showMessage;
    QString initial;
    QString typed;
    QString pasted;
    QString expected;
    int alerts;
    int events;
};

class CommunityFieldTest : public ::testing::TestWithParam<TypingCase> {};

TEST_P(CommunityFieldTest, typingAndPasting) {
    const TypingCase &c = GetParam();
    AlertRecorder alerts;
    OVRestrictedTextField field;
    configureCommunity(field, c.showMessage);
    field.setText(c.initial);
    EventRecorder edits(OVRestrictedTextField::DidEditingNotification);

    typeText(&field, c.typed);
    if (!c.pasted.isEmpty()) {
        paste(&field, c.pasted);
    }

    EXPECT_EQ(field.text(), c.expected);
    EXPECT_EQ(alerts.shown.size(), c.alerts);
    EXPECT_EQ(edits.events.size(), c.events);
    for (const OVNotification &event : edits.events) {
        EXPECT_EQ(event.sender(), &field);
    }
}

const QString limit = QString(32, u'a');

INSTANTIATE_TEST_SUITE_P(
    Cases, CommunityFieldTest,
    ::testing::Values(
        TypingCase{"validSet", true, "", "Ab9_", "", "Ab9_", 0, 4},
        TypingCase{"yenAndZeroWidthSpace", true, "", QString("a") + QChar(0x00A5) + QChar(0x200B),
                   "", QString("a") + QChar(0x00A5) + QChar(0x200B), 0, 3},
        // The alert cleans the text, then the edit counts as a valid one.
        TypingCase{"invalidSetWithMessage", true, "", "ab-", "", "ab", 1, 3},
        // Without the alert the valid set refuses it: no event for that key.
        TypingCase{"invalidSetWithoutMessage", false, "", "ab#", "", "ab", 0, 2},
        TypingCase{"outsideBothSets", true, "", "a b", "", "ab", 0, 2},
        TypingCase{"thirtyThirdCharacter", false, "", limit + "b", "", limit, 0, 33},
        TypingCase{"longPasteRestores", false, "abc", "", QString(40, u'x'), "abc", 0, 1},
        TypingCase{"pasteCleanedByAlert", true, "", "", "a!b%c", "abc", 1, 1}),
    [](const auto &info) { return std::string(info.param.name); });

// Without a length limit the restore point stays at the text editing began
// with, so a later refused key also drops accepted keys.
TEST(RestrictedTextFieldTest, unlimitedFieldRestoresTextFromBeginningOfEditing) {
    OVRestrictedTextField field;
    field.setValidCharacters("abc");
    field.setText("ab");
    typeText(&field, "x");
    EXPECT_EQ(field.text(), "ab");
    typeText(&field, "cx");
    EXPECT_EQ(field.text(), "ab");
}

struct ClampCase {
    QString text;
    QString expected;
    int stepper;
};

class NumericFieldTest : public ::testing::TestWithParam<ClampCase> {};

TEST_P(NumericFieldTest, clampsWhenEditingEndsAndUpdatesStepper) {
    const ClampCase &c = GetParam();
    QSpinBox stepper;
    stepper.setRange(-100, 100);
    stepper.setValue(-50);
    OVRestrictedTextField field;
    field.setNumeric();
    field.restrictMinValue(1);
    field.restrictMaxValue(10);
    field.syncWithStepper(&stepper);
    field.setText(c.text);

    QTest::keyClick(&field, Qt::Key_Return);

    EXPECT_EQ(field.text(), c.expected);
    EXPECT_EQ(stepper.value(), c.stepper);
}

INSTANTIATE_TEST_SUITE_P(Values, NumericFieldTest,
                         ::testing::Values(ClampCase{"25", "10", 10}, ClampCase{"0", "1", 1},
                                           ClampCase{"7", "7", 7}, ClampCase{"", "1", 1}));

struct SnapCase {
    const char *name;
    QString initial;
    QString typed;
    QString expected;
};

class NumericSnapTest : public ::testing::TestWithParam<SnapCase> {};

TEST_P(NumericSnapTest, partialNumbersSnapIntoRange) {
    const SnapCase &c = GetParam();
    OVRestrictedTextField field;
    field.setNumeric();
    field.setText(c.initial);
    typeText(&field, c.typed);
    EXPECT_EQ(field.text(), c.expected);
}

INSTANTIATE_TEST_SUITE_P(Edits, NumericSnapTest,
                         ::testing::Values(SnapCase{"firstDigitBelow", "", "5", "90"},
                                           SnapCase{"inRange", "12", "0", "120"},
                                           SnapCase{"above", "50", "0", "340"},
                                           SnapCase{"letterCountsAsZero", "", "a", "90"},
                                           SnapCase{"letterAfterNumber", "120", "a", "120"}),
                         [](const auto &info) { return std::string(info.param.name); });

TEST(RestrictedTextFieldTest, alertShowsTitleAndMessageAsCriticalWithOk) {
    AlertRecorder alerts;
    OVRestrictedTextField field;
    configureCommunity(field, true);
    typeText(&field, "%");
    ASSERT_EQ(alerts.shown.size(), 1);
    EXPECT_EQ(alerts.shown[0].text, "Invalid community name");
    EXPECT_EQ(alerts.shown[0].informativeText, field.invalidMessage());
    EXPECT_EQ(alerts.shown[0].buttons, QStringList{"OK"});
    EXPECT_EQ(alerts.shown[0].icon, QMessageBox::Critical);
}

TEST(RestrictedTextFieldTest, freshFieldState) {
    OVRestrictedTextField field;
    EXPECT_EQ(field.maxLength(), -1);
    EXPECT_TRUE(field.oldString().isEmpty() && !field.oldString().isNull());
    EXPECT_TRUE(field.invalidMessage().isEmpty() && !field.invalidMessage().isNull());
    EXPECT_TRUE(field.invalidTitle().isNull());
    EXPECT_FALSE(field.isNumeric());
    EXPECT_EQ(field.restrictedStringFormatter(), nullptr);
    field.setNumeric();
    ASSERT_NE(field.restrictedStringFormatter(), nullptr);
    EXPECT_TRUE(field.restrictedStringFormatter()->isNumeric());
    EXPECT_EQ(field.validCharacters(), "0123456789");
}

// Focus moving away ends editing: the value is clamped and the event posted.
TEST(RestrictedTextFieldTest, focusLeavingEndsEditing) {
    QWidget window;
    auto *layout = new QVBoxLayout(&window);
    auto *field = new OVRestrictedTextField;
    auto *next = new OVRestrictedTextField;
    layout->addWidget(field);
    layout->addWidget(next);
    field->setNumeric();
    field->restrictMinValue(100);
    field->restrictMaxValue(200);
    field->setNotifyEditing(true);
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    field->setFocus(Qt::OtherFocusReason);
    field->setText("340");
    EventRecorder edits(OVRestrictedTextField::DidEditingNotification);

    QTest::keyClick(field, Qt::Key_Tab);

    EXPECT_TRUE(next->hasFocus());
    EXPECT_EQ(field->text(), "200");
    EXPECT_EQ(edits.events.size(), 1);
}

} // namespace
