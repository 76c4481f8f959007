#pragma once

// The PPD main keywords under which the utility keeps its settings, with the
// shape each value has. Written once here and used by the settings reader, the
// update job and the driver filter (which accepts nothing outside this table),
// so the three can never disagree. Plain C++ so the filter needs no Qt.

namespace OrvoSettingsKeywords {

enum class Encoding {
    JobMarker, // job option only, never stored
    Flag,      // "1" or "0"
    Decimal,   // a decimal index
    Base64,    // base64 of UTF-8 text, one attribute
    MultiPart, // base64 of UTF-8 text over six "_Part%d" attributes
};

struct Keyword {
    const char *name;
    Encoding encoding;
    int indexCount; // 0: a single keyword; N: name0 .. name(N-1)
};

inline constexpr char UpdatePPDOptions[] = "UpdatePPDOptions";
inline constexpr char PPDOptionsUpdated[] = "PPDOptionsUpdated";
inline constexpr char IsCustomSnmpCommunity[] = "IsCustomSnmpCommunity";
inline constexpr char SnmpCommunityName[] = "SnmpCommunityName";
inline constexpr char SnmpVersion[] = "SnmpVersion";
inline constexpr char SnmpUserName[] = "SnmpUserName";
inline constexpr char SnmpAuthProtocol[] = "SnmpAuthProtocol";
inline constexpr char SnmpPrivProtocol[] = "SnmpPrivProtocol";
inline constexpr char IsWakeOnLan[] = "IsWakeOnLan";
inline constexpr char PrinterMacAddress[] = "PrinterMacAddress";
inline constexpr char IsOverTheRouter[] = "IsOverTheRouter";
inline constexpr char PrinterIPAddress[] = "PrinterIPAddress";
inline constexpr char SharedBoxName[] = "SharedBoxName";
inline constexpr char SelSharedBoxName[] = "SelSharedBoxName";
inline constexpr char SelSharedBoxIndex[] = "SelSharedBoxIndex";
inline constexpr char UsePersonalFolder[] = "UsePersonalFolder";
inline constexpr char AdminLoginModeEnabled[] = "AdminLoginModeEnabled";
inline constexpr char PSFormName[] = "PSFormName";
inline constexpr char BarcodeAreaDefName[] = "BarcodeAreaDefName";
inline constexpr char ColorProfileName[] = "ColorProfileName";

inline constexpr int listLimit = 100;
inline constexpr int colorProfileLimit = 30; // deliberately smaller than the other lists
inline constexpr int partCount = 6;
inline constexpr int partLength = 200;
inline constexpr char partSuffixFormat[] = "_Part%d";
inline constexpr int bufferSize = 4096;

inline constexpr char updatePpdOptionsValue[] = "True";
inline constexpr char updateJobTitle[] = "UpdatePPDOptions";
inline constexpr char updateFileContent[] = "Update";
inline constexpr char defaultCommunity[] = "cobalt";
// The SNMPv3 protocols a queue may name, for authentication and for privacy;
// the first of each is what a queue starts with.
inline constexpr const char *snmpAuthProtocols[] = {"SHA-256", "SHA-512", "SHA-384",
                                                    "SHA-224", "SHA-1",   "MD5"};
inline constexpr const char *snmpPrivProtocols[] = {"AES-128", "AES-256", "AES-192", "DES"};

// The update job's own document format: the server routes it to the driver
// filter alone, so the job never reaches the printer's driver and print jobs
// never reach the filter.
inline constexpr char updateDocumentFormat[] = "application/vnd.orvo-settings-update";
inline constexpr char driverFilter[] = "orvo-ppd-update";
// The PPD line that setting a queue up adds: the filter stores settings only
// in a PPD that carries it. Not a settings keyword, so no job can write it.
inline constexpr char setUpKeyword[] = "OrvoSettingsUpdate";
inline constexpr char setUpValue[] = "Accepted";
// The PPD line that names who may save (OrvoSavers), beside the set-up line
// and, like it, written by setup alone; no line: everyone.
inline constexpr char saversKeyword[] = "OrvoSettingsSavers";

inline constexpr Keyword all[] = {
    {UpdatePPDOptions, Encoding::JobMarker, 0},
    {PPDOptionsUpdated, Encoding::Flag, 0},
    {IsCustomSnmpCommunity, Encoding::Flag, 0},
    {SnmpCommunityName, Encoding::Base64, 0},
    {SnmpVersion, Encoding::Decimal, 0},
    {SnmpUserName, Encoding::Base64, 0},
    {SnmpAuthProtocol, Encoding::Base64, 0},
    {SnmpPrivProtocol, Encoding::Base64, 0},
    {IsWakeOnLan, Encoding::Flag, 0},
    {PrinterMacAddress, Encoding::Base64, 0},
    {IsOverTheRouter, Encoding::Flag, 0},
    {PrinterIPAddress, Encoding::Base64, 0},
    {SharedBoxName, Encoding::MultiPart, listLimit},
    {SelSharedBoxName, Encoding::MultiPart, listLimit},
    {SelSharedBoxIndex, Encoding::Decimal, listLimit},
    {UsePersonalFolder, Encoding::Flag, 0},
    {AdminLoginModeEnabled, Encoding::Flag, 0},
    {PSFormName, Encoding::MultiPart, listLimit},
    {BarcodeAreaDefName, Encoding::MultiPart, listLimit},
    {ColorProfileName, Encoding::MultiPart, colorProfileLimit},
};

} // namespace OrvoSettingsKeywords
