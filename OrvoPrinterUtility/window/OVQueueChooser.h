#pragma once

#include "OVQueueSetup.h"

#include <QDialog>

#include <optional>

class QLabel;
class QLineEdit;
class QPushButton;
class QSortFilterProxyModel;
class QStandardItemModel;
class QTableView;

// What the utility shows first when it is started without naming a queue: the
// print server's queues, whether each is set up for the utility, and a filter.
// Accepted, chosenQueue() names the queue to open; rejected, nothing was
// chosen. The list is asked for in the background, so a slow server never
// freezes the chooser.
class OVQueueChooser : public QDialog {
    Q_OBJECT

public:
    // How long the answer may take before the chooser shows its loading
    // state: on a quick server that opens its one set-up queue at once, the
    // chooser never flashes up.
    static constexpr int showDelayMs = 200;

    explicit OVQueueChooser(QWidget *parent = nullptr);
    ~OVQueueChooser() override;

    // Asks the server for its queues. When exactly one of them is set up for
    // the utility it is chosen at once: that is the queue the utility can save
    // to, and a quick server then never shows the chooser. Otherwise the
    // chooser shows the list.
    void start();
    QString chosenQueue() const;
    // What is said above the list (asking, server unreachable, no queues);
    // empty while the list is shown.
    QString statusText() const;
    QTableView *queueTable() const { return m_table; }
    QLineEdit *filterField() const { return m_filter; }
    QPushButton *openButton() const { return m_open; }
    QPushButton *retryButton() const { return m_retry; }
    // Lists the queues of another print server, "host" or "host:port", and
    // remembers it for the user's next start; false (and nothing changed)
    // for text that names no server.
    bool connectToServer(const QString &server);
    // The server the user chose last; empty for the client's default.
    static QString rememberedServer();

signals:
    // The server's answer, or its failure, is on show (or a queue was chosen).
    void listed();

private:
    struct Listing {
        std::optional<QList<OVQueueSetup::Queue>> queues;
        QString server;
        QString defaultQueue; // empty when the server has none
    };

    // The server's default queue, asked in the background.
    static QString defaultQueue();

    void buildControls();
    void load();
    void showListing(const Listing &listing);
    void fillTable(const QList<OVQueueSetup::Queue> &queues);
    void setStatus(const QString &text, bool offerRetry);
    void selectFirstVisibleRow();
    // The default queue, else the first set-up one, else the first.
    void selectPreferredRow();
    void showFilterResult();
    void updateOpenButton();
    void askForServer();
    static void useServer(const QString &server);

    QStandardItemModel *m_model;
    QSortFilterProxyModel *m_visible;
    QLabel *m_status = nullptr;
    QPushButton *m_retry = nullptr;
    QLineEdit *m_filter = nullptr;
    QTableView *m_table = nullptr;
    QPushButton *m_open = nullptr;
    bool m_answered = false;
    QString m_defaultQueue;
};
