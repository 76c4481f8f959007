#include "OVSaveTask.h"

#include "OVCoreLogging.h"

OVSaveTask::Outcome OVSaveTask::run(const OVSettingsSnapshot &settings, const QString &queue,
                                    bool sendUnchanged) {
    Outcome outcome;
    outcome.verdict = settings.check();
    if (!outcome.verdict.ok())
        return outcome;
    outcome.queue = OVQueueSetup::state(queue);
    outcome.unchanged = outcome.queue == OVQueueSetup::State::SetUp && !sendUnchanged &&
                        OVSettingsSave::held(settings, queue);
    if (outcome.unchanged)
        outcome.save.result = OVSettingsSave::Result::Stored;
    else if (outcome.queue == OVQueueSetup::State::SetUp)
        outcome.save = OVSettingsSave::save(settings, queue);
    qCDebug(orvoCore) << "save to" << queue << "queue state:" << int(outcome.queue)
                      << "result:" << int(outcome.save.result) << "job:" << outcome.save.jobId;
    return outcome;
}
