#include "OVQueueSetup.h"

#include "OVCupsConnection.h"
#include "OVSettingsRoute.h"
#include "OrvoPPD_Interface.h"
#include "OrvoSettingsKeywords.h"

#include <QFile>

#include <cups/cups.h>

#include <algorithm>
#include <unistd.h>

namespace K = OrvoSettingsKeywords;

namespace {

constexpr char formatsAttribute[] = "document-format-supported";

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
    const State route = routeState(http, queue);
    if (route != State::SetUp)
        return route;
    return OVSettingsRoute::isIn(queuePpd(http, queue)) ? State::SetUp : State::NotSetUp;
}

// SetUp here: the server routes the update job's format for the queue, which
// it does for every queue once it has the format's files and the filter.
OVQueueSetup::State OVQueueSetup::routeState(http_t *http, const QString &queue) {
    ipp_t *request = printerRequest(IPP_OP_GET_PRINTER_ATTRIBUTES, queue);
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes", nullptr,
                 formatsAttribute);
    ipp_t *response = cupsDoRequest(http, request, "/");
    const ipp_status_t status = cupsLastError();
    const bool routed = acceptsUpdates(response);
    ippDelete(response);
    if (status == IPP_STATUS_ERROR_NOT_FOUND)
        return State::QueueUnknown;
    if (status > IPP_STATUS_OK_EVENTS_COMPLETE)
        return State::ServerUnreachable;
    return routed ? State::SetUp : State::NotSetUp;
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
    // Listing the format says only that the server routes it; the PPD says
    // whether the queue takes it.
    for (Queue &each : found)
        each.setUp = each.setUp && OVSettingsRoute::isIn(queuePpd(connection.http(), each.name));
    std::sort(found.begin(), found.end(),
              [](const Queue &a, const Queue &b) { return a.name < b.name; });
    return found;
}

// One connection for the whole change, so that the administrator's password
// is asked for at most once.
OVQueueSetup::Result OVQueueSetup::changeQueue(const QString &queue, const Change &change) {
    const OVCupsConnection connection;
    http_t *http = connection.http();
    const State route = http ? routeState(http, queue) : State::ServerUnreachable;
    if (route == State::ServerUnreachable || route == State::QueueUnknown)
        return {route == State::QueueUnknown ? Outcome::QueueUnknown : Outcome::ServerUnreachable,
                {}};
    const QByteArray ppd = queuePpd(http, queue);
    if (ppd.isEmpty())
        return {Outcome::NoPPD, {}};
    return change(http, route == State::SetUp, ppd);
}

// A server without the format's files or the filter is refused before the
// queue is touched: a queue set up there would still not take a save.
OVQueueSetup::Result OVQueueSetup::setUp(const QString &queue) {
    return changeQueue(queue, [&](http_t *http, bool routed, const QByteArray &ppd) -> Result {
        if (!routed)
            return {Outcome::ServerLacksRoute, {}};
        const QByteArray withSetUp = OVSettingsRoute::added(ppd);
        if (withSetUp == ppd)
            return {Outcome::Unchanged, {}};
        const Result installed = install(http, queue, withSetUp);
        if (installed.outcome == Outcome::Changed && state(http, queue) != State::SetUp) {
            install(http, queue, ppd);
            return {Outcome::Failed,
                    QStringLiteral("the queue did not keep its set-up line; its PPD was put back")};
        }
        return installed;
    });
}

OVQueueSetup::Result OVQueueSetup::remove(const QString &queue) {
    return changeQueue(queue, [&](http_t *http, bool, const QByteArray &ppd) {
        const QByteArray plain = OVSettingsRoute::removed(ppd);
        return plain == ppd ? Result{Outcome::Unchanged, {}} : install(http, queue, plain);
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

OVQueueSetup::Result OVQueueSetup::install(http_t *http, const QString &queue,
                                           const QByteArray &ppd) {
    char fileName[1024];
    cups_file_t *file = cupsTempFile2(fileName, sizeof fileName);
    if (!file)
        return {Outcome::Failed, QStringLiteral("cannot write a temporary file")};
    cupsFileWrite(file, ppd.constData(), size_t(ppd.size()));
    cupsFileClose(file);
    ipp_t *request = printerRequest(IPP_OP_CUPS_ADD_MODIFY_PRINTER, queue);
    ippDelete(cupsDoFileRequest(http, request, "/admin/", fileName));
    unlink(fileName);
    const ipp_status_t status = cupsLastError();
    if (status <= IPP_STATUS_OK_EVENTS_COMPLETE)
        return {Outcome::Changed, {}};
    const QString detail = QString::fromUtf8(cupsLastErrorString());
    return {refusedAsUnauthorized(status) ? Outcome::NotAuthorized : Outcome::Failed, detail};
}
