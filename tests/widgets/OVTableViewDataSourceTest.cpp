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

    int tableRow() const {
        const QModelIndexList rows = view.selectionModel()->selectedRows();
        return rows.isEmpty() ? -1 : rows.first().row();
    }

    QTableView view;
    OVTableViewDataSource source;
    EventRecorder events{OVTableViewDataSource::SelectionChangedNotification};
};

TEST_F(TableFixture, programmaticSelectionReportsThroughTable) {
    const std::tuple<void (OVTableViewDataSource::*)(), int, QString> steps[] = {
        {&OVTableViewDataSource::selectLastRow, 2, "Form C"},
        {&OVTableViewDataSource::selectFirstRow, 0, "Form A"},
        {&OVTableViewDataSource::unselectAllRow, -1, QString()}};
    for (const auto &[select, row, value] : steps) {
        (source.*select)();
        EXPECT_EQ(tableRow(), row);
        EXPECT_EQ(source.getSelectedRow(), row);
        EXPECT_EQ(source.getSelectedRowValue(), value);
        EXPECT_EQ(source.getSelectedRowValue().isNull(), value.isNull());
    }
    ASSERT_EQ(events.events.size(), 3);
    EXPECT_EQ(events.events[0].object, QVariant(QStringLiteral("SelctionChanged")));

    QTest::mouseClick(view.viewport(), Qt::LeftButton, {},
                      view.visualRect(source.index(1, 0)).center());
    EXPECT_EQ(source.getSelectedRow(), 1);
}

TEST_F(TableFixture, reloadKeepsSelectedRowWhileItExists) {
    source.selectLastRow();
    source.setElementsArray(QStringList{"X", "Y", "Z", "W"});
    EXPECT_EQ(tableRow(), 2);
    EXPECT_EQ(source.getSelectedRowValue(), "Z");
    EXPECT_EQ(source.data(source.index(2, 0), Qt::DisplayRole), "Z");

    source.setElementsArray(QStringList{"only"});
    EXPECT_EQ(tableRow(), -1);
    EXPECT_EQ(source.getSelectedRow(), -1);

    source.setElementsArray(std::nullopt);
    EXPECT_EQ(source.rowCount(), 0);
    source.selectLastRow();
    EXPECT_EQ(tableRow(), -1);
}

TEST_F(TableFixture, removeSelectedRowKeepsRowIndex) {
    source.selectFirstRow();
    const qsizetype eventsBefore = events.events.size();
    source.removeSelectedRow();
    EXPECT_EQ(source.getElementsArray(), (QStringList{"Form B", "Form C"}));
    EXPECT_EQ(source.getSelectedRow(), 0);
    EXPECT_EQ(source.getSelectedRowValue(), "Form B");
    EXPECT_EQ(events.events.size(), eventsBefore);
}

TEST_F(TableFixture, lookupsAndLocalizedDisplay) {
    source.addElement(QString());
    EXPECT_EQ(source.count(), 3u);
    EXPECT_FALSE(source.isItemExist("form a"));
    EXPECT_TRUE(source.getElementAtRow(-1).isNull());
    EXPECT_EQ(source.objectValueForTableColumn(0, 3), "");
    EXPECT_FALSE(source.flags(source.index(0, 0)).testFlag(Qt::ItemIsEditable));

    source.setLocalizer([](const QString &key) { return "<" + key + ">"; });
    EXPECT_EQ(source.data(source.index(0, 0), Qt::DisplayRole), "Form A");
    source.setLocalizeStrings(true);
    EXPECT_EQ(source.data(source.index(0, 0), Qt::DisplayRole), "<Form A>");
    source.selectFirstRow();
    EXPECT_EQ(source.getSelectedRowValue(), "Form A");
    EXPECT_TRUE(source.isItemExist("Form A"));
}

} // namespace
