#include "OVQueueSetup.h"

#include "OVCupsConnection.h"
#include "OVSettingsRoute.h"
#include "OrvoPPD_Interface.h"
#include "OrvoSettingsKeywords.h"

#include <QFile>
#include <QHash>
#include <QRegularExpression>
#include <QStringList>
#include <QThread>

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

QString attributeText(ipp_t *response, const char *name) {
    ipp_attribute_t *attribute = ippFindAttribute(response, name, IPP_TAG_ZERO);
    return attribute ? attributeText(attribute) : QString();
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

// One object of an answer (a printer, a driver): its attributes by name.
using Group = QHash<QByteArray, ipp_attribute_t *>;

// The answer's objects of the given kind, in order.
QList<Group> groupsOf(ipp_t *response, ipp_tag_t kind) {
    QList<Group> groups;
    bool inGroup = false;
    for (ipp_attribute_t *a = ippFirstAttribute(response); a; a = ippNextAttribute(response)) {
        const bool member = ippGetGroupTag(a) == kind && ippGetName(a);
        if (member && !inGroup)
            groups.append(Group());
        if (member)
            groups.last().insert(ippGetName(a), a);
        inGroup = member;
    }
    return groups;
}

QString groupText(const Group &group, const char *name) {
    ipp_attribute_t *attribute = group.value(name);
    return attribute ? attributeText(attribute) : QString();
}

// cupsd's name for a queue that sends documents to its device unchanged.
constexpr char rawMakeAndModel[] = "Local Raw Printer";

// A queue that prints to an IPP printer without a driver of the server's:
// cupsd builds its PPD from what the printer says of itself.
constexpr char driverlessName[] = "everywhere";
bool isDriverless(const QString &makeAndModel, const QString &deviceUri) {
    return makeAndModel.endsWith(QStringLiteral("IPP Everywhere")) ||
           deviceUri.startsWith(QStringLiteral("ipp://")) ||
           deviceUri.startsWith(QStringLiteral("ipps://"));
}

} // namespace

bool OVQueueSetup::isScratchQueue(const QString &name) {
    static const QRegularExpression scratch(QStringLiteral("^orvo-setup-check-\\d+$"));
    return scratch.match(name).hasMatch();
}

OVQueueSetup::State OVQueueSetup::state(const QString &queue) {
    const OVCupsConnection connection;
    return connection ? state(connection.http(), queue) : State::ServerUnreachable;
}

OVQueueSetup::Access OVQueueSetup::access(const QString &queue) {
    const OVCupsConnection connection;
    if (!connection)
        return {};
    const Found found = find(connection.http(), queue);
    return {state(found), OVSettingsRoute::savers(found.ppd)};
}

bool OVQueueSetup::Access::userMaySave() const {
    return savers.allows(cupsUser());
}

bool OVQueueSetup::routeLost(const QString &queue) {
    const OVCupsConnection connection;
    Found found;
    return connection && fetchPpd(connection.http(), queue, found) && found.hasPpd &&
           !OVSettingsRoute::isIn(found.ppd);
}

OVQueueSetup::State OVQueueSetup::state(http_t *http, const QString &queue) {
    return state(find(http, queue));
}

OVQueueSetup::State OVQueueSetup::state(const Found &found) {
    if (found.route == State::QueueUnknown || found.route == State::ServerUnreachable)
        return found.route;
    if (damaged(found))
        return State::Damaged;
    return found.route == State::SetUp && OVSettingsRoute::isIn(found.ppd) ? State::SetUp
                                                                           : State::NotSetUp;
}

bool OVQueueSetup::damaged(const Found &found) {
    if (!found.hasPpd)
        return !found.makeAndModel.isEmpty() && found.makeAndModel != rawMakeAndModel;
    return !found.opens || OVSettingsRoute::looksCut(found.ppd);
}

