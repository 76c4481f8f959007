#pragma once

#include <QByteArray>
#include <QString>

// How the printer is asked: SNMP version 1 with a community (what a queue
// uses unless it is set otherwise), or SNMPv3 with a user of the printer's
// user-based security. A v3 user always authenticates; privacy (encryption)
// is on when a privacy protocol is named.
//
// The passphrases live only here, in memory, for as long as the queries that
// need them: they are never written into settings, logs or messages.
class OVSnmpCredentials {
public:
    enum class Version { V1, V3 };

    // Version 1 with this community. Not explicit: every query that took a
    // community takes the credentials it stands for.
    OVSnmpCredentials(const QString &community = QString());
    OVSnmpCredentials(const char *community);
    // SNMPv3 for user; authPriv when privProtocol is not empty, else
    // authNoPriv. Protocols are named as the queue settings name them
    // ("SHA-256", "AES-128").
    static OVSnmpCredentials v3(const QString &user, const QString &authProtocol,
                                const QByteArray &authPassphrase,
                                const QString &privProtocol = QString(),
                                const QByteArray &privPassphrase = QByteArray());

    Version version() const { return m_version; }
    bool hasPrivacy() const { return !m_privProtocol.isEmpty(); }
    const QString &community() const { return m_community; }
    const QString &user() const { return m_user; }
    const QString &authProtocol() const { return m_authProtocol; }
    const QString &privProtocol() const { return m_privProtocol; }
    const QByteArray &authPassphrase() const { return m_authPassphrase; }
    const QByteArray &privPassphrase() const { return m_privPassphrase; }

private:
    Version m_version = Version::V1;
    QString m_community;
    QString m_user;
    QString m_authProtocol;
    QString m_privProtocol;
    QByteArray m_authPassphrase;
    QByteArray m_privPassphrase;
};
