#pragma once

#include "OVNotification.h"

#include <QAbstractTableModel>
#include <QMetaObject>
#include <QPointer>
#include <QStringList>
#include <QTableView>

#include <optional>

// The model behind each one-column list of the main window. It keeps the
// table's behaviour of a classic data source: a reload keeps the selected row
// when it still exists, selection made in code reaches `selectedRow` only
// through the table's own selection-change path, and cells are never edited.
class OVTableViewDataSource : public QAbstractTableModel {
    Q_OBJECT

public:
    static constexpr const char *selectionChangedNotification =
        "OVTableViewDataSourceSelectionChanged";
    // The object of every selection event; it names no data source.
    static constexpr const char *selectionChangedObject = "SelctionChanged";

    explicit OVTableViewDataSource(QObject *parent = nullptr);
    ~OVTableViewDataSource() override;

    // Null empties the list.
    void setElementsArray(const std::optional<QStringList> &array);
    // A null string is ignored.
    void addElement(const QString &element);
    QStringList getElementsArray() const { return m_elementsArray; }
    // Null when the row is negative or not below the count.
    QString getElementAtRow(int row) const;
    // Exact, case-sensitive comparison; false for a null string.
    bool isItemExist(const QString &item) const;
    // Displayed texts go through the window's text lookup when on; stored
    // elements, selection values and comparisons keep the untranslated text.
    void setLocalizeStrings(bool localize);
    quint64 count() const { return quint64(m_elementsArray.size()); }

    QTableView *tableView() const { return m_tableView; }
    // Attaches this list as the table's model and listens to its selection.
    void setTableView(QTableView *tableView);

    int numberOfRowsInTableView(const QTableView *tableView) const;
    QString objectValueForTableColumn(int column, int row) const;
    bool shouldEditTableColumn(int, int) const { return false; }

    void selectFirstRow();
    void selectLastRow();
    void unselectAllRow();
    int getSelectedRow() const { return m_selectedRow; }
    QString getSelectedRowValue() const { return getElementAtRow(m_selectedRow); }
    // Leaves `selectedRow` unchanged, as the table keeps the same row index.
    void removeSelectedRow();
    void tableViewSelectionDidChange(const OVNotification &notification);

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

private:
    // Swaps in a new list the way a table reloads: rows past the new end go
    // (with their selection), the rest keep their selection and show new text.
    void reload(const QStringList &elements);
    void releaseCurrentRowFrom(int firstRemovedRow);
    void replaceSelectionWithRow(int row);
    int tableSelectedRow() const;

    QStringList m_elementsArray;
    int m_selectedRow = 0;
    bool m_bLocalizeStrings = false;
    QPointer<QTableView> m_tableView;
    QMetaObject::Connection m_selectionConnection;
};
