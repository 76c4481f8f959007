#pragma once

#include "OrvoPPDModel.h"
#include "OrvoPPDScanIndex.h"

#include <cups/ppd.h>

#include <optional>

// Reads groups, options and choices from a PPD text into the reader's model,
// and from that the libcups structure.
class OrvoPPDReader {
public:
    // The part of a PPD text that is read: up to the end of the first
    // "*CloseGroup: Advanced", or all of it.
    static QString readPart(QString text);
    // The structure for the read part of a whole PPD text; null as read() is
    // empty, or when the structure cannot be allocated.
    static ppd_file_t *createStructure(QString text);
    // For a text already cut to its read part. Empty when the text has no
    // option or an option has no choice.
    static std::optional<OrvoPPDModel> read(const QString &text, const OrvoPPDScanIndex &index);

private:
    static std::optional<OrvoPPDModel::Option>
    readOption(OrvoPPDRange range, const QString &keyword, const OrvoPPDScanIndex &index);
};
