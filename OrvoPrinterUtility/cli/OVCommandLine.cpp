#include "OVCommandLine.h"

#include "OVCupsConnection.h"
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

#include <cstdio>
#include <cstring>
#include <termios.h>
#include <unistd.h>

namespace {

constexpr char programName[] = "orvo-printer-utility-cli";
const QCommandLineOption helpOption("help", "Show this help.");
const QCommandLineOption jsonOption("json", "Print machine-readable JSON.");
const QCommandLineOption serverOption("h", "Use the CUPS server SERVER[:PORT].", "server");
const QCommandLineOption userOption("U", "Ask the server's password for this user.", "user");
const QCommandLineOption
    timeoutOption("timeout", "Give up after this many seconds, every wait included (default 60).",
                  "seconds", "60");
// libcups asks again after a wrong password; three tries, as login programs allow.
constexpr int passwordTries = 3;

void setEcho(bool on) {
    termios mode{};
    if (tcgetattr(STDIN_FILENO, &mode) != 0)
        return;
    mode.c_lflag = on ? (mode.c_lflag | ECHO) : (mode.c_lflag & ~tcflag_t(ECHO));
    tcsetattr(STDIN_FILENO, TCSAFLUSH, &mode);
}

} // namespace

QStringList OVCommandLine::s_serverArguments;

const QList<OVCommandLine::Command> &OVCommandLine::commands() {
    static const QList<Command> all = {
        {"list",
         Reach::Server,
         "",
         "List the server's queues and whether each is set up for the utility.",
         {},
         OVQueueCommands::list},
        {"show",
         Reach::Server,
         "QUEUE",
         "Show every setting stored for a queue.",
         {},
         OVQueueCommands::show},
        {"save", Reach::Server, "QUEUE",
         "Save settings to a queue and check that its PPD holds them.",
         OVQueueCommands::addSaveOptions, OVQueueCommands::save},
        {"setup", Reach::Server, "QUEUE",
         "Set a printing queue up to take the utility's saves (--remove: undo).",
         OVSetupCommand::addOptions, OVSetupCommand::run},
        {"fetch", Reach::Printer, "",
         "Ask a printer for its MAC address, shared folders, forms and more.",
         OVFetchCommand::addOptions, OVFetchCommand::run},
        {"ppd", Reach::File, "FILE", "Show a PPD file as the utility's PPD reader reads it.",
         OVPpdCommand::addOptions, OVPpdCommand::run},
    };
    return all;
}

QString OVCommandLine::overview() {
    QString text = QStringLiteral("Usage: %1 COMMAND [options]\n\nCommands:\n").arg(programName);
    for (const Command &command : commands())
        text += QStringLiteral("  %1  %2\n")
                    .arg(QString(command.name).leftJustified(6), command.summary);
    return text + QStringLiteral("\nRun \"%1 COMMAND --help\" for a command's options, "
                                 "\"%1 --version\" for the version.\n")
                      .arg(programName);
}

int OVCommandLine::run(const QStringList &arguments) {
    const QString name = arguments.value(1);
    if (name == "--help" || name == "help") {
        QTextStream(stdout) << overview();
        return Success;
    }
    if (name == "--version") {
        QTextStream(stdout) << programName << " " << ORVO_VERSION << "\n";
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
    addFrameOptions(parser, command.reach);
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
    if (command.reach == Reach::File)
        return command.run(parser, parser.isSet(jsonOption));
    if (command.reach == Reach::Server)
        useServer(parser);
    bool validTimeout = false;
    const int timeout = parser.value(timeoutOption).toInt(&validTimeout);
    if (!validTimeout || timeout <= 0)
        return fail(Usage, "invalid --timeout");
    // One limit for the whole command: every CUPS and SNMP request and every
    // wait of the wake flow ends by it.
    const OVTaskToken::Scope task(std::make_shared<OVTaskToken>(std::chrono::seconds(timeout)));
    return command.run(parser, parser.isSet(jsonOption));
}

void OVCommandLine::addFrameOptions(QCommandLineParser &parser, Reach reach) {
    parser.addOptions({helpOption, jsonOption});
    if (reach == Reach::Server)
        parser.addOptions({serverOption, userOption});
    if (reach != Reach::File)
        parser.addOption(timeoutOption);
}

void OVCommandLine::useServer(const QCommandLineParser &parser) {
    for (const QCommandLineOption &option : {serverOption, userOption}) {
        if (parser.isSet(option))
            s_serverArguments << "-" + option.names().first() << parser.value(option);
    }
    if (parser.isSet(serverOption))
        cupsSetServer(parser.value(serverOption).toUtf8().constData());
    if (parser.isSet(userOption))
        cupsSetUser(parser.value(userOption).toUtf8().constData());
    static int tries = 0;
    cupsSetPasswordCB2(askPassword, &tries);
}

const char *OVCommandLine::askPassword(const char *prompt, http_t *, const char *, const char *,
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

QString OVCommandLine::server() {
    const QString host = QString::fromUtf8(cupsServer());
    return host.startsWith('/') ? host : OVCupsConnection::serverName();
}

int OVCommandLine::queueUnknown(const QString &queue) {
    return fail(QueueUnknown, "no queue \"" + queue + "\" on the CUPS server " + server());
}

QString OVCommandLine::withServer(const QString &program, const QString &rest) {
    return (QStringList{program} + s_serverArguments + QStringList{rest}).join(' ');
}

QString OVCommandLine::hint(const QString &subcommand, const QString &rest) {
    return withServer(QStringLiteral("%1 %2").arg(programName, subcommand), rest);
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
    return fail(ServerUnreachable,
                (task && task->expired()
                     ? QStringLiteral("the CUPS server %1 did not answer in time")
                     : QStringLiteral("cannot reach the CUPS server %1"))
                    .arg(server()));
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
