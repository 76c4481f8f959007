#include "OVQueueCommands.h"

#include "OVCommandLine.h"
#include "OVCupsConnection.h"
#include "OVSettingsFields.h"
#include "OVStoredSettings.h"
#include "OVUpdateJob.h"
#include "OrvoPPD_Interface.h"
#include "OrvoSettingsKeywords.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QThread>

#include <cups/cups.h>

#include <chrono>

namespace {

using Exit = OVCommandLine::Exit;
constexpr char driverFilter[] = "orvo-ppd-update";
constexpr char noServer[] = "cannot reach the CUPS server";
const QCommandLineOption settingsFileOption(
    "settings", "Read settings from a JSON file (\"-\": standard input), keys as \"show --json\".",
    "file");
const QCommandLineOption
    timeoutOption("timeout", "Wait at most this long for the job (default 60).", "seconds", "60");

// Whether the PPD runs the driver filter, the only way settings reach it.
bool runsDriver(ppd_file_t *ppd) {
    for (int i = 0; i < ppd->num_filters; ++i) {
        if (QByteArray(ppd->filters[i]).split(' ').last() == driverFilter)
            return true;
    }
    return false;
}

bool usesDriver(const QString &queue) {
    bool found = false;
    OVStoredSettings::withQueuePPD(queue, [&](ppd_file_t *ppd) { found = runsDriver(ppd); });
    return found;
}

int loadFailure(OVStoredSettings::Status status, const QString &queue) {
    switch (status) {
    case OVStoredSettings::Status::ServerUnreachable:
        return OVCommandLine::fail(Exit::ServerUnreachable, noServer);
    case OVStoredSettings::Status::NoPPD:
        return OVCommandLine::fail(Exit::QueueUnknown,
                                   "no queue \"" + queue + "\" with a PPD on the server");
    default:
        return OVCommandLine::fail(Exit::Failed, "the PPD of \"" + queue + "\" cannot be read");
    }
}

// The job's last state once it has ended, or when the time is up.
ipp_jstate_t waitForJob(const QString &queue, int jobId, std::chrono::seconds limit) {
    const auto deadline = std::chrono::steady_clock::now() + limit;
    ipp_jstate_t state = IPP_JSTATE_PENDING;
    while (state < IPP_JSTATE_STOPPED && std::chrono::steady_clock::now() < deadline) {
        QThread::msleep(200);
        const OVCupsConnection connection;
        cups_job_t *jobs = nullptr;
        const int count = cupsGetJobs2(connection.http(), &jobs, queue.toUtf8().constData(), 0,
                                       CUPS_WHICHJOBS_ALL);
        for (int i = 0; i < count; ++i) {
            if (jobs[i].id == jobId)
                state = jobs[i].state;
        }
        cupsFreeJobs(count, jobs);
    }
    return state;
}

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

QString readSettingsFile(const QString &path, QJsonObject &json) {
    QFile file(path);
    const bool opened =
        path == "-" ? file.open(stdin, QIODevice::ReadOnly) : file.open(QIODevice::ReadOnly);
    if (!opened)
        return "cannot read " + path;
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll(), &error);
    if (!document.isObject())
        return "bad JSON in " + path + ": " +
               (error.error ? error.errorString() : QString("not an object"));
    json = document.object();
    return {};
}

} // namespace

int OVQueueCommands::list(const QCommandLineParser &, bool json) {
    const OVCupsConnection connection;
    if (!connection)
        return OVCommandLine::fail(Exit::ServerUnreachable, noServer);
    cups_dest_t *dests = nullptr;
    const int count = cupsGetDests2(connection.http(), &dests);
    QStringList queues;
    for (int i = 0; i < count; ++i) {
        if (!dests[i].instance && usesDriver(QString::fromUtf8(dests[i].name)))
            queues << QString::fromUtf8(dests[i].name);
    }
    cupsFreeDests(count, dests);
    if (count == 0 && cupsLastError() > IPP_STATUS_OK_EVENTS_COMPLETE)
        return OVCommandLine::fail(Exit::ServerUnreachable, noServer);
    OVCommandLine::print(json, QJsonArray::fromStringList(queues),
                         queues.isEmpty() ? QString() : queues.join('\n') + '\n');
    return Exit::Success;
}

