#include "OVQueueCommands.h"

#include "OVCommandLine.h"
#include "OVCupsConnection.h"
#include "OVQueueSetup.h"
#include "OVSettingsFields.h"
#include "OVSettingsSave.h"
#include "OVStoredSettings.h"
#include "OVUpdateJob.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cups/cups.h>

#include <algorithm>

namespace {

using Exit = OVCommandLine::Exit;
// The key under which list and show name who may save. Only setup changes
// it, so save passes over it in what show --json printed.
constexpr char saversKey[] = "savers";
const QCommandLineOption settingsFileOption(
    "settings", "Read settings from a JSON file (\"-\": standard input), keys as \"show --json\".",
    "file");

// A damaged PPD says nothing true about the settings, so nothing is shown
// from it: the way back is named instead.
int damagedFailure(const QString &queue, const QString &when = {}) {
    return OVCommandLine::fail(
        Exit::Failed, "the PPD of \"" + queue + "\" is damaged" + when +
                          ": repair it with: " + OVCommandLine::hint("setup", "--repair " + queue));
}

int loadFailure(OVStoredSettings::Status status, const QString &queue) {
    if (status == OVStoredSettings::Status::ServerUnreachable)
        return OVCommandLine::serverFailure();
    switch (OVQueueSetup::state(queue)) {
    case OVQueueSetup::State::ServerUnreachable:
        return OVCommandLine::serverFailure();
    case OVQueueSetup::State::QueueUnknown:
        return OVCommandLine::queueUnknown(queue);
    case OVQueueSetup::State::Damaged:
        return damagedFailure(queue);
    default:
        break;
    }
    if (status == OVStoredSettings::Status::NoPPD)
        return OVCommandLine::fail(Exit::Refused, "the queue \"" + queue +
                                                      "\" has no PPD, so it keeps no settings");
    return OVCommandLine::fail(Exit::Failed, "the PPD of \"" + queue + "\" cannot be read");
}

// What became of a sent update job, said as what it is.
int jobFailure(const OVUpdateJob::JobOutcome &outcome, int jobId) {
    using End = OVUpdateJob::JobEnd;
    switch (outcome.end) {
    case End::Vanished:
        return OVCommandLine::fail(
            Exit::Failed, QStringLiteral("update job %1 is gone from the CUPS server %2 before it "
                                         "ended (cancelled, or the server restarted); nothing was "
                                         "stored")
                              .arg(jobId)
                              .arg(OVCommandLine::server()));
    case End::ServerLost:
        return OVCommandLine::fail(
            Exit::ServerUnreachable,
            QStringLiteral("the CUPS server %1 stopped answering while update job %2 ran; whether "
                           "it was applied shows once the server is back (\"show\")")
                .arg(OVCommandLine::server())
                .arg(jobId));
    case End::Pending:
        return OVCommandLine::fail(
            Exit::Queued, QStringLiteral("update job %1 is queued (%2); it may still be applied "
                                         "when the queue runs")
                              .arg(jobId)
                              .arg(ippEnumString("job-state", outcome.state)));
    default:
        return OVCommandLine::fail(Exit::Failed,
                                   QStringLiteral("update job %1 did not complete (state %2)")
                                       .arg(jobId)
                                       .arg(ippEnumString("job-state", outcome.state)));
    }
}

// On a queue that is not set up the update job would be printed; nothing
// was sent.
int notReadyToSave(OVQueueSetup::State state, const QString &queue) {
    switch (state) {
    case OVQueueSetup::State::NotSetUp:
        return OVCommandLine::fail(Exit::Refused, "the queue \"" + queue +
                                                      "\" is not set up for the utility; nothing "
                                                      "was sent. Set it up with: " +
                                                      OVCommandLine::hint("setup", queue));
    case OVQueueSetup::State::QueueUnknown:
        return OVCommandLine::queueUnknown(queue);
    case OVQueueSetup::State::Damaged:
        return damagedFailure(queue, "; nothing was sent");
    default:
        return OVCommandLine::serverFailure();
    }
}

// Who may save, as list and show print it: a list that no one is in is one
// the PPD holds unreadably.
QString saversText(const OrvoSavers &savers) {
    const QString text = QString::fromStdString(savers.text());
    return text.isEmpty() ? QStringLiteral("no one (the list in the PPD is unreadable)") : text;
}

// The filter would store nothing of the user's job; nothing was sent.
int notASaver(const QString &queue) {
    return OVCommandLine::fail(Exit::NotAuthorized,
                               "you may not change this queue's settings: \"" + queue +
                                   "\" names who may save, and not the user \"" +
                                   QString::fromUtf8(cupsUser()) + "\"; nothing was sent");
}

// A job the server did not take: lost on the way, or refused.
int submissionFailure(const OVSettingsSave::Outcome &outcome) {
    if (OVSettingsSave::serverLost(outcome.refusal))
        return OVCommandLine::fail(Exit::ServerUnreachable,
                                   "the CUPS server " + OVCommandLine::server() +
                                       " stopped answering while the update job was sent; "
                                       "whether it arrived shows once the server is back "
                                       "(\"show\")");
    return OVCommandLine::fail(Exit::Failed,
                               QStringLiteral("the CUPS server %1 refused the update "
                                              "job: %2 (%3)")
                                   .arg(OVCommandLine::server(),
                                        QString::fromUtf8(ippErrorString(outcome.refusal)),
                                        outcome.refusalText));
}

// What became of a sent update job.
int saved(const OVSettingsSave::Outcome &outcome, const QString &queue, bool json) {
    switch (outcome.result) {
    case OVSettingsSave::Result::NotSent:
        return submissionFailure(outcome);
    case OVSettingsSave::Result::JobNotCompleted:
        return jobFailure(outcome.job, outcome.jobId);
    case OVSettingsSave::Result::Damaged:
        // A server that died while writing the PPD, or a full disk.
        return damagedFailure(queue, " after the save");
    case OVSettingsSave::Result::NotReadBack:
        return loadFailure(outcome.readBack, queue);
    default:
        break;
    }
    const int jobId = outcome.jobId;
    const QStringList &differing = outcome.differing;
    QJsonObject result{{"queue", queue},
                       {"changed", true},
                       {"job", jobId},
                       {"stored", differing.isEmpty()},
                       {"differing", QJsonArray::fromStringList(differing)}};
    if (outcome.replacedBy != 0)
        result.insert("replacedBy", outcome.replacedBy);
    OVCommandLine::print(
        json, result,
        differing.isEmpty()
            ? QStringLiteral("Saved with job %1; the PPD holds the settings.\n").arg(jobId)
            : QString());
    if (outcome.result == OVSettingsSave::Result::Replaced)
        return OVCommandLine::fail(
            Exit::Failed, QStringLiteral("update job %1 completed; a later save to the queue "
                                         "(job %2) then replaced its settings; the PPD holds that "
                                         "save's values for: %3")
                              .arg(jobId)
                              .arg(outcome.replacedBy)
                              .arg(differing.join(", ")));
    if (!differing.isEmpty())
        return OVCommandLine::fail(Exit::Failed, "the PPD does not hold: " + differing.join(", "));
    return Exit::Success;
}

// The server's default queue; empty when it has none.
QString defaultQueue() {
    const OVCupsConnection connection;
    if (!connection)
        return {};
    static const char *const wanted[] = {"printer-name"};
    ipp_t *request = ippNewRequest(IPP_OP_CUPS_GET_DEFAULT);
    ippAddStrings(request, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes",
                  std::size(wanted), nullptr, wanted);
    ipp_t *response = cupsDoRequest(connection.http(), request, "/");
    const QString name = QString::fromUtf8(
        ippGetString(ippFindAttribute(response, "printer-name", IPP_TAG_NAME), 0, nullptr));
    ippDelete(response);
    return name;
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
        return OVCommandLine::serverFailure();
    const QString byDefault = defaultQueue();
    const QString queueTitle = QStringLiteral("QUEUE");
    qsizetype width = queueTitle.size();
    for (const OVQueueSetup::Queue &queue : *queues)
        width = std::max(width, OVCommandLine::visible(queue.name).size());
    // "*" marks the default queue, as lpstat -d would name it.
    const auto line = [width](bool isDefault, const QString &name, const QString &state,
                              const QString &makeAndModel) {
        return QStringLiteral("%1 %2  %3  %4\n")
            .arg(isDefault ? "*" : " ", name.leftJustified(width), state.leftJustified(10),
                 makeAndModel);
    };
    QJsonArray rows;
    QString text = line(false, queueTitle, "STATE", "MAKE AND MODEL");
    for (const OVQueueSetup::Queue &queue : *queues) {
        const bool isDefault = queue.name == byDefault;
        rows << QJsonObject{{"queue", queue.name},
                            {"default", isDefault},
                            {"setUp", queue.setUp},
                            {"damaged", queue.damaged},
                            {"description", queue.description},
                            {"makeAndModel", queue.makeAndModel},
                            {saversKey, QString::fromStdString(queue.savers.text())}};
        text +=
            line(isDefault, OVCommandLine::visible(queue.name),
                 queue.damaged ? "damaged"
                 : queue.setUp ? "set up"
                               : "not set up",
                 OVCommandLine::visible(queue.makeAndModel) +
                     (queue.savers.everyone() ? QString()
                                              : "  (saved by: " + saversText(queue.savers) + ")"));
    }
    OVCommandLine::print(json, rows, text);
    return Exit::Success;
}

int OVQueueCommands::show(const QCommandLineParser &parser, bool json) {
    const QString queue = parser.positionalArguments().first();
    OVSettingsSnapshot settings;
    QStringList ignored;
    const auto status = OVStoredSettings::load(queue, settings, &ignored);
    if (status != OVStoredSettings::Status::Loaded)
        return loadFailure(status, queue);
    const OVQueueSetup::Access access = OVQueueSetup::access(queue);
    if (access.state == OVQueueSetup::State::Damaged)
        return damagedFailure(queue);
    // Lines the utility could not have written (any user who may print can
    // send an update job) show as the setting's default; the line is named.
    for (const QString &line : ignored)
        OVCommandLine::warn("ignored a line of the PPD: *" + line + "; its default is shown");
    QJsonObject shown = OVSettingsFields::toJson(settings);
    shown.insert(saversKey, QString::fromStdString(access.savers.text()));
    OVCommandLine::print(json, shown,
                         OVSettingsFields::toText(settings) + saversKey + ": " +
                             saversText(access.savers) + "\n");
    return Exit::Success;
}

void OVQueueCommands::addSaveOptions(QCommandLineParser &parser) {
    parser.addOption(settingsFileOption);
    parser.addOptions(OVSettingsFields::options());
}

int OVQueueCommands::save(const QCommandLineParser &parser, bool json) {
    const QString queue = parser.positionalArguments().first();
    QJsonObject given;
    if (parser.isSet(settingsFileOption)) {
        if (const QString error = readSettingsFile(parser.value(settingsFileOption), given);
            !error.isEmpty())
            return OVCommandLine::fail(Exit::Usage, error);
        given.remove(saversKey);
    }
    OVSettingsSnapshot settings;
    if (const auto status = OVStoredSettings::load(queue, settings);
        status != OVStoredSettings::Status::Loaded)
        return loadFailure(status, queue);
    settings.isPPDOptionsUpdated = true;
    QString error = OVSettingsFields::apply(given, settings);
    if (error.isEmpty())
        error = OVSettingsFields::apply(parser, settings);
    if (!error.isEmpty())
        return OVCommandLine::fail(Exit::Usage, error);
    const OVSettingsSave::Outcome task = OVSettingsSave::save(settings, queue, false);
    // A value the settings' rules refuse is a usage error; settings each
    // well formed that the PPD or one update job cannot carry are refused.
    if (const OrvoSettingsVerdict &verdict = task.verdict; !verdict.ok())
        return OVCommandLine::fail(verdict.doesNotFit() ? Exit::Refused : Exit::Usage,
                                   OVSettingsFields::verdictText(verdict) + "; nothing was sent");
    if (task.queue != OVQueueSetup::State::SetUp)
        return notReadyToSave(task.queue, queue);
    if (!task.userMaySave)
        return notASaver(queue);
    if (task.unchanged) {
        OVCommandLine::print(json, QJsonObject{{"queue", queue}, {"changed", false}},
                             "The PPD holds these settings already; no update job was sent.\n");
        return Exit::Success;
    }
    return saved(task, queue, json);
}
