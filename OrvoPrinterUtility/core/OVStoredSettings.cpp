#include "OVStoredSettings.h"

#include "OVCupsConnection.h"
#include "OVPrinterUtilityHelper.h"
#include "OVQueueSetup.h"
#include "OrvoPPD_Interface.h"
#include "OrvoSNMPHelper.h"
#include "OrvoSettingsKeywords.h"
#include "OrvoSettingsVerdict.h"

#include <cups/cups.h>

QString OVStoredSettings::defaultFolderName(int number) {
    return OVPrinterUtilityHelper::getLocalizedStringFor(
        QStringLiteral("Shared Folder %1").arg(number));
}

OVSettingsSnapshot OVStoredSettings::defaults() {
    OVSettingsSnapshot settings;
    settings.snmpCommunityText = OrvoSettingsKeywords::defaultCommunity;
    for (int number = 1; number <= defaultFolderCount; ++number)
        settings.allSharedBoxNames << defaultFolderName(number);
    settings.selectedSharedBoxNames = {defaultFolderName(1)};
    settings.selectedSharedBoxIndex = {0};
    return settings;
}

OVSettingsSnapshot OVStoredSettings::read(ppd_file_t *ppdFile, QStringList *ignored) {
    const OrvoSettingsCodec::Decoded decoded = OrvoSNMPHelper::settings(ppdFile);
    const OVSettingsSnapshot initial = defaults();
    OVSettingsSnapshot settings = initial;
    settings.apply(decoded.settings);
    if (settings.allSharedBoxNames.isEmpty())
        settings.allSharedBoxNames = initial.allSharedBoxNames;
    if (!settings.isPPDOptionsUpdated)
        settings.selectedSharedBoxNames = initial.selectedSharedBoxNames;
    if (settings.selectedSharedBoxIndex.isEmpty())
        settings.selectedSharedBoxIndex = initial.selectedSharedBoxIndex;
    settings.folderPersonalFolderCheck =
        settings.bAdminLoginModeEnabled && settings.folderPersonalFolderCheck;
    if (ignored) {
        for (const OrvoSettingsCodec::Ignored &entry : decoded.ignored)
            *ignored << QString::fromStdString(entry.keyword + " " + entry.verdict.explanation());
    }
    return settings;
}

OVStoredSettings::Status OVStoredSettings::load(const QString &printerID,
                                                OVSettingsSnapshot &settings,
                                                QStringList *ignored) {
    settings = defaults();
    return withQueuePPD(printerID, [&](ppd_file_t *ppd) { settings = read(ppd, ignored); });
}

OVStoredSettings::Status
OVStoredSettings::withQueuePPD(const QString &printerID,
                               const std::function<void(ppd_file_t *)> &use) {
    const OVCupsConnection connection;
    if (!connection)
        return Status::ServerUnreachable;
    Status status = Status::UnreadablePPD;
    const http_status_t fetched =
        OVQueueSetup::withPpdFile(connection.http(), printerID, [&](const char *fileName) {
            if (ppd_file_t *ppd = r_ppdOpenFile(fileName)) {
                use(ppd);
                r_ppdClose(ppd);
                status = Status::Loaded;
            }
        });
    if (fetched == HTTP_STATUS_OK)
        return status;
    // "Not found" is the server's answer for a queue without a PPD (or
    // without a name); anything else means it did not answer.
    return fetched == HTTP_STATUS_NOT_FOUND && !OVCupsConnection::pastDeadline()
               ? Status::NoPPD
               : Status::ServerUnreachable;
}

bool OVStoredSettings::setMacAddressStr(std::array<QString, 6> &fields, const QString &mac) {
    if (mac.isNull())
        return false;
    const QStringList pieces = mac.split(':');
    if (pieces.size() < qsizetype(fields.size()))
        return false;
    for (size_t i = 0; i < fields.size(); ++i)
        fields[i] = pieces[qsizetype(i)];
    return true;
}
