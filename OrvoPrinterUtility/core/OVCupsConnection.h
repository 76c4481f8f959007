#pragma once

#include <QString>

#include <cups/http.h>

#include <chrono>
#include <optional>

// A connection to the CUPS server the user's client settings name (server,
// port, encryption), closed when the object goes. The load and save paths
// each hold one for the length of their operation.
//
// Every connection has a time limit: a print server that accepts connections
// but never answers (stopped, overloaded) must not hold the caller for the
// minute libcups waits on its own. Connecting and every request give up at
// the deadline set for the whole operation, or defaultLimit after the
// connection was made.
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
    // Whether this connection's time is up.
    bool expired() const { return Clock::now() >= m_deadline; }

    // Connections made from now on end their work by this time.
    static void setDeadline(Clock::time_point deadline) { s_deadline = deadline; }
    // Whether the operation's deadline has passed: a failure then means the
    // server did not answer in time.
    static bool pastDeadline() { return s_deadline && Clock::now() >= *s_deadline; }

private:
    static int keepWaiting(http_t *http, void *connection);

    Clock::time_point m_deadline;
    http_t *m_http;
    static inline std::optional<Clock::time_point> s_deadline;
};
