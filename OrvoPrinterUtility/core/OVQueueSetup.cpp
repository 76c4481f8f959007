#include "OVQueueSetup.h"

#include "OVCupsConnection.h"
#include "OVSettingsRoute.h"
#include "OrvoPPD_Interface.h"
#include "OrvoSettingsKeywords.h"

#include <QCoreApplication>
#include <QFile>

#include <cups/cups.h>

#include <algorithm>
#include <unistd.h>

namespace K = OrvoSettingsKeywords;

namespace {

constexpr char formatsAttribute[] = "document-format-supported";
constexpr char scratchDevice[] = "file:/dev/null";

QByteArray printerUri(const QString &queue) {
    char uri[HTTP_MAX_URI];
    httpAssembleURIf(HTTP_URI_CODING_ALL, uri, sizeof uri, "ipp", nullptr, "localhost", ippPort(),
                     "/printers/%s", queue.toUtf8().constData());
    return uri;
}

ipp_t *printerRequest(ipp_op_t operation, const QString &queue) {
    ipp_t *request = ippNewRequest(operation);
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr,
                 printerUri(queue).constData());
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr,
                 cupsUser());
    return request;
}

bool acceptsUpdates(ipp_t *attributes) {
    return ippContainsString(ippFindAttribute(attributes, formatsAttribute, IPP_TAG_MIMETYPE),
                             K::updateDocumentFormat);
}

bool refusedAsUnauthorized(ipp_status_t status) {
    return status == IPP_STATUS_ERROR_NOT_AUTHORIZED || status == IPP_STATUS_ERROR_FORBIDDEN ||
           status == IPP_STATUS_ERROR_CUPS_AUTHENTICATION_CANCELED;
}

QString attributeText(ipp_attribute_t *attribute) {
    return QString::fromUtf8(ippGetString(attribute, 0, nullptr));
}

// A queue's attributes from one group of a CUPS-Get-Printers answer.
void readQueueAttribute(ipp_attribute_t *attribute, OVQueueSetup::Queue &queue) {
    const QByteArray name = ippGetName(attribute);
    if (name == "printer-name")
        queue.name = attributeText(attribute);
    else if (name == "printer-info")
        queue.description = attributeText(attribute);
    else if (name == "printer-make-and-model")
        queue.makeAndModel = attributeText(attribute);
    else if (name == formatsAttribute)
        queue.setUp = ippContainsString(attribute, K::updateDocumentFormat);
}

} // namespace

OVQueueSetup::State OVQueueSetup::state(const QString &queue) {
    const OVCupsConnection connection;
    return connection ? state(connection.http(), queue) : State::ServerUnreachable;
}

bool OVQueueSetup::routeLost(const QString &queue) {
    const OVCupsConnection connection;
    const QByteArray ppd = connection ? queuePpd(connection.http(), queue) : QByteArray();
    return !ppd.isEmpty() && !OVSettingsRoute::isIn(ppd);
}

OVQueueSetup::State OVQueueSetup::state(http_t *http, const QString &queue) {
    ipp_t *request = printerRequest(IPP_OP_GET_PRINTER_ATTRIBUTES, queue);
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes", nullptr,
                 formatsAttribute);
    ipp_t *response = cupsDoRequest(http, request, "/");
    const ipp_status_t status = cupsLastError();
    const bool setUp = acceptsUpdates(response);
    ippDelete(response);
    if (status == IPP_STATUS_ERROR_NOT_FOUND)
        return State::QueueUnknown;
    if (status > IPP_STATUS_OK_EVENTS_COMPLETE)
        return State::ServerUnreachable;
    return setUp ? State::SetUp : State::NotSetUp;
}

std::optional<QList<OVQueueSetup::Queue>> OVQueueSetup::queues() {
    const OVCupsConnection connection;
    if (!connection)
        return std::nullopt;
    static const char *const wanted[] = {"printer-name", "printer-info", "printer-make-and-model",
                                         formatsAttribute};
    ipp_t *request = ippNewRequest(IPP_OP_CUPS_GET_PRINTERS);
    ippAddStrings(request, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes",
                  std::size(wanted), nullptr, wanted);
    ipp_t *response = cupsDoRequest(connection.http(), request, "/");
    // A server without queues answers "not found".
    if (cupsLastError() > IPP_STATUS_OK_EVENTS_COMPLETE &&
        cupsLastError() != IPP_STATUS_ERROR_NOT_FOUND) {
        ippDelete(response);
        return std::nullopt;
    }
    QList<Queue> found;
    Queue queue;
    for (ipp_attribute_t *a = ippFirstAttribute(response);; a = ippNextAttribute(response)) {
        if (a && ippGetGroupTag(a) == IPP_TAG_PRINTER) {
            readQueueAttribute(a, queue);
            continue;
        }
        if (!queue.name.isEmpty())
            found << queue;
        queue = {};
        if (!a)
            break;
    }
    ippDelete(response);
    std::sort(found.begin(), found.end(),
              [](const Queue &a, const Queue &b) { return a.name < b.name; });
    return found;
}

