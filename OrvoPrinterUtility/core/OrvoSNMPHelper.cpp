#include "OrvoSNMPHelper.h"

#include "OVSettingsSnapshot.h"
#include "OrvoPPD_Interface.h"

namespace {

// A string that is never null, as the readers promise.
QString text(const std::string &utf8) {
    return utf8.empty() ? QString("") : QString::fromStdString(utf8);
}

} // namespace

OrvoSettingsCodec::Lookup OrvoSNMPHelper::lookup(ppd_file_t *ppdFile) {
    return [ppdFile](const std::string &keyword) -> const char * {
        const ppd_attr_t *attr = r_ppdFindAttr(ppdFile, keyword.c_str(), nullptr);
        return attr ? attr->value : nullptr;
    };
}

OVSettingsSnapshot OrvoSNMPHelper::stored(ppd_file_t *ppdFile) {
    OVSettingsSnapshot snapshot;
    snapshot.apply(settings(ppdFile).settings);
    return snapshot;
}

OrvoSettingsCodec::Decoded OrvoSNMPHelper::settings(ppd_file_t *ppdFile) {
    return OrvoSettingsCodec::decode(lookup(ppdFile));
}

QString OrvoSNMPHelper::getPPDAttributeValueForName(const char *name, ppd_file_t *ppdFile) {
    const char *value = lookup(ppdFile)(name);
    return text(value ? value : "");
}

QString OrvoSNMPHelper::getDecodedPPDAttributeValueForName(const char *name, ppd_file_t *ppdFile) {
    const char *value = lookup(ppdFile)(name);
    const std::optional<std::string> decoded =
        value ? OrvoSettingsCodec::decodeText(value) : std::nullopt;
    return decoded ? text(*decoded) : QString();
}

QString OrvoSNMPHelper::getDecodedPPDAttributeMaltiPartValueForName(const char *name,
                                                                    ppd_file_t *ppdFile) {
    return text(OrvoSettingsCodec::decodeMultiPart(name, lookup(ppdFile)).value_or(""));
}

bool OrvoSNMPHelper::isCustomSnmpCommunity(ppd_file_t *ppdFile) {
    return settings(ppdFile).settings.customCommunity;
}

QString OrvoSNMPHelper::snmpCommunityName(ppd_file_t *ppdFile) {
    return stored(ppdFile).snmpCommunityText;
}

bool OrvoSNMPHelper::isWakeOnLan(ppd_file_t *ppdFile) {
    return settings(ppdFile).settings.wakeOnLan;
}

QString OrvoSNMPHelper::getPrinterMacAddress(ppd_file_t *ppdFile) {
    return text(settings(ppdFile).settings.macAddress);
}

bool OrvoSNMPHelper::isOverTheRouter(ppd_file_t *ppdFile) {
    return settings(ppdFile).settings.overTheRouter;
}

QString OrvoSNMPHelper::getPrinterIPAddress(ppd_file_t *ppdFile) {
    return stored(ppdFile).printerIPAddressText;
}

bool OrvoSNMPHelper::isPPDOptionsUpdated(ppd_file_t *ppdFile) {
    return settings(ppdFile).settings.optionsUpdated;
}

bool OrvoSNMPHelper::isPersonalFolderSelected(ppd_file_t *ppdFile) {
    return settings(ppdFile).settings.personalFolder;
}

bool OrvoSNMPHelper::isAdminLoginModeEnabled(ppd_file_t *ppdFile) {
    return settings(ppdFile).settings.adminLoginMode;
}

QStringList OrvoSNMPHelper::getSharedBoxDetailsArray(ppd_file_t *ppdFile) {
    return stored(ppdFile).allSharedBoxNames;
}

QStringList OrvoSNMPHelper::getSelectedSharedBoxDetailsArray(ppd_file_t *ppdFile) {
    return stored(ppdFile).selectedSharedBoxNames;
}

QList<qint32> OrvoSNMPHelper::getSelectedSharedBoxIndexArray(ppd_file_t *ppdFile) {
    return stored(ppdFile).selectedSharedBoxIndex;
}

QStringList OrvoSNMPHelper::getFormDetailsArray(ppd_file_t *ppdFile) {
    return stored(ppdFile).formNames;
}

QStringList OrvoSNMPHelper::getBarcodeAreaDefinitionDetailsArray(ppd_file_t *ppdFile) {
    return stored(ppdFile).barcodeAreaDefinitionNames;
}

QStringList OrvoSNMPHelper::getColorProfileDetailsArray(ppd_file_t *ppdFile) {
    return stored(ppdFile).colorProfileNames;
}
