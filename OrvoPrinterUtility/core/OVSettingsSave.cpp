#include "OVSettingsSave.h"

#include "OVQueueSetup.h"
#include "OrvoSNMPHelper.h"
#include "OrvoSettingsCodec.h"
#include "OrvoSettingsComparison.h"

#include <cups/cups.h>

namespace {

// The job's options that the PPD does not hold, compared as the filter
// compares them before it hands them over.
QStringList missingFrom(ppd_file_t *ppd, const OVSettingsSnapshot &sent) {
    QStringList names;
    for (const std::string &name : OrvoSettingsComparison::differing(
             OrvoSettingsCodec::encode(sent.settings()), OrvoSNMPHelper::lookup(ppd)))
        names << QString::fromStdString(name);
    return names;
}

} // namespace

OVSettingsSave::Outcome OVSettingsSave::save(const OVSettingsSnapshot &settings,
                                             const QString &queue) {
    Outcome outcome;
    outcome.jobId = OVUpdateJob::saveOptionsToPPD(settings, queue);
    if (outcome.jobId == 0) {
        outcome.refusal = cupsLastError();
        outcome.refusalText = QString::fromUtf8(cupsLastErrorString());
        return outcome;
    }
    outcome.job = OVUpdateJob::waitForJob(outcome.jobId);
    if (outcome.job.end != OVUpdateJob::JobEnd::Completed) {
        outcome.result = Result::JobNotCompleted;
        return outcome;
    }
    readBack(outcome, settings, queue);
    return outcome;
}

void OVSettingsSave::readBack(Outcome &outcome, const OVSettingsSnapshot &settings,
                              const QString &queue) {
    outcome.readBack = OVStoredSettings::withQueuePPD(
        queue, [&](ppd_file_t *ppd) { outcome.differing = missingFrom(ppd, settings); });
    // A server that died while writing the PPD, or a full disk, leaves one
    // that cannot be read or that lost the route to the filter.
    const bool routeLost =
        outcome.readBack == OVStoredSettings::Status::Loaded && OVQueueSetup::routeLost(queue);
    if (outcome.readBack == OVStoredSettings::Status::UnreadablePPD || routeLost)
        outcome.result = Result::Damaged;
    else if (outcome.readBack != OVStoredSettings::Status::Loaded)
        outcome.result = Result::NotReadBack;
    else
        outcome.result = outcome.differing.isEmpty() ? Result::Stored : Result::NotHeld;
}

bool OVSettingsSave::serverLost(ipp_status_t refusal) {
    return refusal <= IPP_STATUS_OK_EVENTS_COMPLETE ||
           refusal == IPP_STATUS_ERROR_SERVICE_UNAVAILABLE || refusal == IPP_STATUS_ERROR_INTERNAL;
}
