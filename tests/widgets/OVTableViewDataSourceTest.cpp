// The string list model bound to a real table: selection through the table's
// own path, reloads that keep the selected row, localization on display only.
#include "OVTableViewDataSource.h"
#include "ControlTestSupport.h"

#include <QTableView>

#include <gtest/gtest.h>

namespace {

class TableFixture : public ::testing::Test {
protected:
    TableFixture() {
        source.setTableView(&view);
        source.setElementsArray(QStringList{"Form A", "Form B", "Form C"});
    }

    // The row the table shows selected and the one the model reports agree.
    int selectedRow() const {
        const QModelIndexList rows = view.selectionModel()->selectedRows();
        EXPECT_EQ(source.getSelectedRow(), rows.isEmpty() ? -1 : rows.first().row());
        return source.getSelectedRow();
    }

    QTableView view;
    OVTableViewDataSource source;
    EventRecorder events{OVTableViewDataSource::SelectionChangedNotification};
};

TEST_F(TableFixture, selectionReportsThroughTable) {
    const std::tuple<void (OVTableViewDataSource::*)(), int, QString> steps[] = {
        {&OVTableViewDataSource::selectLastRow, 2, "Form C"},
        {&OVTableViewDataSource::selectFirstRow, 0, "Form A"},
        {&OVTableViewDataSource::unselectAllRow, -1, QString()}};
    for (const auto &[select, row, value] : steps) {
        (source.*select)();
        EXPECT_EQ(selectedRow(), row);
        EXPECT_EQ(source.getSelectedRowValue(), value);
        EXPECT_EQ(source.getSelectedRowValue().isNull(), value.isNull());
    }
    ASSERT_EQ(events.events.size(), 3);
    EXPECT_EQ(events.events[0].object, QVariant(QStringLiteral("SelctionChanged")));

    QTest::mouseClick(view.viewport(), Qt::LeftButton, {},
                      view.visualRect(source.index(1, 0)).center());
    EXPECT_EQ(selectedRow(), 1);
}

// A reload keeps the selected row while it exists; removing the selected row
// moves the selection to its successor without an event.
TEST_F(TableFixture, reloadAndRemoveKeepSelectedRow) {
    source.selectFirstRow();
    const qsizetype eventsBefore = events.events.size();
    source.removeSelectedRow();
    EXPECT_EQ(source.getElementsArray(), (QStringList{"Form B", "Form C"}));
    EXPECT_EQ(source.getSelectedRowValue(), "Form B");
    EXPECT_EQ(events.events.size(), eventsBefore);

    source.selectLastRow();
    source.setElementsArray(QStringList{"X", "Y", "Z"});
    EXPECT_EQ(selectedRow(), 1);
    EXPECT_EQ(source.getSelectedRowValue(), "Y");
    source.setElementsArray(QStringList{"only"});
    EXPECT_EQ(selectedRow(), -1);
    source.setElementsArray(std::nullopt);
    EXPECT_EQ(source.rowCount(), 0);
    source.selectLastRow();
    EXPECT_EQ(selectedRow(), -1);
}

TEST_F(TableFixture, localizedOnDisplayOnly) {
    source.setLocalizer([](const QString &key) { return "<" + key + ">"; });
    EXPECT_EQ(source.data(source.index(0, 0), Qt::DisplayRole), "Form A");
    source.setLocalizeStrings(true);
    EXPECT_EQ(source.data(source.index(0, 0), Qt::DisplayRole), "<Form A>");
    source.selectFirstRow();
    EXPECT_EQ(source.getSelectedRowValue(), "Form A");
    EXPECT_TRUE(source.isItemExist("Form A"));
    EXPECT_FALSE(source.isItemExist("form a"));
}

} // namespace
