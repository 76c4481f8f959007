#pragma once

#include "OrvoSettingsKeywords.h"

#include <cstddef>
#include <string_view>

// Decides whether one job option may become a PPD attribute: its name must be
// one of the utility's settings keywords (with the index and part forms the
// keyword uses) and its value must have the shape that keyword stores. Any user
// who can print can send such a job, so nothing else may pass.
class OrvoSettingsOption {
public:
    enum class Verdict {
        Store,       // a settings keyword with a well-formed value
        JobMarker,   // the option that marks an update job; never stored
        NotASetting, // not a settings keyword
        BadValue,    // a settings keyword whose value has the wrong shape
    };

    struct Result {
        Verdict verdict;
        const char *reason; // why a value was refused; null otherwise
    };

    static Result check(std::string_view name, std::string_view value);
    // Whether the settings reader takes the keyword's absence for an empty
    // value: list entries and indices, not flags or single texts.
    static bool absentReadsAsEmpty(std::string_view name);

    // The longest line a PPD file may hold: once one attribute line is longer,
    // cupsd cannot load the queue's PPD again and refuses every job.
    static constexpr std::size_t ppdLineLimit = 255;

private:
    using Keyword = OrvoSettingsKeywords::Keyword;

    static const Keyword *keywordFor(std::string_view name);
    static bool takeIndex(std::string_view &rest, int count);
    static bool takePart(std::string_view &rest);
    static const char *valueProblem(const Keyword &keyword, std::string_view name,
                                    std::string_view value);
    static bool isDecimal(std::string_view value);
    static bool isBase64(std::string_view value);
};
