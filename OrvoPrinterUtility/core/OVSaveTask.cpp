#include "OVSaveTask.h"

#include "OVCoreLogging.h"

OVSaveTask::Outcome OVSaveTask::run(const OVSettingsSnapshot &settings, const QString &queue) {
    Outcome outcome;
    outcome.verdict = settings.check();
    if (!outcome.verdict.ok())
        return outcome;
    outcome.queue = OVQueueSetup::state(queue);
    if (outcome.queue == OVQueueSetup::State::SetUp)
        outcome.save = OVSettingsSave::save(settings, queue);
    qCDebug(orvoCore) << "save to" << queue << "queue state:" << int(outcome.queue)
                      << "result:" << int(outcome.save.result) << "job:" << outcome.save.jobId;
    return outcome;
}
