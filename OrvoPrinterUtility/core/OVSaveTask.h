#pragma once

#include "OVSettingsSave.h"
#include "OVSettingsSnapshot.h"

#include <QString>

// Saving settings, the one sequence the window's OK and the command line's
// `save` run (OVSettingsSave). It blocks on the print server, within the
// calling thread's task (OVTaskToken): one limit for all of it, and a cancel.
class OVSaveTask {
public:
    using Outcome = OVSettingsSave::Outcome;

    // Without sendUnchanged, settings the PPD already holds send no job: a
    // job that changes nothing still makes cupsd rewrite the PPD.
    static Outcome run(const OVSettingsSnapshot &settings, const QString &queue,
                       bool sendUnchanged = true);
};
