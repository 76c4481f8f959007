#include "OVQueueDevice.h"

#include "OVCupsConnection.h"

#include <QUrl>

#include <cups/cups.h>

OVQueueDevice::Info OVQueueDevice::ask(const QString &queue) {
    const OVCupsConnection connection;
    if (!connection)
        return {};
    char uri[HTTP_MAX_URI];
    httpAssembleURIf(HTTP_URI_CODING_ALL, uri, sizeof uri, "ipp", nullptr, "localhost", ippPort(),
                     "/printers/%s", queue.toUtf8().constData());
    ipp_t *request = ippNewRequest(IPP_OP_GET_PRINTER_ATTRIBUTES);
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr, uri);
    static const char *const wanted[] = {"device-uri", "printer-state"};
    ippAddStrings(request, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes",
                  std::size(wanted), nullptr, wanted);
    ipp_t *response = cupsDoRequest(connection.http(), request, "/");
    Info info;
    if (ipp_attribute_t *state = ippFindAttribute(response, "printer-state", IPP_TAG_ENUM))
        info.stopped = ippGetInteger(state, 0) == IPP_PSTATE_STOPPED;
    if (const char *device =
            ippGetString(ippFindAttribute(response, "device-uri", IPP_TAG_URI), 0, nullptr))
        info.host = hostOf(QString::fromUtf8(device));
    ippDelete(response);
    return info;
}

QString OVQueueDevice::hostOf(const QString &deviceUri) {
    static const QStringList networkSchemes = {"socket", "ipp", "ipps", "lpd", "http", "https"};
    const QUrl url(deviceUri);
    return networkSchemes.contains(url.scheme()) ? url.host() : QString();
}
