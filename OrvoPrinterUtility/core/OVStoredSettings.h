#pragma once

#include "OVSettingsSnapshot.h"

#include <QString>
#include <QStringList>

#include <array>
#include <functional>

#include <cups/ppd.h>

// The settings of a queue as the window loads them: the queue's PPD fetched
// from the CUPS server, every setting read through OrvoSNMPHelper, and the
// window's own defaults wherever the PPD has nothing. The window ignores why a
// load failed (it keeps its defaults); the command line reports it.
class OVStoredSettings {
public:
    enum class Status { Loaded, ServerUnreachable, NoPPD, UnreadablePPD };

    // The window's state before any load: 100 localized shared folders, the
    // first one chosen, Wake-on-LAN on, the default community.
    static OVSettingsSnapshot defaults();
    // The settings stored in an open PPD, defaults filled in. Stored values
    // the settings' rules refuse read as absent; ignored, when given, gets one
    // line for each ("PrinterMacAddress is not six ...").
    static OVSettingsSnapshot read(ppd_file_t *ppdFile, QStringList *ignored = nullptr);
    // Fetches the queue's PPD, reads it and removes the fetched copy. On any
    // failure settings holds defaults().
    static Status load(const QString &printerID, OVSettingsSnapshot &settings,
                       QStringList *ignored = nullptr);
    // Fetches the queue's PPD, hands it to use while open, then closes it and
    // removes the fetched copy.
    static Status withQueuePPD(const QString &printerID,
                               const std::function<void(ppd_file_t *)> &use);

    // Splits a MAC text at ":" into the six fields; fewer than six pieces (or
    // a null text) change nothing and return false. Pieces beyond the sixth
    // are ignored.
    static bool setMacAddressStr(std::array<QString, 6> &fields, const QString &mac);

    static QString defaultFolderName(int number);
    static constexpr int defaultFolderCount = 100;
};
