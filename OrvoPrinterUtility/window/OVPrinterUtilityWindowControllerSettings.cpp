// The controller's part in the queue's settings: they load in the background
// while the window shows, fill the controls, and OK saves them.
#include "OVAlert.h"
#include "OVBackgroundTask.h"
#include "OVControlsLock.h"
#include "OVPrinterUtilityHelper.h"
#include "OVPrinterUtilityWindowController.h"
#include "OVSaveSizeCheck.h"
#include "OVSettingsSnapshot.h"
#include "OVStoredSettings.h"
#include "OVTableViewDataSource.h"
#include "OVWindowLog.h"
#include "OVWindowTexts.h"
#include "ui_MainUtilityWindiw.h"

using namespace OVWindowTexts;

// The steps after the stored settings are in.
void OVPrinterUtilityWindowController::finishLoading(
    const std::optional<OVSettingsSnapshot> &settings) {
    if (loading_)
        loading_->release();
    loading_.reset();
    ui_->progressIndicatorText->setText(localized(GettingInformation));
    showProgress(false);
    if (settings)
        applySettings(*settings);
    initAddDeleteState();
    registerFolderTableViewDataSource_->selectFirstRow();
    loadFormValues();
    loadBarcodeAreaDefinitionValues();
    loadColorProfileValues();
    setTabOrder();
    emit settingsLoaded();
}

QList<QWidget *> OVPrinterUtilityWindowController::settingsControls() const {
    Ui::MainUtilityWindiw &c = *ui_;
    QList<QWidget *> controls = {c.snmpCommunityCheck,   c.snmpCommunityText,
                                 c.wakeOnLANCheck,       c.overstepTheRouter,
                                 c.printerIPAddressText, c.printerGetPrinterInfoButton,
                                 c.meinTabView,          c.okButton};
    for (QLineEdit *field : macAddressFields())
        controls << field;
    return controls;
}

// The window shows at once with its settings off while the print server is
// asked. A missing server, queue, PPD or attribute is never an error: the
// window keeps its defaults.
void OVPrinterUtilityWindowController::loadOptionsFromPPD() {
    if (!loading_)
        loading_ = std::make_unique<OVControlsLock>(settingsControls());
    ui_->progressIndicatorText->setText(localized(LoadingSettings));
    showProgress(true);
    OVBackgroundTask::run(
        this,
        [printerID = printerID_]() -> std::optional<OVSettingsSnapshot> {
            OVSettingsSnapshot settings;
            const auto status = OVStoredSettings::load(printerID, settings);
            qCDebug(orvoWindow) << "settings of" << printerID << "loaded:" << int(status);
            if (status != OVStoredSettings::Status::Loaded)
                return std::nullopt;
            return settings;
        },
        [this](const std::optional<OVSettingsSnapshot> &settings) { finishLoading(settings); });
}

void OVPrinterUtilityWindowController::applySettings(const OVSettingsSnapshot &s) {
    Ui::MainUtilityWindiw &c = *ui_;
    c.snmpCommunityCheck->setChecked(s.snmpCommunityCheck);
    c.snmpCommunityText->setText(s.snmpCommunityText);
    constraintsSnmpItems();
    c.wakeOnLANCheck->setChecked(s.wakeOnLANCheck);
    for (int i = 0; i < macFieldCount; ++i)
        macAddressFields()[i]->setText(s.macAddressFields[i]);
    constraintsWakeOnLanItems();
    c.overstepTheRouter->setChecked(s.overstepTheRouter);
    c.printerIPAddressText->setText(s.printerIPAddressText);
    applyFolderSettings(s);
    applyListSettings(s);
}

void OVPrinterUtilityWindowController::applyFolderSettings(const OVSettingsSnapshot &s) {
    isPPDOptionsUpdated_ = s.isPPDOptionsUpdated;
    folders_.load(s);
    showRegisterFolders();
    registerFolderTableViewDataSource_->selectLastRow();
    showSelectedFolders();
    ui_->folderPersonalFolderCheck->setChecked(s.folderPersonalFolderCheck);
    bAdminLoginModeEnabled_ = s.bAdminLoginModeEnabled;
    ui_->folderPersonalFolderCheck->setEnabled(bAdminLoginModeEnabled_);
}

