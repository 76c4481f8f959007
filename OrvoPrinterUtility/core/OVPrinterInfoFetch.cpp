#include "OVPrinterInfoFetch.h"

#include "OVSNMPHelper.h"
#include "OVStoredSettings.h"
#include "OVWakeOnLanHelper.h"

namespace {

using Fetch = OVPrinterInfoFetch;
using H = OVSNMPHelper;
using Reason = H::Reason;
using ListQuery = H::Reading<QStringList> (*)(const char *address,
                                              const OVSnmpCredentials &credentials);
// Why a step failed; empty when it succeeded.
using Outcome = std::optional<H::Failure>;

Outcome reachable(const Fetch::Printer &printer) {
    if (printer.address.isEmpty())
        return H::Failure{Reason::NoAnswer, QStringLiteral("no printer address")};
    if (!printer.wake)
        return std::nullopt;
    // The wake flow would wait out all its polls on a name that names no
    // printer, and then say only that nothing woke up.
    if (const H::Reading<QByteArray> host = H::resolve(printer.address.toUtf8().constData());
        !host.value)
        return host.failure;
    if (!Fetch::wake(printer.address, *printer.wake))
        return H::Failure{Reason::NoAnswer, QStringLiteral("it did not wake up")};
    return std::nullopt;
}

Outcome fetchMacAddress(Fetch::Printer &printer, const char *host, Fetch::Result &result) {
    const H::Reading<QString> mac = H::getMacAddress(host, printer.community);
    if (!mac.value)
        return mac.failure;
    result.macAddress = *mac.value;
    if (printer.wake)
        OVStoredSettings::setMacAddressStr(printer.wake->macAddressFields, result.macAddress);
    return std::nullopt;
}

Outcome fetchFolders(const Fetch::Printer &printer, const char *host, Fetch::Result &result) {
    const int total = H::snmpGetSharedBoxEntryForIPAddress(host, printer.community);
    const auto names =
        H::getValidatedSharedBoxNameArrayForIPAddress(host, printer.community, total);
    const auto states =
        H::getValidatedSharedBoxStateArrayForIPAddress(host, printer.community, total);
    const H::Reading<bool> adminMode = H::getAdminLoginModeEnabled(host, printer.community);
    result.folderNames = names.value;
    result.folderStates = states.value;
    // A printer without the login mode, or silent on it, has it off; an
    // answer that cannot be read decides nothing.
    const bool adminModeUnreadable =
        !adminMode.value && adminMode.failure.reason == Reason::Unreadable;
    if (!adminModeUnreadable)
        result.adminLoginModeEnabled = adminMode.value.value_or(false);
    if (!names.value)
        return names.failure;
    if (!states.value)
        return states.failure;
    return adminModeUnreadable ? Outcome(adminMode.failure) : std::nullopt;
}

Outcome fetchList(ListQuery query, const Fetch::Printer &printer, const char *host,
                  std::optional<QStringList> &list) {
    const H::Reading<QStringList> fetched = query(host, printer.community);
    list = fetched.value;
    return fetched.value ? std::nullopt : Outcome(fetched.failure);
}

Outcome fetchStep(Fetch::Step step, Fetch::Printer &printer, Fetch::Result &result) {
    if (const Outcome unreachable = reachable(printer))
        return unreachable;
    const QByteArray address = printer.address.toUtf8();
    const char *host = address.constData();
    switch (step) {
    case Fetch::Step::MacAddress:
        return fetchMacAddress(printer, host, result);
    case Fetch::Step::Folders:
        return fetchFolders(printer, host, result);
    case Fetch::Step::Forms:
        return fetchList(&H::getValidatedFormNameArrayForIPAddress, printer, host, result.forms);
    case Fetch::Step::BarcodeAreas:
        return fetchList(&H::getValidatedBarcodeAreaNameArrayForIPAddress, printer, host,
                         result.barcodeAreas);
    case Fetch::Step::ColorProfiles:
        return fetchList(&H::getValidatedColorProfileForIPAddress, printer, host,
                         result.colorProfiles);
    }
    return std::nullopt;
}

} // namespace

Fetch::Result OVPrinterInfoFetch::fetch(Printer printer, std::span<const Step> steps) {
    Result result;
    for (const Step step : steps) {
        if (const Outcome failed = fetchStep(step, printer, result)) {
            result.failedStep = FailedStep{step, *failed};
            break;
        }
    }
    return result;
}

bool OVPrinterInfoFetch::wake(const QString &address, const Wake &wake) {
    const QString mac =
        QStringList(wake.macAddressFields.begin(), wake.macAddressFields.end()).join(':');
    return OVWakeOnLanHelper::SnmpWakeUpOnLan(address, mac, wake.community, wake.enabled,
                                              wake.overRouter);
}

std::optional<QStringList> OVPrinterInfoFetch::Result::foldersInUse() const {
    if (!folderNames || !folderStates || folderNames->isEmpty() || folderStates->isEmpty() ||
        folderNames->size() != folderStates->size())
        return std::nullopt;
    QStringList inUse;
    for (qsizetype i = 0; i < folderStates->size(); ++i) {
        if (folderStates->at(i) == QLatin1String("1"))
            inUse << folderNames->at(i);
    }
    return inUse;
}

QString OVPrinterInfoFetch::stepName(Step step) {
    switch (step) {
    case Step::MacAddress:
        return QStringLiteral("MAC address");
    case Step::Folders:
        return QStringLiteral("shared folders");
    case Step::Forms:
        return QStringLiteral("forms");
    case Step::BarcodeAreas:
        return QStringLiteral("barcode areas");
    case Step::ColorProfiles:
        return QStringLiteral("colour profiles");
    }
    return {};
}