// One connection for the whole change, so that the administrator's password
// is asked for at most once.
OVQueueSetup::Result OVQueueSetup::changeQueue(const QString &queue, const Change &change) {
    const OVCupsConnection connection;
    http_t *http = connection.http();
    const State before = http ? state(http, queue) : State::ServerUnreachable;
    if (before == State::ServerUnreachable || before == State::QueueUnknown)
        return {before == State::QueueUnknown ? Outcome::QueueUnknown : Outcome::ServerUnreachable,
                {}};
    const QByteArray ppd = queuePpd(http, queue);
    if (ppd.isEmpty())
        return {Outcome::NoPPD, {}};
    return change(http, before, ppd);
}

OVQueueSetup::Result OVQueueSetup::setUp(const QString &queue) {
    return changeQueue(queue, [&](http_t *http, State before, const QByteArray &ppd) -> Result {
        const QByteArray routed = OVSettingsRoute::added(ppd);
        if (before == State::SetUp && routed == ppd)
            return {Outcome::Unchanged, {}};
        if (before != State::SetUp) {
            if (const Result checked = checkServerRoutes(http, routed);
                checked.outcome != Outcome::Changed)
                return checked;
        }
        const Result installed = install(http, queue, routed, false);
        if (installed.outcome == Outcome::Changed && state(http, queue) != State::SetUp) {
            install(http, queue, ppd, false);
            return {Outcome::Failed,
                    QStringLiteral("the queue did not take the route; its PPD was put back")};
        }
        return installed;
    });
}

OVQueueSetup::Result OVQueueSetup::remove(const QString &queue) {
    return changeQueue(queue, [&](http_t *http, State, const QByteArray &ppd) {
        const QByteArray plain = OVSettingsRoute::removed(ppd);
        return plain == ppd ? Result{Outcome::Unchanged, {}} : install(http, queue, plain, false);
    });
}

QByteArray OVQueueSetup::queuePpd(http_t *http, const QString &queue) {
    const QByteArray fileName = r_cupsGetPPD2(http, queue.toUtf8().constData());
    if (fileName.isEmpty())
        return {};
    QFile file(QString::fromLocal8Bit(fileName));
    const QByteArray text = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    unlink(fileName.constData());
    return text;
}

// A scratch queue, stopped and refusing jobs, takes the new PPD first: the
// server lists the format for it only when it has both the format's type file
// and the filter. The user's queue is not touched before that is known.
OVQueueSetup::Result OVQueueSetup::checkServerRoutes(http_t *http, const QByteArray &ppd) {
    const QString scratch =
        QStringLiteral("orvo-setup-check-%1").arg(QCoreApplication::applicationPid());
    const Result created = install(http, scratch, ppd, true);
    if (created.outcome != Outcome::Changed)
        return created;
    const bool routes = state(http, scratch) == State::SetUp;
    deleteQueue(http, scratch);
    return routes ? created : Result{Outcome::ServerLacksRoute, {}};
}

OVQueueSetup::Result OVQueueSetup::install(http_t *http, const QString &queue,
                                           const QByteArray &ppd, bool create) {
    char fileName[1024];
    cups_file_t *file = cupsTempFile2(fileName, sizeof fileName);
    if (!file)
        return {Outcome::Failed, QStringLiteral("cannot write a temporary file")};
    cupsFileWrite(file, ppd.constData(), size_t(ppd.size()));
    cupsFileClose(file);
    ipp_t *request = printerRequest(IPP_OP_CUPS_ADD_MODIFY_PRINTER, queue);
    if (create) {
        ippAddString(request, IPP_TAG_PRINTER, IPP_TAG_URI, "device-uri", nullptr, scratchDevice);
        ippAddBoolean(request, IPP_TAG_PRINTER, "printer-is-accepting-jobs", 0);
        ippAddInteger(request, IPP_TAG_PRINTER, IPP_TAG_ENUM, "printer-state", IPP_PSTATE_STOPPED);
    }
    ippDelete(cupsDoFileRequest(http, request, "/admin/", fileName));
    unlink(fileName);
    const ipp_status_t status = cupsLastError();
    if (status <= IPP_STATUS_OK_EVENTS_COMPLETE)
        return {Outcome::Changed, {}};
    const QString detail = QString::fromUtf8(cupsLastErrorString());
    return {refusedAsUnauthorized(status) ? Outcome::NotAuthorized : Outcome::Failed, detail};
}

void OVQueueSetup::deleteQueue(http_t *http, const QString &queue) {
    ippDelete(cupsDoRequest(http, printerRequest(IPP_OP_CUPS_DELETE_PRINTER, queue), "/admin/"));
}
