#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <array>

// Everything the main window saves, taken from its controls at the moment the
// user confirms. Plain data so the update job can be built and checked without
// any widget.
struct OVSettingsSnapshot {
    bool isPPDOptionsUpdated = false;
    bool snmpCommunityCheck = false;
    QString snmpCommunityText;
    bool wakeOnLANCheck = true;
    std::array<QString, 6> macAddressFields{"00", "00", "00", "00", "00", "00"};
    bool overstepTheRouter = false;
    // A null string means the field yields no string: no address option is sent.
    QString printerIPAddressText;
    QStringList allSharedBoxNames;
    QStringList selectedSharedBoxNames;
    QList<qint32> selectedSharedBoxIndex;
    bool folderPersonalFolderCheck = false;
    bool bAdminLoginModeEnabled = true;
    QStringList formNames;
    QStringList barcodeAreaDefinitionNames;
    QStringList colorProfileNames;

    bool operator==(const OVSettingsSnapshot &) const = default;
};
