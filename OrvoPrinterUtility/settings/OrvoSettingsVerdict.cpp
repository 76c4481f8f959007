#include "OrvoSettingsVerdict.h"

#include "OrvoUtf8.h"

#include <cstdio>

namespace {

// A character any user may have typed, by its code point, and as itself when
// it is printable ASCII (but for the quotes a log would escape).
std::string visibleCharacter(const std::string &utf8) {
    const std::optional<std::u32string> points = OrvoUtf8::codePoints(utf8);
    const char32_t point = points && !points->empty() ? points->front() : 0;
    char text[32];
    if (point > ' ' && point < 0x7f && point != '"' && point != '\'')
        std::snprintf(text, sizeof text, "U+%04X (%c)", unsigned(point), char(point));
    else
        std::snprintf(text, sizeof text, "U+%04X", unsigned(point));
    return text;
}

} // namespace

bool OrvoSettingsVerdict::doesNotFit() const {
    return problem == Problem::TooManyEntries || problem == Problem::NameTooLong ||
           problem == Problem::JobTooLarge;
}

std::string OrvoSettingsVerdict::explanation() const {
    const std::string number = std::to_string(limit);
    switch (problem) {
    case Problem::None:
        break;
    case Problem::InvalidCharacter:
        return "may not contain " + visibleCharacter(detail);
    case Problem::TooLong:
        return "is longer than " + number + " characters";
    case Problem::NotAMacAddress:
        return "is not six two-digit hexadecimal numbers joined by colons";
    case Problem::MacAddressMissing:
        return "is required while Wake-on-LAN is on";
    case Problem::NotAnAddress:
        return "is not an IPv4 or IPv6 address or a host name";
    case Problem::TooManyEntries:
        return "holds at most " + number + " entries";
    case Problem::NameTooLong:
        return "holds a name longer than " + number + " bytes";
    case Problem::IndexOutOfRange:
        return "holds an index outside -1 to " + std::to_string(limit - 1);
    case Problem::Malformed:
        return detail;
    case Problem::JobTooLarge:
        return "are too large for one update job";
    }
    return {};
}
