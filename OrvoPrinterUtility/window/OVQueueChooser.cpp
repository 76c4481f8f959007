#include "OVQueueChooser.h"

#include "OVBackgroundTask.h"
#include "OVChooserTexts.h"
#include "OVCupsConnection.h"
#include "OVLineControls.h"
#include "OVMnemonics.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSettings>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>
#include <QTableView>
#include <QTimer>
#include <QUrl>
#include <QVBoxLayout>
#include <cups/cups.h>

#include <algorithm>
#include <functional>

namespace T = OVChooserTexts;

namespace {

enum Column { NameColumn, DescriptionColumn, MakeAndModelColumn, StateColumn, ColumnCount };
// What the filter matches: name, description, make and model in one text.
constexpr int searchRole = Qt::UserRole + 1;
// The queue's name as the server has it; the cells show names with the
// characters that reorder a line by their code.
constexpr int nameRole = Qt::UserRole + 2;
constexpr int setUpRole = Qt::UserRole + 3;
// The server chosen last, in the user's settings of the utility.
constexpr char serverKey[] = "printServer";
QSettings userSettings() {
    return QSettings(QStringLiteral("Orvo"), QStringLiteral("orvo-printer-utility"));
}

QList<QStandardItem *> queueRow(const OVQueueSetup::Queue &queue) {
    QList<QStandardItem *> row;
    for (const QString &cell : {queue.name, queue.description, queue.makeAndModel,
                                T::localized(queue.damaged ? T::damaged
                                             : queue.setUp ? T::setUp
                                                           : T::notSetUp)}) {
        auto *item = new QStandardItem(OVLineControls::shown(cell));
        item->setEditable(false);
        row << item;
    }
    row[NameColumn]->setData(
        QStringList{queue.name, queue.description, queue.makeAndModel}.join('\n'), searchRole);
    row[NameColumn]->setData(queue.name, nameRole);
    row[NameColumn]->setData(queue.setUp, setUpRole);
    return row;
}

} // namespace

OVQueueChooser::OVQueueChooser(QWidget *parent)
    : QDialog(parent)
    , m_model(new QStandardItemModel(0, ColumnCount, this))
    , m_visible(new QSortFilterProxyModel(this)) {
    m_model->setHorizontalHeaderLabels(
        {T::localized(T::queueColumn), T::localized(T::descriptionColumn),
         T::localized(T::makeAndModelColumn), T::localized(T::utilityColumn)});
    m_visible->setSourceModel(m_model);
    m_visible->setFilterRole(searchRole);
    m_visible->setFilterKeyColumn(NameColumn);
    m_visible->setFilterCaseSensitivity(Qt::CaseInsensitive);
    buildControls();
}

OVQueueChooser::~OVQueueChooser() = default;

// The controls are made in reading order, which Tab follows.
void OVQueueChooser::buildControls() {
    setWindowTitle(T::localized(T::chooserTitle));
    auto *layout = new QVBoxLayout(this);
    auto *intro = new QLabel(T::localized(T::chooserIntro), this);
    intro->setWordWrap(true);
    layout->addWidget(intro);

    auto *filterRow = new QHBoxLayout;
    auto *filterLabel = new QLabel(T::localized(T::filterLabel), this);
    m_filter = new QLineEdit(this);
    m_filter->setPlaceholderText(T::localized(T::filterPlaceholder));
    m_filter->setAccessibleName(T::withoutMnemonic(T::localized(T::filterLabel)));
    m_filter->setClearButtonEnabled(true);
    filterLabel->setBuddy(m_filter);
    filterRow->addWidget(filterLabel);
    filterRow->addWidget(m_filter);
    layout->addLayout(filterRow);

    m_table = new QTableView(this);
    m_table->setModel(m_visible);
    m_table->setAccessibleName(T::localized(T::queueList));
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    // Tab moves on to the buttons; the arrow keys move through the queues.
    m_table->setTabKeyNavigation(false);
    m_table->verticalHeader()->hide();
    m_table->horizontalHeader()->setSectionResizeMode(DescriptionColumn, QHeaderView::Stretch);
    layout->addWidget(m_table, 1);

    auto *statusRow = new QHBoxLayout;
    m_status = new QLabel(this);
    m_status->setWordWrap(true);
    m_retry = new QPushButton(T::localized(T::retry), this);
    m_retry->setAutoDefault(false);
    statusRow->addWidget(m_status, 1);
    statusRow->addWidget(m_retry);
    layout->addLayout(statusRow);

    auto *buttons = new QDialogButtonBox(this);
    QPushButton *server =
        buttons->addButton(T::localized(T::otherServer), QDialogButtonBox::ActionRole);
    server->setAutoDefault(false);
    connect(server, &QPushButton::clicked, this, &OVQueueChooser::askForServer);
    m_open = buttons->addButton(T::localized(T::open), QDialogButtonBox::AcceptRole);
    buttons->addButton(T::localized(T::cancel), QDialogButtonBox::RejectRole);
    m_open->setDefault(true);
    layout->addWidget(buttons);

    connect(m_filter, &QLineEdit::textChanged, this, [this](const QString &filter) {
        m_visible->setFilterFixedString(filter);
        selectFirstVisibleRow();
        showFilterResult();
    });
    connect(m_table, &QAbstractItemView::doubleClicked, this, &QDialog::accept);
    connect(m_table->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &OVQueueChooser::updateOpenButton);
    connect(m_retry, &QPushButton::clicked, this, &OVQueueChooser::load);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    resize(760, 420);
    OVMnemonics::assign(this);
}

