#include "OVSetupCommand.h"

#include "OVCommandLine.h"
#include "OVQueueSetup.h"
#include "OrvoSavers.h"

#include <QJsonObject>

#include <cups/cups.h>

#include <cstdio>
#include <cstring>
#include <termios.h>
#include <unistd.h>

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
// libcups asks again after a wrong password; three tries, as login programs allow.
constexpr int passwordTries = 3;

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
    return "orvo-printer-utility-cli setup --repair " + queue;
}

int failure(const OVQueueSetup::Result &result, const QString &queue) {
    const QString unchanged = QStringLiteral("; the queue is unchanged");
    switch (result.outcome) {
    case Outcome::Unknown:
        return OVCommandLine::fail(
            Exit::ServerUnreachable,
            "the CUPS server stopped answering after the change was sent, so whether \"" + queue +
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
                                       "; give the queue its driver with: lpadmin -p " + queue +
                                       " -m DRIVER (\"lpinfo -m\" lists them), then run: "
                                       "orvo-printer-utility-cli setup " +
                                       queue + " (settings the damaged PPD held are lost then)");
    case Outcome::ServerUnreachable:
        return OVCommandLine::serverFailure();
    case Outcome::QueueUnknown:
        return OVCommandLine::fail(Exit::QueueUnknown, "no queue \"" + queue + "\" on the server");
    case Outcome::NoPPD:
        return OVCommandLine::fail(Exit::Refused, "the queue \"" + queue +
                                                      "\" has no PPD, so it cannot keep settings" +
                                                      unchanged);
    case Outcome::NotAuthorized:
        return OVCommandLine::fail(
            Exit::NotAuthorized,
            "the server refused: changing a queue needs a print administrator (" + result.detail +
                ")" + unchanged);
    case Outcome::ServerLacksRoute:
        return OVCommandLine::fail(
            Exit::Failed, "the server cannot route the utility's saves: install the Orvo Printer "
                          "Utility (its filter and MIME files) on the print server" +
                              unchanged);
    default:
        return OVCommandLine::fail(Exit::Failed, "the change to \"" + queue +
                                                     "\" did not succeed: " + result.detail);
    }
}

void setEcho(bool on) {
    termios mode{};
    if (tcgetattr(STDIN_FILENO, &mode) != 0)
        return;
    mode.c_lflag = on ? (mode.c_lflag | ECHO) : (mode.c_lflag & ~tcflag_t(ECHO));
    tcsetattr(STDIN_FILENO, TCSAFLUSH, &mode);
}

} // namespace

void OVSetupCommand::addOptions(QCommandLineParser &parser) {
    parser.addOption(removeOption);
    parser.addOption(repairOption);
    parser.addOption(saversOption);
}

// Asked on a terminal only: a script gets the refusal instead of a hang.
const char *OVSetupCommand::askPassword(const char *prompt, http_t *, const char *, const char *,
                                        void *tries) {
    static char password[256];
    if (!isatty(STDIN_FILENO) || ++*static_cast<int *>(tries) > passwordTries)
        return nullptr;
    std::fprintf(stderr, "%s ", prompt);
    setEcho(false);
    const bool read = std::fgets(password, sizeof password, stdin) != nullptr;
    setEcho(true);
    std::fputc('\n', stderr);
    if (!read)
        return nullptr;
    password[std::strcspn(password, "\r\n")] = '\0';
    return password;
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
    int tries = 0;
    cupsSetPasswordCB2(askPassword, &tries);
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
