// The controller's part in the queue's settings: they load in the background
// while the window shows, fill the controls, and OK saves them.
#include "OVBackgroundTask.h"
#include "OVPrinterUtilityWindowController.h"
#include "OVSettingsSnapshot.h"
#include "OVTableViewDataSource.h"
#include "OVWindowLog.h"
#include "OVWindowTexts.h"
#include "ui_MainUtilityWindiw.h"

using namespace OVWindowTexts;

// The steps after the stored settings are in, or the window's defaults
// stayed because the queue has none to give.
void OVPrinterUtilityWindowController::finishLoading(const OVWindowQueue::Loaded &loaded) {
    enter(State::Idle);
    m_server = loaded.server;
    if (loaded.settings)
        applySettings(*loaded.settings);
    showProblem(loaded.problem);
    showQueueNote(loaded.device);
    initAddDeleteState();
    m_registerFolderTableViewDataSource->selectFirstRow();
    loadFormValues();
    loadBarcodeAreaDefinitionValues();
    loadColorProfileValues();
    setTabOrder();
    m_shownSettings = settingsSnapshot();
    emit settingsLoaded();
}

QList<QWidget *> OVPrinterUtilityWindowController::settingsControls() const {
    Ui::MainUtilityWindiw &c = *m_ui;
    // The tabs' pages are switched with the state on their own (enter).
    QList<QWidget *> controls = {c.snmpCommunityCheck,          c.snmpCommunityText,
                                 c.snmpSecurityButton,          c.wakeOnLANCheck,
                                 c.overstepTheRouter,           c.printerIPAddressText,
                                 c.printerGetPrinterInfoButton, c.okButton};
    for (QLineEdit *field : macAddressFields())
        controls << field;
    return controls;
}

// The window shows at once with its settings off while the print server is
// asked. A missing server, queue, PPD or attribute leaves the window's
// defaults in place, and the bar above the tabs says what is missing.
void OVPrinterUtilityWindowController::loadOptionsFromPPD() {
    startTask(
        State::Loading, [printerID = m_printerId] { return OVWindowQueue::load(printerID); },
        [this](const OVWindowQueue::Loaded &loaded) { finishLoading(loaded); });
}

void OVPrinterUtilityWindowController::applySettings(const OVSettingsSnapshot &s) {
    Ui::MainUtilityWindiw &c = *m_ui;
    c.snmpCommunityCheck->setChecked(s.snmpCommunityCheck);
    c.snmpCommunityText->setText(s.snmpCommunityText);
    m_snmp.apply(s);
    constraintsSnmpItems();
    c.wakeOnLANCheck->setChecked(s.wakeOnLANCheck);
    setMacAddressStr(s.macAddress);
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
    if (m_state != State::Idle)
        return;
    // Settings that did not come from the queue would replace the stored
    // ones with defaults, and a queue that is not set up would print them:
    // OK says what stands in the way, as the bar does, and offers the bar's
    // way out.
    if (m_problem != OVWindowQueue::Problem::None) {
        alertProblem();
        return;
    }
    updateStringArrays();
    m_isPpdOptionsUpdated = true;
    saveOptionsToPPD();
}

// The window closes only on settings the queue's PPD holds; otherwise it
// stays open with everything set, and says what became of the save.
void OVPrinterUtilityWindowController::saved(const OVWindowSave::Outcome &outcome) {
    enter(State::Idle);
    if (outcome.stored()) {
        closeWindow();
        return;
    }
    // A setting that breaks its rule is named, and so are the lists to
    // shorten of a save that could not reach the driver (cupsd hands all job
    // options to the filter in one argument, which the kernel limits to
    // 128 KiB), instead of closing with the settings lost.
    if (!outcome.verdict.ok()) {
        alert(OVWindowSave::verdictText(outcome.verdict),
              OVWindowSave::listsToShortenText(outcome.verdict));
        return;
    }
    if (outcome.queue == OVQueueSetup::State::Damaged ||
        outcome.result == OVSettingsSave::Result::Damaged)
        showProblem(OVWindowQueue::Problem::Damaged);
    else if (outcome.queue == OVQueueSetup::State::NotSetUp)
        showProblem(OVWindowQueue::Problem::NotSetUp);
    else if (!outcome.userMaySave)
        showProblem(OVWindowQueue::Problem::NotASaver);
    alert(OVWindowSave::failureText(outcome, m_printerId, m_server));
}

void OVPrinterUtilityWindowController::closeButtonClicked(QObject *) {
    if (m_state != State::Closing && mayDiscardChanges())
        closeWindow();
}

bool OVPrinterUtilityWindowController::mayDiscardChanges() {
    if (!hasUnsavedChanges())
        return true;
    return ask(discardQuestion, discardButton, discardDetail);
}

// A task under way would keep the closing window for up to its limit, a
// wake flow for minutes: it ends now, and what it finds is not shown.
void OVPrinterUtilityWindowController::closeWindow() {
    if (m_task)
        m_task->cancel();
    enter(State::Closing);
    m_window->hide();
    emit applicationShouldTerminate();
}

// The whole save (submit, wait for the job, read back) has one limit.
void OVPrinterUtilityWindowController::saveOptionsToPPD() {
    startTask(
        State::Saving,
        [settings = settingsSnapshot(), queue = m_printerId] {
            return OVSettingsSave::save(settings, queue);
        },
        [this](const OVWindowSave::Outcome &outcome) { saved(outcome); });
}

OVSettingsSnapshot OVPrinterUtilityWindowController::settingsSnapshot() const {
    Ui::MainUtilityWindiw &c = *m_ui;
    OVSettingsSnapshot s;
    s.isPPDOptionsUpdated = m_isPpdOptionsUpdated;
    s.snmpCommunityCheck = c.snmpCommunityCheck->isChecked();
    s.snmpCommunityText = c.snmpCommunityText->text();
    m_snmp.fill(s);
    s.wakeOnLANCheck = c.wakeOnLANCheck->isChecked();
    QStringList mac;
    for (QLineEdit *field : macAddressFields())
        mac << field->text();
    s.macAddress = mac.join(':');
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
