#pragma once

#include "OVTaskToken.h"

#include <QString>

#include <cups/http.h>

#include <chrono>
#include <memory>

// A connection to the CUPS server the user's client settings name (server,
// port, encryption), closed when the object goes. The load and save paths
// each hold one for the length of their operation.
//
// Every connection has a time limit: a print server that accepts connections
// but never answers (stopped, overloaded) must not hold the caller for the
// minute libcups waits on its own. Connecting and every request give up at
// the deadline of the calling thread's task (OVTaskToken), or defaultLimit
// after the connection was made outside a task, and as soon as the task is
// cancelled.
class OVCupsConnection {
public:
    using Clock = std::chrono::steady_clock;
    static constexpr std::chrono::seconds defaultLimit{30};

    OVCupsConnection();
    ~OVCupsConnection();
    OVCupsConnection(const OVCupsConnection &) = delete;
    OVCupsConnection &operator=(const OVCupsConnection &) = delete;

    // The server as a user knows it: a local server's socket file means
    // nothing to them; a port is named when it is not the usual one.
    static QString serverName();

    // Null when the server could not be reached.
    http_t *http() const { return m_http; }
    explicit operator bool() const { return m_http != nullptr; }
    // Whether the task's time is up, or it was cancelled.
    bool expired() const { return m_token->stopped(); }
    // Whether the calling thread's task ran out of time or was cancelled: a
    // failure then means the server did not answer in time.
    static bool pastDeadline() {
        const std::shared_ptr<OVTaskToken> task = OVTaskToken::current();
        return task && task->stopped();
    }

private:
    static int keepWaiting(http_t *http, void *connection);

    std::shared_ptr<OVTaskToken> m_token;
    http_t *m_http;
};
