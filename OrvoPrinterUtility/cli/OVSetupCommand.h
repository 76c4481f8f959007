#pragma once

#include <QCommandLineParser>

#include <cups/http.h>

// `setup`: makes a queue that prints take the utility's saves as well, or
// takes that back with --remove. Needs the print server's administrator; on a
// terminal the password is asked for.
class OVSetupCommand {
public:
    static void addOptions(QCommandLineParser &parser);
    static int run(const QCommandLineParser &parser, bool json);

private:
    static const char *askPassword(const char *prompt, http_t *, const char *, const char *,
                                   void *);
};
