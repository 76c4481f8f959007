#include "OVSaveTask.h"

#include "OVCoreLogging.h"

OVSaveTask::Outcome OVSaveTask::run(const OVSettingsSnapshot &settings, const QString &queue) {
    Outcome outcome;
    outcome.verdict = settings.check();
    if (!outcome.verdict.ok())
        return outcome;
    const OVQueueSetup::Access access = OVQueueSetup::access(queue);
    outcome.queue = access.state;
    outcome.userMaySave = access.userMaySave();
    if (outcome.queue == OVQueueSetup::State::SetUp && outcome.userMaySave)
        outcome.save = OVSettingsSave::save(settings, queue);
    qCDebug(orvoCore) << "save to" << queue << "queue state:" << int(outcome.queue)
                      << "user may save:" << outcome.userMaySave
                      << "result:" << int(outcome.save.result) << "job:" << outcome.save.jobId;
    return outcome;
}
