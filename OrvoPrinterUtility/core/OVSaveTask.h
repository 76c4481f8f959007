#pragma once

#include "OVQueueSetup.h"
#include "OVSettingsSave.h"
#include "OVSettingsSnapshot.h"
#include "OrvoSettingsVerdict.h"

#include <QString>

// Saving settings, the one sequence the window's OK and the command line's
// `save` run: the settings' rules (the size of the update job among them),
// the queue's set-up check and whether the user may save on it, then the update job, waited for,
// and the queue's PPD read back. It blocks on the print server, within the calling thread's task
// (OVTaskToken): one limit for all of it, and a cancel.
class OVSaveTask {
public:
    struct Outcome {
        // Not ok: a setting breaks its rule, or the job would not reach the
        // driver unless some lists are shortened; nothing was sent.
        OrvoSettingsVerdict verdict;
        // Anything but SetUp: nothing was sent (on a queue that is not set
        // up the update job would be printed, and the settings lost).
        OVQueueSetup::State queue = OVQueueSetup::State::SetUp;
        // False: the queue names who may save, and not this user; nothing
        // was sent (the filter would store nothing of it).
        bool userMaySave = true;
        OVSettingsSave::Outcome save;
        // The PPD held every value already, so no update job was sent.
        bool unchanged = false;

        bool stored() const {
            return verdict.ok() && queue == OVQueueSetup::State::SetUp && userMaySave &&
                   save.result == OVSettingsSave::Result::Stored;
        }
    };

    // Without sendUnchanged, settings the PPD already holds send no job: a
    // job that changes nothing still makes cupsd rewrite the PPD.
    static Outcome run(const OVSettingsSnapshot &settings, const QString &queue,
                       bool sendUnchanged = true);
};
