#include "OVSNMPSecurity.h"

#include "OVSNMPAnswer.h"

#include <net-snmp/library/keytools.h>
#include <net-snmp/library/snmpusm.h>
#include <net-snmp/library/transform_oids.h>

#include <algorithm>
#include <cstring>
#include <map>
#include <string>
#include <tuple>
#include <utility>

namespace {

using Reason = OVSNMPHelper::Reason;

// Net-SNMP refuses to make a key from a shorter passphrase.
constexpr qsizetype kShortestPassphrase = 8;

std::map<std::string, QByteArray> &engines() {
    static std::map<std::string, QByteArray> known;
    return known;
}

OVSNMPHelper::Failure failed(Reason reason, const char *detail) {
    return {reason, QString::fromLatin1(detail)};
}

} // namespace

OVSNMPSecurity::OVSNMPSecurity(const OVSnmpCredentials &credentials)
    : m_user(credentials.user().toUtf8()) {
    static const Protocol auth[] = {
        {"SHA-256", usmHMAC192SHA256AuthProtocol, OID_LENGTH(usmHMAC192SHA256AuthProtocol)},
        {"SHA-512", usmHMAC384SHA512AuthProtocol, OID_LENGTH(usmHMAC384SHA512AuthProtocol)},
        {"SHA-384", usmHMAC256SHA384AuthProtocol, OID_LENGTH(usmHMAC256SHA384AuthProtocol)},
        {"SHA-224", usmHMAC128SHA224AuthProtocol, OID_LENGTH(usmHMAC128SHA224AuthProtocol)},
        {"SHA-1", usmHMACSHA1AuthProtocol, OID_LENGTH(usmHMACSHA1AuthProtocol)},
        {"MD5", usmHMACMD5AuthProtocol, OID_LENGTH(usmHMACMD5AuthProtocol)}};
    static const Protocol priv[] = {
        {"AES-128", usmAESPrivProtocol, OID_LENGTH(usmAESPrivProtocol)},
        {"AES-256", usmAES256PrivProtocol, OID_LENGTH(usmAES256PrivProtocol)},
        {"AES-192", usmAES192PrivProtocol, OID_LENGTH(usmAES192PrivProtocol)},
        {"DES", usmDESPrivProtocol, OID_LENGTH(usmDESPrivProtocol)}};
    m_auth = protocolNamed(auth, credentials.authProtocol());
    m_priv = credentials.hasPrivacy() ? protocolNamed(priv, credentials.privProtocol()) : nullptr;
    if (m_user.isEmpty())
        m_failure = failed(Reason::UnknownUser, "no SNMPv3 user name");
    else if (!m_auth || (credentials.hasPrivacy() && !m_priv))
        m_failure = failed(Reason::UnsupportedSecurityLevel, "a protocol this program lacks");
    else if (!makeKey(credentials.authPassphrase(), m_authKey, m_authKeyLength) ||
             (m_priv && !makeKey(credentials.privPassphrase(), m_privKey, m_privKeyLength)))
        m_failure = failed(Reason::WrongPassphrase, "a passphrase of fewer than 8 characters");
}

// Keys are secrets too: they do not stay in freed memory.
OVSNMPSecurity::~OVSNMPSecurity() {
    std::fill(m_authKey.begin(), m_authKey.end(), 0);
    std::fill(m_privKey.begin(), m_privKey.end(), 0);
}

const OVSNMPSecurity::Protocol *OVSNMPSecurity::protocolNamed(std::span<const Protocol> protocols,
                                                              const QString &name) {
    const auto found = std::find_if(protocols.begin(), protocols.end(),
                                    [&](const Protocol &p) { return name == p.name; });
    return found == protocols.end() ? nullptr : &*found;
}

// The user's key (Ku) from a passphrase, with the authentication hash, as
// both keys are made; the library localizes it to the engine. Making one
// hashes a megabyte on purpose, which every request of a fetch would repeat:
// each key is made once per process and kept in memory only.
bool OVSNMPSecurity::makeKey(const QByteArray &passphrase, Key &key, size_t &length) const {
    if (passphrase.size() < kShortestPassphrase)
        return false;
    static std::mutex mutex;
    static std::map<QByteArray, std::pair<Key, size_t>> made;
    const std::lock_guard lock(mutex);
    const QByteArray name = QByteArray(m_auth->name) + '\0' + passphrase;
    if (const auto found = made.find(name); found != made.end()) {
        std::tie(key, length) = found->second;
        return true;
    }
    length = key.size();
    if (generate_Ku(m_auth->identifier, u_int(m_auth->length),
                    reinterpret_cast<const u_char *>(passphrase.constData()),
                    size_t(passphrase.size()), key.data(), &length) != SNMPERR_SUCCESS)
        return false;
    made[name] = {key, length};
    return true;
}

