// libFuzzer target: any bytes as the options text of an update job, through the
// filter's own parsing and checks. Any user who can print controls that text, so
// beyond not crashing the filter must keep its word: every line it writes is a
// log line or a PPD message, every attribute in a PPD message is a settings
// keyword with a value of its shape that the job really carried, and of a job
// the settings' rules accept, every such option that would change the PPD is
// handed over; of any other job, none.
#include "OrvoPPDMessageWriter.h"
#include "OrvoPPDUpdateFilter.h"
#include "OrvoSettingsComparison.h"
#include "OrvoSettingsKeywords.h"
#include "OrvoSettingsOption.h"
#include "OrvoSettingsRules.h"

#include <cups/cups.h>

#include <cstdio>
#include <cstdlib>
#include <map>
#include <string>
#include <string_view>
#include <strings.h>
#include <unistd.h>
#include <vector>

namespace {

using Options = std::map<std::string, std::string>;

void require(bool holds, const char *what, std::string_view detail) {
    if (holds)
        return;
    std::fprintf(stderr, "Filter invariant broken: %s: %.*s\n", what, int(detail.size()),
                 detail.data());
    std::abort();
}

Options parse(const char *text) {
    cups_option_t *parsed = nullptr;
    const int count = cupsParseOptions(text, 0, &parsed);
    Options options;
    for (int i = 0; i < count; ++i)
        options.emplace(parsed[i].name, parsed[i].value);
    cupsFreeOptions(count, parsed);
    return options;
}

// Option names are compared without regard to case, as libcups does.
bool isUpdateJob(const Options &job) {
    for (const auto &[name, value] : job)
        if (strcasecmp(name.c_str(), OrvoSettingsKeywords::UpdatePPDOptions) == 0)
            return value == "true" || value == OrvoSettingsKeywords::updatePpdOptionsValue;
    return false;
}

// cupsd reads a PPD message with its option parser; each value arrives quoted.
void collectAttributes(std::string_view line, const Options &job, Options &handed) {
    require(line.size() + 1 <= OrvoPPDMessageWriter::messageLimit, "PPD message too long", line);
    for (const auto &[name, quoted] : parse(std::string(line.substr(4)).c_str())) {
        require(quoted.size() >= 2 && quoted.front() == '"' && quoted.back() == '"',
                "unquoted value", name);
        const std::string value = quoted.substr(1, quoted.size() - 2);
        require(OrvoSettingsOption::check(name, value).kind == OrvoSettingsOption::Kind::Setting,
                "attribute outside the settings", name);
        const auto sent = job.find(name);
        require(sent != job.end() && sent->second == value, "attribute the job did not carry",
                name);
        require(handed.emplace(name, value).second, "attribute handed twice", name);
    }
}

Options handedAttributes(std::string_view output, const Options &job) {
    Options handed;
    while (!output.empty()) {
        const std::size_t end = output.find('\n');
        require(end != std::string_view::npos, "unterminated line", output);
        const std::string_view line = output.substr(0, end);
        output.remove_prefix(end + 1);
        if (line.starts_with("PPD: "))
            collectAttributes(line, job, handed);
        else
            require(line.starts_with("DEBUG: ") || line.starts_with("WARNING: ") ||
                        line.starts_with("ERROR: "),
                    "line cupsd would not read as a log line", line);
    }
    return handed;
}

bool acceptedByTheRules(const Options &job) {
    std::vector<OrvoSettingsRules::JobOption> options(job.begin(), job.end());
    return !OrvoSettingsRules::checkJob(options);
}

} // namespace

// A PPD of a set-up queue that holds no settings yet.
extern "C" int LLVMFuzzerInitialize(int *, char ***) {
    setenv("CONTENT_TYPE", OrvoSettingsKeywords::updateDocumentFormat, 1);
    static char path[] = "/tmp/orvo-filter-fuzz-XXXXXX";
    std::FILE *ppd = fdopen(mkstemp(path), "w");
    std::fprintf(ppd, "*PPD-Adobe: \"4.3\"\n*%s: \"%s\"\n", OrvoSettingsKeywords::setUpKeyword,
                 OrvoSettingsKeywords::setUpValue);
    std::fclose(ppd);
    setenv("PPD", path, 1);
    std::atexit([] { unlink(path); });
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    // A process argument ends at its first NUL byte.
    const std::string text(reinterpret_cast<const char *>(data), size);
    char *output = nullptr;
    std::size_t outputSize = 0;
    std::FILE *out = open_memstream(&output, &outputSize);
    OrvoPPDUpdateFilter::handleOptions("fuzz", text.c_str(), out);
    std::fclose(out);
    const Options job = parse(text.c_str());
    const Options handed = handedAttributes(std::string_view(output, outputSize), job);
    std::free(output);
    const bool accepted = isUpdateJob(job) && acceptedByTheRules(job);
    for (const auto &[name, value] : job) {
        // With no stored PPD, an option changes it unless its absence reads the same.
        const bool storable =
            accepted &&
            OrvoSettingsOption::check(name, value).kind == OrvoSettingsOption::Kind::Setting &&
            !OrvoSettingsComparison::holds(name, value, nullptr);
        require(storable == handed.contains(name), "setting handed over wrongly", name);
    }
    return 0;
}