// route SetUp: the server routes the update job's format for the queue, which
// it does for every queue once it has the format's files and the filter.
OVQueueSetup::Found OVQueueSetup::find(http_t *http, const QString &queue) {
    if (OVCupsConnection::pastDeadline())
        return {};
    static const char *const wanted[] = {formatsAttribute, "printer-make-and-model", "device-uri"};
    ipp_t *request = printerRequest(IPP_OP_GET_PRINTER_ATTRIBUTES, queue);
    ippAddStrings(request, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes",
                  std::size(wanted), nullptr, wanted);
    ipp_t *response = cupsDoRequest(http, request, "/");
    const ipp_status_t status = cupsLastError();
    Found found;
    found.makeAndModel = attributeText(response, "printer-make-and-model");
    found.deviceUri = attributeText(response, "device-uri");
    const bool routed = acceptsUpdates(response);
    const bool answered = response != nullptr;
    ippDelete(response);
    if (answered && status == IPP_STATUS_ERROR_NOT_FOUND)
        found.route = State::QueueUnknown;
    else if (!answered || status > IPP_STATUS_OK_EVENTS_COMPLETE || !fetchPpd(http, queue, found))
        found.route = State::ServerUnreachable;
    else
        found.route = routed ? State::SetUp : State::NotSetUp;
    // A server that dies while it sends the PPD leaves a copy that looks cut:
    // damage is only said of a PPD that the server sends whole again.
    if (found.route != State::ServerUnreachable && found.hasPpd && damaged(found)) {
        Found again = found;
        if (fetchPpd(http, queue, again))
            found = again;
        else
            found.route = State::ServerUnreachable;
    }
    return found;
}

// Fetched on this connection, so that it keeps to the deadline: cupsGetPPD2
// may open a connection of its own that waits a minute on a server that
// stopped answering.
bool OVQueueSetup::fetchPpd(http_t *http, const QString &queue, Found &found) {
    char fileName[1024];
    const int fd = cupsTempFd(fileName, sizeof fileName);
    if (fd < 0)
        return false;
    // cupsd looks the name up as the request line spells it, without decoding
    // percent escapes, and a queue name holds no space, slash or '#': the name
    // goes as it is, as libcups itself sends it.
    const QByteArray resource = "/printers/" + queue.toUtf8() + ".ppd";
    const http_status_t status = cupsGetFd(http, resource.constData(), fd);
    close(fd);
    if (status == HTTP_STATUS_OK) {
        QFile file(QString::fromLocal8Bit(fileName));
        found.hasPpd = file.open(QIODevice::ReadOnly);
        found.ppd = file.readAll();
        ppd_file_t *opened = r_ppdOpenFile(fileName);
        found.opens = opened != nullptr;
        if (opened)
            r_ppdClose(opened);
    }
    unlink(fileName);
    return status == HTTP_STATUS_OK ||
           (status == HTTP_STATUS_NOT_FOUND && !OVCupsConnection::pastDeadline());
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
    if (!response || (cupsLastError() > IPP_STATUS_OK_EVENTS_COMPLETE &&
                      cupsLastError() != IPP_STATUS_ERROR_NOT_FOUND)) {
        ippDelete(response);
        return std::nullopt;
    }
    QList<Queue> found;
    for (const Group &group : groupsOf(response, IPP_TAG_PRINTER)) {
        Queue queue;
        for (ipp_attribute_t *attribute : group)
            readQueueAttribute(attribute, queue);
        if (!queue.name.isEmpty() && !isScratchQueue(queue.name))
            found << queue;
    }
    ippDelete(response);
    // Listing the format says only that the server routes it; the PPD says
    // whether the queue takes it, and whether it is whole.
    for (Queue &each : found) {
        const Found queue = find(connection.http(), each.name);
        const State state = OVQueueSetup::state(queue);
        if (state == State::ServerUnreachable)
            return std::nullopt;
        each.savers = OVSettingsRoute::savers(queue.ppd);
        each.setUp = state == State::SetUp;
        each.damaged = state == State::Damaged;
    }
    std::sort(found.begin(), found.end(),
              [](const Queue &a, const Queue &b) { return a.name < b.name; });
    return found;
}

// One connection for the whole change, so that the administrator's password
// is asked for at most once.
OVQueueSetup::Result OVQueueSetup::changeQueue(const QString &queue, const Change &change) {
    const OVCupsConnection connection;
    http_t *http = connection.http();
    if (!http)
        return {Outcome::ServerUnreachable, {}};
    const Found found = find(http, queue);
    if (found.route == State::ServerUnreachable || found.route == State::QueueUnknown)
        return {found.route == State::QueueUnknown ? Outcome::QueueUnknown
                                                   : Outcome::ServerUnreachable,
                {}};
    removeScratchQueues(http);
    return change(http, found);
}

OVQueueSetup::Result OVQueueSetup::changePpd(const QString &queue, const Change &change) {
    return changeQueue(queue, [&](http_t *http, const Found &found) -> Result {
        if (damaged(found))
            return {Outcome::Damaged, {}};
        if (!found.hasPpd)
            return {Outcome::NoPPD, {}};
        return change(http, found);
    });
}

