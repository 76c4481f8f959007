#include "OrvoPPDGroupLookup.h"

#include <algorithm>

OrvoPPDGroupLookup::OrvoPPDGroupLookup(const OrvoPPD::GroupRanges &ranges)
    : ranges(ranges) {
    for (qsizetype i = 0; i < ranges.size(); ++i)
        if (ranges[i].second.length > 0)
            byLocation.push_back(i);
    std::sort(byLocation.begin(), byLocation.end(), [&](qsizetype a, qsizetype b) {
        return ranges[a].second.location < ranges[b].second.location;
    });
    for (size_t i = 1; i < byLocation.size(); ++i)
        if (ranges[byLocation[i]].second.location < ranges[byLocation[i - 1]].second.end())
            disjoint = false;
}

QString OrvoPPDGroupLookup::find(OrvoPPDRange itemRange) const {
    if (!disjoint)
        return OrvoPPD::findGroupKey(ranges, itemRange);
    const auto after = std::upper_bound(byLocation.begin(), byLocation.end(), itemRange.location,
                                        [&](qsizetype location, qsizetype index) {
                                            return location < ranges[index].second.location;
                                        });
    if (after != byLocation.begin() &&
        ranges[*(after - 1)].second.containsLocation(itemRange.location))
        return ranges[*(after - 1)].first;
    return QString::fromLatin1(OrvoPPD::generalGroup);
}
