#include "OVStoredSettings.h"

#include "OVCupsConnection.h"
#include "OVPrinterUtilityHelper.h"
#include "OrvoPPD_Interface.h"
#include "OrvoSNMPHelper.h"
#include "OrvoSettingsKeywords.h"
#include "OrvoSettingsVerdict.h"

#include <cups/cups.h>

#include <unistd.h>

namespace {

struct FetchedPPD {
    ~FetchedPPD() {
        if (ppd)
            r_ppdClose(ppd);
        if (!fileName.isEmpty())
            unlink(fileName.constData());
    }
    QByteArray fileName;
    ppd_file_t *ppd = nullptr;
};

} // namespace

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
    FetchedPPD fetched;
    fetched.fileName = r_cupsGetPPD2(connection.http(), printerID.toUtf8().constData());
    // "Not found" is the server's answer for a queue without a PPD (or
    // without a name); anything else means it did not answer.
    if (fetched.fileName.isEmpty())
        return cupsLastError() == IPP_STATUS_ERROR_NOT_FOUND ? Status::NoPPD
                                                             : Status::ServerUnreachable;
    fetched.ppd = r_ppdOpenFile(fetched.fileName.constData());
    if (!fetched.ppd)
        return Status::UnreadablePPD;
    use(fetched.ppd);
    return Status::Loaded;
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