// Whoever may change the queue may remove them; a refusal is said by the
// change itself.
void OVQueueSetup::removeScratchQueues(http_t *http) {
    if (OVCupsConnection::pastDeadline())
        return;
    static const char *const wanted[] = {"printer-name"};
    ipp_t *request = ippNewRequest(IPP_OP_CUPS_GET_PRINTERS);
    ippAddStrings(request, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes",
                  std::size(wanted), nullptr, wanted);
    ipp_t *response = cupsDoRequest(http, request, "/");
    QStringList scratch;
    for (const Group &group : groupsOf(response, IPP_TAG_PRINTER)) {
        if (const QString name = groupText(group, "printer-name"); isScratchQueue(name))
            scratch << name;
    }
    ippDelete(response);
    for (const QString &name : scratch) {
        if (OVCupsConnection::pastDeadline())
            return;
        ippDelete(cupsDoRequest(http, printerRequest(IPP_OP_CUPS_DELETE_PRINTER, name), "/admin/"));
    }
}

// A server without the format's files or the filter is refused before the
// queue is touched: a queue set up there would still not take a save.
OVQueueSetup::Result OVQueueSetup::setUp(const QString &queue,
                                         const std::optional<OrvoSavers> &savers) {
    return changePpd(queue, [&](http_t *http, const Found &found) -> Result {
        if (found.route != State::SetUp)
            return {Outcome::ServerLacksRoute, {}};
        const QByteArray withSetUp = OVSettingsRoute::withSavers(
            OVSettingsRoute::added(found.ppd), savers.value_or(OVSettingsRoute::savers(found.ppd)));
        if (withSetUp == found.ppd)
            return {Outcome::Unchanged, {}};
        const Result installed = install(http, queue, withSetUp);
        return installed.outcome == Outcome::Changed ? checked(http, queue, found.ppd) : installed;
    });
}

OVQueueSetup::Result OVQueueSetup::remove(const QString &queue) {
    return changePpd(queue, [&](http_t *http, const Found &found) {
        const QByteArray plain = OVSettingsRoute::removed(found.ppd);
        return plain == found.ppd ? Result{Outcome::Unchanged, {}} : install(http, queue, plain);
    });
}

// The damaged PPD is not put back when the rebuilt one fails its check: it
// is no better.
OVQueueSetup::Result OVQueueSetup::repair(const QString &queue) {
    return changeQueue(queue, [&](http_t *http, const Found &found) -> Result {
        if (found.route != State::SetUp)
            return {Outcome::ServerLacksRoute, {}};
        if (state(found) == State::SetUp)
            return {Outcome::Unchanged, {}};
        if (!found.hasPpd && !damaged(found))
            return {Outcome::NoPPD, {}};
        const std::optional<QByteArray> driver = driverName(http, found);
        if (!driver)
            return {Outcome::ServerUnreachable, {}};
        if (driver->isEmpty())
            return {Outcome::NoDriver, found.makeAndModel};
        QByteArray fresh = found.ppd;
        if (const Result made = driverPpd(http, queue, *driver, fresh);
            made.outcome != Outcome::Changed)
            return {made.outcome,
                    made.outcome == Outcome::NoDriver ? found.makeAndModel : made.detail};
        // Who may save stays as it was: a repair opens the queue to no one.
        const QByteArray rebuilt = OVSettingsRoute::withSavers(
            OVSettingsRoute::added(OVSettingsRoute::withSettingsOf(fresh, found.ppd)),
            OVSettingsRoute::savers(found.ppd));
        const Result installed = install(http, queue, rebuilt);
        // A driverless queue has its new PPD already; not the settings.
        if (installed.outcome == Outcome::ServerUnreachable && *driver == driverlessName)
            return {Outcome::Unknown, {}};
        return installed.outcome == Outcome::Changed ? checked(http, queue, {}) : installed;
    });
}

// A queue that prints to an IPP printer is rebuilt driverless, as lpadmin -m
// everywhere makes it; any other with the driver whose make and model it
// reports, as lpadmin -m names it.
std::optional<QByteArray> OVQueueSetup::driverName(http_t *http, const Found &found) {
    if (isDriverless(found.makeAndModel, found.deviceUri))
        return QByteArray(driverlessName);
    static const char *const wanted[] = {"ppd-name", "ppd-make-and-model"};
    ipp_t *request = ippNewRequest(IPP_OP_CUPS_GET_PPDS);
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_TEXT, "ppd-make-and-model", nullptr,
                 found.makeAndModel.toUtf8().constData());
    ippAddStrings(request, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes",
                  std::size(wanted), nullptr, wanted);
    ipp_t *response = cupsDoRequest(http, request, "/");
    if (!response)
        return std::nullopt;
    QByteArray name;
    for (const Group &group : groupsOf(response, IPP_TAG_PRINTER)) {
        if (name.isEmpty() && groupText(group, "ppd-make-and-model")
                                      .compare(found.makeAndModel, Qt::CaseInsensitive) == 0)
            name = groupText(group, "ppd-name").toUtf8();
    }
    ippDelete(response);
    return name;
}

