#pragma once

#include <QStringList>

struct OVSettingsSnapshot;

// cupsd hands all options of a job to the driver filter in one argument, and
// Linux passes at most 128 KiB in one argument: an update job with long lists
// never reaches the driver and its settings would be lost without a word.
// This names the lists to shorten so the window can say so and stay open.
class OVSaveSizeCheck {
public:
    // Localization keys of the lists that must be emptied, largest first,
    // for the rest to fit; empty when the save can reach the driver.
    static QStringList listsToShorten(const OVSettingsSnapshot &snapshot);
};
