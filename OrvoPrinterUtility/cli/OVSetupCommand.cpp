#include "OVSetupCommand.h"

#include "OVCommandLine.h"
#include "OVQueueSetup.h"
#include "OrvoSavers.h"

#include <QFileInfo>
#include <QJsonObject>

#include <cups/cups.h>

#include <optional>

namespace {

using Exit = OVCommandLine::Exit;
using Outcome = OVQueueSetup::Outcome;
const QCommandLineOption
    removeOption("remove", "Take the set-up line out again; saved settings stay in the PPD.");
const QCommandLineOption repairOption(
    "repair",
    "Rebuild a damaged PPD from the queue's driver, keeping the settings it still holds.");
const QCommandLineOption saversOption(
    "savers",
    "Who may save settings on the queue: users and @groups separated by commas, or \"all\" "
    "(the default). Without it the queue keeps whom it names.",
    "list");

enum class Action { SetUp, Remove, Repair };

QString doneText(const QString &queue, Action action, bool changed) {
    if (action == Action::Repair)
        return changed
                   ? QStringLiteral("\"%1\" is repaired and set up: its PPD was rebuilt from "
                                    "its driver with the settings it still held.\n")
                         .arg(queue)
                   : QStringLiteral("\"%1\" is set up and whole; nothing changed.\n").arg(queue);
    if (action == Action::Remove)
        return changed ? QStringLiteral("\"%1\" no longer takes the utility's saves; its saved "
                                        "settings stay in the PPD.\n")
                             .arg(queue)
                       : QStringLiteral("\"%1\" was not set up; nothing changed.\n").arg(queue);
    return changed ? QStringLiteral("\"%1\" is set up: saves reach the orvo-ppd-update filter, "
                                    "print jobs print as before.\n")
                         .arg(queue)
                   : QStringLiteral("\"%1\" was already set up; nothing changed.\n").arg(queue);
}

QString repairCommand(const QString &queue) {
    return OVCommandLine::hint("setup", "--repair " + queue);
}

// Where cupsd reads MIME files and runs filters from: the folders it was
// built with unless its environment names others.
QString cupsFolder(const char *variable, const char *builtIn) {
    return qEnvironmentVariable(variable, QString::fromUtf8(builtIn));
}

QString mimeFile(const char *suffix) {
    return cupsFolder("CUPS_DATADIR", ORVO_CUPS_DATADIR) + "/mime/orvo-printer-utility." + suffix;
}

// Whether the server runs on this machine and the utility's filter and MIME
// files are installed here: a server that lacks the type then has not read
// them since they came, which a reload mends.
bool installedHere() {
    const QString host = QString::fromUtf8(cupsServer());
    const bool local = host.startsWith('/') || host == "localhost" || host.startsWith("127.") ||
                       host == "::1" || host == "[::1]";
    const QString filter =
        cupsFolder("CUPS_SERVERBIN", ORVO_CUPS_SERVERBIN) + "/filter/orvo-ppd-update";
    return local && QFileInfo(filter).isExecutable() && QFileInfo::exists(mimeFile("types")) &&
           QFileInfo::exists(mimeFile("convs"));
}

// As the package's maintainer scripts reload it: Debian's cups unit cannot
// reload, so systemd restarts it; the init script sends cupsd a hangup.
QString reloadCommand() {
    return QFileInfo::exists("/run/systemd/system")
               ? QStringLiteral("systemctl try-reload-or-restart cups")
               : QStringLiteral("invoke-rc.d cups force-reload");
}

int lacksRoute(const QString &unchanged) {
    if (installedHere())
        return OVCommandLine::fail(
            Exit::Failed, "the CUPS server " + OVCommandLine::server() +
                              " has not read the utility's MIME files installed on this machine: "
                              "reload CUPS so that it reads " +
                              mimeFile("types") + " and " + mimeFile("convs") + " (" +
                              reloadCommand() + ")" + unchanged);
    return OVCommandLine::fail(Exit::Failed, "the CUPS server " + OVCommandLine::server() +
                                                 " cannot route the utility's saves: install the "
                                                 "Orvo Printer Utility (its filter and MIME files) "
                                                 "on the print server" +
                                                 unchanged);
}

int failure(const OVQueueSetup::Result &result, const QString &queue) {
    const QString unchanged = QStringLiteral("; the queue is unchanged");
    switch (result.outcome) {
    case Outcome::Unknown:
        return OVCommandLine::fail(
            Exit::ServerUnreachable,
            "the CUPS server " + OVCommandLine::server() +
                " stopped answering after the change was sent, so whether \"" + queue +
                "\" took it is unknown; run the same command again once the server answers: it "
                "changes only what is not done yet");
    case Outcome::Damaged:
        return OVCommandLine::fail(Exit::Failed, "the PPD of \"" + queue + "\" is damaged" +
                                                     unchanged +
                                                     "; repair it with: " + repairCommand(queue));
    case Outcome::NoDriver:
        return OVCommandLine::fail(Exit::Failed,
                                   "no driver on the server has the queue's make and model \"" +
                                       result.detail + "\"" + unchanged +
                                       "; give the queue its driver with: " +
                                       OVCommandLine::withServer("lpadmin", "-p " + queue) +
                                       " -m DRIVER (\"lpinfo -m\" lists them), then run: " +
                                       OVCommandLine::hint("setup", queue) +
                                       " (settings the damaged PPD held are lost then)");
    case Outcome::ServerUnreachable:
        return OVCommandLine::serverFailure();
    case Outcome::QueueUnknown:
        return OVCommandLine::queueUnknown(queue);
    case Outcome::NoPPD:
        return OVCommandLine::fail(Exit::Refused, "the queue \"" + queue +
                                                      "\" has no PPD, so it cannot keep settings" +
                                                      unchanged);
    case Outcome::NotAuthorized:
        return OVCommandLine::fail(
            Exit::NotAuthorized,
            "the CUPS server " + OVCommandLine::server() + " refused " +
                QString::fromUtf8(cupsUser()) + ": changing a queue needs a print administrator (" +
                result.detail + ")" + unchanged + "; -U USER names another user");
    case Outcome::ServerLacksRoute:
        return lacksRoute(unchanged);
    default:
        return OVCommandLine::fail(Exit::Failed, "the change to \"" + queue +
                                                     "\" did not succeed: " + result.detail);
    }
}

} // namespace

