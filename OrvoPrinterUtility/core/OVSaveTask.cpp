#include "OVSaveTask.h"

#include "OVCoreLogging.h"

OVSaveTask::Outcome OVSaveTask::run(const OVSettingsSnapshot &settings, const QString &queue,
                                    bool sendUnchanged) {
    Outcome outcome;
    outcome.verdict = settings.check();
    if (!outcome.verdict.ok())
        return outcome;
    const OVQueueSetup::Access access = OVQueueSetup::access(queue);
    outcome.queue = access.state;
    outcome.userMaySave = access.userMaySave();
    const bool mayBeSaved = outcome.queue == OVQueueSetup::State::SetUp && outcome.userMaySave;
    outcome.unchanged = mayBeSaved && !sendUnchanged && OVSettingsSave::held(settings, queue);
    if (outcome.unchanged)
        outcome.save.result = OVSettingsSave::Result::Stored;
    else if (mayBeSaved)
        outcome.save = OVSettingsSave::save(settings, queue);
    qCDebug(orvoCore) << "save to" << queue << "queue state:" << int(outcome.queue)
                      << "user may save:" << outcome.userMaySave
                      << "result:" << int(outcome.save.result) << "job:" << outcome.save.jobId;
    return outcome;
}
