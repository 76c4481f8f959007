#pragma once

#include "OVPrinterUtilityHelper.h"

#include <QRegularExpression>
#include <QString>

// Localization keys of the queue chooser and the password prompt: the English
// text, looked up through OVPrinterUtilityHelper::getLocalizedStringFor.
namespace OVChooserTexts {
inline constexpr char ChooserTitle[] = "Choose a Print Queue";
inline constexpr char ChooserIntro[] =
    "Choose the print queue whose printer settings you want to change.";
inline constexpr char FilterLabel[] = "&Filter:";
inline constexpr char FilterPlaceholder[] = "Name, description, make or model";
inline constexpr char QueueList[] = "Print queues";
inline constexpr char QueueColumn[] = "Queue";
inline constexpr char DescriptionColumn[] = "Description";
inline constexpr char MakeAndModelColumn[] = "Make and Model";
inline constexpr char UtilityColumn[] = "Utility";
inline constexpr char SetUp[] = "Set up";
inline constexpr char NotSetUp[] = "Not set up";
inline constexpr char Loading[] = "Asking the print server for its queues...";
inline constexpr char Unreachable[] =
    "The print server %1 cannot be reached. Check that it is running, then try again."; // %1: the
                                                                                        // server
inline constexpr char NoQueues[] =
    "The print server %1 has no print queues. Add a printer, then try again."; // %1: the server
inline constexpr char Open[] = "Open";
inline constexpr char Cancel[] = "Cancel";
inline constexpr char Retry[] = "Retry";
inline constexpr char PasswordTitle[] = "Password Required";
// %1: the server, %2: the queue
inline constexpr char PasswordForQueue[] =
    "The print server %1 asks for a user name and password to change the queue \"%2\".";
inline constexpr char PasswordForServer[] =
    "The print server %1 asks for a user name and password."; // %1: the server
inline constexpr char PasswordRefused[] = "The user name or password was not accepted. Try again.";
inline constexpr char UserName[] = "&User name:";
inline constexpr char Password[] = "&Password:";

// Every key above.
inline constexpr const char *localizedKeys[] = {
    ChooserTitle,
    ChooserIntro,
    FilterLabel,
    FilterPlaceholder,
    QueueList,
    QueueColumn,
    DescriptionColumn,
    MakeAndModelColumn,
    UtilityColumn,
    SetUp,
    NotSetUp,
    Loading,
    Unreachable,
    NoQueues,
    Open,
    Cancel,
    Retry,
    PasswordTitle,
    PasswordForQueue,
    PasswordForServer,
    PasswordRefused,
    UserName,
    Password,
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
