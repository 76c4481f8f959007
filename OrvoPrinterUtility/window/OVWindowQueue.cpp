#include "OVWindowQueue.h"

#include "OVChooserTexts.h"
#include "OVCupsConnection.h"
#include "OVPasswordPrompt.h"
#include "OVStoredSettings.h"
#include "OVWindowLog.h"
#include "OVWindowTexts.h"

namespace {

using Problem = OVWindowQueue::Problem;
using Status = OVStoredSettings::Status;
using State = OVQueueSetup::State;
using OVChooserTexts::localized;

// The one problem the bar names, when the load and the set-up check find
// several: the first that keeps the others from being mended.
Problem problemOf(Status loaded, const OVQueueSetup::Access &access) {
    const State state = access.state;
    if (loaded == Status::ServerUnreachable || state == State::ServerUnreachable)
        return Problem::ServerUnreachable;
    if (state == State::QueueUnknown)
        return Problem::QueueUnknown;
    if (state == State::Damaged)
        return Problem::Damaged;
    if (loaded == Status::NoPPD)
        return Problem::NoPPD;
    if (loaded == Status::UnreadablePPD)
        return Problem::UnreadablePPD;
    if (state == State::NotSetUp)
        return Problem::NotSetUp;
    return access.userMaySave() ? Problem::None : Problem::NotASaver;
}

} // namespace

OVWindowQueue::Loaded OVWindowQueue::load(const QString &queue) {
    Loaded loaded;
    loaded.server = OVCupsConnection::serverName();
    OVSettingsSnapshot settings;
    const Status status = OVStoredSettings::load(queue, settings);
    const OVQueueSetup::Access access =
        status == Status::ServerUnreachable ? OVQueueSetup::Access() : OVQueueSetup::access(queue);
    loaded.problem = problemOf(status, access);
    // What a damaged PPD still holds is shown once the repair kept it: until
    // then the defaults would pass for the settings it lost.
    if (status == Status::Loaded && loaded.problem != Problem::Damaged)
        loaded.settings = settings;
    qCDebug(orvoWindow) << "queue" << queue << "loaded:" << int(status)
                        << "state:" << int(access.state);
    return loaded;
}

OVQueueSetup::Result OVWindowQueue::setUp(const QString &queue) {
    const OVPasswordPrompt::ForQueue forQueue(queue);
    return OVQueueSetup::setUp(queue);
}

OVQueueSetup::Result OVWindowQueue::repair(const QString &queue) {
    const OVPasswordPrompt::ForQueue forQueue(queue);
    return OVQueueSetup::repair(queue);
}

QString OVWindowQueue::problemText(Problem problem, const QString &queue, const QString &server) {
    using namespace OVWindowTexts;
    switch (problem) {
    case Problem::None:
        break;
    case Problem::ServerUnreachable:
        return OVChooserTexts::localized(OVChooserTexts::unreachable).arg(server);
    case Problem::QueueUnknown:
        return localized(queueUnknown).arg(server, queue);
    case Problem::Damaged:
        return localized(damagedPpd).arg(queue);
    case Problem::NoPPD:
        return localized(queueWithoutPpd).arg(queue);
    case Problem::UnreadablePPD:
        return localized(unreadablePpd).arg(queue);
    case Problem::NotSetUp:
        return localized(queueNotSetUp).arg(queue);
    case Problem::NotASaver:
        return localized(notASaver).arg(queue);
    }
    return {};
}

QString OVWindowQueue::setUpFailureText(const OVQueueSetup::Result &result, const QString &queue,
                                        const QString &server) {
    using namespace OVWindowTexts;
    using Outcome = OVQueueSetup::Outcome;
    switch (result.outcome) {
    case Outcome::ServerUnreachable:
        return problemText(Problem::ServerUnreachable, queue, server);
    case Outcome::QueueUnknown:
        return problemText(Problem::QueueUnknown, queue, server);
    case Outcome::NoPPD:
        return problemText(Problem::NoPPD, queue, server);
    case Outcome::NotAuthorized:
        return localized(setUpNotAuthorized).arg(queue);
    case Outcome::ServerLacksRoute:
        return localized(setUpLacksFilter).arg(server);
    case Outcome::Damaged:
        return problemText(Problem::Damaged, queue, server);
    case Outcome::Unknown:
        return localized(setUpUnknown).arg(queue);
    case Outcome::NoDriver:
        return localized(repairNoDriver).arg(queue, result.detail);
    default:
        return localized(setUpFailed).arg(queue, result.detail);
    }
}
