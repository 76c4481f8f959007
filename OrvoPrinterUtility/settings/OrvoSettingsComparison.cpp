#include "OrvoSettingsComparison.h"

#include "OrvoSettingsOption.h"

namespace {
using OrvoSettingsKeywords::Encoding;
} // namespace

bool OrvoSettingsComparison::holds(std::string_view keyword, std::string_view sent,
                                   const char *stored) {
    if (stored)
        return sent == stored;
    const OrvoSettingsKeywords::Keyword *known = OrvoSettingsOption::keywordOf(keyword);
    return sent.empty() && known &&
           (known->encoding == Encoding::MultiPart || known->encoding == Encoding::Decimal);
}

std::vector<std::string>
OrvoSettingsComparison::differing(const OrvoSettingsCodec::Options &sent,
                                  const OrvoSettingsCodec::Lookup &stored) {
    std::vector<std::string> names;
    for (const auto &[name, value] : sent) {
        if (name != OrvoSettingsKeywords::UpdatePPDOptions && !holds(name, value, stored(name)))
            names.push_back(name);
    }
    return names;
}
