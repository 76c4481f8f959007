#pragma once

#include <QObject>
#include <QStringList>
#include <QVariantMap>

#include <array>
#include <memory>
#include <optional>

class OVTableViewDataSource;
struct OVSettingsSnapshot;
class QAbstractButton;
class QLineEdit;
class QTableView;
struct ppd_file_s;
class QWidget;
namespace Ui {
class MainUtilityWindiw;
}

// Owns the utility's one window ("MainUtilityWindiw") and all its controls:
// sets them up, loads the stored settings of the queue, moves folders between
// the printer's list and the chosen list, fetches the lists from the printer
// and saves everything through the update job.
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
    QString printerID() const { return printerID_; }
    void setPrinterID(const QString &printerID) { printerID_ = printerID; }
    bool bError() const { return bError_; }
    bool bAdminLoginModeEnabled() const { return bAdminLoginModeEnabled_; }
    bool isPPDOptionsUpdated() const { return isPPDOptionsUpdated_; }
    QStringList allSharedBoxNames() const { return allSharedBoxNames_; }
    QStringList selectedSharedBoxNames() const { return selectedSharedBoxNames_; }
    QList<qint32> selectedSharedBoxIndex() const { return selectedSharedBoxIndex_; }
    OVTableViewDataSource *registerFolderTableViewDataSource() const;
    OVTableViewDataSource *selectedFolderTableViewDataSource() const;
    OVTableViewDataSource *formTableViewDataSource() const;
    OVTableViewDataSource *barcodeAreaDefinitionTableViewDataSource() const;
    OVTableViewDataSource *colorProfileTableViewDataSource() const;

    // The application's information dictionary, whose model name titles the
    // window; an installed build has none (nullopt): the default title.
    static void setInformationDictionary(std::optional<QVariantMap> dictionary);

    // Start-up and closing.
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

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    using ListQuery = std::optional<QStringList> (*)(const char *address, const QString &community);
    using Action = void (OVPrinterUtilityWindowController::*)(QObject *sender);

    void resetLaunchState();
    void setUpTexts();
    void setUpWindowTitle();
    void setUpSettingsFields();
    void setUpFolderTab();
    void createDataSources();
    void connectActions();
    void runAction(QAbstractButton *button, Action action, bool isFetch);
    QList<QAbstractButton *> fetchButtons() const;
    void bindTable(OVTableViewDataSource *dataSource, QTableView *table);
    void readSettings(ppd_file_s *ppd);
    void readFolderSettings(ppd_file_s *ppd);
    void readListSettings(ppd_file_s *ppd);
    void showList(OVTableViewDataSource *dataSource, QTableView *table, const QStringList &list);
    bool passesFetchGuard();
    void fetchList(ListQuery query, OVTableViewDataSource *dataSource);
    void applyFolderList(const std::optional<QStringList> &names,
                         const std::optional<QStringList> &states);
    void failFetch();
    void showTooLongMessage(const QStringList &listKeys);
    void failFolderFetch();
    QString macAddressFromFields() const;
    // What the queries are given: the community of getSnmpCommunityFromUI and
    // the address field's text, both as UTF-8.
    QString queryCommunity() const;
    QByteArray queryAddress() const;
    std::array<QLineEdit *, macFieldCount> macAddressFields() const;
    QString localized(const char *key) const;

    std::unique_ptr<QWidget> window_;
    std::unique_ptr<Ui::MainUtilityWindiw> ui_;
    std::unique_ptr<OVTableViewDataSource> registerFolderTableViewDataSource_;
    std::unique_ptr<OVTableViewDataSource> selectedFolderTableViewDataSource_;
    std::unique_ptr<OVTableViewDataSource> formTableViewDataSource_;
    std::unique_ptr<OVTableViewDataSource> barcodeAreaDefinitionTableViewDataSource_;
    std::unique_ptr<OVTableViewDataSource> colorProfileTableViewDataSource_;
    QString printerID_;
    QStringList allSharedBoxNames_;
    QStringList selectedSharedBoxNames_;
    QList<qint32> selectedSharedBoxIndex_;
    bool bError_ = false;
    bool bAdminLoginModeEnabled_ = false;
    bool isPPDOptionsUpdated_ = false;
    bool actionRunning_ = false;
};
