#include "OVWindowSave.h"

#include "OVBackgroundTask.h"
#include "OVQueueSetup.h"
#include "OVUpdateJob.h"

void OVWindowSave::save(QObject *context, const OVSettingsSnapshot &settings,
                        const QString &printerID, std::function<void(Outcome)> done) {
    OVBackgroundTask::run(
        context,
        [settings, printerID] {
            // On a queue that is not set up the update job would be printed,
            // and the settings lost.
            if (OVQueueSetup::state(printerID) == OVQueueSetup::State::NotSetUp)
                return Outcome::QueueNotSetUp;
            OVUpdateJob::saveOptionsToPPD(settings, printerID);
            return Outcome::Submitted;
        },
        std::move(done));
}
