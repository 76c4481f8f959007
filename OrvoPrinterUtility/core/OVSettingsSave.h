#pragma once

#include "OVQueueSetup.h"
#include "OVSettingsSnapshot.h"
#include "OVStoredSettings.h"
#include "OVUpdateJob.h"
#include "OrvoSettingsVerdict.h"

#include <QString>
#include <QStringList>

#include <cups/ipp.h>

// Saves the settings to a set-up queue and finds out whether they arrived:
// the settings' rules (the size of the update job among them), the queue's
// set-up check and whether the user may save on it, then the update job,
// waited for, and the queue's PPD read back. Nothing is sent that a rule refuses, whoever asks. A
// save is only reported as stored when the PPD holds every value that was sent, so that neither the
// window nor the command line ever claims a save that the server dropped, printed, or left half
// written. The window's OK and the command line's `save` both run it; it blocks on the print
// server within the calling thread's task (OVTaskToken): one limit for all of it, and a cancel.
class OVSettingsSave {
public:
    enum class Result {
        Stored,
        NotSent,         // verdict, queue, userMaySave, or refusal and refusalText say why
        JobNotCompleted, // job says how it ended, or that it has not yet
        NotHeld,         // the job completed but the PPD lacks differing
        Replaced,        // as NotHeld, and a later update job, replacedBy, completed since
        Damaged,         // the PPD is unreadable, or no longer routes saves
        NotReadBack,     // the PPD could not be fetched again: readBack says why
    };
    struct Outcome {
        Result result = Result::NotSent;
        // Not ok: a setting breaks its rule, or the job would not reach the
        // driver unless some lists are shortened.
        OrvoSettingsVerdict verdict;
        // Anything but SetUp: on a queue that is not set up the update job
        // would be printed, and the settings lost.
        OVQueueSetup::State queue = OVQueueSetup::State::SetUp;
        // False: the queue names who may save, and not this user (the filter
        // would store nothing of the job).
        bool userMaySave = true;
        int jobId = 0;
        ipp_status_t refusal = IPP_STATUS_OK;
        QString refusalText;
        OVUpdateJob::JobOutcome job{OVUpdateJob::JobEnd::Pending, IPP_JSTATE_PENDING};
        OVStoredSettings::Status readBack = OVStoredSettings::Status::Loaded;
        QStringList differing; // option names, with NotHeld and Replaced
        int replacedBy = 0;
        // The PPD held every value already, so no update job was sent.
        bool unchanged = false;

        bool stored() const { return result == Result::Stored; }
    };

    // Without sendUnchanged, settings the PPD already holds send no job: a
    // job that changes nothing still makes cupsd rewrite the PPD.
    static Outcome save(const OVSettingsSnapshot &settings, const QString &queue,
                        bool sendUnchanged = true);

    // Whether the queue's PPD holds every value of the settings already, as
    // the driver filter compares them.
    static bool held(const OVSettingsSnapshot &settings, const QString &queue);

    // Whether a failed submission means the server stopped answering rather
    // than refused the job: libcups reports a connection lost while sending
    // as one of the last two statuses, and one never made as no error.
    static bool serverLost(ipp_status_t refusal);

private:
    static Outcome attempt(const OVSettingsSnapshot &settings, const QString &queue,
                           bool sendUnchanged);
    // The newest update job of the queue after jobId that completed; 0: none.
    static int laterUpdateJob(const QString &queue, int jobId);
    static void readBack(Outcome &outcome, const OVSettingsSnapshot &settings,
                         const QString &queue);
};
