#pragma once

#include "OVSNMPHelper.h"
#include "OVSnmpCredentials.h"

#include <net-snmp/net-snmp-config.h>
#include <net-snmp/net-snmp-includes.h>

#include <QByteArray>

#include <array>
#include <mutex>
#include <optional>
#include <span>

// The SNMPv3 user-based security of one request: the user, the security
// level and the keys, made from the passphrases before anything is sent.
//
// Net-SNMP keeps its users and the printers' engine times process-wide, so
// every SNMPv3 request holds usersInUse() from its engine discovery to its
// answer, and each request puts its own keys into the library's user list:
// a passphrase typed anew replaces the old one at once.
class OVSNMPSecurity {
public:
    explicit OVSNMPSecurity(const OVSnmpCredentials &credentials);
    ~OVSNMPSecurity();
    OVSNMPSecurity(const OVSNMPSecurity &) = delete;
    OVSNMPSecurity &operator=(const OVSNMPSecurity &) = delete;

    // Why nothing can be sent with these credentials: a protocol this
    // program does not know, no user, or a passphrase too short for a key.
    std::optional<OVSNMPHelper::Failure> failure() const { return m_failure; }
    // Makes a session record ask as this user of the engine; the record
    // points into this object from then on.
    void apply(netsnmp_session &record, const QByteArray &engine);

    // Once per process, before any SNMPv3 session opens.
    static void prepareLibrary();
    // A session record and the request that draw an engine's report of
    // itself, without a user.
    static void prepareDiscovery(netsnmp_session &record);
    static netsnmp_pdu *discoveryRequest();
    // The failure an engine's report stands for (snmpv3_get_report_type).
    static OVSNMPHelper::Reading<QStringList> refusal(int report);

    static std::mutex &usersInUse();
    // The engine last heard at a peer; empty when none or after a request
    // that got no answer (the printer may have changed). Only with
    // usersInUse() held.
    static QByteArray knownEngine(const char *peerName);
    static void rememberEngine(const char *peerName, const QByteArray &engine);
    static void forgetEngines();

private:
    struct Protocol {
        const char *name;
        const oid *identifier;
        size_t length;
    };
    static const Protocol *protocolNamed(std::span<const Protocol> protocols, const QString &name);
    using Key = std::array<u_char, USM_AUTH_KU_LEN>;
    bool makeKey(const QByteArray &passphrase, Key &key, size_t &length) const;
    void forgetUser(const QByteArray &engine) const;

    QByteArray m_user;
    QByteArray m_engine;
    const Protocol *m_auth = nullptr;
    const Protocol *m_priv = nullptr;
    Key m_authKey{};
    Key m_privKey{};
    size_t m_authKeyLength = 0;
    size_t m_privKeyLength = 0;
    std::optional<OVSNMPHelper::Failure> m_failure;
};
