#pragma once

// Localization keys of the window: the English text, looked up through
// OVPrinterUtilityHelper::getLocalizedStringFor.
namespace OVWindowTexts {
inline constexpr char UtilitySuffix[] = " - Utility";
inline constexpr char DefaultTitle[] = "Orvo Printer Utility";
inline constexpr char ModelNameKey[] = "Orvo Printer - Model Name";
inline constexpr char OK[] = "OK";
inline constexpr char Close[] = "Close";
inline constexpr char IntroText[] = "IntroText";
inline constexpr char SnmpCommunityName[] = "SNMP Community Name";
inline constexpr char ProhibitCharacter[] = "IDS_SNMP_PROHIBIT_CHARACTER_ERROR";
inline constexpr char WakeOnLan[] = "Wake On LAN";
inline constexpr char MacAddressLabel[] = "MAC Address of the Printer:";
inline constexpr char OverTheRouter[] = "Connect to Another Network";
inline constexpr char IPAddressLabel[] = "IP address of the printer:";
inline constexpr char GetPrinterInfo[] = "Get Printer Info";
inline constexpr char GettingInformation[] = "Getting information from printer...";
inline constexpr char LoadingSettings[] = "Loading settings...";
inline constexpr char FolderTab[] = "Folder";
inline constexpr char FormTab[] = "Form";
inline constexpr char BarcodeTab[] = "Barcode area definition";
inline constexpr char ColorProfileTab[] = "Color profile";
inline constexpr char SharedFolderInPrinter[] = "Shared folder in the printer";
inline constexpr char RegisterFolder[] = "Register folder";
inline constexpr char Add[] = "Add ->";
inline constexpr char Delete[] = "<- Delete";
inline constexpr char Clear[] = "Clear";
inline constexpr char UsePersonalFolder[] = "Use Personal folder";
inline constexpr char FailedToObtain[] = "Failed to obtain information.";
inline constexpr char SettingsTooLong[] = "IDS_SETTINGS_TOO_LONG";
inline constexpr char QueueNotSetUp[] = "IDS_QUEUE_NOT_SET_UP"; // %1: the queue

// Every key the window looks up (the model-name key names an entry of the
// application's information dictionary, not a text).
inline constexpr const char *localizedKeys[] = {
    UtilitySuffix,
    DefaultTitle,
    OK,
    Close,
    IntroText,
    SnmpCommunityName,
    ProhibitCharacter,
    WakeOnLan,
    MacAddressLabel,
    OverTheRouter,
    IPAddressLabel,
    GetPrinterInfo,
    GettingInformation,
    LoadingSettings,
    FolderTab,
    FormTab,
    BarcodeTab,
    ColorProfileTab,
    SharedFolderInPrinter,
    RegisterFolder,
    Add,
    Delete,
    Clear,
    UsePersonalFolder,
    FailedToObtain,
    SettingsTooLong,
    QueueNotSetUp,
};
} // namespace OVWindowTexts
