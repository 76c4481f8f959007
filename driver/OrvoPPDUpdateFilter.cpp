#include "OrvoPPDUpdateFilter.h"

#include "OrvoFilterLog.h"
#include "OrvoPPDMessageWriter.h"
#include "OrvoSettingsKeywords.h"
#include "OrvoSettingsOption.h"
#include "OrvoSettingsRules.h"
#include "OrvoStoredSettings.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <unistd.h>
#include <vector>

namespace {

constexpr int userArgument = 2;
constexpr int optionsArgument = 5;
constexpr int argumentsWithoutFile = 6;
constexpr int argumentsWithFile = 7;

} // namespace

int OrvoPPDUpdateFilter::run(int argc, char **argv) {
    if (argc != argumentsWithoutFile && argc != argumentsWithFile) {
        std::fprintf(stderr, "Usage: %s job-id user title copies options [file]\n", argv[0]);
        return 1;
    }
    // The print file only carries the job; when it comes on standard input it
    // is read to the end so that nothing upstream writes into a closed pipe.
    if (argc == argumentsWithoutFile)
        drainInput();

    handleOptions(argv[userArgument], argv[optionsArgument], stderr);
    return 0;
}

void OrvoPPDUpdateFilter::handleOptions(const char *user, const char *optionsText, std::FILE *out) {
    OrvoFilterLog log(out);
    log.write(OrvoFilterLog::Level::Debug,
              "Job options text is " + std::to_string(std::strlen(optionsText)) + " bytes");
    cups_option_t *options = nullptr;
    const int count = cupsParseOptions(optionsText, 0, &options);
    if (isUpdateJob(count, options))
        store(user, count, options, log, out);
    else
        log.write(OrvoFilterLog::Level::Debug, "Not a settings update job, nothing stored");
    cupsFreeOptions(count, options);
}

void OrvoPPDUpdateFilter::drainInput() {
    char buffer[4096];
    while (read(STDIN_FILENO, buffer, sizeof buffer) > 0) {
    }
}

// Only a job of the update job's own document format is an update job: cupsd
// names the job's format in CONTENT_TYPE. A print job that merely carries the
// marker option never stores anything, whichever way it reached the filter.
// The marker travels as an IPP boolean, so it comes back as "true".
bool OrvoPPDUpdateFilter::isUpdateJob(int count, cups_option_t *options) {
    const char *format = std::getenv("CONTENT_TYPE");
    if (!format || std::strcmp(format, OrvoSettingsKeywords::updateDocumentFormat) != 0)
        return false;
    const char *marker = cupsGetOption(OrvoSettingsKeywords::UpdatePPDOptions, count, options);
    return marker && (std::strcmp(marker, "true") == 0 ||
                      std::strcmp(marker, OrvoSettingsKeywords::updatePpdOptionsValue) == 0);
}

// cupsd adds attributes such as job-uuid to every job's options; they are
// refused like any other option but noted at debug level only.
bool OrvoPPDUpdateFilter::looksLikeJobAttribute(const char *name) {
    return name[0] &&
           std::strspn(name, "abcdefghijklmnopqrstuvwxyz0123456789-") == std::strlen(name);
}

// The window and the command line never send a setting that breaks its rule,
// so a job with one is no save a user meant: none of its settings is stored,
// rather than a part that would leave the others inconsistent.
bool OrvoPPDUpdateFilter::refused(int count, cups_option_t *options, OrvoFilterLog &log) {
    std::vector<OrvoSettingsRules::JobOption> job;
    for (int i = 0; i < count; ++i)
        job.emplace_back(options[i].name, options[i].value);
    const auto refusal = OrvoSettingsRules::checkJob(job);
    if (refusal)
        log.refusedJob(refusal->keyword, refusal->verdict.explanation());
    return refusal.has_value();
}

void OrvoPPDUpdateFilter::store(const char *user, int count, cups_option_t *options,
                                OrvoFilterLog &log, std::FILE *out) {
    if (refused(count, options, log))
        return;
    const OrvoStoredSettings current(std::getenv("PPD"));
    if (!current.takesUpdates()) {
        // Ends the job as done: a failing filter would stop the queue for everyone.
        log.write(OrvoFilterLog::Level::Warning,
                  "The queue is not set up for settings updates, nothing stored; an administrator "
                  "sets it up with: orvo-printer-utility-cli setup QUEUE");
        return;
    }
    // The server names the job's user: the one it authenticated where the
    // queue asks for that, else the name the client gave.
    if (!current.savers().allows(user)) {
        const std::string savers = current.savers().text();
        log.write(OrvoFilterLog::Level::Warning,
                  "User \"" + OrvoFilterLog::printable(user) +
                      "\" may not save settings on this queue, nothing stored; who may: " +
                      (savers.empty() ? "no one (the list in the PPD is unreadable)" : savers));
        return;
    }
    OrvoPPDMessageWriter writer(out);
    std::size_t stored = 0;
    for (int i = 0; i < count; ++i) {
        const auto kind = OrvoSettingsOption::check(options[i].name, options[i].value).kind;
        if (kind == OrvoSettingsOption::Kind::Setting &&
            !current.unchangedBy(options[i].name, options[i].value)) {
            writer.add(options[i].name, options[i].value);
            ++stored;
        } else if (kind == OrvoSettingsOption::Kind::NotASetting) {
            if (looksLikeJobAttribute(options[i].name))
                log.refused(OrvoFilterLog::Level::Debug, options[i].name, "a job attribute");
            else
                log.refused(OrvoFilterLog::Level::Warning, options[i].name,
                            "not a settings keyword");
        }
    }
    writer.flush();
    log.summary(stored);
}