void OVQueueChooser::start() {
    if (const QString server = rememberedServer(); !server.isEmpty())
        useServer(server);
    load();
    QTimer::singleShot(showDelayMs, this, [this] {
        if (!m_answered)
            show();
    });
}

void OVQueueChooser::load() {
    m_answered = false;
    setStatus(T::localized(T::loading), false);
    m_filter->setEnabled(false);
    m_table->setEnabled(false);
    updateOpenButton();
    OVBackgroundTask::run(
        this,
        [] {
            return Listing{OVQueueSetup::queues(), OVCupsConnection::serverName(), defaultQueue()};
        },
        [this](const Listing &listing) { showListing(listing); });
}

QString OVQueueChooser::rememberedServer() {
    return userSettings().value(serverKey).toString();
}

void OVQueueChooser::askForServer() {
    bool given = false;
    const QString server =
        QInputDialog::getText(this, T::localized(T::otherServerTitle), T::localized(T::serverLabel),
                              QLineEdit::Normal, rememberedServer(), &given);
    if (given && !connectToServer(server))
        setStatus(T::localized(T::serverInvalid).arg(server), false);
}

// A host name or address, with a port or without, and nothing else.
bool OVQueueChooser::connectToServer(const QString &server) {
    const QUrl url(QStringLiteral("ipp://") + server.trimmed());
    if (server.trimmed().isEmpty() || !url.isValid() || url.host().isEmpty() ||
        !url.path().isEmpty() || !url.userInfo().isEmpty() || url.hasQuery() || url.hasFragment())
        return false;
    userSettings().setValue(serverKey, server.trimmed());
    useServer(server.trimmed());
    load();
    return true;
}

// Every call to the print server runs on the background worker, whose
// client settings name the server.
void OVQueueChooser::useServer(const QString &server) {
    OVBackgroundTask::wait([name = server.toUtf8()] { cupsSetServer(name.constData()); });
}

QString OVQueueChooser::defaultQueue() {
    const OVCupsConnection connection;
    if (!connection)
        return {};
    ipp_t *response = cupsDoRequest(connection.http(), ippNewRequest(IPP_OP_CUPS_GET_DEFAULT), "/");
    const char *name =
        ippGetString(ippFindAttribute(response, "printer-name", IPP_TAG_NAME), 0, nullptr);
    const QString queue = name ? QString::fromUtf8(name) : QString();
    ippDelete(response);
    return queue;
}

void OVQueueChooser::showListing(const Listing &listing) {
    m_answered = true;
    m_defaultQueue = listing.defaultQueue;
    const QList<OVQueueSetup::Queue> queues = listing.queues.value_or(QList<OVQueueSetup::Queue>());
    fillTable(queues);
    if (!listing.queues)
        setStatus(T::localized(T::unreachable).arg(listing.server), true);
    else if (queues.isEmpty())
        setStatus(T::localized(T::noQueues).arg(listing.server), true);
    else
        setStatus({}, false);
    const auto setUp = std::count_if(queues.begin(), queues.end(),
                                     [](const OVQueueSetup::Queue &queue) { return queue.setUp; });
    emit listed();
    if (setUp == 1) {
        const auto only =
            std::find_if(queues.begin(), queues.end(),
                         [](const OVQueueSetup::Queue &queue) { return queue.setUp; });
        m_table->selectRow(int(only - queues.begin()));
        accept();
        return;
    }
    show();
    m_table->setFocus();
}

void OVQueueChooser::fillTable(const QList<OVQueueSetup::Queue> &queues) {
    m_model->removeRows(0, m_model->rowCount());
    for (const OVQueueSetup::Queue &queue : queues)
        m_model->appendRow(queueRow(queue));
    m_filter->setEnabled(!queues.isEmpty());
    m_table->setEnabled(!queues.isEmpty());
    m_table->resizeColumnsToContents();
    selectPreferredRow();
}

void OVQueueChooser::selectPreferredRow() {
    const auto rowWhere = [this](const std::function<bool(int)> &wanted) {
        for (int row = 0; row < m_visible->rowCount(); ++row)
            if (wanted(row))
                return row;
        return -1;
    };
    int row = rowWhere([this](int row) {
        return m_visible->index(row, NameColumn).data(nameRole).toString() == m_defaultQueue;
    });
    if (row < 0)
        row = rowWhere(
            [this](int row) { return m_visible->index(row, NameColumn).data(setUpRole).toBool(); });
    m_table->clearSelection();
    if (row >= 0)
        m_table->selectRow(row);
    selectFirstVisibleRow();
}

// A filter that matches nothing says so where the list was.
void OVQueueChooser::showFilterResult() {
    const bool none = m_model->rowCount() > 0 && m_visible->rowCount() == 0;
    setStatus(none ? T::localized(T::noMatch) : QString(), false);
}

void OVQueueChooser::setStatus(const QString &status, bool offerRetry) {
    m_status->setText(status);
    m_status->setVisible(!status.isEmpty());
    m_retry->setVisible(offerRetry);
}

void OVQueueChooser::selectFirstVisibleRow() {
    if (m_visible->rowCount() > 0 && !m_table->selectionModel()->hasSelection())
        m_table->selectRow(0);
    updateOpenButton();
}

void OVQueueChooser::updateOpenButton() {
    m_open->setEnabled(m_table->isEnabled() && !chosenQueue().isEmpty());
}

QString OVQueueChooser::chosenQueue() const {
    const QModelIndexList rows = m_table->selectionModel()->selectedRows(NameColumn);
    return rows.isEmpty() ? QString() : rows.first().data(nameRole).toString();
}

QString OVQueueChooser::statusText() const {
    return m_status->text();
}
