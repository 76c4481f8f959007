#pragma once

#include "OrvoSettings.h"
#include "OrvoSettingsCodec.h"
#include "OrvoSettingsVerdict.h"

#include <cstddef>

// Whether one update job can carry a set of settings to the driver filter:
// cupsd hands all of a job's options to the filter in one argument, and Linux
// refuses to start a program with an argument longer than 128 KiB, so a job
// with long lists would never arrive and its settings would be lost.
class OrvoSettingsJobSize {
public:
    // Linux refuses any single exec argument longer than this, terminating
    // NUL included (MAX_ARG_STRLEN).
    static constexpr std::size_t maxFilterArgumentBytes = 131072;
    // Room left for what cupsd adds to that argument on its own: measured at
    // about 330 bytes for a local job (finishings, number-up,
    // print-color-mode, job-uuid, job-originating-host-name, the four
    // date/time attributes, document-name-supplied); 4 KiB also covers a
    // 255-byte host name and document name, fully escaped, and a few
    // administrator-set printer defaults.
    static constexpr std::size_t cupsdArgumentMargin = 4096;

    // An upper bound of the argument cupsd builds from these options, its own
    // additions (cupsdArgumentMargin) and the terminating NUL included.
    static std::size_t filterArgumentSize(const OrvoSettingsCodec::Options &options);
    static bool fits(const OrvoSettings &settings);
    // Fine, or JobTooLarge naming the lists to empty, largest first, for the
    // rest to fit.
    static OrvoSettingsVerdict check(const OrvoSettings &settings);
};
