#pragma once

#include "OrvoSettingsCodec.h"

#include <string>
#include <string_view>
#include <vector>

// Whether stored settings hold what a save sent, option by option: the save's
// check of the PPD read back, and the filter's choice of what to hand cupsd
// (cupsd rewrites the whole PPD for any change, so only changes go).
class OrvoSettingsComparison {
public:
    // Whether the stored value (null: none is stored) reads as the value
    // sent. A list entry or index that is not stored reads as an empty one;
    // an absent flag or text reads as its default, never as empty.
    static bool holds(std::string_view keyword, std::string_view sent, const char *stored);
    // The options sent that the stored values do not hold; the job marker is
    // never stored.
    static std::vector<std::string> differing(const OrvoSettingsCodec::Options &sent,
                                              const OrvoSettingsCodec::Lookup &stored);
};
