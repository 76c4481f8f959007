#include "OVPrinterInfoFetch.h"

#include "OVSNMPHelper.h"
#include "OVStoredSettings.h"
#include "OVWakeOnLanHelper.h"

namespace {

using Fetch = OVPrinterInfoFetch;
using H = OVSNMPHelper;
using ListQuery = std::optional<QStringList> (*)(const char *address, const QString &community);

bool reachable(const Fetch::Printer &printer) {
    return !printer.address.isEmpty() &&
           (!printer.wake || Fetch::wake(printer.address, *printer.wake));
}

bool fetchMacAddress(Fetch::Printer &printer, const char *host, Fetch::Result &result) {
    result.macAddress = H::getMacAddress(host, printer.community);
    if (printer.wake)
        OVStoredSettings::setMacAddressStr(printer.wake->macAddressFields, result.macAddress);
    return !result.macAddress.isNull();
}

bool fetchFolders(const Fetch::Printer &printer, const char *host, Fetch::Result &result) {
    const int total = H::snmpGetSharedBoxEntryForIPAddress(host, printer.community);
    result.folderNames =
        H::getValidatedSharedBoxNameArrayForIPAddress(host, printer.community, total);
    result.folderStates =
        H::getValidatedSharedBoxStateArrayForIPAddress(host, printer.community, total);
    result.adminLoginModeEnabled = H::getAdminLoginModeEnabled(host, printer.community);
    return result.folderNames && result.folderStates;
}

bool fetchList(ListQuery query, const Fetch::Printer &printer, const char *host,
               std::optional<QStringList> &list) {
    list = query(host, printer.community);
    return list.has_value();
}

bool fetchStep(Fetch::Step step, Fetch::Printer &printer, Fetch::Result &result) {
    if (!reachable(printer))
        return false;
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
    return false;
}

} // namespace

Fetch::Result OVPrinterInfoFetch::fetch(Printer printer, std::span<const Step> steps) {
    Result result;
    for (const Step step : steps) {
        if (!fetchStep(step, printer, result)) {
            result.failedStep = step;
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
