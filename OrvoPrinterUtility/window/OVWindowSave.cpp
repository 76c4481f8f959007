#include "OVWindowSave.h"

#include "OVBackgroundTask.h"
#include "OVChooserTexts.h"
#include "OVQueueSetup.h"
#include "OVSaveSizeCheck.h"
#include "OVWindowLog.h"
#include "OVWindowTexts.h"

using OVChooserTexts::localized;
using namespace OVWindowTexts;

void OVWindowSave::save(QObject *context, const OVSettingsSnapshot &settings,
                        const QString &printerID, std::function<void(const Outcome &)> done) {
    OVBackgroundTask::run(
        context,
        [settings, printerID] {
            Outcome outcome;
            // Long lists take the size check a while to measure: it runs here
            // too, so that OK never holds up the window.
            outcome.listsToShorten = OVSaveSizeCheck::listsToShorten(settings);
            if (!outcome.listsToShorten.isEmpty())
                return outcome;
            // On a queue that is not set up the update job would be printed,
            // and the settings lost.
            const OVQueueSetup::State state = OVQueueSetup::state(printerID);
            outcome.queueDamaged = state == OVQueueSetup::State::Damaged;
            outcome.queueSetUp = state != OVQueueSetup::State::NotSetUp && !outcome.queueDamaged;
            if (outcome.queueSetUp)
                outcome.save = OVSettingsSave::save(settings, printerID);
            qCDebug(orvoWindow) << "save to" << printerID << "set up:" << outcome.queueSetUp
                                << "result:" << int(outcome.save.result)
                                << "job:" << outcome.save.jobId;
            return outcome;
        },
        std::move(done));
}

QString OVWindowSave::failureText(const Outcome &outcome, const QString &queue) {
    using Result = OVSettingsSave::Result;
    const OVSettingsSave::Outcome &save = outcome.save;
    if (outcome.queueDamaged)
        return localized(damagedPpd).arg(queue);
    if (!outcome.queueSetUp)
        return localized(queueNotSetUp).arg(queue);
    switch (save.result) {
    case Result::Stored:
        return {};
    case Result::NotSent:
        if (OVSettingsSave::serverLost(save.refusal))
            return localized(saveServerLost);
        return localized(saveRefused).arg(save.refusalText);
    case Result::JobNotCompleted:
        return jobFailureText(save);
    case Result::NotHeld:
        return localized(saveNotHeld).arg(save.jobId).arg(save.differing.join(", "));
    case Result::Replaced:
        return localized(saveReplaced).arg(save.jobId).arg(save.replacedBy);
    case Result::Damaged:
        return localized(saveDamaged).arg(queue);
    case Result::NotReadBack:
        break;
    }
    return localized(saveNotReadBack);
}

QString OVWindowSave::jobFailureText(const OVSettingsSave::Outcome &save) {
    using End = OVUpdateJob::JobEnd;
    switch (save.job.end) {
    case End::ServerLost:
        return localized(saveServerLost);
    case End::Pending:
        return localized(saveJobPending).arg(save.jobId);
    default:
        return localized(saveJobStopped).arg(save.jobId);
    }
}
