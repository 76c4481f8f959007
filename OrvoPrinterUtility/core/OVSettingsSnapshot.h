#pragma once

#include "OrvoSettings.h"
#include "OrvoSettingsVerdict.h"

#include <QList>
#include <QString>
#include <QStringList>

// Everything the main window saves, taken from its controls at the moment the
// user confirms. Plain data so the update job can be built and checked without
// any widget; the rules it is checked by, its encoding and its reading are the
// settings model's (OrvoSettings), which the driver filter shares.
struct OVSettingsSnapshot {
    bool isPPDOptionsUpdated = false;
    bool snmpCommunityCheck = false;
    QString snmpCommunityText;
    // "1" or "3", as typed; see OrvoSettings for the SNMPv3 fields.
    QString snmpVersion = QStringLiteral("1");
    QString snmpUserText;
    QString snmpAuthProtocol = OrvoSettingsKeywords::snmpAuthProtocols[0];
    QString snmpPrivProtocol = OrvoSettingsKeywords::snmpPrivProtocols[0];
    bool wakeOnLANCheck = true;
    // The six MAC fields joined by ':', as typed.
    QString macAddress = QStringLiteral("00:00:00:00:00:00");
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

    // What a save sends: the MAC address only with Wake-on-LAN on. A null
    // list entry counts as an empty name.
    OrvoSettings settings() const;
    // Settings as read; the MAC address stays as it is when none is stored.
    void apply(const OrvoSettings &settings);
    // The first rule these settings break, if any, including whether one
    // update job carries them.
    OrvoSettingsVerdict check() const;
};
