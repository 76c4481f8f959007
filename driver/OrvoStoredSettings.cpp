#include "OrvoStoredSettings.h"

#include "OrvoSettingsComparison.h"
#include "OrvoSettingsKeywords.h"
#include "OrvoSettingsOption.h"

#include <fstream>

namespace {

// `*Keyword: "value"` on one line; the keyword and the value, or nothing.
bool splitAttribute(const std::string &line, std::string &keyword, std::string &value) {
    const std::size_t colon = line.find(": \"");
    if (line.size() < 2 || line[0] != '*' || colon == std::string::npos || line.back() != '"')
        return false;
    keyword = line.substr(1, colon - 1);
    value = line.substr(colon + 3, line.size() - colon - 4);
    return value.find('"') == std::string::npos;
}

} // namespace

OrvoStoredSettings::OrvoStoredSettings(const char *ppdPath) {
    std::ifstream ppd(ppdPath ? ppdPath : "");
    std::string line, keyword, value;
    while (std::getline(ppd, line)) {
        if (!line.empty() && line.back() == '\r')
            line.pop_back();
        if (!splitAttribute(line, keyword, value))
            continue;
        if (OrvoSettingsOption::check(keyword, value).kind == OrvoSettingsOption::Kind::Setting)
            m_values.try_emplace(keyword, value);
        if (keyword == OrvoSettingsKeywords::saversKeyword && !m_saversRead) {
            m_savers = OrvoSavers::fromPpdValue(value);
            m_saversRead = true;
        }
        m_takesUpdates = m_takesUpdates || (keyword == OrvoSettingsKeywords::setUpKeyword &&
                                            value == OrvoSettingsKeywords::setUpValue);
    }
}

bool OrvoStoredSettings::unchangedBy(std::string_view name, std::string_view value) const {
    const auto held = m_values.find(std::string(name));
    return OrvoSettingsComparison::holds(name, value,
                                         held != m_values.end() ? held->second.c_str() : nullptr);
}
