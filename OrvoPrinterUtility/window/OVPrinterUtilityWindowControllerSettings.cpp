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
    if (m_loading)
        m_loading->release();
    m_loading.reset();
    m_ui->progressIndicatorText->setText(localized(gettingInformation));
    showProgress(false);
    if (settings)
        applySettings(*settings);
    initAddDeleteState();
    m_registerFolderTableViewDataSource->selectFirstRow();
    loadFormValues();
    loadBarcodeAreaDefinitionValues();
    loadColorProfileValues();
    setTabOrder();
    emit settingsLoaded();
}

QList<QWidget *> OVPrinterUtilityWindowController::settingsControls() const {
    Ui::MainUtilityWindiw &c = *m_ui;
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
    if (!m_loading)
        m_loading = std::make_unique<OVControlsLock>(settingsControls());
    m_ui->progressIndicatorText->setText(localized(loadingSettings));
    showProgress(true);
    OVBackgroundTask::run(
        this,
        [printerID = m_printerId]() -> std::optional<OVSettingsSnapshot> {
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
    Ui::MainUtilityWindiw &c = *m_ui;
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
    m_isPpdOptionsUpdated = s.isPPDOptionsUpdated;
    m_folders.load(s);
    showRegisterFolders();
    m_registerFolderTableViewDataSource->selectLastRow();
    showSelectedFolders();
    m_ui->folderPersonalFolderCheck->setChecked(s.folderPersonalFolderCheck);
    m_bAdminLoginModeEnabled = s.bAdminLoginModeEnabled;
    m_ui->folderPersonalFolderCheck->setEnabled(m_bAdminLoginModeEnabled);
}

void OVPrinterUtilityWindowController::applyListSettings(const OVSettingsSnapshot &s) {
    showList(m_formTableViewDataSource.get(), m_ui->formTable, s.formNames);
    showList(m_barcodeAreaDefinitionTableViewDataSource.get(), m_ui->barcodeAreaDefinitionTable,
             s.barcodeAreaDefinitionNames);
    showList(m_colorProfileTableViewDataSource.get(), m_ui->colorProfileTable, s.colorProfileNames);
}

void OVPrinterUtilityWindowController::showList(OVTableViewDataSource *dataSource,
                                                QTableView *table, const QStringList &list) {
    dataSource->setElementsArray(list);
    bindTable(dataSource, table);
    dataSource->selectFirstRow();
}

// ---- saving -----------------------------------------------------------------

void OVPrinterUtilityWindowController::okButtonClicked(QObject *) {
    if (m_saving)
        return;
    updateStringArrays();
    m_isPpdOptionsUpdated = true;
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
    m_saving = false;
    if (outcome == OVWindowSave::Outcome::Submitted) {
        closeButtonClicked(m_ui->closeButton);
        return;
    }
    OVAlert::alertWithMessageText(localized(queueNotSetUp).arg(m_printerId), localized(ok),
                                  QString(), QString(), OVAlert::plainMessageFormat, {})
        ->runModal();
}

void OVPrinterUtilityWindowController::showTooLongMessage(const QStringList &listKeys) {
    QStringList names;
    for (const QString &key : listKeys)
        names << "\u2022 " + OVPrinterUtilityHelper::getLocalizedStringFor(key);
    const QString text = localized(settingsTooLong);
    auto alert = OVAlert::alertWithMessageText(text, localized(ok), QString(), QString(),
                                               OVAlert::plainMessageFormat, {names.join('\n')});
    alert->runModal();
}

void OVPrinterUtilityWindowController::closeButtonClicked(QObject *) {
    emit applicationShouldTerminate();
}

void OVPrinterUtilityWindowController::saveOptionsToPPD() {
    m_saving = true;
    OVWindowSave::save(this, settingsSnapshot(), m_printerId,
                       [this](OVWindowSave::Outcome outcome) { saved(outcome); });
}

OVSettingsSnapshot OVPrinterUtilityWindowController::settingsSnapshot() const {
    Ui::MainUtilityWindiw &c = *m_ui;
    OVSettingsSnapshot s;
    s.isPPDOptionsUpdated = m_isPpdOptionsUpdated;
    s.snmpCommunityCheck = c.snmpCommunityCheck->isChecked();
    s.snmpCommunityText = c.snmpCommunityText->text();
    s.wakeOnLANCheck = c.wakeOnLANCheck->isChecked();
    for (int i = 0; i < macFieldCount; ++i)
        s.macAddressFields[i] = macAddressFields()[i]->text();
    s.overstepTheRouter = c.overstepTheRouter->isChecked();
    s.printerIPAddressText = c.printerIPAddressText->text();
    s.allSharedBoxNames = m_folders.allSharedBoxNames();
    s.selectedSharedBoxNames = m_folders.selectedSharedBoxNames();
    s.selectedSharedBoxIndex = m_folders.selectedSharedBoxIndex();
    s.folderPersonalFolderCheck = c.folderPersonalFolderCheck->isChecked();
    s.bAdminLoginModeEnabled = m_bAdminLoginModeEnabled;
    s.formNames = m_formTableViewDataSource->getElementsArray();
    s.barcodeAreaDefinitionNames = m_barcodeAreaDefinitionTableViewDataSource->getElementsArray();
    s.colorProfileNames = m_colorProfileTableViewDataSource->getElementsArray();
    return s;
}
