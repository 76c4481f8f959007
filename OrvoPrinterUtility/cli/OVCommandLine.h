#pragma once

#include <QCommandLineParser>
#include <QJsonValue>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

#include <cups/http.h>

// The command line's frame: subcommand dispatch, the options a subcommand has
// by what it reaches (--help and --json always; --timeout for a printer or a
// server; -h SERVER[:PORT] and -U USER for a server), exit codes and output.
class OVCommandLine {
public:
    enum Exit {
        Success = 0,
        Failed = 1, // the operation ran and did not succeed
        Usage = 2,  // bad options, arguments or JSON
        ServerUnreachable = 3,
        QueueUnknown = 4,
        PrinterSilent = 5,
        Refused = 6,       // the job could not reach the driver; nothing was sent
        NotAuthorized = 7, // the server wants a print administrator, or the queue another saver
        Queued = 8,        // the update job was sent but had not run when the time was up
        PrinterAnswerUnusable = 9, // an error status, or data that cannot be read
        SnmpUserRefused = 10,      // an unknown SNMPv3 user, passphrase or security level
    };

    // What a subcommand talks to, which decides the frame's options it takes.
    enum class Reach { File, Printer, Server };

    struct Command {
        const char *name;
        Reach reach;
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
    // The CUPS server in use as messages name it: host, host:port when the
    // port is not the usual one, or the local socket's path.
    static QString server();
    // The server has no such queue.
    static int queueUnknown(const QString &queue);
    // A command to run next, with the -h and -U this one was given, so that a
    // hint reaches the same server as the same user: withServer("lpadmin",
    // "-p q") gives "lpadmin -h host:port -p q".
    static QString withServer(const QString &program, const QString &rest);
    // As withServer, for one of this program's subcommands.
    static QString hint(const QString &subcommand, const QString &rest);
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
    static void addFrameOptions(QCommandLineParser &parser, Reach reach);
    // Applies -h and -U and the password prompt; the arguments that repeat
    // them in hints are kept.
    static void useServer(const QCommandLineParser &parser);
    // Asked on a terminal only: a script gets the refusal instead of a hang.
    static const char *askPassword(const char *prompt, http_t *, const char *, const char *,
                                   void *);

    static QStringList s_serverArguments;
};
