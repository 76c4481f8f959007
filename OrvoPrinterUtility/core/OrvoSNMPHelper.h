#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <cups/ppd.h>

// Reads the utility's settings stored as attributes of the queue's open PPD.
// Absent, null or undecodable values read as each setting's default; nothing
// here reports an error.
//
// Decoded text that is not valid UTF-8 counts as a failed decoding, so the
// setting keeps its default and no replacement characters are shown or saved
// back. The one exception is an incomplete character at the very end of a
// multi-part value: its 900-byte limit can cut a name inside a character, and
// dropping only that character keeps the rest of the name. Decoded text ends
// at its first NUL byte.
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

private:
    static QStringList multiPartArray(const char *keyword, int limit, ppd_file_t *ppdFile);
};
