#pragma once

#include "OrvoSavers.h"

#include <string>
#include <string_view>
#include <unordered_map>

// The settings the queue's PPD holds now, read from the file cupsd names in
// the filter's environment. The filter hands cupsd only what would change the
// PPD: cupsd rewrites the whole file for any PPD message, and a save that
// changes nothing should leave it alone.
class OrvoStoredSettings {
public:
    // Reads `*Keyword: "value"` lines of settings keywords; a file that cannot
    // be read holds nothing, so that every setting is handed over.
    explicit OrvoStoredSettings(const char *ppdPath);

    // Whether storing the value would leave the PPD reading the same.
    bool unchangedBy(std::string_view name, std::string_view value) const;
    // Whether the queue was set up for the utility: its PPD carries the set-up
    // line. The server routes update jobs to the filter on every queue.
    bool takesUpdates() const { return m_takesUpdates; }
    // Who may save on the queue, from the line setup wrote; everyone without one.
    const OrvoSavers &savers() const { return m_savers; }

private:
    bool m_takesUpdates = false;
    bool m_saversRead = false; // the first line counts, as libcups reads it
    OrvoSavers m_savers;
    // The first line of a keyword is the one libcups reads.
    std::unordered_map<std::string, std::string> m_values;
};
