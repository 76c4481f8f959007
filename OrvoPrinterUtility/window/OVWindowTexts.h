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
// %1: the characters besides letters and digits
inline constexpr char communityAllowed[] =
    "It may hold the letters A-Z and a-z, the digits 0-9 and these characters: %1";
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
// What OK says of a setting that breaks its rule. %1: the refused character
inline constexpr char communityCharacter[] = "The SNMP community name cannot contain \"%1\".";
// %1: the most characters it may have, in this and addressInvalid
inline constexpr char communityTooLong[] = "The SNMP community name is longer than %1 characters.";
inline constexpr char addressInvalid[] = "The IP address of the printer must be an IPv4 or IPv6 "
                                         "address, or a host name of at most %1 characters.";
inline constexpr char macAddressIncomplete[] =
    "The MAC address of the printer is incomplete: each of its six bytes needs two hexadecimal "
    "digits (0-9, A-F).";
inline constexpr char macAddressMissing[] =
    "Wake On LAN needs the MAC address of the printer. Enter it, or turn Wake On LAN off.";
// %1: the list's name, %2: the most entries it holds
inline constexpr char listTooLong[] = "The list \"%1\" holds more than %2 entries.";
// %1: the list's name, %2: the most bytes a name may have
inline constexpr char nameTooLong[] = "A name in the list \"%1\" is longer than %2 bytes.";
// %1: the setting's name
inline constexpr char settingInvalid[] = "\"%1\" holds a value that cannot be saved.";
inline constexpr char queueNotSetUp[] = "IDS_QUEUE_NOT_SET_UP"; // %1: the queue
inline constexpr char savingSettings[] = "Saving settings...";
inline constexpr char settingUpQueue[] = "Setting up the queue...";
inline constexpr char setUpButton[] = "Set Up…";
inline constexpr char repairButton[] = "Repair…";
// %1: the server, %2: the queue
inline constexpr char queueUnknown[] = "The print server %1 has no print queue \"%2\".";
// %1: the queue, in this and the following texts
inline constexpr char queueWithoutPpd[] =
    "The print queue \"%1\" has no PPD, so it keeps no printer settings.";
inline constexpr char unreadablePpd[] = "The PPD of the print queue \"%1\" cannot be read, so its "
                                        "settings cannot be shown or saved.";
inline constexpr char setUpNotAuthorized[] = "The print queue \"%1\" was not set up: the print "
                                             "server did not accept the user name and password.";
inline constexpr char setUpLacksFilter[] = // %1: the server
    "The print server %1 lacks the utility's driver filter, so its queues cannot be set up. "
    "Install the utility on the print server first.";
inline constexpr char damagedPpd[] =
    "The PPD of the print queue \"%1\" is damaged, so its settings cannot be shown or saved. "
    "Choose \"Repair…\" to rebuild it from the queue's driver with the settings it still holds.";
inline constexpr char setUpUnknown[] =
    "The print server stopped answering, so whether the print queue \"%1\" was changed is not "
    "known. Try again once the server answers: only what is not done yet is done again.";
// %2: the queue's make and model
inline constexpr char repairNoDriver[] =
    "The print server has no driver for \"%2\", the printer of the queue \"%1\", so its PPD "
    "cannot be rebuilt. A print administrator can give the queue its driver (lpadmin -m), then "
    "set it up.";
inline constexpr char notASaver[] =
    "You may not change this queue's settings: the print queue \"%1\" names who may save them. "
    "They are shown read-only.";
// %2: the server's own words
inline constexpr char setUpFailed[] = "The print queue \"%1\" could not be set up: %2";
// %1: the server's own words
inline constexpr char saveRefused[] =
    "The print server refused the settings (%1). Nothing was saved.";
inline constexpr char saveServerLost[] =
    "The print server stopped answering while the settings were saved. Whether they arrived "
    "shows when the window is opened again.";
