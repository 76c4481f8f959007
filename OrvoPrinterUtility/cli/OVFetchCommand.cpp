#include "OVFetchCommand.h"

#include "OVCommandLine.h"
#include "OVPrinterInfoFetch.h"
#include "OVSleep.h"
#include "OVTaskToken.h"
#include "OVWakeOnLanHelper.h"
#include "OrvoSettingsKeywords.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QRegularExpression>

#include <optional>

namespace {

using Exit = OVCommandLine::Exit;
const QCommandLineOption addressOption("address", "The printer's IPv4 or IPv6 address.", "addr");
const QCommandLineOption communityOption("community", "SNMP community (default \"cobalt\").",
                                         "name", OrvoSettingsKeywords::defaultCommunity);
const QCommandLineOption wakeOption("wake", "Wake the printer first (needs --mac).");
const QCommandLineOption macOption("mac", "The printer's MAC address, for --wake.", "mac");
const QCommandLineOption routerOption("over-router", "Wake the printer across a router.");

// A printer stays silent both when nothing answers at the address and when
// the community is not the printer's: SNMP v1 does not tell the two apart.
int silent(const QString &address, const QString &what) {
    return OVCommandLine::fail(Exit::PrinterSilent,
                               QStringLiteral("the printer at %1 did not answer (%2); the address "
                                              "or the SNMP community may be wrong")
                                   .arg(address, what));
}

// Which step failed and why, each reason in words of its own.
int fetchFailure(const QString &address, const OVPrinterInfoFetch::FailedStep &failed) {
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
    }
    return silent(address, step);
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

bool wake(const QString &address, const QString &community, const QCommandLineParser &parser) {
    // The wake flow waits whole seconds between its tries; show that on a terminal.
    OVSleep::setSleeper([](unsigned seconds) {
        OVCommandLine::progress(
            QStringLiteral("Waiting %1 s for the printer to wake up...").arg(seconds));
        if (const auto task = OVTaskToken::current())
            task->sleepFor(std::chrono::seconds(seconds));
    });
    // The wake flow reads the octets between colons.
    const QString mac = parser.value(macOption).replace('-', ':');
    const bool awake = OVWakeOnLanHelper::SnmpWakeUpOnLan(address, mac, community, true,
                                                          parser.isSet(routerOption));
    OVCommandLine::progress(QString());
    OVSleep::setSleeper({});
    return awake;
}

void print(const QString &address, const OVPrinterInfoFetch::Result &fetched, bool json) {
    const QString &mac = fetched.macAddress;
    const QStringList &boxNames = *fetched.folderNames;
    const bool adminLogin = fetched.adminLoginModeEnabled.value_or(false);
    const QStringList &forms = *fetched.forms;
    const QStringList &barcodes = *fetched.barcodeAreas;
    const QStringList &profiles = *fetched.colorProfiles;

    QJsonArray boxes;
    QStringList boxLines;
    for (qsizetype i = 0; i < boxNames.size(); ++i) {
        const QString state = fetched.folderStates->value(i);
        boxes.append(QJsonObject{{"name", boxNames.at(i)}, {"state", state}});
        boxLines << QStringLiteral("%1 [%2]").arg(boxNames.at(i), state);
    }
    const QJsonObject result{{"address", address},
                             {"macAddress", mac},
                             {"sharedFolders", boxes},
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

} // namespace

void OVFetchCommand::addOptions(QCommandLineParser &parser) {
    parser.addOptions({addressOption, communityOption, wakeOption, macOption, routerOption});
}

int OVFetchCommand::run(const QCommandLineParser &parser, bool json) {
    const QString address = parser.value(addressOption);
    const QString community = parser.value(communityOption);
    if (address.isEmpty())
        return OVCommandLine::fail(Exit::Usage, "--address is required");
    if (parser.isSet(wakeOption) && !parser.isSet(macOption))
        return OVCommandLine::fail(Exit::Usage, "--wake needs --mac");
    if (parser.isSet(macOption) && !isMacAddress(parser.value(macOption)))
        return OVCommandLine::fail(Exit::Usage,
                                   "--mac takes six hexadecimal octets separated by \":\" or "
                                   "\"-\", such as 00:11:22:aa:bb:cc");
    if (parser.isSet(wakeOption) && !wake(address, community, parser))
        return silent(address, "it did not wake up");
    const OVPrinterInfoFetch::Result fetched =
        OVPrinterInfoFetch::fetch({address, community, std::nullopt}, OVPrinterInfoFetch::allSteps);
    if (fetched.failedStep)
        return fetchFailure(address, *fetched.failedStep);
    print(address, fetched, json);
    return Exit::Success;
}
