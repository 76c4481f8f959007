// The key-value field's identity and its table of selectable values.
#include "NSKeyValueTextField.h"

#include <gtest/gtest.h>

namespace {

QStringList warnings;

void recordWarning(QtMsgType type, const QMessageLogContext &, const QString &message) {
    if (type == QtWarningMsg) {
        warnings.append(message);
    }
}

TEST(NSKeyValueTextFieldTest, negativeIdIsLoggedAndStored) {
    NSKeyValueTextField field;
    EXPECT_EQ(field.getElementID(), -1);
    warnings.clear();
    const QtMessageHandler previous = qInstallMessageHandler(recordWarning);
    field.setName("Community", 3, "Window");
    field.setName("Community", -5, "Window");
    qInstallMessageHandler(previous);
    EXPECT_EQ(warnings, QStringList{"Wrong control ID"});
    EXPECT_EQ(field.getElementID(), -5);
    EXPECT_EQ(field.getParentElement(), "Window");
}

TEST(NSKeyValueTextFieldTest, selectedValueLookup) {
    NSKeyValueTextField field;
    EXPECT_EQ(field.getSelectedValue(), 0);
    field.setKeyArray({"A", "B", "A2", "A2"}, {3, -2, 1, 7});
    const std::pair<QString, int> cases[] = {{"A", 3}, {"B", 0}, {"C", 0}, {"A2", 7}, {{}, 0}};
    for (const auto &[selected, value] : cases) {
        field.setSelectedStringValue(selected);
        EXPECT_EQ(field.getSelectedValue(), value) << selected.toStdString();
    }
    field.setKeyArray({"C", "D"}, {4});
    EXPECT_EQ(field.valueDict(), (QMap<QString, qint32>{{"C", 4}}));
}

} // namespace
