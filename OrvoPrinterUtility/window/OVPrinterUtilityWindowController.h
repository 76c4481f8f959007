#pragma once

#include "OVFolderSelection.h"
#include "OVPrinterInfoFetch.h"
#include "OVWindowQueue.h"
#include "OVWindowSave.h"

#include <QObject>
#include <QStringList>
#include <QVariantMap>

#include <array>
#include <memory>
#include <optional>
#include <span>

class OVControlsLock;
class OVMessageBar;
class OVTableViewDataSource;
struct OVSettingsSnapshot;
class QAbstractButton;
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
// wait on the network goes through OVBackgroundTask.
class OVPrinterUtilityWindowController : public QObject {
    Q_OBJECT

public:
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
    void showProgress(bool show);
    void showFailedMessage();
    bool wakeOnLanWrapper();
    void customSnmpCommunityClicked(QObject *sender);
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
    void createDataSources();
    void connectActions();
    void runAction(QAbstractButton *button, Action action, bool isFetch);
    QList<QAbstractButton *> fetchButtons() const;
    void bindTable(OVTableViewDataSource *dataSource, QTableView *table);
    QList<QWidget *> settingsControls() const;
    void finishLoading(const OVWindowQueue::Loaded &loaded);
    void lockSettings(const char *progressText);
    void unlockSettings();
    void showProblem(OVWindowQueue::Problem problem);
    void messageBarActionTriggered();
    // repair: rebuild a damaged PPD instead.
    void setUpQueue(bool repair);
    void setUpEnded(const OVQueueSetup::Result &result);
    // An alert with the one button OK; detail is its informative text.
    void alert(const QString &text, const QString &detail = QString());
    void applySettings(const OVSettingsSnapshot &settings);
    void applyFolderSettings(const OVSettingsSnapshot &settings);
    void applyListSettings(const OVSettingsSnapshot &settings);
    void showList(OVTableViewDataSource *dataSource, QTableView *table, const QStringList &list);
    void showRegisterFolders();
    void showSelectedFolders();
    void saved(const OVWindowSave::Outcome &outcome);
    OVPrinterInfoFetch::Printer fetchTarget() const;
    void fetch(std::span<const OVPrinterInfoFetch::Step> steps);
    void showFetched(const OVPrinterInfoFetch::Result &result);
    void showFetchedList(const std::optional<QStringList> &list, OVTableViewDataSource *dataSource);
    void applyFolderList(const OVPrinterInfoFetch::Result &result);
    void failFetch();
    void failFolderFetch();
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
    // The settings controls are off while the window loads, saves or sets
    // up the queue.
    std::unique_ptr<OVControlsLock> m_busy;
    // What keeps the window from saving, as the bar says it.
    OVWindowQueue::Problem m_problem = OVWindowQueue::Problem::None;
    QString m_server;
    OVFolderSelection m_folders;
    QString m_printerId;
    bool m_bError = false;
    bool m_bAdminLoginModeEnabled = false;
    bool m_isPpdOptionsUpdated = false;
    bool m_actionRunning = false;
    // OK's save is under way: a second OK is ignored.
    bool m_saving = false;
    // The window is closing: what a fetch finds is no longer shown.
    bool m_closing = false;
};
