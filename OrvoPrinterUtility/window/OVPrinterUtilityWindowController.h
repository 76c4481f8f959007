#pragma once

#include "OVBackgroundTask.h"
#include "OVFolderSelection.h"
#include "OVPrinterInfoFetch.h"
#include "OVSettingsSnapshot.h"
#include "OVWindowQueue.h"
#include "OVWindowSave.h"
#include "OVWindowSnmp.h"

#include <QObject>
#include <QStringList>
#include <QVariantMap>

#include <array>
#include <memory>
#include <optional>
#include <span>

class OVMessageBar;
class OVTableViewDataSource;
class QLineEdit;
class QTableView;
class QWidget;
namespace Ui {
class MainUtilityWindiw;
}

// Owns the utility's one window ("MainUtilityWindiw") and all its controls,
// and coordinates what happens to them: the stored settings of the queue
// (OVWindowQueue) load in the background and fill the controls, and a bar
// above the tabs says what keeps the window from saving (offering the set-up
// of a queue that is not set up); the folder tab shows an OVFolderSelection;
// Get Printer Info runs OVPrinterInfoFetch; OK saves through OVWindowSave and
// closes the window only once the settings are stored. Every call that may
// wait on the network goes through OVBackgroundTask, as a task that Cancel
// or closing the window ends at once.
//
// The window is in one state at a time, and the state alone decides which
// controls are on and what the progress indicator says: the settings only
// when idle (where the controls' own rules narrow them further), Cancel only
// while a fetch, a save or a set-up runs, Close until the window closes.
class OVPrinterUtilityWindowController : public QObject {
    Q_OBJECT

public:
    enum class State { Loading, Idle, Fetching, Saving, SettingUp, Closing };

    static constexpr const char *windowIdentifier = "MainUtilityWindiw";
    static constexpr int macFieldCount = 6;

    // initWithWindow: and awakeFromNib: the window comes from its .ui resource.
    explicit OVPrinterUtilityWindowController(QObject *parent = nullptr);
    ~OVPrinterUtilityWindowController() override;

    QWidget *mainWindowObject() const;
    Ui::MainUtilityWindiw &controls() const;
    OVMessageBar *messageBar() const { return m_messageBar; }
    QString printerID() const { return m_printerId; }
    void setPrinterID(const QString &printerID) { m_printerId = printerID; }
    bool bError() const { return m_bError; }
    bool bAdminLoginModeEnabled() const { return m_bAdminLoginModeEnabled; }
    bool isPPDOptionsUpdated() const { return m_isPpdOptionsUpdated; }
    State state() const { return m_state; }
    QStringList allSharedBoxNames() const { return m_folders.allSharedBoxNames(); }
    QStringList selectedSharedBoxNames() const { return m_folders.selectedSharedBoxNames(); }
    QList<qint32> selectedSharedBoxIndex() const { return m_folders.selectedSharedBoxIndex(); }
    OVTableViewDataSource *registerFolderTableViewDataSource() const;
    OVTableViewDataSource *selectedFolderTableViewDataSource() const;
    OVTableViewDataSource *formTableViewDataSource() const;
    OVTableViewDataSource *barcodeAreaDefinitionTableViewDataSource() const;
    OVTableViewDataSource *colorProfileTableViewDataSource() const;

    // The application's information dictionary, whose model name titles the
    // window; an installed build has none (nullopt): the default title.
    static void setInformationDictionary(std::optional<QVariantMap> dictionary);

    // Start-up and closing. The window shows at once; its settings controls
    // stay off until the stored settings have loaded (settingsLoaded).
    void applicationDidFinishLaunching(const QStringList &arguments);
    void windowWillClose(const QString &identifier);

    // Controls.
    void loadControls();
    void constraintsSnmpItems();
    void constraintsWakeOnLanItems();
    bool setMacAddressStr(const QString &macAddress);
    QByteArray getSnmpCommunityFromUI() const;
    void setTabOrder();

    // Loading.
    void loadDefaultFolderValues();
    void loadDefaultSelectedFolderValues();
    void loadFolderValues();
    void loadSelectedFolderValues();
    void loadFormValues();
    void loadBarcodeAreaDefinitionValues();
    void loadColorProfileValues();
    void loadOptionsFromPPD();

    // Saving.
    void okButtonClicked(QObject *sender);
    void closeButtonClicked(QObject *sender);
    // Ends the fetch, save or set-up under way; what it found is not shown.
    void cancelButtonClicked(QObject *sender);
    void saveOptionsToPPD();
    OVSettingsSnapshot settingsSnapshot() const;

    // Folder selection.
    void folderAddButtonClicked(QObject *sender);
    void folderDeleteButtonClicked(QObject *sender);
    void folderClearButtonClicked(QObject *sender);
    void initAddDeleteState();
    bool shouldEnableAdd() const;
    bool shouldEnableDelete() const;
    void receiveTableViewNotification();
    void receiveTextFieldNotification();
    void updateStringArrays();
    void updateSelectedArrayStrings();

