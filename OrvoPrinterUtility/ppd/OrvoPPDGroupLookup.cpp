#include "OrvoPPDGroupLookup.h"

#include <algorithm>
#include <set>

OrvoPPDGroupLookup::OrvoPPDGroupLookup(const OrvoPPDKeywordScan::GroupRanges &ranges)
    : m_ranges(ranges) {
    // (position, group, opens) for every non-empty range, swept in order.
    std::vector<std::tuple<qsizetype, qsizetype, bool>> events;
    for (qsizetype i = 0; i < ranges.size(); ++i) {
        const OrvoPPDRange range = ranges[i].second;
        if (range.length <= 0)
            continue;
        events.emplace_back(range.location, i, true);
        events.emplace_back(range.end(), i, false);
    }
    std::sort(events.begin(), events.end());
    std::multiset<qsizetype> open;
    for (size_t i = 0; i < events.size();) {
        const qsizetype position = std::get<0>(events[i]);
        for (; i < events.size() && std::get<0>(events[i]) == position; ++i) {
            const auto [at, group, opens] = events[i];
            if (opens)
                open.insert(group);
            else
                open.erase(open.find(group));
        }
        m_pieces.push_back({position, open.empty() ? -1 : *open.begin()});
    }
}

QString OrvoPPDGroupLookup::find(OrvoPPDRange itemRange) const {
    const auto after = std::upper_bound(
        m_pieces.begin(), m_pieces.end(), itemRange.location,
        [](qsizetype location, const Piece &piece) { return location < piece.start; });
    if (after == m_pieces.begin() || (after - 1)->group < 0)
        return QString::fromLatin1(OrvoPPDKeywordScan::generalGroup);
    return m_ranges[(after - 1)->group].first;
}
