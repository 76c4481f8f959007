#pragma once

#include <QCommandLineParser>
#include <QJsonValue>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

// The command line's frame: subcommand dispatch, the options every
// subcommand has (--help, --json, -h SERVER[:PORT]), exit codes and output.
class OVCommandLine {
public:
    enum Exit {
        Success = 0,
        Failed = 1, // the operation ran and did not succeed
        Usage = 2,  // bad options, arguments or JSON
        ServerUnreachable = 3,
        QueueUnknown = 4,
        PrinterSilent = 5,
        Refused = 6,               // the job could not reach the driver; nothing was sent
        NotAuthorized = 7,         // the server wants a print administrator
        Queued = 8,                // the update job was sent but had not run when the time was up
        PrinterAnswerUnusable = 9, // an error status, or data that cannot be read
        SnmpUserRefused = 10,      // an unknown SNMPv3 user, passphrase or security level
    };

    struct Command {
        const char *name;
        const char *arguments; // shown in the usage line
        const char *summary;
        std::function<void(QCommandLineParser &)> addOptions;
        std::function<int(const QCommandLineParser &, bool json)> run;
    };

    static int run(const QStringList &arguments);

    // Prints a result: JSON when asked for, else the text.
    static void print(bool json, const QJsonValue &value, const QString &text);
    static int fail(Exit code, const QString &message);
    // A message on stderr that does not end the command.
    static void warn(const QString &message);
    // The CUPS server did not answer: not reachable, or not within --timeout.
    static int serverFailure();
    // A name or value for text output: control characters (C0, DEL, C1), the
    // characters that reorder or break a line (OVLineControls) and the
    // backslash are shown escaped, so that text any user who may print can
    // store never reaches the terminal as a command, a forged line or a line
    // that reads otherwise than it is.
    static QString visible(const QString &text);
    // A progress line on a terminal only (stderr), overwritten by the next.
    static void progress(const QString &message);

private:
    static const QList<Command> &commands();
    static QString overview();
    static QString usage(const Command &command);
    static int runCommand(const Command &command, const QStringList &arguments);
};
