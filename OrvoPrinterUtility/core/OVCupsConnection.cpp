#include "OVCupsConnection.h"

#include <cups/cups.h>

OVCupsConnection::OVCupsConnection()
    : m_http(httpConnectEncrypt(cupsServer(), ippPort(), cupsEncryption())) {}

OVCupsConnection::~OVCupsConnection() {
    if (m_http)
        httpClose(m_http);
}
