#include "OVQueueCommands.h"

#include "OVCommandLine.h"
#include "OVCupsConnection.h"
#include "OVQueueSetup.h"
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

#include <algorithm>
#include <chrono>

namespace {

using Exit = OVCommandLine::Exit;
constexpr char noServer[] = "cannot reach the CUPS server";
const QCommandLineOption settingsFileOption(
    "settings", "Read settings from a JSON file (\"-\": standard input), keys as \"show --json\".",
    "file");
const QCommandLineOption
    timeoutOption("timeout", "Wait at most this long for the job (default 60).", "seconds", "60");

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
    const auto queues = OVQueueSetup::queues();
    if (!queues)
        return OVCommandLine::fail(Exit::ServerUnreachable, noServer);
    QJsonArray rows;
    QString text;
    qsizetype width = 0;
    for (const OVQueueSetup::Queue &queue : *queues)
        width = std::max(width, queue.name.size());
    for (const OVQueueSetup::Queue &queue : *queues) {
        rows << QJsonObject{{"queue", queue.name},
                            {"setUp", queue.setUp},
                            {"description", queue.description},
                            {"makeAndModel", queue.makeAndModel}};
        text += QStringLiteral("%1  %2  %3\n")
                    .arg(queue.name.leftJustified(width), queue.setUp ? "set up    " : "not set up",
                         queue.makeAndModel);
    }
    OVCommandLine::print(json, rows, text);
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
    if (const auto status = OVStoredSettings::load(queue, settings);
        status != OVStoredSettings::Status::Loaded)
        return loadFailure(status, queue);
    // On a queue that is not set up the update job would be printed.
    if (OVQueueSetup::state(queue) != OVQueueSetup::State::SetUp)
        return OVCommandLine::fail(Exit::Refused, "the queue \"" + queue +
                                                      "\" is not set up for the utility; nothing "
                                                      "was sent. Set it up with: "
                                                      "orvo-printer-utility-cli setup " +
                                                      queue);
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
