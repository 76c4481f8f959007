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
    struct Step {
        void (OVTableViewDataSource::*select)();
        int row;
        QString value;
    };
    const Step steps[] = {{&OVTableViewDataSource::selectLastRow, 2, "Form C"},
                          {&OVTableViewDataSource::selectFirstRow, 0, "Form A"},
                          {&OVTableViewDataSource::unselectAllRow, -1, QString()}};
    for (const Step &step : steps) {
        (source.*step.select)();
        EXPECT_EQ(tableRow(), step.row);
        EXPECT_EQ(source.getSelectedRow(), step.row);
        EXPECT_EQ(source.getSelectedRowValue(), step.value);
        EXPECT_EQ(source.getSelectedRowValue().isNull(), step.value.isNull());
    }
    ASSERT_EQ(events.events.size(), 3);
    EXPECT_EQ(events.events[0].object, QVariant(QStringLiteral("SelctionChanged")));
}

TEST_F(TableFixture, clickSelectsRow) {
    const QRect cell = view.visualRect(source.index(1, 0));
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, cell.center());
    EXPECT_EQ(source.getSelectedRow(), 1);
    EXPECT_EQ(events.events.size(), 1);
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
    EXPECT_TRUE(source.getSelectedRowValue().isNull());
}

TEST_F(TableFixture, removeSelectedRowKeepsRowIndex) {
    source.selectFirstRow();
    const int eventsBefore = int(events.events.size());
    source.removeSelectedRow();
    EXPECT_EQ(source.getElementsArray(), (QStringList{"Form B", "Form C"}));
    EXPECT_EQ(source.getSelectedRow(), 0);
    EXPECT_EQ(source.getSelectedRowValue(), "Form B");
    EXPECT_EQ(events.events.size(), eventsBefore);
}

TEST_F(TableFixture, emptyingListAndSelectingPastEnd) {
    source.selectFirstRow();
    source.setElementsArray(std::nullopt);
    EXPECT_EQ(source.count(), 0u);
    EXPECT_EQ(source.rowCount(), 0);
    source.selectLastRow();
    EXPECT_EQ(tableRow(), -1);
    EXPECT_EQ(source.getSelectedRow(), -1);
    source.removeSelectedRow();
    EXPECT_EQ(source.count(), 0u);
}

TEST_F(TableFixture, elementsAndLookups) {
    source.addElement(QString());
    source.addElement("Form D");
    EXPECT_EQ(source.count(), 4u);
    EXPECT_TRUE(source.isItemExist("Form A"));
    EXPECT_FALSE(source.isItemExist("form a"));
    EXPECT_FALSE(source.isItemExist(QString()));
    EXPECT_TRUE(source.getElementAtRow(-1).isNull());
    EXPECT_TRUE(source.getElementAtRow(4).isNull());
    EXPECT_EQ(source.objectValueForTableColumn(0, 4), "");
    EXPECT_FALSE(source.flags(source.index(0, 0)).testFlag(Qt::ItemIsEditable));
    EXPECT_EQ(view.editTriggers(), QAbstractItemView::NoEditTriggers);
}

TEST_F(TableFixture, localizationAppliesToDisplayOnly) {
    source.setLocalizer([](const QString &key) { return "<" + key + ">"; });
    EXPECT_EQ(source.data(source.index(0, 0), Qt::DisplayRole), "Form A");
    source.setLocalizeStrings(true);
    EXPECT_EQ(source.data(source.index(0, 0), Qt::DisplayRole), "<Form A>");
    source.selectFirstRow();
    EXPECT_EQ(source.getSelectedRowValue(), "Form A");
    EXPECT_TRUE(source.isItemExist("Form A"));
    EXPECT_EQ(source.getElementsArray().first(), "Form A");
}

TEST(OVTableViewDataSourceTest, withoutTableSelectionIsLeftAlone) {
    OVTableViewDataSource source;
    source.setElementsArray(QStringList{"a", "b"});
    source.selectLastRow();
    source.unselectAllRow();
    EXPECT_EQ(source.getSelectedRow(), 0);
    EXPECT_EQ(source.getSelectedRowValue(), "a");
}

} // namespace
