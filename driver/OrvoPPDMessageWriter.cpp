#include "OrvoPPDMessageWriter.h"

namespace {

constexpr std::string_view prefix = "PPD:";
// Each attribute is written as ` Keyword="\"value\""`, the form in which
// cupsd's option parser yields the quoted PPD value.
constexpr std::string_view valueOpen = "=\"\\\"";
constexpr std::string_view valueClose = "\\\"\"";

} // namespace

OrvoPPDMessageWriter::OrvoPPDMessageWriter(std::FILE *out)
    : m_out(out) {}

OrvoPPDMessageWriter::~OrvoPPDMessageWriter() {
    flush();
}

void OrvoPPDMessageWriter::add(std::string_view keyword, std::string_view value) {
    std::string pair = " ";
    pair.append(keyword).append(valueOpen).append(value).append(valueClose);
    // The line end counts towards the limit too.
    if (!m_line.empty() && m_line.size() + pair.size() + 1 > messageLimit)
        flush();
    if (m_line.empty())
        m_line = prefix;
    m_line += pair;
}

void OrvoPPDMessageWriter::flush() {
    if (m_line.empty())
        return;
    m_line += '\n';
    std::fwrite(m_line.data(), 1, m_line.size(), m_out);
    std::fflush(m_out);
    m_line.clear();
}