int OVQueueCommands::show(const QCommandLineParser &parser, bool json) {
    const QString queue = parser.positionalArguments().first();
    OVSettingsSnapshot settings;
    const auto status = OVStoredSettings::load(queue, settings);
    if (status != OVStoredSettings::Status::Loaded)
        return loadFailure(status, queue);
    OVCommandLine::print(json, OVSettingsFields::toJson(settings),
                         OVSettingsFields::toText(settings));
    return Exit::Success;
}

void OVQueueCommands::addSaveOptions(QCommandLineParser &parser) {
    parser.addOptions({settingsFileOption, timeoutOption});
    parser.addOptions(OVSettingsFields::options());
}

int OVQueueCommands::save(const QCommandLineParser &parser, bool json) {
    const QString queue = parser.positionalArguments().first();
    bool validTimeout = false;
    const int timeout = parser.value(timeoutOption).toInt(&validTimeout);
    if (!validTimeout || timeout <= 0)
        return OVCommandLine::fail(Exit::Usage, "invalid --timeout");
    QJsonObject given;
    if (parser.isSet(settingsFileOption)) {
        if (const QString error = readSettingsFile(parser.value(settingsFileOption), given);
            !error.isEmpty())
            return OVCommandLine::fail(Exit::Usage, error);
    }
    OVSettingsSnapshot settings;
    bool driven = false;
    if (const auto status = OVStoredSettings::withQueuePPD(queue,
                                                           [&](ppd_file_t *ppd) {
                                                               settings =
                                                                   OVStoredSettings::read(ppd);
                                                               driven = runsDriver(ppd);
                                                           });
        status != OVStoredSettings::Status::Loaded)
        return loadFailure(status, queue);
    if (!driven)
        return OVCommandLine::fail(Exit::Refused, "the queue \"" + queue + "\" does not use the " +
                                                      driverFilter + " filter; nothing was sent");
    settings.isPPDOptionsUpdated = true;
    QString error = OVSettingsFields::apply(given, settings);
    if (error.isEmpty())
        error = OVSettingsFields::apply(parser, settings);
    if (!error.isEmpty())
        return OVCommandLine::fail(Exit::Usage, error);
    if (const QString problem = OVSettingsFields::fitProblem(settings); !problem.isEmpty())
        return OVCommandLine::fail(Exit::Refused, problem + "; nothing was sent");
    if (!OVUpdateJob::reachesFilter(settings))
        return OVCommandLine::fail(
            Exit::Refused, "the settings are too large for one update job; nothing was sent");
    const int jobId = OVUpdateJob::saveOptionsToPPD(settings, queue);
    if (jobId == 0)
        return OVCommandLine::fail(Exit::Failed, "the update job was not accepted: " +
                                                     QString::fromUtf8(cupsLastErrorString()));
    const ipp_jstate_t state = waitForJob(queue, jobId, std::chrono::seconds(timeout));
    if (state != IPP_JSTATE_COMPLETED)
        return OVCommandLine::fail(Exit::Failed,
                                   QStringLiteral("update job %1 did not complete (state %2)")
                                       .arg(jobId)
                                       .arg(ippEnumString("job-state", state)));
    QStringList differing;
    if (const auto status = OVStoredSettings::withQueuePPD(
            queue,
            [&](ppd_file_t *ppd) {
                differing = missingFrom(ppd, OVUpdateJob::optionList(settings));
            });
        status != OVStoredSettings::Status::Loaded)
        return loadFailure(status, queue);
    QJsonObject result{{"queue", queue},
                       {"job", jobId},
                       {"stored", differing.isEmpty()},
                       {"differing", QJsonArray::fromStringList(differing)}};
    OVCommandLine::print(
        json, result,
        differing.isEmpty()
            ? QStringLiteral("Saved with job %1; the PPD holds the settings.\n").arg(jobId)
            : QString());
    if (!differing.isEmpty())
        return OVCommandLine::fail(Exit::Failed, "the PPD does not hold: " + differing.join(", "));
    return Exit::Success;
}
