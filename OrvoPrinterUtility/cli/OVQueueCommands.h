#pragma once

#include <QCommandLineParser>

// The subcommands that work on the server's queues: list, show and save.
class OVQueueCommands {
public:
    static int list(const QCommandLineParser &parser, bool json);
    static int show(const QCommandLineParser &parser, bool json);
    static void addSaveOptions(QCommandLineParser &parser);
    static int save(const QCommandLineParser &parser, bool json);
};
