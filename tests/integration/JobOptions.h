#pragma once

#include <cups/cups.h>

#include <cstddef>
#include <map>
#include <string>

// A job's option list for libcups, freed on destruction.
class JobOptions {
public:
    JobOptions() = default;
    ~JobOptions();
    JobOptions(const JobOptions &) = delete;
    JobOptions &operator=(const JobOptions &) = delete;
    JobOptions(JobOptions &&other) noexcept;

    void add(const std::string &name, const std::string &value);
    void add(const std::map<std::string, std::string> &options);
    int count() const { return optionCount; }
    cups_option_t *data() const { return options; }

    // The length of the options text cupsd hands to the filter for these
    // options alone: sorted name=value pairs joined by spaces, "True" as the
    // bare name. Only for values that need no escaping.
    std::size_t filterTextLength() const;

private:
    int optionCount = 0;
    cups_option_t *options = nullptr;
};