void OVPrinterUtilityWindowController::applyListSettings(const OVSettingsSnapshot &s) {
    showList(formTableViewDataSource_.get(), ui_->formTable, s.formNames);
    showList(barcodeAreaDefinitionTableViewDataSource_.get(), ui_->barcodeAreaDefinitionTable,
             s.barcodeAreaDefinitionNames);
    showList(colorProfileTableViewDataSource_.get(), ui_->colorProfileTable, s.colorProfileNames);
}

void OVPrinterUtilityWindowController::showList(OVTableViewDataSource *dataSource,
                                                QTableView *table, const QStringList &list) {
    dataSource->setElementsArray(list);
    bindTable(dataSource, table);
    dataSource->selectFirstRow();
}

// ---- saving -----------------------------------------------------------------

void OVPrinterUtilityWindowController::okButtonClicked(QObject *) {
    if (saving_)
        return;
    updateStringArrays();
    isPPDOptionsUpdated_ = true;
    // cupsd hands all job options to the filter in one argument, which the
    // kernel limits to 128 KiB: a save that could not reach the driver keeps
    // the window open and says which lists to shorten, instead of closing
    // with the settings lost.
    const QStringList tooLong = OVSaveSizeCheck::listsToShorten(settingsSnapshot());
    if (!tooLong.isEmpty()) {
        showTooLongMessage(tooLong);
        return;
    }
    saveOptionsToPPD();
}

// On a queue that is not set up the settings would be lost: say so and keep
// the window open with everything set. Otherwise the job is on its way.
void OVPrinterUtilityWindowController::saved(OVWindowSave::Outcome outcome) {
    saving_ = false;
    if (outcome == OVWindowSave::Outcome::Submitted) {
        closeButtonClicked(ui_->closeButton);
        return;
    }
    OVAlert::alertWithMessageText(localized(QueueNotSetUp).arg(printerID_), localized(OK),
                                  QString(), QString(), OVAlert::PlainMessageFormat, {})
        ->runModal();
}

void OVPrinterUtilityWindowController::showTooLongMessage(const QStringList &listKeys) {
    QStringList names;
    for (const QString &key : listKeys)
        names << "\u2022 " + OVPrinterUtilityHelper::getLocalizedStringFor(key);
    const QString text = localized(SettingsTooLong);
    auto alert = OVAlert::alertWithMessageText(text, localized(OK), QString(), QString(),
                                               OVAlert::PlainMessageFormat, {names.join('\n')});
    alert->runModal();
}

void OVPrinterUtilityWindowController::closeButtonClicked(QObject *) {
    emit applicationShouldTerminate();
}

void OVPrinterUtilityWindowController::saveOptionsToPPD() {
    saving_ = true;
    OVWindowSave::save(this, settingsSnapshot(), printerID_,
                       [this](OVWindowSave::Outcome outcome) { saved(outcome); });
}

OVSettingsSnapshot OVPrinterUtilityWindowController::settingsSnapshot() const {
    Ui::MainUtilityWindiw &c = *ui_;
    OVSettingsSnapshot s;
    s.isPPDOptionsUpdated = isPPDOptionsUpdated_;
    s.snmpCommunityCheck = c.snmpCommunityCheck->isChecked();
    s.snmpCommunityText = c.snmpCommunityText->text();
    s.wakeOnLANCheck = c.wakeOnLANCheck->isChecked();
    for (int i = 0; i < macFieldCount; ++i)
        s.macAddressFields[i] = macAddressFields()[i]->text();
    s.overstepTheRouter = c.overstepTheRouter->isChecked();
    s.printerIPAddressText = c.printerIPAddressText->text();
    s.allSharedBoxNames = folders_.allSharedBoxNames();
    s.selectedSharedBoxNames = folders_.selectedSharedBoxNames();
    s.selectedSharedBoxIndex = folders_.selectedSharedBoxIndex();
    s.folderPersonalFolderCheck = c.folderPersonalFolderCheck->isChecked();
    s.bAdminLoginModeEnabled = bAdminLoginModeEnabled_;
    s.formNames = formTableViewDataSource_->getElementsArray();
    s.barcodeAreaDefinitionNames = barcodeAreaDefinitionTableViewDataSource_->getElementsArray();
    s.colorProfileNames = colorProfileTableViewDataSource_->getElementsArray();
    return s;
}
