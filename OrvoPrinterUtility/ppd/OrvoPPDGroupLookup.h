#pragma once

#include "OrvoPPDKeywordScan.h"

#include <vector>

// The group an option belongs to, as OrvoPPDKeywordScan::findGroupKey finds it (the
// first group in order whose range holds the location), without trying every
// group for every option: the ranges are cut once into pieces, each knowing
// its first containing group, and a location is found by binary search.
class OrvoPPDGroupLookup {
public:
    explicit OrvoPPDGroupLookup(const OrvoPPDKeywordScan::GroupRanges &ranges);
    QString find(OrvoPPDRange itemRange) const;

private:
    struct Piece {
        qsizetype start;
        qsizetype group; // index into ranges, -1 for none
    };

    OrvoPPDKeywordScan::GroupRanges m_ranges;
    std::vector<Piece> m_pieces;
};
