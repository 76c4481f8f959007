#include "OVCommandLine.h"

#include "OVFetchCommand.h"
#include "OVLineControls.h"
#include "OVPpdCommand.h"
#include "OVQueueCommands.h"
#include "OVSetupCommand.h"
#include "OVTaskToken.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTextStream>

#include <cups/cups.h>

#include <unistd.h>

namespace {

constexpr char programName[] = "orvo-printer-utility-cli";
const QCommandLineOption helpOption("help", "Show this help.");
const QCommandLineOption jsonOption("json", "Print machine-readable JSON.");
const QCommandLineOption serverOption("h", "Use the CUPS server SERVER[:PORT].", "server");
const QCommandLineOption
    timeoutOption("timeout",
                  "Give up after this many seconds, waiting for the server included (default 60).",
                  "seconds", "60");

} // namespace

const QList<OVCommandLine::Command> &OVCommandLine::commands() {
    static const QList<Command> all = {
        {"list",
         "",
         "List the server's queues and whether each is set up for the utility.",
         {},
         OVQueueCommands::list},
        {"show", "QUEUE", "Show every setting stored for a queue.", {}, OVQueueCommands::show},
        {"save", "QUEUE", "Save settings to a queue and check that its PPD holds them.",
         OVQueueCommands::addSaveOptions, OVQueueCommands::save},
        {"setup", "QUEUE", "Set a printing queue up to take the utility's saves (--remove: undo).",
         OVSetupCommand::addOptions, OVSetupCommand::run},
        {"fetch", "", "Ask a printer for its MAC address, shared folders, forms and more.",
         OVFetchCommand::addOptions, OVFetchCommand::run},
        {"ppd", "FILE", "Show a PPD file as the utility's PPD reader reads it.",
         OVPpdCommand::addOptions, OVPpdCommand::run},
    };
    return all;
}

QString OVCommandLine::overview() {
    QString text = QStringLiteral("Usage: %1 COMMAND [options]\n\nCommands:\n").arg(programName);
    for (const Command &command : commands())
        text += QStringLiteral("  %1  %2\n")
                    .arg(QString(command.name).leftJustified(6), command.summary);
    return text + QStringLiteral("\nRun \"%1 COMMAND --help\" for a command's options.\n")
                      .arg(programName);
}

int OVCommandLine::run(const QStringList &arguments) {
    const QString name = arguments.value(1);
    if (name == "--help" || name == "help") {
        QTextStream(stdout) << overview();
        return Success;
    }
    for (const Command &command : commands()) {
        if (name == command.name)
            return runCommand(command, arguments.mid(1));
    }
    QTextStream(stderr) << overview();
    return fail(Usage, name.isEmpty() ? "no command given" : "unknown command \"" + name + "\"");
}

QString OVCommandLine::usage(const Command &command) {
    return QStringLiteral("Usage: %1 %2 [options] %3")
        .arg(programName, command.name, command.arguments);
}

int OVCommandLine::runCommand(const Command &command, const QStringList &arguments) {
    QCommandLineParser parser;
    parser.setApplicationDescription(command.summary);
    parser.addOptions({helpOption, jsonOption, serverOption, timeoutOption});
    if (command.addOptions)
        command.addOptions(parser);
    const QStringList positional = QString(command.arguments).split(' ', Qt::SkipEmptyParts);
    for (const QString &argument : positional)
        parser.addPositionalArgument(argument, argument == "QUEUE" ? "The print queue's name."
                                                                   : "The PPD file.");
    if (!parser.parse(arguments))
        return fail(Usage, parser.errorText());
    if (parser.isSet(helpOption)) {
        // Qt's first line names the binary's path; show the command instead.
        const QString help = parser.helpText();
        QTextStream(stdout) << usage(command) << help.mid(help.indexOf('\n'));
        return Success;
    }
    if (parser.positionalArguments().size() != positional.size())
        return fail(Usage, usage(command));
    if (parser.isSet(serverOption))
        cupsSetServer(parser.value(serverOption).toUtf8().constData());
    bool validTimeout = false;
    const int timeout = parser.value(timeoutOption).toInt(&validTimeout);
    if (!validTimeout || timeout <= 0)
        return fail(Usage, "invalid --timeout");
    // One limit for the whole command: every CUPS and SNMP request and every
    // wait of the wake flow ends by it.
    const OVTaskToken::Scope task(std::make_shared<OVTaskToken>(std::chrono::seconds(timeout)));
    return command.run(parser, parser.isSet(jsonOption));
}

void OVCommandLine::print(bool json, const QJsonValue &value, const QString &text) {
    QTextStream out(stdout);
    if (!json) {
        out << text;
        return;
    }
    const QJsonDocument document =
        value.isArray() ? QJsonDocument(value.toArray()) : QJsonDocument(value.toObject());
    out << document.toJson(QJsonDocument::Indented);
}

int OVCommandLine::fail(Exit code, const QString &message) {
    warn(message);
    return code;
}

void OVCommandLine::warn(const QString &message) {
    QTextStream(stderr) << programName << ": " << visible(message) << "\n";
}

int OVCommandLine::serverFailure() {
    const auto task = OVTaskToken::current();
    return fail(ServerUnreachable, task && task->expired()
                                       ? QStringLiteral("the CUPS server did not answer in time")
                                       : QStringLiteral("cannot reach the CUPS server"));
}

QString OVCommandLine::visible(const QString &text) {
    QString shown;
    shown.reserve(text.size());
    for (const QChar c : text) {
        const char16_t u = c.unicode();
        if (u == '\\')
            shown += QStringLiteral("\\\\");
        else if (u < 0x20 || (u >= 0x7f && u < 0xa0))
            shown += QStringLiteral("\\x%1").arg(u, 2, 16, QChar('0'));
        else if (OVLineControls::isLineControl(u))
            shown += OVLineControls::code(u);
        else
            shown += c;
    }
    return shown;
}

void OVCommandLine::progress(const QString &message) {
    if (isatty(STDERR_FILENO))
        QTextStream(stderr) << "\r\033[K" << message << Qt::flush;
}
