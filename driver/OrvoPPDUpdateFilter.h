#pragma once

#include <cups/cups.h>

#include <cstdio>

class OrvoFilterLog;

// The CUPS filter of the utility's queue: a job that carries the update marker
// has its settings options handed to cupsd as PPD attributes; every other
// option, and every other job, leaves the PPD alone. It prints nothing.
class OrvoPPDUpdateFilter {
public:
    // argv: job-id user title copies options [file]
    static int run(int argc, char **argv);
    // Everything the filter does with the job of `user` (argv[2]) and its
    // options text (argv[5]); its messages for cupsd go to `out`. Reads
    // CONTENT_TYPE and PPD from the environment, as under cupsd.
    static void handleOptions(const char *user, const char *optionsText, std::FILE *out);

private:
    static void drainInput();
    static bool isUpdateJob(int count, cups_option_t *options);
    static bool looksLikeJobAttribute(const char *name);
    static bool refused(int count, cups_option_t *options, OrvoFilterLog &log);
    static void store(const char *user, int count, cups_option_t *options, OrvoFilterLog &log,
                      std::FILE *out);
};