// %1: the job's number, in this and the following two texts
inline constexpr char saveJobStopped[] =
    "The print server ended update job %1 before it stored the settings, so nothing was saved. "
    "Check the print queue on the server, then try again.";
inline constexpr char saveJobPending[] =
    "Update job %1 did not end in time; the print queue may be paused. The settings are stored "
    "when the queue runs again, unless the job is cancelled.";
// %2: the settings' option names
inline constexpr char saveNotHeld[] =
    "Update job %1 ended, but the queue's PPD does not hold every setting (%2). Try again.";
// %2: the later job
inline constexpr char saveReplaced[] =
    "Update job %1 ended, then a later save to this print queue (update job %2) replaced its "
    "settings. Open the window again to see what is stored.";
inline constexpr char saveDamaged[] =
    "The PPD of the print queue \"%1\" was damaged while the settings were stored. Choose "
    "\"Repair…\" to rebuild it, then save.";
// Why Get Printer Info failed. %1: the address, %2: what was asked
inline constexpr char fetchNoAddress[] =
    "The IP address of the printer is empty. Enter it, then try again.";
inline constexpr char fetchNoAnswer[] =
    "The printer at %1 did not answer when asked for %2. The IP "
    "address or the SNMP community name may be wrong.";
inline constexpr char fetchRefused[] =
    "The printer at %1 answered with an error when asked for %2. It may not keep this information.";
inline constexpr char fetchUnreadable[] =
    "The printer at %1 sent an answer that cannot be read when asked for %2.";
// The SNMPv3 user's refusals, and the silence v3 leaves for a wrong privacy
// passphrase.
inline constexpr char fetchNoAnswerV3[] =
    "The printer at %1 did not answer when asked for %2. The IP address or the SNMPv3 privacy "
    "passphrase may be wrong.";
inline constexpr char fetchUnknownUser[] =
    "The printer at %1 has no SNMPv3 user of this name (asked for %2). Check the user name under "
    "SNMP Security.";
inline constexpr char fetchWrongPassphrase[] =
    "The printer at %1 refused the authentication passphrase of the SNMPv3 user when asked for "
    "%2. Enter it again under SNMP Security.";
inline constexpr char fetchWrongLevel[] =
    "The printer at %1 does not accept the SNMPv3 user with privacy as chosen (asked for %2). "
    "Check the privacy protocol under SNMP Security.";
// A name that does not resolve: nothing was asked, so no %2.
inline constexpr char fetchUnknownHost[] =
    "No host is known as \"%1\". Check the printer's IP address.";
inline constexpr char stepMacAddress[] = "its MAC address";
inline constexpr char stepFolders[] = "its shared folders";
inline constexpr char stepForms[] = "its forms";
inline constexpr char stepBarcodeAreas[] = "its barcode area definitions";
inline constexpr char stepColorProfiles[] = "its color profiles";
// The SNMP security dialog
inline constexpr char snmpSecurityButton[] = "SNMP Security…";
inline constexpr char snmpVersion1[] = "SNMP v1 with the community name";
inline constexpr char snmpVersion3[] = "SNMPv3 with a user";
inline constexpr char snmpUserLabel[] = "User name:";
inline constexpr char snmpAuthProtocolLabel[] = "Authentication:";
inline constexpr char snmpAuthPassphrase[] = "Authentication passphrase:";
inline constexpr char snmpPrivProtocolLabel[] = "Privacy:";
inline constexpr char snmpNoPrivacy[] = "None";
inline constexpr char snmpPrivPassphrase[] = "Privacy passphrase:";
inline constexpr char snmpRemember[] = "Remember in the keyring";
// %1: the fewest characters a passphrase has
inline constexpr char snmpPassphraseHint[] = "At least %1 characters";
inline constexpr char keyringUnavailable[] =
    "The passphrases could not be kept in the keyring: no desktop secret store answered. They are "
    "used until the window closes.";
