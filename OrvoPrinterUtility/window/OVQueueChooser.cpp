#include "OVQueueChooser.h"

#include "OVBackgroundTask.h"
#include "OVChooserTexts.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>
#include <QTableView>
#include <QTimer>
#include <QVBoxLayout>

#include <cups/cups.h>

#include <algorithm>

namespace T = OVChooserTexts;

namespace {

enum Column { NameColumn, DescriptionColumn, MakeAndModelColumn, StateColumn, ColumnCount };
// What the filter matches: name, description, make and model in one text.
constexpr int searchRole = Qt::UserRole + 1;

// A local server is reached through its socket file, which means nothing to a
// user; a port is named when it is not the usual one.
QString serverName() {
    const QString server = QString::fromUtf8(cupsServer());
    if (server.startsWith('/'))
        return QStringLiteral("localhost");
    return ippPort() == IPP_PORT ? server : QStringLiteral("%1:%2").arg(server).arg(ippPort());
}

QList<QStandardItem *> queueRow(const OVQueueSetup::Queue &queue) {
    QList<QStandardItem *> row;
    for (const QString &cell : {queue.name, queue.description, queue.makeAndModel,
                                T::localized(queue.setUp ? T::SetUp : T::NotSetUp)}) {
        auto *item = new QStandardItem(cell);
        item->setEditable(false);
        row << item;
    }
    row[NameColumn]->setData(
        QStringList{queue.name, queue.description, queue.makeAndModel}.join('\n'), searchRole);
    return row;
}

} // namespace

OVQueueChooser::OVQueueChooser(QWidget *parent)
    : QDialog(parent)
    , model_(new QStandardItemModel(0, ColumnCount, this))
    , visible_(new QSortFilterProxyModel(this)) {
    model_->setHorizontalHeaderLabels(
        {T::localized(T::QueueColumn), T::localized(T::DescriptionColumn),
         T::localized(T::MakeAndModelColumn), T::localized(T::UtilityColumn)});
    visible_->setSourceModel(model_);
    visible_->setFilterRole(searchRole);
    visible_->setFilterKeyColumn(NameColumn);
    visible_->setFilterCaseSensitivity(Qt::CaseInsensitive);
    buildControls();
}

OVQueueChooser::~OVQueueChooser() = default;

void OVQueueChooser::buildControls() {
    setWindowTitle(T::localized(T::ChooserTitle));
    auto *layout = new QVBoxLayout(this);
    auto *intro = new QLabel(T::localized(T::ChooserIntro), this);
    intro->setWordWrap(true);
    layout->addWidget(intro);

    auto *filterRow = new QHBoxLayout;
    auto *filterLabel = new QLabel(T::localized(T::FilterLabel), this);
    filter_ = new QLineEdit(this);
    filter_->setPlaceholderText(T::localized(T::FilterPlaceholder));
    filter_->setAccessibleName(T::withoutMnemonic(T::localized(T::FilterLabel)));
    filter_->setClearButtonEnabled(true);
    filterLabel->setBuddy(filter_);
    filterRow->addWidget(filterLabel);
    filterRow->addWidget(filter_);
    layout->addLayout(filterRow);

    table_ = new QTableView(this);
    table_->setModel(visible_);
    table_->setAccessibleName(T::localized(T::QueueList));
    table_->setSelectionBehavior(QAbstractItemView::SelectRows);
    table_->setSelectionMode(QAbstractItemView::SingleSelection);
    table_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table_->verticalHeader()->hide();
    table_->horizontalHeader()->setSectionResizeMode(DescriptionColumn, QHeaderView::Stretch);
    layout->addWidget(table_, 1);

    auto *statusRow = new QHBoxLayout;
    status_ = new QLabel(this);
    status_->setWordWrap(true);
    retry_ = new QPushButton(T::localized(T::Retry), this);
    retry_->setAutoDefault(false);
    statusRow->addWidget(status_, 1);
    statusRow->addWidget(retry_);
    layout->addLayout(statusRow);

    auto *buttons = new QDialogButtonBox(this);
    open_ = buttons->addButton(T::localized(T::Open), QDialogButtonBox::AcceptRole);
    buttons->addButton(T::localized(T::Cancel), QDialogButtonBox::RejectRole);
    open_->setDefault(true);
    layout->addWidget(buttons);

    connect(filter_, &QLineEdit::textChanged, this, [this](const QString &filter) {
        visible_->setFilterFixedString(filter);
        selectFirstVisibleRow();
    });
    connect(table_, &QAbstractItemView::doubleClicked, this, &QDialog::accept);
    connect(table_->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &OVQueueChooser::updateOpenButton);
    connect(retry_, &QPushButton::clicked, this, &OVQueueChooser::load);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    resize(760, 420);
}

void OVQueueChooser::start() {
    load();
    QTimer::singleShot(showDelayMs, this, [this] {
        if (!answered_)
            show();
    });
}

void OVQueueChooser::load() {
    answered_ = false;
    setStatus(T::localized(T::Loading), false);
    filter_->setEnabled(false);
    table_->setEnabled(false);
    updateOpenButton();
    OVBackgroundTask::run(
        this,
        [] {
            return Listing{OVQueueSetup::queues(), serverName()};
        },
        [this](const Listing &listing) { showListing(listing); });
}

void OVQueueChooser::showListing(const Listing &listing) {
    answered_ = true;
    const QList<OVQueueSetup::Queue> queues = listing.queues.value_or(QList<OVQueueSetup::Queue>());
    fillTable(queues);
    if (!listing.queues)
        setStatus(T::localized(T::Unreachable).arg(listing.server), true);
    else if (queues.isEmpty())
        setStatus(T::localized(T::NoQueues).arg(listing.server), true);
    else
        setStatus({}, false);
    const auto setUp = std::count_if(queues.begin(), queues.end(),
                                     [](const OVQueueSetup::Queue &queue) { return queue.setUp; });
    emit listed();
    if (setUp == 1) {
        const auto only =
            std::find_if(queues.begin(), queues.end(),
                         [](const OVQueueSetup::Queue &queue) { return queue.setUp; });
        table_->selectRow(int(only - queues.begin()));
        accept();
        return;
    }
    show();
    table_->setFocus();
}

void OVQueueChooser::fillTable(const QList<OVQueueSetup::Queue> &queues) {
    model_->removeRows(0, model_->rowCount());
    for (const OVQueueSetup::Queue &queue : queues)
        model_->appendRow(queueRow(queue));
    filter_->setEnabled(!queues.isEmpty());
    table_->setEnabled(!queues.isEmpty());
    table_->resizeColumnsToContents();
    selectFirstVisibleRow();
}

void OVQueueChooser::setStatus(const QString &status, bool offerRetry) {
    status_->setText(status);
    status_->setVisible(!status.isEmpty());
    retry_->setVisible(offerRetry);
}

void OVQueueChooser::selectFirstVisibleRow() {
    if (visible_->rowCount() > 0 && !table_->selectionModel()->hasSelection())
        table_->selectRow(0);
    updateOpenButton();
}

void OVQueueChooser::updateOpenButton() {
    open_->setEnabled(table_->isEnabled() && !chosenQueue().isEmpty());
}

QString OVQueueChooser::chosenQueue() const {
    const QModelIndexList rows = table_->selectionModel()->selectedRows(NameColumn);
    return rows.isEmpty() ? QString() : rows.first().data().toString();
}

QString OVQueueChooser::statusText() const {
    return status_->text();
}
