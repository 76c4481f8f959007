#include "OVTableViewDataSource.h"

#include "OVLineControls.h"
#include "OVNotificationCenter.h"
#include "OVPrinterUtilityHelper.h"

#include <QItemSelectionModel>

#include <algorithm>

OVTableViewDataSource::OVTableViewDataSource(QObject *parent)
    : QAbstractTableModel(parent) {}

OVTableViewDataSource::~OVTableViewDataSource() {
    setTableView(nullptr);
}

void OVTableViewDataSource::setElementsArray(const std::optional<QStringList> &array) {
    reload(array.value_or(QStringList()));
}

void OVTableViewDataSource::addElement(const QString &element) {
    if (element.isNull()) {
        return;
    }
    const int row = rowCount();
    beginInsertRows({}, row, row);
    m_elementsArray.append(element);
    endInsertRows();
}

QString OVTableViewDataSource::getElementAtRow(int row) const {
    if (row < 0 || row >= m_elementsArray.size()) {
        return {};
    }
    return m_elementsArray.at(row);
}

bool OVTableViewDataSource::isItemExist(const QString &item) const {
    return !item.isNull() && m_elementsArray.contains(item, Qt::CaseSensitive);
}

void OVTableViewDataSource::setLocalizeStrings(bool localize) {
    m_bLocalizeStrings = localize;
    if (!m_elementsArray.isEmpty()) {
        emit dataChanged(index(0, 0), index(rowCount() - 1, 0), {Qt::DisplayRole});
    }
}

void OVTableViewDataSource::setTableView(QTableView *tableView) {
    QObject::disconnect(m_selectionConnection);
    m_tableView = tableView;
    if (tableView == nullptr) {
        return;
    }
    tableView->setModel(this);
    tableView->setSelectionBehavior(QAbstractItemView::SelectRows);
    tableView->setSelectionMode(QAbstractItemView::SingleSelection);
    tableView->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_selectionConnection =
        connect(tableView->selectionModel(), &QItemSelectionModel::selectionChanged, this,
                [this] { tableViewSelectionDidChange(OVNotification{}); });
}

int OVTableViewDataSource::numberOfRowsInTableView(const QTableView *) const {
    return rowCount();
}

QString OVTableViewDataSource::objectValueForTableColumn(int, int row) const {
    const QString element = getElementAtRow(row);
    if (element.isNull()) {
        return QStringLiteral("");
    }
    return m_bLocalizeStrings ? OVPrinterUtilityHelper::getLocalizedStringFor(element) : element;
}

void OVTableViewDataSource::selectFirstRow() {
    replaceSelectionWithRow(0);
}

void OVTableViewDataSource::selectLastRow() {
    replaceSelectionWithRow(rowCount() - 1);
}

void OVTableViewDataSource::unselectAllRow() {
    replaceSelectionWithRow(-1);
}

void OVTableViewDataSource::removeSelectedRow() {
    if (m_selectedRow < 0 || m_selectedRow >= m_elementsArray.size()) {
        return;
    }
    QStringList elements = m_elementsArray;
    elements.removeAt(m_selectedRow);
    reload(elements);
}

void OVTableViewDataSource::tableViewSelectionDidChange(const OVNotification &) {
    m_selectedRow = tableSelectedRow();
    OVNotificationCenter::defaultCenter().postNotification(
        QString::fromLatin1(selectionChangedNotification),
        QVariant(QString::fromLatin1(selectionChangedObject)));
}

int OVTableViewDataSource::rowCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : int(m_elementsArray.size());
}

int OVTableViewDataSource::columnCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : 1;
}

QVariant OVTableViewDataSource::data(const QModelIndex &index, int role) const {
    if (role != Qt::DisplayRole || !index.isValid()) {
        return {};
    }
    // Names from the printer or the PPD: shown, never obeyed.
    return OVLineControls::shown(objectValueForTableColumn(index.column(), index.row()));
}

Qt::ItemFlags OVTableViewDataSource::flags(const QModelIndex &index) const {
    if (!index.isValid()) {
        return Qt::NoItemFlags;
    }
    return Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemNeverHasChildren;
}

void OVTableViewDataSource::reload(const QStringList &elements) {
    const int oldCount = rowCount();
    const int newCount = int(elements.size());
    if (newCount < oldCount) {
        releaseCurrentRowFrom(newCount);
        beginRemoveRows({}, newCount, oldCount - 1);
        m_elementsArray = elements;
        endRemoveRows();
    } else if (newCount > oldCount) {
        beginInsertRows({}, oldCount, newCount - 1);
        m_elementsArray = elements;
        endInsertRows();
    } else {
        m_elementsArray = elements;
    }
    const int kept = std::min(oldCount, newCount);
    if (kept > 0) {
        emit dataChanged(index(0, 0), index(kept - 1, 0), {Qt::DisplayRole});
    }
}

void OVTableViewDataSource::releaseCurrentRowFrom(int firstRemovedRow) {
    if (!m_tableView) {
        return;
    }
    // A view whose current row goes away moves the selection to a
    // neighbour; the table only drops the rows that no longer exist.
    QItemSelectionModel *selection = m_tableView->selectionModel();
    if (selection->currentIndex().row() >= firstRemovedRow) {
        selection->setCurrentIndex({}, QItemSelectionModel::NoUpdate);
    }
}

void OVTableViewDataSource::replaceSelectionWithRow(int row) {
    if (!m_tableView) {
        return;
    }
    QItemSelectionModel *selection = m_tableView->selectionModel();
    const QModelIndex target = index(row, 0);
    if (target.isValid()) {
        selection->setCurrentIndex(target,
                                   QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    } else {
        // Row -1 (or past the end) selects nothing, so the selection empties.
        selection->clearSelection();
    }
}

int OVTableViewDataSource::tableSelectedRow() const {
    if (!m_tableView) {
        return -1;
    }
    const QModelIndexList rows = m_tableView->selectionModel()->selectedRows();
    if (rows.isEmpty()) {
        return -1;
    }
    const QModelIndex current = m_tableView->selectionModel()->currentIndex();
    if (current.isValid() && rows.contains(current.siblingAtColumn(0))) {
        return current.row();
    }
    int last = -1;
    for (const QModelIndex &row : rows) {
        last = std::max(last, row.row());
    }
    return last;
}
