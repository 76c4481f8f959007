// The MAC-address style field: refused keys, the editable length, trimming of
// pasted text and the events that name the editing phase.
#include "CharacterSets.h"
#include "ControlTestSupport.h"
#include "OVCustomRestrictedTextField.h"

#include <gtest/gtest.h>

namespace {

// A refused key restores the text before it and posts nothing; with auto
// trim a paste keeps its valid part.
TEST(CustomRestrictedTextFieldTest, typedAndPastedText) {
    const std::tuple<QString, bool, QString, qsizetype> cases[] = {{"A1F", false, "A1", 2},
                                                                   {"G", false, "", 0},
                                                                   {"aG", false, "a", 1},
                                                                   {"a-b", true, "ab", 1}};
    for (const auto &[input, pasted, expected, changes] : cases) {
        OVCustomRestrictedTextField field;
        field.setValidCharacters(pasted ? QString("ab") : ControlSets::hexadecimal());
        field.setMaxEditableTextLength(2);
        field.setSendNotification(true);
        if (pasted)
            field.setAllowAutoTrim();
        EventRecorder events(OVCustomRestrictedTextField::Notification);
        pasted ? paste(&field, input) : typeText(&field, input);
        EXPECT_EQ(field.text(), expected) << input.toStdString();
        QStringList methods;
        for (const OVNotification &event : events.events) {
            methods << event.userInfo.value(OVCustomRestrictedTextField::MethodNameKey).toString();
            EXPECT_EQ(event.sender(), &field);
        }
        EXPECT_EQ(methods, QStringList(changes, "textDidChange"));
    }
}

} // namespace
