#pragma once

#include <cups/cups.h>

class OrvoFilterLog;

// The CUPS filter of the utility's queue: a job that carries the update marker
// has its settings options handed to cupsd as PPD attributes; every other
// option, and every other job, leaves the PPD alone. It prints nothing.
class OrvoPPDUpdateFilter {
public:
    // argv: job-id user title copies options [file]
    static int run(int argc, char **argv);

private:
    static void drainInput();
    static bool isUpdateJob(int count, cups_option_t *options);
    static bool looksLikeJobAttribute(const char *name);
    static void store(int count, cups_option_t *options, OrvoFilterLog &log);
};
