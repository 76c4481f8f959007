// The key-value field's table of selectable values: a repeated key takes its
// last value; a negative value, a key without a value or an unknown key
// selects 0; a new table replaces the old one.
#include "NSKeyValueTextField.h"

#include <gtest/gtest.h>

TEST(NSKeyValueTextFieldTest, selectedValueLookup) {
    NSKeyValueTextField field;
    EXPECT_EQ(field.getSelectedValue(), 0);
    field.setKeyArray({"A", "B", "A2", "A2", "C"}, {3, -2, 1, 7});
    const std::pair<QString, int> cases[] = {{"A", 3}, {"B", 0}, {"C", 0}, {"A2", 7}, {{}, 0}};
    for (const auto &[selected, value] : cases) {
        field.setSelectedStringValue(selected);
        EXPECT_EQ(field.getSelectedValue(), value) << selected.toStdString();
    }
    field.setKeyArray({"C", "D"}, {4});
    EXPECT_EQ(field.valueDict(), (QMap<QString, qint32>{{"C", 4}}));
}
