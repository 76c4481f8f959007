#pragma once

#include "OVPrinterUtilityHelper.h"

#include <QRegularExpression>
#include <QString>

// Localization keys of the queue chooser and the password prompt: the English
// text, looked up through OVPrinterUtilityHelper::getLocalizedStringFor.
namespace OVChooserTexts {
inline constexpr char chooserTitle[] = "Choose a Print Queue";
inline constexpr char chooserIntro[] =
    "Choose the print queue whose printer settings you want to change.";
inline constexpr char filterLabel[] = "&Filter:";
inline constexpr char filterPlaceholder[] = "Name, description, make or model";
inline constexpr char queueList[] = "Print queues";
inline constexpr char queueColumn[] = "Queue";
inline constexpr char descriptionColumn[] = "Description";
inline constexpr char makeAndModelColumn[] = "Make and Model";
inline constexpr char utilityColumn[] = "Utility";
inline constexpr char setUp[] = "Set up";
inline constexpr char notSetUp[] = "Not set up";
inline constexpr char damaged[] = "Damaged: repair it"; // the queue's PPD
inline constexpr char loading[] = "Asking the print server for its queues...";
inline constexpr char unreachable[] =
    "The print server %1 cannot be reached. Check that it is running, then try again."; // %1: the
                                                                                        // server
inline constexpr char noQueues[] =
    "The print server %1 has no print queues. Add a printer, then try again."; // %1: the server
inline constexpr char noMatch[] = "No queue matches the filter.";
inline constexpr char otherServer[] = "Other Server…";
inline constexpr char otherServerTitle[] = "Connect to a Print Server";
inline constexpr char serverLabel[] = "Print server (host or host:port):";
inline constexpr char serverInvalid[] = "\"%1\" names no print server. Enter a host name or "
                                        "address, with a port if it is not 631.";
inline constexpr char open[] = "Open";
inline constexpr char cancel[] = "Cancel";
inline constexpr char retry[] = "Retry";
inline constexpr char passwordTitle[] = "Password Required";
// %1: the server, %2: the queue
inline constexpr char passwordForQueue[] =
    "The print server %1 asks for a user name and password to change the queue \"%2\".";
inline constexpr char passwordForServer[] =
    "The print server %1 asks for a user name and password."; // %1: the server
inline constexpr char passwordRefused[] = "The user name or password was not accepted. Try again.";
inline constexpr char userName[] = "&User name:";
inline constexpr char password[] = "&Password:";

// Every key above.
inline constexpr const char *localizedKeys[] = {
    chooserTitle,
    chooserIntro,
    filterLabel,
    filterPlaceholder,
    queueList,
    queueColumn,
    descriptionColumn,
    makeAndModelColumn,
    utilityColumn,
    setUp,
    notSetUp,
    damaged,
    loading,
    unreachable,
    noQueues,
    noMatch,
    otherServer,
    otherServerTitle,
    serverLabel,
    serverInvalid,
    open,
    cancel,
    retry,
    passwordTitle,
    passwordForQueue,
    passwordForServer,
    passwordRefused,
    userName,
    password,
};

// The text in the user's language.
inline QString localized(const char *key) {
    return OVPrinterUtilityHelper::getLocalizedStringFor(QString::fromUtf8(key));
}

// A label's text as a field's accessible name: without its mnemonic
// ("&Filter:", "フィルター(&F):") and its closing colon.
inline QString withoutMnemonic(QString label) {
    static const QRegularExpression mnemonic(QStringLiteral("\\(&.\\)|&|\\s*[:\\x{FF1A}]\\s*$"));
    return label.remove(mnemonic);
}
} // namespace OVChooserTexts
