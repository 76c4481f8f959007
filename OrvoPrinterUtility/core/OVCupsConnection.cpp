#include "OVCupsConnection.h"

#include <cups/cups.h>

#include <algorithm>

namespace {

// How often libcups asks whether to go on waiting for an answer.
constexpr double waitSlice = 0.25;

} // namespace

OVCupsConnection::OVCupsConnection()
    : m_token(OVTaskToken::current())
    , m_http(nullptr) {
    using std::chrono::milliseconds;
    if (!m_token)
        m_token = std::make_shared<OVTaskToken>(defaultLimit);
    const auto left = std::chrono::duration_cast<milliseconds>(m_token->deadline() - Clock::now());
    if (left.count() <= 0 || m_token->cancelled())
        return;
    m_http = httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC, cupsEncryption(), 1,
                          int(std::min<milliseconds::rep>(left.count(), 1 << 30)),
                          m_token->cancelFlag());
    if (m_http)
        httpSetTimeout(m_http, waitSlice, keepWaiting, this);
}

QString OVCupsConnection::serverName() {
    const QString server = QString::fromUtf8(cupsServer());
    if (server.startsWith('/'))
        return QStringLiteral("localhost");
    return ippPort() == IPP_PORT ? server : QStringLiteral("%1:%2").arg(server).arg(ippPort());
}

OVCupsConnection::~OVCupsConnection() {
    if (m_http)
        httpClose(m_http);
}

int OVCupsConnection::keepWaiting(http_t *, void *connection) {
    return !static_cast<OVCupsConnection *>(connection)->m_token->stopped();
}