void OVSetupCommand::addOptions(QCommandLineParser &parser) {
    parser.addOption(removeOption);
    parser.addOption(repairOption);
    parser.addOption(saversOption);
}

int OVSetupCommand::run(const QCommandLineParser &parser, bool json) {
    const QString queue = parser.positionalArguments().first();
    if (parser.isSet(removeOption) && parser.isSet(repairOption))
        return OVCommandLine::fail(Exit::Usage, "--remove and --repair exclude each other");
    const Action action = parser.isSet(removeOption)   ? Action::Remove
                          : parser.isSet(repairOption) ? Action::Repair
                                                       : Action::SetUp;
    std::optional<OrvoSavers> savers;
    if (parser.isSet(saversOption)) {
        savers = OrvoSavers::parse(parser.value(saversOption).toStdString());
        if (action != Action::SetUp)
            return OVCommandLine::fail(Exit::Usage, "--savers goes with setting a queue up only");
        if (!savers)
            return OVCommandLine::fail(
                Exit::Usage,
                QStringLiteral("--savers takes \"all\" or user names and @groups separated by "
                               "commas, each of at most %1 letters, digits, '.', '_' or '-' "
                               "(not first), %2 characters in all")
                    .arg(OrvoSavers::nameLimit)
                    .arg(OrvoSavers::textLimit));
    }
    const OVQueueSetup::Result result = action == Action::Remove ? OVQueueSetup::remove(queue)
                                        : action == Action::Repair
                                            ? OVQueueSetup::repair(queue)
                                            : OVQueueSetup::setUp(queue, savers);
    if (result.outcome != Outcome::Changed && result.outcome != Outcome::Unchanged)
        return failure(result, queue);
    const bool changed = result.outcome == Outcome::Changed;
    QJsonObject done{{"queue", queue}, {"setUp", action != Action::Remove}, {"changed", changed}};
    QString text = doneText(OVCommandLine::visible(queue), action, changed);
    if (savers) {
        done.insert("savers", QString::fromStdString(savers->text()));
        text += "Who may save settings: " + QString::fromStdString(savers->text()) + "\n";
    }
    OVCommandLine::print(json, done, text);
    return Exit::Success;
}
