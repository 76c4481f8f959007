#pragma once

#include <QCommandLineParser>

// `fetch`: what the window asks a printer for, asked from the command line,
// optionally waking the printer first.
class OVFetchCommand {
public:
    static void addOptions(QCommandLineParser &parser);
    static int run(const QCommandLineParser &parser, bool json);
};
