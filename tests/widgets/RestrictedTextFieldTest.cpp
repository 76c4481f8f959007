// Typing into the restricted text field as a person would: key events and
// pastes, the text restored after a refused edit, alerts and edit events.
#include "CharacterSets.h"
#include "ControlTestSupport.h"
#include "OVRestrictedTextField.h"

#include <QSpinBox>

#include <gtest/gtest.h>

namespace {

TEST(RestrictedTextFieldTest, communityField) {
    const QString limit(32, u'a');
    const QString yenZwsp = QString(QChar(0x00A5)) + QChar(0x200B);
    const struct {
        bool showMessage;
        QString initial, typed, pasted, expected;
        int alerts, events;
    } cases[] = {
        {true, "", "Ab9_" + yenZwsp, "", "Ab9_" + yenZwsp, 0, 6},
        // The alert cleans the text, then the edit counts as a valid one.
        {true, "", "ab-", "", "ab", 1, 3},
        // Without the alert the valid set refuses it: no event for that key.
        {false, "", "ab#", "", "ab", 0, 2},
        {true, "", "a b", "", "ab", 0, 2},
        {false, "", limit + "b", "", limit, 0, 33},
        {false, "abc", "", QString(40, u'x'), "abc", 0, 1},
        {true, "", "", "a!b%c", "abc", 1, 1},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE((c.typed + c.pasted).toStdString());
        AlertRecorder alerts;
        OVRestrictedTextField field;
        field.setValidCharacters(ControlSets::community());
        field.setInvalidCharacters(ControlSets::communityInvalid());
        field.setMaxLength(ControlSets::communityMaxLength);
        field.setNotifyEditing(true);
        field.showMessageIfInvalid(c.showMessage);
        field.setInvalidMessageString("Letters and digits only", "Invalid community name");
        field.setText(c.initial);
        EventRecorder edits(OVRestrictedTextField::DidEditingNotification);

        typeText(&field, c.typed);
        if (!c.pasted.isEmpty())
            paste(&field, c.pasted);

        EXPECT_EQ(field.text(), c.expected);
        EXPECT_EQ(edits.events.size(), c.events);
        EXPECT_TRUE(edits.events.isEmpty() || edits.events[0].sender() == &field);
        ASSERT_EQ(alerts.shown.size(), c.alerts);
        if (c.alerts > 0) {
            const AlertRecorder::Shown &shown = alerts.shown[0];
            EXPECT_EQ(QStringList({shown.text, shown.informativeText}) + shown.buttons,
                      QStringList({"Invalid community name", "Letters and digits only", "OK"}));
            EXPECT_EQ(shown.icon, QMessageBox::Critical);
        }
    }
}

// Clamped when editing ends, the stepper following; partial entries snap
// into 90–340 while typing.
TEST(RestrictedTextFieldTest, numericField) {
    const std::tuple<QString, QString, int> clamped[] = {
        {"25", "10", 10}, {"0", "1", 1}, {"7", "7", 7}, {"", "1", 1}};
    for (const auto &[text, expected, stepperValue] : clamped) {
        QSpinBox stepper;
        stepper.setRange(-100, 100);
        OVRestrictedTextField field;
        field.setNumeric();
        field.restrictMinValue(1);
        field.restrictMaxValue(10);
        field.syncWithStepper(&stepper);
        field.setText(text);
        QTest::keyClick(&field, Qt::Key_Return);
        EXPECT_EQ(field.text(), expected);
        EXPECT_EQ(stepper.value(), stepperValue);
    }
    const std::tuple<QString, QString, QString> typed[] = {
        {"", "5", "90"}, {"12", "0", "120"}, {"50", "0", "340"}, {"120", "a", "120"}};
    for (const auto &[initial, keys, expected] : typed) {
        OVRestrictedTextField field;
        field.setNumeric();
        field.setText(initial);
        typeText(&field, keys);
        EXPECT_EQ(field.text(), expected) << initial.toStdString() << "+" << keys.toStdString();
    }
}

} // namespace
