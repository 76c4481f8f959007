#pragma once

#include <QCommandLineParser>

// `setup`: makes a queue that prints take the utility's saves as well, or
// takes that back with --remove. Needs the print server's administrator.
class OVSetupCommand {
public:
    static void addOptions(QCommandLineParser &parser);
    static int run(const QCommandLineParser &parser, bool json);
};
