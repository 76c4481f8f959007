#pragma once

#include <cups/http.h>

// A connection to the CUPS server the user's client settings name (server,
// port, encryption), closed when the object goes. The load and save paths
// each hold one for the length of their operation.
class OVCupsConnection {
public:
    OVCupsConnection();
    ~OVCupsConnection();
    OVCupsConnection(const OVCupsConnection &) = delete;
    OVCupsConnection &operator=(const OVCupsConnection &) = delete;

    // Null when the server could not be reached.
    http_t *http() const { return m_http; }
    explicit operator bool() const { return m_http != nullptr; }

private:
    http_t *m_http;
};
