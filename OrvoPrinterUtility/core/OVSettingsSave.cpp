#include "OVSettingsSave.h"

#include "OVQueueSetup.h"
#include "OrvoPPD_Interface.h"
#include "OrvoSettingsKeywords.h"

#include <cups/cups.h>

namespace {

// The job's options that the PPD does not hold as attributes with the same
// value (an empty value clears the attribute). The job marker is never stored.
QStringList missingFrom(ppd_file_t *ppd, const OVUpdateJob::OptionList &sent) {
    QStringList names;
    for (const auto &[name, value] : sent) {
        const ppd_attr_t *attribute = r_ppdFindAttr(ppd, name.constData(), nullptr);
        const QByteArray held = attribute && attribute->value ? attribute->value : "";
        if (name != OrvoSettingsKeywords::UpdatePPDOptions && held != value)
            names << QString::fromLatin1(name);
    }
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
    outcome.readBack = OVStoredSettings::withQueuePPD(queue, [&](ppd_file_t *ppd) {
        outcome.differing = missingFrom(ppd, OVUpdateJob::optionList(settings));
    });
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