void OVSNMPSecurity::apply(netsnmp_session &record, const QByteArray &engine) {
    m_engine = engine;
    record.version = SNMP_VERSION_3;
    record.securityModel = SNMP_SEC_MODEL_USM;
    record.securityName = m_user.data();
    record.securityNameLen = size_t(m_user.size());
    record.securityLevel = m_priv ? SNMP_SEC_LEVEL_AUTHPRIV : SNMP_SEC_LEVEL_AUTHNOPRIV;
    record.securityEngineID = reinterpret_cast<u_char *>(m_engine.data());
    record.securityEngineIDLen = size_t(m_engine.size());
    record.contextEngineID = record.securityEngineID;
    record.contextEngineIDLen = record.securityEngineIDLen;
    record.securityAuthProto = const_cast<oid *>(m_auth->identifier);
    record.securityAuthProtoLen = m_auth->length;
    std::memcpy(record.securityAuthKey, m_authKey.data(), m_authKeyLength);
    record.securityAuthKeyLen = m_authKeyLength;
    if (m_priv) {
        record.securityPrivProto = const_cast<oid *>(m_priv->identifier);
        record.securityPrivProtoLen = m_priv->length;
        std::memcpy(record.securityPrivKey, m_privKey.data(), m_privKeyLength);
        record.securityPrivKeyLen = m_privKeyLength;
    }
    forgetUser(m_engine);
}

// The session makes the library's user from its own record only when the
// library has none for this engine and name; one left by an earlier request
// would keep that request's keys.
void OVSNMPSecurity::forgetUser(const QByteArray &engine) const {
    for (usmUser *user = usm_get_userList(); user; user = user->next) {
        if (user->name && m_user == user->name &&
            QByteArray(reinterpret_cast<const char *>(user->engineID),
                       qsizetype(user->engineIDLen)) == engine) {
            usm_remove_user(user);
            user->next = user->prev = nullptr;
            usm_free_user(user);
            return;
        }
    }
}

// The library's security modules without init_snmp(), which would read
// configuration files: the user-based one, and the user without a name
// that engine discovery sends as.
void OVSNMPSecurity::prepareLibrary() {
    // The name the modules file their (unread) configuration under.
    netsnmp_ds_set_string(NETSNMP_DS_LIBRARY_ID, NETSNMP_DS_LIB_APPTYPE, "orvo-printer-utility");
    init_snmpv3(nullptr);
    snmp_call_callbacks(SNMP_CALLBACK_LIBRARY, SNMP_CALLBACK_POST_PREMIB_READ_CONFIG, nullptr);
    OVSNMPAnswer::keepScopedPdus();
}

void OVSNMPSecurity::prepareDiscovery(netsnmp_session &record) {
    static char noName[] = "";
    record.version = SNMP_VERSION_3;
    record.securityModel = SNMP_SEC_MODEL_USM;
    record.securityLevel = SNMP_SEC_LEVEL_NOAUTH;
    record.securityName = noName;
    record.securityNameLen = 0;
    record.securityEngineIDLen = 0;
    record.contextEngineIDLen = 0;
    // Discovered here, on the request's own loop, rather than in snmp_sess_open.
    record.flags |= SNMP_FLAGS_DONT_PROBE;
}

netsnmp_pdu *OVSNMPSecurity::discoveryRequest() {
    netsnmp_pdu *pdu = snmp_pdu_create(SNMP_MSG_GET);
    pdu->version = SNMP_VERSION_3;
    pdu->securityModel = SNMP_SEC_MODEL_USM;
    pdu->securityLevel = SNMP_SEC_LEVEL_NOAUTH;
    pdu->securityName = strdup("");
    pdu->securityNameLen = 0;
    return pdu;
}

OVSNMPHelper::Reading<QStringList> OVSNMPSecurity::refusal(int report) {
    switch (report) {
    case SNMPERR_UNKNOWN_USER_NAME:
        return {std::nullopt, failed(Reason::UnknownUser, "the printer has no such SNMPv3 user")};
    case SNMPERR_AUTHENTICATION_FAILURE:
        return {std::nullopt,
                failed(Reason::WrongPassphrase, "the authentication passphrase does not match")};
    case SNMPERR_DECRYPTION_ERR:
        return {std::nullopt,
                failed(Reason::WrongPassphrase, "the privacy passphrase does not match")};
    case SNMPERR_UNSUPPORTED_SEC_LEVEL:
        return {std::nullopt, failed(Reason::UnsupportedSecurityLevel,
                                     "the user is not set up for this security level")};
    default:
        return {std::nullopt, {Reason::Refused, QString::fromUtf8(snmp_api_errstring(report))}};
    }
}

std::mutex &OVSNMPSecurity::usersInUse() {
    static std::mutex mutex;
    return mutex;
}

QByteArray OVSNMPSecurity::knownEngine(const char *peerName) {
    const auto found = engines().find(peerName);
    return found == engines().end() ? QByteArray() : found->second;
}

void OVSNMPSecurity::forgetEngines() {
    engines().clear();
}

void OVSNMPSecurity::rememberEngine(const char *peerName, const QByteArray &engine) {
    if (engine.isEmpty())
        engines().erase(peerName);
    else
        engines()[peerName] = engine;
}
