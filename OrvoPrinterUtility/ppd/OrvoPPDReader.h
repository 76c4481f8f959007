#pragma once

#include "OrvoPPDModel.h"
#include "OrvoPPDScanIndex.h"

#include <optional>

// Reads groups, options and choices from a PPD text (already cut after its
// "*CloseGroup: Advanced") into the reader's model.
class OrvoPPDReader {
public:
    // Empty when the text has no option or an option has no choice.
    static std::optional<OrvoPPDModel> read(const QString &text, const OrvoPPDScanIndex &index);

private:
    static std::optional<OrvoPPDModel::Option>
    readOption(OrvoPPDRange range, const QString &keyword, const OrvoPPDScanIndex &index);
};
