#include "OVSnmpCredentials.h"

OVSnmpCredentials::OVSnmpCredentials(const QString &community)
    : m_community(community) {}

OVSnmpCredentials::OVSnmpCredentials(const char *community)
    : m_community(QString::fromUtf8(community)) {}

OVSnmpCredentials OVSnmpCredentials::v3(const QString &user, const QString &authProtocol,
                                        const QByteArray &authPassphrase,
                                        const QString &privProtocol,
                                        const QByteArray &privPassphrase) {
    OVSnmpCredentials credentials;
    credentials.m_version = Version::V3;
    credentials.m_user = user;
    credentials.m_authProtocol = authProtocol;
    credentials.m_authPassphrase = authPassphrase;
    credentials.m_privProtocol = privProtocol;
    credentials.m_privPassphrase = privPassphrase;
    return credentials;
}
