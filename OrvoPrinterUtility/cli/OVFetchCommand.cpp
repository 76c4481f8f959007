#include "OVFetchCommand.h"

#include "OVCommandLine.h"
#include "OVPrinterInfoFetch.h"
#include "OVSleep.h"
#include "OVSnmpSecrets.h"
#include "OVTaskToken.h"
#include "OrvoSettingsKeywords.h"
#include "OrvoSettingsRules.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QRegularExpression>

#include <algorithm>
#include <optional>
#include <variant>

namespace {

using Exit = OVCommandLine::Exit;
const QCommandLineOption addressOption("address",
                                       "The printer's IPv4 or IPv6 address or host name.", "addr");
const QCommandLineOption communityOption("community", "SNMP community (default \"cobalt\").",
                                         "name", OrvoSettingsKeywords::defaultCommunity);
const QCommandLineOption wakeOption("wake", "Wake the printer first (needs --mac-address).");
// The spellings of save's options for the same settings; the short ones
// stay for scripts written before.
const QCommandLineOption macOption({"mac-address", "mac"}, "The printer's MAC address, for --wake.",
                                   "mac");
const QCommandLineOption routerOption({"over-router", "overRouter"},
                                      "Wake the printer across a router.");
const QCommandLineOption versionOption("snmp-version",
                                       "SNMP version: 1 (community, the default) or 3 (user).",
                                       "1|3", "1");
const QCommandLineOption userOption("snmp-user", "SNMPv3 user name.", "name");
const QCommandLineOption authOption("snmp-auth",
                                    "SNMPv3 authentication protocol (default SHA-256).", "proto",
                                    OrvoSettingsKeywords::snmpAuthProtocols[0]);
const QCommandLineOption privOption("snmp-priv", "SNMPv3 privacy protocol; without it, no privacy.",
                                    "proto");
const QCommandLineOption
    secretsOption("snmp-secrets", "File with the SNMPv3 passphrases, readable by its owner alone.",
                  "file");

// A printer stays silent both when nothing answers at the address and when
// the community is not the printer's: SNMP v1 does not tell the two apart.
// An SNMPv3 printer says which part of the user is wrong, except for a
// privacy passphrase: it cannot read what that encrypted.
int silent(const QString &address, const QString &what, const OVSnmpCredentials &credentials) {
    const char *suspect = credentials.version() == OVSnmpCredentials::Version::V3
                              ? "the SNMPv3 privacy passphrase"
                              : "the SNMP community";
    return OVCommandLine::fail(Exit::PrinterSilent,
                               QStringLiteral("the printer at %1 did not answer (%2); the address "
                                              "or %3 may be wrong")
                                   .arg(address, what, suspect));
}

// A name no resolver knows is a mistake in the argument, not a printer that
// stays silent; nothing was sent to it.
int unknownHost(const QString &address) {
    return OVCommandLine::fail(Exit::Usage, "--address: no host is known as \"" + address + "\"");
}

// Which step failed and why, each reason in words of its own.
int fetchFailure(const QString &address, const OVPrinterInfoFetch::FailedStep &failed,
                 const OVSnmpCredentials &credentials) {
    const QString step = OVPrinterInfoFetch::stepName(failed.step);
    const QString &detail = failed.failure.detail;
    switch (failed.failure.reason) {
    case OVSNMPHelper::Reason::NoAnswer:
        break;
    case OVSNMPHelper::Reason::Refused:
        return OVCommandLine::fail(Exit::PrinterAnswerUnusable,
                                   QStringLiteral("the printer at %1 answered the %2 query with an "
                                                  "error: %3")
                                       .arg(address, step, detail));
    case OVSNMPHelper::Reason::Unreadable:
        return OVCommandLine::fail(Exit::PrinterAnswerUnusable,
                                   QStringLiteral("the printer at %1 answered the %2 query with "
                                                  "data that cannot be read: %3")
                                       .arg(address, step, detail));
    case OVSNMPHelper::Reason::UnknownUser:
    case OVSNMPHelper::Reason::WrongPassphrase:
    case OVSNMPHelper::Reason::UnsupportedSecurityLevel:
        return OVCommandLine::fail(
            Exit::SnmpUserRefused,
            QStringLiteral("the printer at %1 refused the SNMPv3 user in the %2 query: %3")
                .arg(address, step, detail));
    case OVSNMPHelper::Reason::UnknownHost:
        return unknownHost(address);
    }
    return silent(address, step, credentials);
}

// The SNMPv3 user the options name, checked by the settings' rules, with its
// passphrases; or the exit code after saying what is wrong.
std::variant<OVSnmpCredentials, int> v3User(const QCommandLineParser &parser) {
    const QString user = parser.value(userOption);
    const QString auth = parser.value(authOption);
    const QString priv = parser.value(privOption);
    for (const auto &[option, verdict] :
         {std::pair{"--snmp-user", OrvoSettingsRules::snmpUser(user.toStdString())},
          std::pair{"--snmp-auth", OrvoSettingsRules::snmpAuthProtocol(auth.toStdString())},
          std::pair{"--snmp-priv", OrvoSettingsRules::snmpPrivProtocol(priv.toStdString())}}) {
        if (!verdict.ok())
            return OVCommandLine::fail(Exit::Usage,
                                       QString::fromLatin1(option) + " " +
                                           QString::fromStdString(verdict.explanation()));
    }
    const OVSnmpSecrets secrets(parser.value(secretsOption), !priv.isEmpty());
    if (secrets.error)
        return OVCommandLine::fail(Exit::Usage, *secrets.error);
    return OVSnmpCredentials::v3(user, auth, secrets.auth, priv, secrets.priv);
}

std::variant<OVSnmpCredentials, int> credentials(const QCommandLineParser &parser) {
    const QString version = parser.value(versionOption);
    if (version == "1")
        return OVSnmpCredentials(parser.value(communityOption));
    if (version == "3")
        return v3User(parser);
    return OVCommandLine::fail(Exit::Usage, "--snmp-version takes 1 or 3");
}

// Six hexadecimal octets separated by ":" or "-" throughout, the forms
// printers and ip(8) show. Anything else would wake another machine or none.
bool isMacAddress(const QString &mac) {
    static const QRegularExpression form(
        QStringLiteral("^[0-9A-Fa-f]{2}([:-])[0-9A-Fa-f]{2}(\\1[0-9A-Fa-f]{2}){4}$"));
    return form.match(mac).hasMatch();
}

QString listText(const char *title, const QStringList &items) {
    QString text = QStringLiteral("%1: (%2)\n").arg(title).arg(items.size());
    for (const QString &item : items)
        text += "  " + OVCommandLine::visible(item) + "\n";
    return text;
}

// With --wake, the fetch runs the wake flow before its queries, as the
// window's does; --mac-address was checked to hold six octets.
std::optional<OVPrinterInfoFetch::Wake> wakeFirst(const QCommandLineParser &parser,
                                                  const OVSnmpCredentials &credentials) {
    if (!parser.isSet(wakeOption))
        return std::nullopt;
    OVPrinterInfoFetch::Wake wake{true, {}, credentials, parser.isSet(routerOption)};
    const QStringList octets = parser.value(macOption).replace('-', ':').split(':');
    std::copy_n(octets.begin(), wake.macAddressFields.size(), wake.macAddressFields.begin());
    return wake;
}

// The wake flow waits whole seconds between its tries; show that on a terminal.
void showWakeWaits() {
    OVSleep::setSleeper([](unsigned seconds) {
        OVCommandLine::progress(
            QStringLiteral("Waiting %1 s for the printer to wake up...").arg(seconds));
        if (const auto task = OVTaskToken::current())
            task->sleepFor(std::chrono::seconds(seconds));
    });
}

void print(const QString &address, const OVPrinterInfoFetch::Result &fetched, bool json) {
    const QString &mac = fetched.macAddress;
    const QStringList &boxNames = *fetched.folderNames;
    const bool adminLogin = fetched.adminLoginModeEnabled.value_or(false);
    const QStringList &forms = *fetched.forms;
    const QStringList &barcodes = *fetched.barcodeAreas;
    const QStringList &profiles = *fetched.colorProfiles;

    // The names take the shape of the stored setting (show --json), so that
    // they can be saved as they are; each folder's state stands at its index.
    QStringList states;
    QStringList boxLines;
    for (qsizetype i = 0; i < boxNames.size(); ++i) {
        states << fetched.folderStates->value(i);
        boxLines << QStringLiteral("%1 [%2]").arg(boxNames.at(i), states.last());
    }
    const QJsonObject result{{"address", address},
                             {"macAddress", mac},
                             {"sharedFolders", QJsonArray::fromStringList(boxNames)},
                             {"sharedFolderStates", QJsonArray::fromStringList(states)},
                             {"adminLoginMode", adminLogin},
                             {"forms", QJsonArray::fromStringList(forms)},
                             {"barcodeAreas", QJsonArray::fromStringList(barcodes)},
                             {"colorProfiles", QJsonArray::fromStringList(profiles)}};
    const QString text = QStringLiteral("macAddress: %1\nadminLoginMode: %2\n")
                             .arg(OVCommandLine::visible(mac), adminLogin ? "yes" : "no") +
                         listText("sharedFolders", boxLines) + listText("forms", forms) +
                         listText("barcodeAreas", barcodes) + listText("colorProfiles", profiles);
    OVCommandLine::print(json, result, text);
}

QString addressProblem(const QString &address) {
    if (!OrvoSettingsRules::printerAddress(address.toStdString()).ok())
        return "--address takes an IPv4 or IPv6 address or a host name, not \"" + address + "\"";
    return {};
}

} // namespace

