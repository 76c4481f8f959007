#pragma once

// Localization keys of the window: the English text, looked up through
// OVPrinterUtilityHelper::getLocalizedStringFor.
namespace OVWindowTexts {
inline constexpr char utilitySuffix[] = " - Utility";
inline constexpr char defaultTitle[] = "Orvo Printer Utility";
inline constexpr char modelNameKey[] = "Orvo Printer - Model Name";
inline constexpr char ok[] = "OK";
inline constexpr char closeButton[] = "Close";
inline constexpr char introText[] = "IntroText";
inline constexpr char SnmpCommunityName[] = "SNMP Community Name";
inline constexpr char prohibitCharacter[] = "IDS_SNMP_PROHIBIT_CHARACTER_ERROR";
inline constexpr char wakeOnLan[] = "Wake On LAN";
inline constexpr char macAddressLabel[] = "MAC Address of the Printer:";
// What assistive technology calls each of the six MAC fields; %1: 1 to 6.
inline constexpr char macAddressByte[] = "MAC address, byte %1";
inline constexpr char overTheRouter[] = "Connect to Another Network";
inline constexpr char ipAddressLabel[] = "IP address of the printer:";
inline constexpr char getPrinterInfo[] = "Get Printer Info";
inline constexpr char gettingInformation[] = "Getting information from printer...";
inline constexpr char loadingSettings[] = "Loading settings...";
inline constexpr char folderTab[] = "Folder";
inline constexpr char formTab[] = "Form";
inline constexpr char barcodeTab[] = "Barcode area definition";
inline constexpr char colorProfileTab[] = "Color profile";
inline constexpr char sharedFolderInPrinter[] = "Shared folder in the printer";
inline constexpr char registerFolder[] = "Register folder";
inline constexpr char add[] = "Add ->";
inline constexpr char deleteButton[] = "<- Delete";
inline constexpr char clear[] = "Clear";
inline constexpr char UsePersonalFolder[] = "Use Personal folder";
inline constexpr char failedToObtain[] = "Failed to obtain information.";
inline constexpr char settingsTooLong[] = "IDS_SETTINGS_TOO_LONG";
inline constexpr char queueNotSetUp[] = "IDS_QUEUE_NOT_SET_UP"; // %1: the queue

// Every key the window looks up (the model-name key names an entry of the
// application's information dictionary, not a text).
inline constexpr const char *localizedKeys[] = {
    utilitySuffix,
    defaultTitle,
    ok,
    closeButton,
    introText,
    SnmpCommunityName,
    prohibitCharacter,
    wakeOnLan,
    macAddressLabel,
    macAddressByte,
    overTheRouter,
    ipAddressLabel,
    getPrinterInfo,
    gettingInformation,
    loadingSettings,
    folderTab,
    formTab,
    barcodeTab,
    colorProfileTab,
    sharedFolderInPrinter,
    registerFolder,
    add,
    deleteButton,
    clear,
    UsePersonalFolder,
    failedToObtain,
    settingsTooLong,
    queueNotSetUp,
};
} // namespace OVWindowTexts
