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

    // Linux refuses any single exec argument longer than this, terminating NUL
    // included (MAX_ARG_STRLEN), and cupsd hands all job options to the
    // filter in one argument.
    static constexpr qsizetype maxFilterArgumentBytes = 131072;
    // Room left for what cupsd adds to that argument on its own: measured at
    // about 330 bytes for a local job (finishings, number-up,
    // print-color-mode, job-uuid, job-originating-host-name, the four
    // date/time attributes, document-name-supplied); 4 KiB also covers a
    // 255-byte host name and document name, fully escaped, and a few
    // administrator-set printer defaults.
    static constexpr qsizetype cupsdArgumentMargin = 4096;

    // Adds the six "_Part%d" options of one value (its UTF-8 bytes in base64,
    // 200 characters a part, cut after 1200); a null value adds nothing.
    // Returns the new option count.
    static int cupsAddMuliPartOption(const char *keyword, const QString &value, int numOptions,
                                     cups_option_t **options);

    // Every option of one save, in the order they are added to the job.
    static OptionList optionList(const OVSettingsSnapshot &snapshot);
    // Adds the options with cupsAddOption; returns the new option count.
    static int addOptions(const OptionList &list, int numOptions, cups_option_t **options);

    // An upper bound of the size of the filter argument cupsd builds from
    // these job options, its own additions (cupsdArgumentMargin) and the
    // terminating NUL included.
    static qsizetype filterArgumentSize(int numOptions, const cups_option_t *options);
    // Whether the update job for this snapshot can reach the driver at all.
    static bool reachesFilter(const OVSettingsSnapshot &snapshot);

    // Submits the update job, in the update job's own document format, to the
    // queue printerID. Reports nothing; returns the job id, or 0 when no job
    // was sent. Only a set-up queue accepts that format (OVQueueSetup).
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
