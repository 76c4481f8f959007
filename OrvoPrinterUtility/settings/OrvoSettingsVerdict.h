#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

// What a settings rule found: nothing, or one problem with one setting, named
// by its settings keyword (a list by its keyword without index). Each front
// end names the field in its own words from that keyword: the window by its
// label, the command line by its option, the filter and the reader by the
// keyword itself.
struct OrvoSettingsVerdict {
    enum class Problem {
        None,
        InvalidCharacter,  // detail: the first character the setting may not hold
        TooLong,           // limit: characters
        NotAMacAddress,    // not six two-digit hexadecimal numbers joined by ':'
        MacAddressMissing, // Wake-on-LAN on without a MAC address
        NotAnAddress,      // neither an IP literal nor a host name
        TooManyEntries,    // limit: entries
        NameTooLong,       // limit: bytes of one name
        IndexOutOfRange,   // limit: one past the highest index
        Malformed,         // detail: what is wrong with the text as sent or stored
        JobTooLarge,       // listsToShorten: the lists to empty, largest first
    };

    OrvoSettingsVerdict() = default;
    OrvoSettingsVerdict(std::string_view field, Problem problem, long limit = 0,
                        std::string detail = {})
        : field(field)
        , problem(problem)
        , limit(limit)
        , detail(std::move(detail)) {}

    // A settings keyword from OrvoSettingsKeywords; empty with None and JobTooLarge.
    std::string_view field;
    Problem problem = Problem::None;
    long limit = 0;
    std::string detail;
    std::vector<std::string_view> listsToShorten;

    bool ok() const { return problem == Problem::None; }
    // Values each well formed that the PPD or one update job cannot hold.
    bool doesNotFit() const;
    // The problem in English, written to follow the field's name ("holds at
    // most 30 entries"), on one line and without quotes, so that it goes to
    // cupsd's log as it is.
    std::string explanation() const;
};