void OVFetchCommand::addOptions(QCommandLineParser &parser) {
    parser.addOptions({addressOption, communityOption, versionOption, userOption, authOption,
                       privOption, secretsOption, wakeOption, macOption, routerOption});
}

int OVFetchCommand::run(const QCommandLineParser &parser, bool json) {
    const QString address = parser.value(addressOption);
    if (address.isEmpty())
        return OVCommandLine::fail(Exit::Usage, "--address is required");
    if (parser.isSet(wakeOption) && !parser.isSet(macOption))
        return OVCommandLine::fail(Exit::Usage, "--wake needs --mac-address");
    if (const QString problem = addressProblem(address); !problem.isEmpty())
        return OVCommandLine::fail(Exit::Usage, problem);
    if (parser.isSet(macOption) && !isMacAddress(parser.value(macOption)))
        return OVCommandLine::fail(
            Exit::Usage, "--mac-address takes six hexadecimal octets separated by \":\" or "
                         "\"-\", such as 00:11:22:aa:bb:cc");
    const std::variant<OVSnmpCredentials, int> asked = credentials(parser);
    if (const int *exit = std::get_if<int>(&asked))
        return *exit;
    const OVSnmpCredentials &snmp = std::get<OVSnmpCredentials>(asked);
    showWakeWaits();
    const OVPrinterInfoFetch::Result fetched = OVPrinterInfoFetch::fetch(
        {address, snmp, wakeFirst(parser, snmp)}, OVPrinterInfoFetch::allSteps);
    OVCommandLine::progress(QString());
    OVSleep::setSleeper({});
    if (fetched.failedStep)
        return fetchFailure(address, *fetched.failedStep, snmp);
    print(address, fetched, json);
    return Exit::Success;
}
