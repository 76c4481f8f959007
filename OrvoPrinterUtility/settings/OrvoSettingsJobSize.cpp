#include "OrvoSettingsJobSize.h"

#include <algorithm>
#include <cstring>
#include <numeric>
#include <vector>

namespace {

// cupsd puts a backslash before each of these when it builds the filter
// argument from the job's options.
constexpr char escapedCharacters[] = " \t\n\\'\"";

std::size_t escapedLength(const std::string &text) {
    return std::accumulate(text.begin(), text.end(), std::size_t(0), [](std::size_t sum, char c) {
        return sum + (c && std::strchr(escapedCharacters, c) ? 2 : 1);
    });
}

std::size_t textSize(const std::vector<std::string> &names) {
    return std::accumulate(
        names.begin(), names.end(), std::size_t(0),
        [](std::size_t sum, const std::string &name) { return sum + name.size(); });
}

} // namespace

std::size_t OrvoSettingsJobSize::filterArgumentSize(const OrvoSettingsCodec::Options &options) {
    std::size_t size = cupsdArgumentMargin + 1;
    // The name, "=", the value and one separating space (an upper bound:
    // cupsd writes a boolean as the bare name).
    for (const auto &[name, value] : options)
        size += escapedLength(name) + 1 + escapedLength(value) + 1;
    return size;
}

bool OrvoSettingsJobSize::fits(const OrvoSettings &settings) {
    return filterArgumentSize(OrvoSettingsCodec::encode(settings)) <= maxFilterArgumentBytes;
}

OrvoSettingsVerdict OrvoSettingsJobSize::check(const OrvoSettings &settings) {
    if (fits(settings))
        return {};
    std::vector<OrvoSettingsNameList> bySize(OrvoSettings::nameLists().begin(),
                                             OrvoSettings::nameLists().end());
    std::stable_sort(bySize.begin(), bySize.end(),
                     [&](const OrvoSettingsNameList &a, const OrvoSettingsNameList &b) {
                         return textSize(settings.*a.names) > textSize(settings.*b.names);
                     });
    OrvoSettings trimmed = settings;
    OrvoSettingsVerdict verdict{{}, OrvoSettingsVerdict::Problem::JobTooLarge};
    for (const OrvoSettingsNameList &list : bySize) {
        (trimmed.*list.names).clear();
        verdict.listsToShorten.push_back(list.keyword);
        if (fits(trimmed))
            break;
    }
    return verdict;
}
