#include "OVSettingsSnapshot.h"

#include "OrvoSettingsRules.h"

namespace {

std::vector<std::string> toStd(const QStringList &list) {
    std::vector<std::string> texts;
    texts.reserve(size_t(list.size()));
    for (const QString &text : list)
        texts.push_back(text.toStdString());
    return texts;
}

QStringList fromStd(const std::vector<std::string> &texts) {
    QStringList list;
    list.reserve(qsizetype(texts.size()));
    for (const std::string &text : texts)
        list << QString::fromStdString(text);
    return list;
}

} // namespace

OrvoSettings OVSettingsSnapshot::settings() const {
    OrvoSettings s;
    s.optionsUpdated = isPPDOptionsUpdated;
    s.customCommunity = snmpCommunityCheck;
    s.community = snmpCommunityText.toStdString();
    // Anything but a number reads as 0, which the rules refuse.
    s.snmpVersion = snmpVersion.toInt();
    s.snmpUser = snmpUserText.toStdString();
    s.snmpAuthProtocol = snmpAuthProtocol.toStdString();
    s.snmpPrivProtocol = snmpPrivProtocol.toStdString();
    s.wakeOnLan = wakeOnLANCheck;
    s.macAddress = wakeOnLANCheck ? macAddress.toStdString() : std::string();
    s.overTheRouter = overstepTheRouter;
    s.printerAddress = printerIPAddressText.isNull()
                           ? std::nullopt
                           : std::optional(printerIPAddressText.toStdString());
    s.sharedBoxNames = toStd(allSharedBoxNames);
    s.selectedSharedBoxNames = toStd(selectedSharedBoxNames);
    s.selectedSharedBoxIndex.assign(selectedSharedBoxIndex.begin(), selectedSharedBoxIndex.end());
    s.personalFolder = folderPersonalFolderCheck;
    s.adminLoginMode = bAdminLoginModeEnabled;
    s.formNames = toStd(formNames);
    s.barcodeAreaNames = toStd(barcodeAreaDefinitionNames);
    s.colorProfileNames = toStd(colorProfileNames);
    return s;
}

void OVSettingsSnapshot::apply(const OrvoSettings &s) {
    isPPDOptionsUpdated = s.optionsUpdated;
    snmpCommunityCheck = s.customCommunity;
    snmpCommunityText = QString::fromStdString(s.community);
    snmpVersion = QString::number(s.snmpVersion);
    snmpUserText = QString::fromStdString(s.snmpUser);
    snmpAuthProtocol = QString::fromStdString(s.snmpAuthProtocol);
    snmpPrivProtocol = QString::fromStdString(s.snmpPrivProtocol);
    wakeOnLANCheck = s.wakeOnLan;
    if (!s.macAddress.empty())
        macAddress = QString::fromStdString(s.macAddress);
    overstepTheRouter = s.overTheRouter;
    printerIPAddressText = QString::fromStdString(s.printerAddress.value_or(""));
    allSharedBoxNames = fromStd(s.sharedBoxNames);
    selectedSharedBoxNames = fromStd(s.selectedSharedBoxNames);
    selectedSharedBoxIndex =
        QList<qint32>(s.selectedSharedBoxIndex.begin(), s.selectedSharedBoxIndex.end());
    folderPersonalFolderCheck = s.personalFolder;
    bAdminLoginModeEnabled = s.adminLoginMode;
    formNames = fromStd(s.formNames);
    barcodeAreaDefinitionNames = fromStd(s.barcodeAreaNames);
    colorProfileNames = fromStd(s.colorProfileNames);
}

OrvoSettingsVerdict OVSettingsSnapshot::check() const {
    return OrvoSettingsRules::check(settings());
}