// %1: the refused character
inline constexpr char snmpUserCharacter[] = "The SNMPv3 user name cannot contain \"%1\".";
// %1: the user, %2: the printer's address
inline constexpr char snmpPassphrasesNeeded[] =
    "Get Printer Info asks the printer at %2 as the SNMPv3 user %1. Enter the user's passphrases.";
// Tooltips
inline constexpr char getPrinterInfoTip[] =
    "Ask the printer at this IP address for its MAC address, shared folders, forms, barcode area "
    "definitions and color profiles.";
inline constexpr char getListTip[] = "Ask the printer for this list.";
inline constexpr char clearTip[] =
    "Empty this list. The queue keeps its stored list until you choose OK.";
inline constexpr char personalFolderTip[] =
    "Also offer each user's personal folder. The printer allows it when its administrator login "
    "mode is on.";
inline constexpr char overTheRouterTip[] =
    "Wake the printer also when it is in another network, behind a router.";
inline constexpr char clearFoldersQuestion[] = "Drop the registered folders?";
inline constexpr char clearFoldersDetail[] =
    "The default folders take their place. The queue keeps its stored folders until you choose "
    "OK.";
inline constexpr char queueStopped[] = // %1: the queue
    "The print queue \"%1\" is stopped: settings saved now are stored only once it runs again.";
// %1: the queue, %2: the host it prints to
inline constexpr char addressOffered[] =
    "No printer address is stored for the queue \"%1\". It prints to %2.";
inline constexpr char useButton[] = "Use";
inline constexpr char discardQuestion[] = "Discard the changes to the settings?";
inline constexpr char discardDetail[] = "They were not saved to the print queue.";
inline constexpr char discardButton[] = "Discard";
inline constexpr char saveNotReadBack[] =
    "The settings were sent, but the queue's PPD could not be read back to check them. Open the "
    "window again to see what is stored.";

// Every key the window looks up (the model-name key names an entry of the
// application's information dictionary, not a text).
inline constexpr const char *localizedKeys[] = {
    utilitySuffix,
    defaultTitle,
    ok,
    closeButton,
    introText,
    SnmpCommunityName,
    communityAllowed,
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
    communityCharacter,
    communityTooLong,
    addressInvalid,
    macAddressIncomplete,
    macAddressMissing,
    listTooLong,
    nameTooLong,
    settingInvalid,
    queueNotSetUp,
    savingSettings,
    settingUpQueue,
    setUpButton,
    repairButton,
    queueUnknown,
    queueWithoutPpd,
    unreadablePpd,
    setUpNotAuthorized,
    setUpLacksFilter,
    damagedPpd,
    setUpUnknown,
    repairNoDriver,
    setUpFailed,
    notASaver,
    saveRefused,
    saveServerLost,
    saveJobStopped,
    saveJobPending,
    saveNotHeld,
    saveReplaced,
    saveDamaged,
    saveNotReadBack,
    fetchNoAddress,
    fetchNoAnswer,
    fetchRefused,
    fetchUnreadable,
    fetchNoAnswerV3,
    fetchUnknownUser,
    fetchWrongPassphrase,
    fetchWrongLevel,
    fetchUnknownHost,
    snmpSecurityButton,
    snmpVersion1,
    snmpVersion3,
    snmpUserLabel,
    snmpAuthProtocolLabel,
    snmpAuthPassphrase,
    snmpPrivProtocolLabel,
    snmpNoPrivacy,
    snmpPrivPassphrase,
    snmpRemember,
    snmpPassphraseHint,
    keyringUnavailable,
    snmpUserCharacter,
    snmpPassphrasesNeeded,
    stepMacAddress,
    stepFolders,
    stepForms,
    stepBarcodeAreas,
    stepColorProfiles,
    getPrinterInfoTip,
    getListTip,
    clearTip,
    personalFolderTip,
    overTheRouterTip,
    clearFoldersQuestion,
    clearFoldersDetail,
    queueStopped,
    addressOffered,
    useButton,
    discardQuestion,
    discardDetail,
    discardButton,
};
} // namespace OVWindowTexts