    // Fetching from the printer.
    void getPrinterInfoButtonClicked(QObject *sender);
    void getPrinterInfoMacAddress(QObject *sender);
    void folderGetPrinterInfoButtonClicked(QObject *sender);
    void formGetPrinterInfoButtonClicked(QObject *sender);
    void barcodeAreaDefinitionGetPrinterInfoButtonClicked(QObject *sender);
    void colorProfileGetPrinterInfoButtonClicked(QObject *sender);
    void formClearButtonClicked(QObject *sender);
    void barcodeAreaDefinitionClearButtonClicked(QObject *sender);
    void colorProfileClearButtonClicked(QObject *sender);
    // reason: the informative text, why the fetch failed.
    void showFailedMessage(const QString &reason);
    void customSnmpCommunityClicked(QObject *sender);
    // The SNMP version, and the SNMPv3 user with its passphrases.
    void snmpSecurityButtonClicked(QObject *sender);
    void wakeOnLANCheckClicked(QObject *sender);

signals:
    // OK and Close end the application; main() quits on this.
    void applicationShouldTerminate();
    // The stored settings are in the controls (or the queue had none) and
    // the controls are on.
    void settingsLoaded();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    using Action = void (OVPrinterUtilityWindowController::*)(QObject *sender);

    void resetLaunchState();
    bool pressDialogKey(int key);
    bool hasUnsavedChanges() const;
    // Asks whether to drop changes not saved; yes when there are none.
    bool mayDiscardChanges();
    // Ends what runs and hides the window, for good.
    void closeWindow();
    void createDataSources();
    void connectActions();
    void enter(State state);
    // Idle, on a queue whose settings the user may change.
    bool editable() const;
    void showProgress(const char *text);
    // Runs a task on the print server on the worker, within the limit of
    // such a task; done sees its result unless it was cancelled.
    template <typename Work, typename Done> void startTask(State state, Work &&work, Done &&done);
    void bindTable(OVTableViewDataSource *dataSource, QTableView *table);
    QList<QWidget *> settingsControls() const;
    void finishLoading(const OVWindowQueue::Loaded &loaded);
    void showProblem(OVWindowQueue::Problem problem);
    void messageBarActionTriggered();
    void showQueueNote(const OVQueueDevice::Info &device);
    // The bar's button for the problem on show, if it has one.
    const char *problemAction() const;
    // Says the problem, offering the bar's way out.
    void alertProblem();
    // repair: rebuild a damaged PPD instead.
    void setUpQueue(bool repair);
    void setUpEnded(const OVQueueSetup::Result &result);
    // An alert with the one button OK; detail is its informative text.
    void alert(const QString &text, const QString &detail = QString());
    // Whether the user goes on with what button does; Cancel and Escape say no.
    bool ask(const char *question, const char *button, const char *detail);
    void applySettings(const OVSettingsSnapshot &settings);
    void applyFolderSettings(const OVSettingsSnapshot &settings);
    void applyListSettings(const OVSettingsSnapshot &settings);
    void showList(OVTableViewDataSource *dataSource, QTableView *table, const QStringList &list);
    void showRegisterFolders();
    void showSelectedFolders();
    void saved(const OVWindowSave::Outcome &outcome);
    OVPrinterInfoFetch::Printer fetchTarget() const;
    QString printerAddress() const;
    void fetch(std::span<const OVPrinterInfoFetch::Step> steps);
    void showFetched(const OVPrinterInfoFetch::Result &result);
    void showFetchedList(const std::optional<QStringList> &list, OVTableViewDataSource *dataSource);
    void applyFolderList(const OVPrinterInfoFetch::Result &result);
    void failFetch(const QString &reason);
    void failFolderFetch(const QString &reason);
    std::array<QLineEdit *, macFieldCount> macAddressFields() const;
    QString localized(const char *key) const;

    std::unique_ptr<QWidget> m_window;
    std::unique_ptr<Ui::MainUtilityWindiw> m_ui;
    std::unique_ptr<OVTableViewDataSource> m_registerFolderTableViewDataSource;
    std::unique_ptr<OVTableViewDataSource> m_selectedFolderTableViewDataSource;
    std::unique_ptr<OVTableViewDataSource> m_formTableViewDataSource;
    std::unique_ptr<OVTableViewDataSource> m_barcodeAreaDefinitionTableViewDataSource;
    std::unique_ptr<OVTableViewDataSource> m_colorProfileTableViewDataSource;
    OVMessageBar *m_messageBar;
    State m_state = State::Loading;
    // The task under way, for Cancel and closing.
    OVBackgroundTask::Token m_task;
    // Tells a task's result from that of an earlier, cancelled one.
    quint64 m_taskGeneration = 0;
    // What keeps the window from saving, as the bar says it.
    OVWindowQueue::Problem m_problem = OVWindowQueue::Problem::None;
    // The address the bar offers, from the queue's device URI.
    QString m_offeredAddress;
    QString m_server;
    OVFolderSelection m_folders;
    OVWindowSnmp m_snmp;
    QString m_printerId;
    bool m_bError = false;
    bool m_bAdminLoginModeEnabled = false;
    bool m_isPpdOptionsUpdated = false;
    // The settings as the window showed them once loaded, to tell changes by.
    std::optional<OVSettingsSnapshot> m_shownSettings;
};

// A cancelled task's result is dropped: the window is already back in the
// state it had before the task, or closing.
template <typename Work, typename Done>
void OVPrinterUtilityWindowController::startTask(State state, Work &&work, Done &&done) {
    enter(state);
    m_task = OVBackgroundTask::run(this, std::forward<Work>(work),
                                   [this, generation = ++m_taskGeneration,
                                    done = std::forward<Done>(done)](const auto &result) mutable {
                                       if (generation != m_taskGeneration || !m_task ||
                                           m_task->cancelled())
                                           return;
                                       m_task.reset();
                                       done(result);
                                   });
}
