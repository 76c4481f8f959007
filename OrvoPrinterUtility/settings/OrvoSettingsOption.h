#pragma once

#include "OrvoSettingsKeywords.h"
#include "OrvoSettingsVerdict.h"

#include <cstddef>
#include <string_view>

// What one option of an update job is: one of the utility's settings (its
// keyword with the index and part forms the keyword uses) with a value of the
// shape that keyword stores, or not. Any user who can print can send such a
// job, so only a well-formed setting may ever reach the PPD.
class OrvoSettingsOption {
public:
    enum class Kind {
        Setting,     // a settings keyword with a well-formed value
        JobMarker,   // the option that marks an update job; never stored
        NotASetting, // not a settings keyword
        Malformed,   // a settings keyword beyond its list or parts, or a value of the wrong shape
    };

    struct Result {
        Kind kind;
        OrvoSettingsVerdict verdict; // why a Malformed one is refused
    };

    static Result check(std::string_view name, std::string_view value);
    // The keyword an option name stands for; null for anything else.
    static const OrvoSettingsKeywords::Keyword *keywordOf(std::string_view name);

    // The longest line a PPD file may hold: once one attribute line is longer,
    // cupsd cannot load the queue's PPD again and refuses every job.
    static constexpr std::size_t ppdLineLimit = 255;
    // `*Name: "value"`: the star, colon, space and two quotes around the value.
    static constexpr std::size_t ppdLineFraming = 5;

private:
    using Keyword = OrvoSettingsKeywords::Keyword;

    // An option name as one keyword's form: how far it goes past the
    // keyword's list and parts, when it does.
    struct Form {
        const Keyword *keyword = nullptr;
        bool beyondList = false;
        bool beyondParts = false;
    };

    static Form formOf(std::string_view name);
    static bool takeNumber(std::string_view &rest, long &number);
    static OrvoSettingsVerdict valueProblem(const Keyword &keyword, std::string_view name,
                                            std::string_view value);
};
