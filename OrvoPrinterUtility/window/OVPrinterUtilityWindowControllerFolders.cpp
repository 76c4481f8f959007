// The controller's part in the folder tab and the lists' tables: each table
// shows its list; the folder tab's state is an OVFolderSelection.
#include "OVNotificationCenter.h"
#include "OVPrinterUtilityWindowController.h"
#include "OVSettingsSnapshot.h"
#include "OVStoredSettings.h"
#include "OVTableViewDataSource.h"
#include "ui_MainUtilityWindiw.h"

void OVPrinterUtilityWindowController::loadDefaultFolderValues() {
    loadFolderValues();
    registerFolderTableViewDataSource_->setElementsArray(
        OVStoredSettings::defaults().allSharedBoxNames);
    registerFolderTableViewDataSource_->selectFirstRow();
    OVNotificationCenter::defaultCenter().addObserver(
        OVTableViewDataSource::SelectionChangedNotification,
        [this](const OVNotification &) { receiveTableViewNotification(); }, this);
}

void OVPrinterUtilityWindowController::loadDefaultSelectedFolderValues() {
    folders_.clear();
    showSelectedFolders();
}

void OVPrinterUtilityWindowController::bindTable(OVTableViewDataSource *dataSource,
                                                 QTableView *table) {
    dataSource->setTableView(table);
}

void OVPrinterUtilityWindowController::loadFolderValues() {
    bindTable(registerFolderTableViewDataSource_.get(), ui_->folderSharedFolderTable);
    registerFolderTableViewDataSource_->selectFirstRow();
}

void OVPrinterUtilityWindowController::loadSelectedFolderValues() {
    bindTable(selectedFolderTableViewDataSource_.get(), ui_->folderSelectedFolderTable);
    selectedFolderTableViewDataSource_->selectFirstRow();
}

void OVPrinterUtilityWindowController::loadFormValues() {
    bindTable(formTableViewDataSource_.get(), ui_->formTable);
}

void OVPrinterUtilityWindowController::loadBarcodeAreaDefinitionValues() {
    bindTable(barcodeAreaDefinitionTableViewDataSource_.get(), ui_->barcodeAreaDefinitionTable);
}

void OVPrinterUtilityWindowController::loadColorProfileValues() {
    bindTable(colorProfileTableViewDataSource_.get(), ui_->colorProfileTable);
}

void OVPrinterUtilityWindowController::showRegisterFolders() {
    registerFolderTableViewDataSource_->setElementsArray(folders_.allSharedBoxNames());
    loadFolderValues();
}

void OVPrinterUtilityWindowController::showSelectedFolders() {
    selectedFolderTableViewDataSource_->setElementsArray(folders_.selectedSharedBoxNames());
    loadSelectedFolderValues();
    selectedFolderTableViewDataSource_->selectLastRow();
}

// ---- folder selection -------------------------------------------------------

void OVPrinterUtilityWindowController::folderAddButtonClicked(QObject *) {
    folders_.add(registerFolderTableViewDataSource_->getSelectedRow(),
                 registerFolderTableViewDataSource_->getSelectedRowValue());
    showSelectedFolders();
}

void OVPrinterUtilityWindowController::folderDeleteButtonClicked(QObject *) {
    folders_.remove(selectedFolderTableViewDataSource_->getSelectedRow());
    selectedFolderTableViewDataSource_->setElementsArray(folders_.selectedSharedBoxNames());
}

void OVPrinterUtilityWindowController::folderClearButtonClicked(QObject *) {
    loadDefaultFolderValues();
    loadDefaultSelectedFolderValues();
    selectedFolderTableViewDataSource_->unselectAllRow();
    ui_->folderAddButton->setEnabled(shouldEnableAdd());
    ui_->folderPersonalFolderCheck->setChecked(false);
    isPPDOptionsUpdated_ = false;
}

void OVPrinterUtilityWindowController::initAddDeleteState() {
    ui_->folderAddButton->setEnabled(shouldEnableAdd());
    ui_->folderDeleteButton->setEnabled(shouldEnableDelete());
}

bool OVPrinterUtilityWindowController::shouldEnableAdd() const {
    if (static_cast<qint32>(registerFolderTableViewDataSource_->count()) < 1)
        return false;
    return !selectedFolderTableViewDataSource_->isItemExist(
        registerFolderTableViewDataSource_->getSelectedRowValue());
}

bool OVPrinterUtilityWindowController::shouldEnableDelete() const {
    if (static_cast<qint32>(selectedFolderTableViewDataSource_->count()) < 1)
        return false;
    return !selectedFolderTableViewDataSource_->getSelectedRowValue().isNull();
}

void OVPrinterUtilityWindowController::receiveTableViewNotification() {
    initAddDeleteState();
}

void OVPrinterUtilityWindowController::receiveTextFieldNotification() {
    constraintsWakeOnLanItems();
}

void OVPrinterUtilityWindowController::updateStringArrays() {
    OVSettingsSnapshot shown;
    shown.allSharedBoxNames = registerFolderTableViewDataSource_->getElementsArray();
    shown.selectedSharedBoxNames = selectedFolderTableViewDataSource_->getElementsArray();
    shown.selectedSharedBoxIndex = folders_.selectedSharedBoxIndex();
    folders_.load(shown);
}

void OVPrinterUtilityWindowController::updateSelectedArrayStrings() {
    folders_.updateSelectedArrayStrings();
    showSelectedFolders();
}