// A driver's PPD comes from the server without touching the queue, so that
// the queue changes once, with the rebuilt PPD. cupsd makes a driverless
// queue's PPD only on the queue itself, in the background, from the printer's
// answers: the new PPD is the first one fetched that differs from the old.
OVQueueSetup::Result OVQueueSetup::driverPpd(http_t *http, const QString &queue,
                                             const QByteArray &ppdName, QByteArray &fresh) {
    if (OVCupsConnection::pastDeadline())
        return {Outcome::ServerUnreachable, {}};
    if (ppdName != driverlessName) {
        const QByteArray fileName = r_cupsGetServerPPD(http, ppdName.constData());
        if (fileName.isEmpty())
            return {cupsLastError() == IPP_STATUS_ERROR_NOT_FOUND ? Outcome::NoDriver
                                                                  : Outcome::ServerUnreachable,
                    {}};
        QFile file(QString::fromLocal8Bit(fileName));
        fresh = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
        unlink(fileName.constData());
        return {Outcome::Changed, {}};
    }
    ipp_t *request = printerRequest(IPP_OP_CUPS_ADD_MODIFY_PRINTER, queue);
    ippAddString(request, IPP_TAG_PRINTER, IPP_TAG_NAME, "ppd-name", nullptr, ppdName.constData());
    const Result made = answered(cupsDoRequest(http, request, "/admin/"));
    if (made.outcome != Outcome::Changed)
        return made;
    for (const QByteArray old = fresh; !OVCupsConnection::pastDeadline(); QThread::msleep(100)) {
        Found fetched;
        if (!fetchPpd(http, queue, fetched))
            break;
        if (fetched.opens && fetched.ppd != old) {
            fresh = fetched.ppd;
            return made;
        }
    }
    return {Outcome::Unknown, {}};
}

// Past the deadline nothing more is sent: the command's time is up, and the
// queue stays as it is.
OVQueueSetup::Result OVQueueSetup::install(http_t *http, const QString &queue,
                                           const QByteArray &ppd) {
    if (OVCupsConnection::pastDeadline())
        return {Outcome::ServerUnreachable, {}};
    char fileName[1024];
    cups_file_t *file = cupsTempFile2(fileName, sizeof fileName);
    if (!file)
        return {Outcome::Failed, QStringLiteral("cannot write a temporary file")};
    cupsFileWrite(file, ppd.constData(), size_t(ppd.size()));
    cupsFileClose(file);
    ipp_t *request = printerRequest(IPP_OP_CUPS_ADD_MODIFY_PRINTER, queue);
    const Result result = answered(cupsDoFileRequest(http, request, "/admin/", fileName));
    unlink(fileName);
    return result;
}

// No answer after the request went out may mean either: the server may have
// taken the change before it stopped.
OVQueueSetup::Result OVQueueSetup::answered(ipp_t *response) {
    const ipp_status_t status = cupsLastError();
    const QString detail = QString::fromUtf8(cupsLastErrorString());
    const bool answer = response != nullptr;
    ippDelete(response);
    if (refusedAsUnauthorized(status))
        return {Outcome::NotAuthorized, detail};
    if (!answer || OVCupsConnection::pastDeadline())
        return {Outcome::Unknown, {}};
    if (status <= IPP_STATUS_OK_EVENTS_COMPLETE)
        return {Outcome::Changed, {}};
    return {Outcome::Failed, detail};
}

OVQueueSetup::Result OVQueueSetup::checked(http_t *http, const QString &queue,
                                           const QByteArray &before) {
    const State now = state(http, queue);
    if (now == State::SetUp)
        return {Outcome::Changed, {}};
    if (now == State::ServerUnreachable)
        return {Outcome::Unknown, {}};
    if (!before.isEmpty())
        install(http, queue, before);
    return {Outcome::Failed, before.isEmpty()
                                 ? QStringLiteral("the rebuilt PPD does not take saves")
                                 : QStringLiteral("the queue did not keep its set-up line; its "
                                                  "PPD was put back")};
}
