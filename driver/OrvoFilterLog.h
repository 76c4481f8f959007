#pragma once

#include <cstddef>
#include <cstdio>
#include <string>
#include <string_view>

// The filter's messages to cupsd's log, one "LEVEL: text" line each on
// standard error. Refused options are listed up to a limit so that a job with
// thousands of options cannot flood the log; the rest are only counted.
class OrvoFilterLog {
public:
    enum class Level { Debug, Warning, Error };

    explicit OrvoFilterLog(std::FILE *out);

    void write(Level level, std::string_view text);
    void refused(Level level, std::string_view name, std::string_view why);
    // The job as a whole, for the option or setting named.
    void refusedJob(std::string_view name, std::string_view why);
    void summary(std::size_t stored);

    static constexpr std::size_t listedLimit = 32;
    // Names are logged at most this long, so a log line stays readable.
    static constexpr std::size_t nameLimit = 64;
    // A name a job gave, safe in a log line: it may hold line ends or quotes
    // meant to forge log lines.
    static std::string printable(std::string_view name);

private:
    std::FILE *m_out;
    std::size_t m_refusedCount = 0;
};
