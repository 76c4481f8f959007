#include "OVSaveTask.h"

#include "OVCoreLogging.h"

OVSaveTask::Outcome OVSaveTask::run(const OVSettingsSnapshot &settings, const QString &queue,
                                    bool sendUnchanged) {
    const Outcome outcome = OVSettingsSave::save(settings, queue, sendUnchanged);
    qCDebug(orvoCore) << "save to" << queue << "queue state:" << int(outcome.queue)
                      << "user may save:" << outcome.userMaySave << "result:" << int(outcome.result)
                      << "job:" << outcome.jobId;
    return outcome;
}
