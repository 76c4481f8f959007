// The controller's part in the folder tab and the lists' tables: each table
// shows its list; the folder tab's state is an OVFolderSelection.
#include "OVNotificationCenter.h"
#include "OVPrinterUtilityWindowController.h"
#include "OVSettingsSnapshot.h"
#include "OVStoredSettings.h"
#include "OVTableViewDataSource.h"
#include "OVWindowTexts.h"
#include "ui_MainUtilityWindiw.h"

void OVPrinterUtilityWindowController::loadDefaultFolderValues() {
    loadFolderValues();
    m_registerFolderTableViewDataSource->setElementsArray(
        OVStoredSettings::defaults().allSharedBoxNames);
    m_registerFolderTableViewDataSource->selectFirstRow();
    OVNotificationCenter::defaultCenter().addObserver(
        OVTableViewDataSource::selectionChangedNotification,
        [this](const OVNotification &) { receiveTableViewNotification(); }, this);
}

void OVPrinterUtilityWindowController::loadDefaultSelectedFolderValues() {
    m_folders.clear();
    showSelectedFolders();
}

void OVPrinterUtilityWindowController::bindTable(OVTableViewDataSource *dataSource,
                                                 QTableView *table) {
    dataSource->setTableView(table);
}

void OVPrinterUtilityWindowController::loadFolderValues() {
    bindTable(m_registerFolderTableViewDataSource.get(), m_ui->folderSharedFolderTable);
    m_registerFolderTableViewDataSource->selectFirstRow();
}

void OVPrinterUtilityWindowController::loadSelectedFolderValues() {
    bindTable(m_selectedFolderTableViewDataSource.get(), m_ui->folderSelectedFolderTable);
    m_selectedFolderTableViewDataSource->selectFirstRow();
}

void OVPrinterUtilityWindowController::loadFormValues() {
    bindTable(m_formTableViewDataSource.get(), m_ui->formTable);
}

void OVPrinterUtilityWindowController::loadBarcodeAreaDefinitionValues() {
    bindTable(m_barcodeAreaDefinitionTableViewDataSource.get(), m_ui->barcodeAreaDefinitionTable);
}

void OVPrinterUtilityWindowController::loadColorProfileValues() {
    bindTable(m_colorProfileTableViewDataSource.get(), m_ui->colorProfileTable);
}

void OVPrinterUtilityWindowController::showRegisterFolders() {
    m_registerFolderTableViewDataSource->setElementsArray(m_folders.allSharedBoxNames());
    loadFolderValues();
}

void OVPrinterUtilityWindowController::showSelectedFolders() {
    m_selectedFolderTableViewDataSource->setElementsArray(m_folders.selectedSharedBoxNames());
    loadSelectedFolderValues();
    m_selectedFolderTableViewDataSource->selectLastRow();
}

// ---- folder selection -------------------------------------------------------

void OVPrinterUtilityWindowController::folderAddButtonClicked(QObject *) {
    m_folders.add(m_registerFolderTableViewDataSource->getSelectedRow(),
                  m_registerFolderTableViewDataSource->getSelectedRowValue());
    showSelectedFolders();
}

void OVPrinterUtilityWindowController::folderDeleteButtonClicked(QObject *) {
    m_folders.remove(m_selectedFolderTableViewDataSource->getSelectedRow());
    m_selectedFolderTableViewDataSource->setElementsArray(m_folders.selectedSharedBoxNames());
}

void OVPrinterUtilityWindowController::folderClearButtonClicked(QObject *) {
    using namespace OVWindowTexts;
    if (!m_folders.selectedSharedBoxNames().isEmpty() &&
        !ask(clearFoldersQuestion, clear, clearFoldersDetail))
        return;
    loadDefaultFolderValues();
    loadDefaultSelectedFolderValues();
    m_selectedFolderTableViewDataSource->unselectAllRow();
    m_ui->folderAddButton->setEnabled(shouldEnableAdd());
    m_ui->folderPersonalFolderCheck->setChecked(false);
    m_isPpdOptionsUpdated = false;
}

void OVPrinterUtilityWindowController::initAddDeleteState() {
    m_ui->folderAddButton->setEnabled(shouldEnableAdd());
    m_ui->folderDeleteButton->setEnabled(shouldEnableDelete());
}

bool OVPrinterUtilityWindowController::shouldEnableAdd() const {
    if (static_cast<qint32>(m_registerFolderTableViewDataSource->count()) < 1)
        return false;
    return !m_selectedFolderTableViewDataSource->isItemExist(
        m_registerFolderTableViewDataSource->getSelectedRowValue());
}

bool OVPrinterUtilityWindowController::shouldEnableDelete() const {
    if (static_cast<qint32>(m_selectedFolderTableViewDataSource->count()) < 1)
        return false;
    return !m_selectedFolderTableViewDataSource->getSelectedRowValue().isNull();
}

void OVPrinterUtilityWindowController::receiveTableViewNotification() {
    initAddDeleteState();
}

void OVPrinterUtilityWindowController::receiveTextFieldNotification() {
    constraintsWakeOnLanItems();
}

void OVPrinterUtilityWindowController::updateStringArrays() {
    OVSettingsSnapshot shown;
    shown.allSharedBoxNames = m_registerFolderTableViewDataSource->getElementsArray();
    shown.selectedSharedBoxNames = m_selectedFolderTableViewDataSource->getElementsArray();
    shown.selectedSharedBoxIndex = m_folders.selectedSharedBoxIndex();
    m_folders.load(shown);
}

void OVPrinterUtilityWindowController::updateSelectedArrayStrings() {
    m_folders.updateSelectedArrayStrings();
    showSelectedFolders();
}
