#include "OrvoPPDMessageWriter.h"

namespace {

constexpr std::string_view prefix = "PPD:";
// Each attribute is written as ` Keyword="\"value\""`, the form in which
// cupsd's option parser yields the quoted PPD value.
constexpr std::string_view valueOpen = "=\"\\\"";
constexpr std::string_view valueClose = "\\\"\"";

} // namespace

OrvoPPDMessageWriter::OrvoPPDMessageWriter(std::FILE *out)
    : out(out) {}

OrvoPPDMessageWriter::~OrvoPPDMessageWriter() {
    flush();
}

void OrvoPPDMessageWriter::add(std::string_view keyword, std::string_view value) {
    std::string pair = " ";
    pair.append(keyword).append(valueOpen).append(value).append(valueClose);
    // The line end counts towards the limit too.
    if (!line.empty() && line.size() + pair.size() + 1 > messageLimit)
        flush();
    if (line.empty())
        line = prefix;
    line += pair;
}

void OrvoPPDMessageWriter::flush() {
    if (line.empty())
        return;
    line += '\n';
    std::fwrite(line.data(), 1, line.size(), out);
    std::fflush(out);
    line.clear();
}
