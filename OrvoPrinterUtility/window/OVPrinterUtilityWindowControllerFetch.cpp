// The controller's part in Get Printer Info: it hands the fields to
// OVPrinterInfoFetch off the GUI thread and shows what came back.
#include "OVBackgroundTask.h"
#include "OVFetchFailureText.h"
#include "OVPrinterUtilityWindowController.h"
#include "OVTableViewDataSource.h"
#include "OVWindowLog.h"
#include "OVWindowTexts.h"
#include "OrvoSettingsKeywords.h"
#include "ui_MainUtilityWindiw.h"

namespace {
using Step = OVPrinterInfoFetch::Step;
using Fetch = OVPrinterInfoFetch;
// A fetch has no limit of its own beyond its requests' timeouts and the wake
// flow's designed waits (minutes for a printer going to sleep).
constexpr std::chrono::hours fetchLimit{1};
} // namespace

void OVPrinterUtilityWindowController::showFailedMessage(const QString &reason) {
    alert(localized(OVWindowTexts::failedToObtain), reason);
}

// The wake flow checks the community as typed (an empty one means the
// default); the queries take the default for an empty field themselves.
Fetch::Printer OVPrinterUtilityWindowController::fetchTarget() const {
    Ui::MainUtilityWindiw &c = *m_ui;
    Fetch::Wake wake;
    wake.enabled = c.wakeOnLANCheck->isChecked();
    for (int i = 0; i < macFieldCount; ++i)
        wake.macAddressFields[i] = macAddressFields()[i]->text();
    wake.community = m_snmp.credentials(c.snmpCommunityCheck->isChecked()
                                            ? c.snmpCommunityText->text()
                                            : QString(OrvoSettingsKeywords::defaultCommunity));
    wake.overRouter = c.overstepTheRouter->isChecked();
    return {c.printerIPAddressText->text(),
            m_snmp.credentials(QString::fromUtf8(getSnmpCommunityFromUI())), wake};
}

// The address as the secret store keys the passphrases by.
QString OVPrinterUtilityWindowController::printerAddress() const {
    return m_ui->printerIPAddressText->text().trimmed();
}

// The steps run one after another on the worker while the window paints;
// its state leaves only Cancel and Close on meanwhile, so no second fetch
// starts and every step uses the address and community the fetch began with.
// The results show together, in the steps' order; a cancelled fetch shows
// nothing and changes no list.
// An SNMPv3 user's passphrases are asked for before anything is sent.
void OVPrinterUtilityWindowController::fetch(std::span<const Step> steps) {
    if (!printerAddress().isEmpty() && !m_snmp.prepare(m_window.get(), printerAddress()))
        return;
    enter(State::Fetching);
    OVBackgroundTask::Waiting how;
    how.limit = fetchLimit;
    how.events = QEventLoop::AllEvents;
    how.running = &m_task;
    const Fetch::Printer printer = fetchTarget();
    const Fetch::Result result = OVBackgroundTask::wait(
        [printer, steps] { return OVPrinterInfoFetch::fetch(printer, steps); }, how);
    const bool cancelled = m_task->cancelled();
    m_task.reset();
    if (m_state == State::Closing)
        return;
    enter(State::Idle);
    if (cancelled)
        return;
    showFetched(result);
    if (!result.failedStep)
        return;
    const Fetch::FailedStep &failed = *result.failedStep;
    qCDebug(orvoWindow) << "fetch failed at" << OVPrinterInfoFetch::stepName(failed.step) << "-"
                        << failed.failure.detail;
    m_snmp.refused(failed.failure.reason, printerAddress());
    const QString reason =
        OVFetchFailureText::reason(printer.address, failed, printer.community.version());
    if (failed.step == Step::Folders)
        failFolderFetch(reason);
    else
        failFetch(reason);
}

void OVPrinterUtilityWindowController::showFetched(const Fetch::Result &result) {
    if (setMacAddressStr(result.macAddress))
        constraintsWakeOnLanItems();
    applyFolderList(result);
    showFetchedList(result.forms, m_formTableViewDataSource.get());
    showFetchedList(result.barcodeAreas, m_barcodeAreaDefinitionTableViewDataSource.get());
    showFetchedList(result.colorProfiles, m_colorProfileTableViewDataSource.get());
}

// An empty list changes nothing.
void OVPrinterUtilityWindowController::showFetchedList(const std::optional<QStringList> &list,
                                                       OVTableViewDataSource *dataSource) {
    if (!list || list->isEmpty())
        return;
    dataSource->setElementsArray(*list);
    dataSource->selectFirstRow();
}

// Only folders in use are offered; lists of different lengths are left alone
// without a message. The admin login mode counts whenever it was asked.
void OVPrinterUtilityWindowController::applyFolderList(const Fetch::Result &result) {
    if (const auto inUse = result.foldersInUse()) {
        m_folders.applyFetched(*inUse);
        m_registerFolderTableViewDataSource->setElementsArray(*inUse);
        showSelectedFolders();
    }
    if (result.adminLoginModeEnabled) {
        m_bAdminLoginModeEnabled = *result.adminLoginModeEnabled;
        m_ui->folderPersonalFolderCheck->setEnabled(m_bAdminLoginModeEnabled);
    }
}

void OVPrinterUtilityWindowController::failFetch(const QString &reason) {
    showFailedMessage(reason);
    m_bError = true;
}

void OVPrinterUtilityWindowController::failFolderFetch(const QString &reason) {
    failFetch(reason);
    loadDefaultFolderValues();
    loadDefaultSelectedFolderValues();
}

void OVPrinterUtilityWindowController::getPrinterInfoButtonClicked(QObject *) {
    m_bError = false;
    fetch(OVPrinterInfoFetch::allSteps);
}

void OVPrinterUtilityWindowController::getPrinterInfoMacAddress(QObject *) {
    fetch(std::array{Step::MacAddress});
}

void OVPrinterUtilityWindowController::folderGetPrinterInfoButtonClicked(QObject *) {
    fetch(std::array{Step::Folders});
}

void OVPrinterUtilityWindowController::formGetPrinterInfoButtonClicked(QObject *) {
    fetch(std::array{Step::Forms});
}

void OVPrinterUtilityWindowController::barcodeAreaDefinitionGetPrinterInfoButtonClicked(QObject *) {
    fetch(std::array{Step::BarcodeAreas});
}

void OVPrinterUtilityWindowController::colorProfileGetPrinterInfoButtonClicked(QObject *) {
    fetch(std::array{Step::ColorProfiles});
}

void OVPrinterUtilityWindowController::formClearButtonClicked(QObject *) {
    m_formTableViewDataSource->setElementsArray(std::nullopt);
}

void OVPrinterUtilityWindowController::barcodeAreaDefinitionClearButtonClicked(QObject *) {
    m_barcodeAreaDefinitionTableViewDataSource->setElementsArray(std::nullopt);
}

void OVPrinterUtilityWindowController::colorProfileClearButtonClicked(QObject *) {
    m_colorProfileTableViewDataSource->setElementsArray(std::nullopt);
}

void OVPrinterUtilityWindowController::customSnmpCommunityClicked(QObject *) {
    constraintsSnmpItems();
}

void OVPrinterUtilityWindowController::snmpSecurityButtonClicked(QObject *) {
    if (m_snmp.edit(m_window.get(), printerAddress()))
        constraintsSnmpItems();
}

void OVPrinterUtilityWindowController::wakeOnLANCheckClicked(QObject *) {
    constraintsWakeOnLanItems();
}
