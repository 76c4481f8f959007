#pragma once

#include "OVSettingsSnapshot.h"

#include <QByteArray>
#include <QList>
#include <QString>

#include <cups/cups.h>

#include <utility>

// Saves the settings by submitting a one-line print job, titled
// "UpdatePPDOptions", whose job options carry every setting; the queue's
// driver stores them in the PPD. The program never writes the PPD itself.
class OVUpdateJob {
public:
    using Option = std::pair<QByteArray, QByteArray>; // name, value
    using OptionList = QList<Option>;

    // Adds the "_Part%d" options of one value (its UTF-8 bytes in base64, 200
    // characters a part: six parts, more for a value longer than a name may
    // be, which the settings' rules refuse before any save); a null value adds
    // nothing. Returns the new option count.
    static int cupsAddMuliPartOption(const char *keyword, const QString &value, int numOptions,
                                     cups_option_t **options);

    // Every option of one save, in the order they are added to the job
    // (OrvoSettingsCodec).
    static OptionList optionList(const OVSettingsSnapshot &snapshot);
    // Adds the options with cupsAddOption; returns the new option count.
    static int addOptions(const OptionList &list, int numOptions, cups_option_t **options);

    // Submits the update job, in the update job's own document format, to the
    // queue printerID. Reports nothing; returns the job id, or 0 when no job
    // was sent. Only a set-up queue accepts that format (OVQueueSetup). The
    // snapshot is sent as it is: the front ends check it first
    // (OVSettingsSnapshot::check).
    static int saveOptionsToPPD(const OVSettingsSnapshot &snapshot, const QString &printerID);

    enum class JobEnd {
        Completed,
        Ended,      // stopped, canceled or aborted: nothing was stored
        Vanished,   // the server no longer knows the job
        Pending,    // not ended when the time was up; it may still run
        ServerLost, // the server stopped answering before the job ended
    };
    struct JobOutcome {
        JobEnd end;
        ipp_jstate_t state; // the last state the server reported
    };
    // Waits for the job to end, as long as a connection's time limit allows.
    static JobOutcome waitForJob(int jobId);
};
