#include "OVSettingsSave.h"

#include "OVCoreLogging.h"
#include "OVCupsConnection.h"
#include "OrvoSNMPHelper.h"
#include "OrvoSettingsCodec.h"
#include "OrvoSettingsComparison.h"

#include <cups/cups.h>

#include <algorithm>
#include <iterator>

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
                                             const QString &queue, bool sendUnchanged) {
    const Outcome outcome = attempt(settings, queue, sendUnchanged);
    qCDebug(orvoCore) << "save to" << queue << "queue state:" << int(outcome.queue)
                      << "user may save:" << outcome.userMaySave << "result:" << int(outcome.result)
                      << "job:" << outcome.jobId;
    return outcome;
}

OVSettingsSave::Outcome OVSettingsSave::attempt(const OVSettingsSnapshot &settings,
                                                const QString &queue, bool sendUnchanged) {
    Outcome outcome;
    outcome.verdict = settings.check();
    if (!outcome.verdict.ok())
        return outcome;
    const OVQueueSetup::Access access = OVQueueSetup::access(queue);
    outcome.queue = access.state;
    outcome.userMaySave = access.userMaySave();
    if (outcome.queue != OVQueueSetup::State::SetUp || !outcome.userMaySave)
        return outcome;
    outcome.unchanged = !sendUnchanged && held(settings, queue);
    if (outcome.unchanged) {
        outcome.result = Result::Stored;
        return outcome;
    }
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

bool OVSettingsSave::held(const OVSettingsSnapshot &settings, const QString &queue) {
    bool held = false;
    OVStoredSettings::withQueuePPD(
        queue, [&](ppd_file_t *ppd) { held = missingFrom(ppd, settings).isEmpty(); });
    return held;
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
    // Saves to one queue run one after another: a later one that completed
    // wrote its own values over these, which is no fault of the server.
    if (outcome.result == Result::NotHeld) {
        outcome.replacedBy = laterUpdateJob(queue, outcome.jobId);
        if (outcome.replacedBy != 0)
            outcome.result = Result::Replaced;
    }
}

int OVSettingsSave::laterUpdateJob(const QString &queue, int jobId) {
    const OVCupsConnection connection;
    if (!connection)
        return 0;
    char uri[HTTP_MAX_URI];
    httpAssembleURIf(HTTP_URI_CODING_ALL, uri, sizeof uri, "ipp", nullptr, "localhost", ippPort(),
                     "/printers/%s", queue.toUtf8().constData());
    static const char *const wanted[] = {"job-id", "job-state", "document-format-supplied"};
    ipp_t *request = ippNewRequest(IPP_OP_GET_JOBS);
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr, uri);
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "which-jobs", nullptr, "completed");
    ippAddStrings(request, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes",
                  std::size(wanted), nullptr, wanted);
    ipp_t *response = cupsDoRequest(connection.http(), request, "/");
    int later = 0, id = 0;
    bool update = false;
    // A job's attributes end at the separator before the next job's, or with the answer.
    const auto endJob = [&] {
        if (update && id > jobId)
            later = std::max(later, id);
        id = 0;
        update = false;
    };
    for (ipp_attribute_t *a = ippFirstAttribute(response); a; a = ippNextAttribute(response)) {
        const QByteArray name = ippGetName(a) ? ippGetName(a) : "";
        if (name.isEmpty())
            endJob();
        else if (name == "job-id")
            id = ippGetInteger(a, 0);
        else if (name == "document-format-supplied")
            update = qstrcmp(ippGetString(a, 0, nullptr),
                             OrvoSettingsKeywords::updateDocumentFormat) == 0;
    }
    endJob();
    ippDelete(response);
    return later;
}

bool OVSettingsSave::serverLost(ipp_status_t refusal) {
    return refusal <= IPP_STATUS_OK_EVENTS_COMPLETE ||
           refusal == IPP_STATUS_ERROR_SERVICE_UNAVAILABLE || refusal == IPP_STATUS_ERROR_INTERNAL;
}
