#pragma once

#include "OrvoPPD.h"

#include <vector>

// The group an option belongs to, as OrvoPPD::findGroupKey finds it, without
// trying every group for every option: when no two group ranges overlap, at
// most one can hold a location, and a binary search finds it.
class OrvoPPDGroupLookup {
public:
    explicit OrvoPPDGroupLookup(const OrvoPPD::GroupRanges &ranges);
    QString find(OrvoPPDRange itemRange) const;

private:
    OrvoPPD::GroupRanges ranges;
    std::vector<qsizetype> byLocation; // indexes of the non-empty ranges
    bool disjoint = true;
};
