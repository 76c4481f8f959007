#pragma once

#include <QtGlobal>

// A location and a length in UTF-16 code units of a PPD text, as the reader's
// scans report them. The empty range at 0 stands for "not found".
struct OrvoPPDRange {
    qsizetype location = 0;
    qsizetype length = 0;

    qsizetype end() const { return location + length; }
    bool isNotFound() const { return end() == 0; }
    // Only the item's location is tested, never its end.
    bool containsLocation(qsizetype item) const {
        return location <= item && item - location < length;
    }
    static OrvoPPDRange unite(OrvoPPDRange a, OrvoPPDRange b) {
        const qsizetype start = qMin(a.location, b.location);
        return {start, qMax(a.end(), b.end()) - start};
    }
    bool operator==(const OrvoPPDRange &) const = default;
};
