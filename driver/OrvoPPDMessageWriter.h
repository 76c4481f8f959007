#pragma once

#include <cstdio>
#include <string>
#include <string_view>

// Hands PPD attributes to cupsd as "PPD:" messages on the filter's standard
// error; cupsd rewrites the queue's PPD with them when the job ends. Several
// attributes share one message, and every message stays within the length
// cupsd reads as one line.
class OrvoPPDMessageWriter {
public:
    explicit OrvoPPDMessageWriter(std::FILE *out);
    ~OrvoPPDMessageWriter();
    OrvoPPDMessageWriter(const OrvoPPDMessageWriter &) = delete;
    OrvoPPDMessageWriter &operator=(const OrvoPPDMessageWriter &) = delete;

    // The value must not hold quotes, backslashes, spaces or line ends.
    void add(std::string_view keyword, std::string_view value);
    void flush();

    // cupsd reads filter messages in lines of 2 KB; longer ones are cut.
    static constexpr std::size_t messageLimit = 2000;

private:
    std::FILE *m_out;
    std::string m_line;
};
