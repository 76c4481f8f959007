#pragma once

#include "OrvoSettingsCodec.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <cups/ppd.h>

struct OVSettingsSnapshot;

// Reads the utility's settings stored as attributes of the queue's open PPD,
// through the settings model's decoding (OrvoSettingsCodec), which is strict:
// a value the utility could not have written (base64 that is not well formed,
// text that is not UTF-8, an index outside its range, a MAC address, community
// or printer address that breaks its rule) reads as absent, that is as the
// setting's default. Nothing here reports an error; settings() lists what it
// ignored.
//
// Decoded text ends at its first NUL byte. An incomplete character at the very
// end of a multi-part value is dropped alone: names were once stored cut at
// 900 bytes, possibly inside a character.
class OrvoSNMPHelper {
public:
    // The plain value; "" when absent, null or empty. Never a null string.
    static QString getPPDAttributeValueForName(const char *name, ppd_file_t *ppdFile);
    // The base64-decoded value; a null string when absent, null or undecodable.
    static QString getDecodedPPDAttributeValueForName(const char *name, ppd_file_t *ppdFile);
    // The six "_Part%d" attributes joined and decoded; "" on failure.
    static QString getDecodedPPDAttributeMaltiPartValueForName(const char *name,
                                                               ppd_file_t *ppdFile);

    static bool isCustomSnmpCommunity(ppd_file_t *ppdFile);
    static QString snmpCommunityName(ppd_file_t *ppdFile);
    static bool isWakeOnLan(ppd_file_t *ppdFile);
    static QString getPrinterMacAddress(ppd_file_t *ppdFile);
    static bool isOverTheRouter(ppd_file_t *ppdFile);
    static QString getPrinterIPAddress(ppd_file_t *ppdFile);
    static bool isPPDOptionsUpdated(ppd_file_t *ppdFile);
    static bool isPersonalFolderSelected(ppd_file_t *ppdFile);
    static bool isAdminLoginModeEnabled(ppd_file_t *ppdFile);

    static QStringList getSharedBoxDetailsArray(ppd_file_t *ppdFile);
    static QStringList getSelectedSharedBoxDetailsArray(ppd_file_t *ppdFile);
    static QList<qint32> getSelectedSharedBoxIndexArray(ppd_file_t *ppdFile);
    static QStringList getFormDetailsArray(ppd_file_t *ppdFile);
    static QStringList getBarcodeAreaDefinitionDetailsArray(ppd_file_t *ppdFile);
    static QStringList getColorProfileDetailsArray(ppd_file_t *ppdFile);

    // Every setting at once, with the stored values it ignored.
    static OrvoSettingsCodec::Decoded settings(ppd_file_t *ppdFile);
    // The PPD's attribute values by keyword, as the settings model reads them.
    static OrvoSettingsCodec::Lookup lookup(ppd_file_t *ppdFile);

private:
    // The decoded settings in the window's types.
    static OVSettingsSnapshot stored(ppd_file_t *ppdFile);
};
