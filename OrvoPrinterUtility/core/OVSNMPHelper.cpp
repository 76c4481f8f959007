#include "OVSNMPHelper.h"

#include "OVCoreLogging.h"
#include "OVSNMPAnswer.h"
#include "OVSNMPSecurity.h"
#include "OVTaskToken.h"
#include "OrvoSettingsRules.h"

#include <net-snmp/net-snmp-config.h>
#include <net-snmp/net-snmp-includes.h>

#include <netdb.h>
#include <sys/select.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <map>
#include <mutex>
#include <string>
#include <vector>

namespace {

using Reason = OVSNMPHelper::Reason;
using Failure = OVSNMPHelper::Failure;
template <typename T> using Reading = OVSNMPHelper::Reading<T>;

constexpr long kSharedBox100Timeout = 10'000'000;
constexpr long kOneSecond = 1'000'000;
constexpr int kSleepModeRetries = 1;
constexpr int kLargeSharedBoxCount = 100;
constexpr int kSmallSharedBoxCount = 30;
constexpr int kListCount = 100;
constexpr int kColorProfileCount = 30;
constexpr int kNoSession = 1;

constexpr const char *kSharedBoxProbe = ".1.3.6.1.4.1.41871.1.2.2.2.6.1.2.100";
constexpr const char *kAdminLoginMode = ".1.3.6.1.4.1.41871.1.2.2.2.5.6.0";
constexpr const char *kSleepMode = ".1.3.6.1.4.1.41871.1.2.1.1.6.0";
constexpr const char *kMacAddress = ".1.3.6.1.4.1.41871.1.2.2.4.1.2.0";
constexpr const char *kEnabled = "1";
// The administrator login mode is on at 1 and off at 0, or at 2 where the
// printer reports it as an SNMP truth value (1 true, 2 false). A state of a
// table row may be any INTEGER: 1 is in use, every other value is not. The
// sleep mode names 1 and 2 and treats every other value alike.
constexpr OVSNMPAnswer::Range kAdminLoginModes{0, 2};

struct SessionSettings {
    long timeout = SNMP_DEFAULT_TIMEOUT;
    int retries = SNMP_DEFAULT_RETRIES;
};

// What one get request brought back: the request status, whether the printer
// answered without an error status, and the values as checked.
struct Answer {
    int status = kNoSession;
    bool answered = false;
    Reading<QStringList> values;
    QByteArray engine; // the SNMPv3 engine that answered, if it named one
    int report = 0;    // why that engine reported instead of answering
};

struct ClassArrays {
    QStringList sharedBoxState, sharedBoxName, formState, formName, barcodeAreaState,
        barcodeAreaName, colorProfileState, colorProfileName;
};

ClassArrays &classArrays() {
    static ClassArrays arrays;
    return arrays;
}

// One column of a table: its identifier prefix, the type of its values and
// the class-level array its query fills.
struct Column {
    const char *prefix;
    u_char type;
    QStringList ClassArrays::*array;
};

constexpr Column kSharedBoxStates{".1.3.6.1.4.1.41871.1.2.2.2.6.1.2", ASN_INTEGER,
                                  &ClassArrays::sharedBoxState};
constexpr Column kSharedBoxNames{".1.3.6.1.4.1.41871.1.2.2.2.6.1.3", ASN_OCTET_STR,
                                 &ClassArrays::sharedBoxName};
constexpr Column kBarcodeAreaStates{".1.3.6.1.4.1.41871.1.2.2.2.9.1.2", ASN_INTEGER,
                                    &ClassArrays::barcodeAreaState};
constexpr Column kBarcodeAreaNames{".1.3.6.1.4.1.41871.1.2.2.2.9.1.4", ASN_OCTET_STR,
                                   &ClassArrays::barcodeAreaName};
constexpr Column kFormStates{".1.3.6.1.4.1.41871.1.2.2.2.10.1.2", ASN_INTEGER,
                             &ClassArrays::formState};
constexpr Column kFormNames{".1.3.6.1.4.1.41871.1.2.2.2.10.1.4", ASN_OCTET_STR,
                            &ClassArrays::formName};
constexpr Column kColorProfileStates{".1.3.6.1.4.1.41871.1.2.2.2.11.1.2", ASN_INTEGER,
                                     &ClassArrays::colorProfileState};
constexpr Column kColorProfileNames{".1.3.6.1.4.1.41871.1.2.2.2.11.1.4", ASN_OCTET_STR,
                                    &ClassArrays::colorProfileName};

// The library is never given init_snmp(), which would read snmp.conf files
// (where a user could change timeouts and retries), load MIB files and save
// state under /var/lib/snmp. Numeric identifiers need only the bare MIB tree.
void prepareLibrary() {
    static std::once_flag once;
    std::call_once(once, [] {
        netsnmp_ds_set_boolean(NETSNMP_DS_LIBRARY_ID, NETSNMP_DS_LIB_DONT_READ_CONFIGS, 1);
        netsnmp_ds_set_boolean(NETSNMP_DS_LIBRARY_ID, NETSNMP_DS_LIB_DONT_PERSIST_STATE, 1);
        netsnmp_ds_set_boolean(NETSNMP_DS_LIBRARY_ID, NETSNMP_DS_LIB_DISABLE_PERSISTENT_LOAD, 1);
        netsnmp_ds_set_boolean(NETSNMP_DS_LIBRARY_ID, NETSNMP_DS_LIB_DISABLE_PERSISTENT_SAVE, 1);
        netsnmp_init_mib_internals();
        OVSNMPSecurity::prepareLibrary();
    });
}

using Identifiers = std::vector<std::vector<oid>>;

std::vector<oid> parsed(const QByteArray &text) {
    prepareLibrary();
    std::array<oid, MAX_OID_LEN> name{};
    size_t length = name.size();
    if (!snmp_parse_oid(text.constData(), name.data(), &length))
        return {};
    return std::vector<oid>(name.begin(), name.begin() + qsizetype(length));
}

// The identifiers of a scalar (count 0) or of rows 1..count of a column. The
// texts are fixed data, so each is parsed once, not on every request.
const Identifiers &identifiers(const char *text, int count = 0) {
    static std::mutex mutex;
    static std::map<std::pair<std::string, int>, Identifiers> cache;
    std::lock_guard lock(mutex);
    Identifiers &result = cache[{text, count}];
    if (!result.empty())
        return result;
    if (count == 0)
        result.push_back(parsed(text));
    for (int index = 1; index <= count; ++index)
        result.push_back(parsed(QByteArray(text) + '.' + QByteArray::number(index)));
    return result;
}

// Net-SNMP's own words for why a session did not open or a request failed.
void logSessionError(const char *address, netsnmp_session *session) {
    int libraryError = 0;
    int systemError = 0;
    char *text = nullptr;
    snmp_error(session, &systemError, &libraryError, &text);
    qCInfo(orvoCore) << "SNMP request to" << address << "failed:" << text;
    std::free(text);
}

void logResponseError(const char *address, const netsnmp_pdu *response) {
    if (response && response->errstat != SNMP_ERR_NOERROR)
        qCInfo(orvoCore) << "SNMP request to" << address
                         << "refused:" << snmp_errstring(int(response->errstat));
}

void logUnreadable(const char *address, const Reading<QStringList> &values) {
    if (!values.value && values.failure.reason == Reason::Unreadable)
        qCInfo(orvoCore) << "SNMP answer from" << address
                         << "cannot be read:" << values.failure.detail;
}

netsnmp_pdu *buildRequest(const Identifiers &names) {
    netsnmp_pdu *request = snmp_pdu_create(SNMP_MSG_GET);
    for (const std::vector<oid> &name : names) {
        if (!name.empty())
            snmp_add_null_var(request, name.data(), name.size());
    }
    return request;
}

// How long a wait for an answer goes without asking whether its task was
// cancelled.
constexpr long kWaitSliceMicroseconds = 50'000;

// Where the answer to a request sent with snmp_sess_async_send arrives.
struct Pending {
    bool done = false;
    int status = STAT_ERROR;
    netsnmp_pdu *response = nullptr;
    int report = 0; // why an SNMPv3 engine reported instead of answering
    QByteArray engine;
};

int received(int operation, netsnmp_session *, int, netsnmp_pdu *pdu, void *magic) {
    // A resend is news, not an end.
    if (operation == NETSNMP_CALLBACK_OP_RESEND)
        return 1;
    auto *pending = static_cast<Pending *>(magic);
    pending->done = true;
    if (operation == NETSNMP_CALLBACK_OP_RECEIVED_MESSAGE) {
        pending->engine = QByteArray(reinterpret_cast<const char *>(pdu->securityEngineID),
                                     qsizetype(pdu->securityEngineIDLen));
        if (pdu->command == SNMP_MSG_REPORT) {
            pending->report = snmpv3_get_report_type(pdu);
            return 1;
        }
        pending->status = STAT_SUCCESS;
        // The library frees its own copy when this returns.
        pending->response = snmp_clone_pdu(pdu);
    } else if (operation == NETSNMP_CALLBACK_OP_TIMED_OUT) {
        pending->status = STAT_TIMEOUT;
    }
    return 1;
}

bool stopped(const std::shared_ptr<OVTaskToken> &token) {
    return token && token->stopped();
}

// One turn of the session's event loop: reads what arrived, or lets the
// library resend or give up on a request whose time is up. Never waits
// longer than a slice, so a cancel is seen at once.
void serviceOnce(void *session) {
    int descriptors = 0;
    fd_set readable;
    FD_ZERO(&readable);
    timeval wait{0, kWaitSliceMicroseconds};
    int block = 0;
    snmp_sess_select_info(session, &descriptors, &readable, &wait, &block);
    if (wait.tv_sec > 0 || wait.tv_usec > kWaitSliceMicroseconds)
        wait = {0, kWaitSliceMicroseconds};
    const int ready = select(descriptors, &readable, nullptr, nullptr, &wait);
    if (ready > 0)
        snmp_sess_read(session, &readable);
    else if (ready == 0 || errno == EINTR)
        snmp_sess_timeout(session);
}

// snmp_sess_synch_response with the same timeouts and retries, except that
// it ends as soon as the calling thread's task is cancelled or out of time,
// which counts as no answer. Takes request in every case. pending must
// outlive the session: closing it reports a request still out there.
int awaitResponse(void *session, netsnmp_pdu *request, Pending &pending, netsnmp_pdu **response) {
    const std::shared_ptr<OVTaskToken> token = OVTaskToken::current();
    if (stopped(token) || !snmp_sess_async_send(session, request, received, &pending)) {
        snmp_free_pdu(request);
        return stopped(token) ? STAT_TIMEOUT : STAT_ERROR;
    }
    while (!pending.done && !stopped(token))
        serviceOnce(session);
    *response = pending.response;
    const int status = pending.done ? pending.status : STAT_TIMEOUT;
    // Where snmp_error() finds why, as after a synchronous request.
    if (status == STAT_TIMEOUT)
        snmp_sess_session(session)->s_snmp_errno = SNMPERR_TIMEOUT;
    return status;
}

netsnmp_session sessionRecord(OVSNMPHelper::PeerName &peerName, SessionSettings settings) {
    netsnmp_session record;
    snmp_sess_init(&record);
    record.timeout = settings.timeout;
    record.retries = settings.retries;
    record.peername = peerName.data();
    return record;
}

// One request in a session of its own, torn down before returning. The
// session is Net-SNMP's single-session kind, which shares no state with
// requests on other threads.
Answer request(const char *address, netsnmp_session &record, netsnmp_pdu *pdu,
               const OVSNMPAnswer::Expected &expected) {
    Answer answer;
    Pending pending;
    void *session = snmp_sess_open(&record);
    if (!session) {
        logSessionError(address, &record);
        snmp_free_pdu(pdu);
        return answer;
    }
    netsnmp_pdu *response = nullptr;
    {
        const OVSNMPAnswer heard(session);
        answer.status = awaitResponse(session, pdu, pending, &response);
        answer.values = pending.report ? OVSNMPSecurity::refusal(pending.report)
                                       : heard.read(answer.status, response, expected);
    }
    if (answer.status != STAT_SUCCESS)
        logSessionError(address, snmp_sess_session(session));
    logResponseError(address, response);
    logUnreadable(address, answer.values);
    // An error status, or SNMPv3's exception value for a missing object.
    const bool refused = !answer.values.value && answer.values.failure.reason == Reason::Refused;
    answer.answered = answer.status == STAT_SUCCESS && response && !refused;
    answer.engine = pending.engine;
    answer.report = pending.report;
    if (response)
        snmp_free_pdu(response);
    snmp_sess_close(session);
    return answer;
}

Answer exchangeV1(const char *address, netsnmp_session &record, const QString &community,
                  const Identifiers &names, const OVSNMPAnswer::Expected &expected) {
    const QByteArray communityBytes = community.toUtf8();
    record.version = SNMP_VERSION_1;
    record.community = reinterpret_cast<u_char *>(const_cast<char *>(communityBytes.constData()));
    record.community_len = std::strlen(communityBytes.constData());
    return request(address, record, buildRequest(names), expected);
}

// The printer's engine, from the report that a request without a user draws.
Answer discoverEngine(const char *address, netsnmp_session record) {
    OVSNMPSecurity::prepareDiscovery(record);
    return request(address, record, OVSNMPSecurity::discoveryRequest(), {ASN_NULL, 0});
}

// Whether an engine's report says it is not the one remembered: the
// printer was replaced or reset.
bool isStale(const Answer &answer) {
    return answer.report == SNMPERR_UNKNOWN_ENG_ID || answer.report == SNMPERR_NOT_IN_TIME_WINDOW;
}

Answer askAs(OVSNMPSecurity &security, const QByteArray &engine, const char *address,
             netsnmp_session &record, const Identifiers &names,
             const OVSNMPAnswer::Expected &expected) {
    security.apply(record, engine);
    return request(address, record, buildRequest(names), expected);
}

// The engine remembered for the printer is asked first; discovery comes
// before the request when there is none, and once more when the printer
// reports that it is no longer that engine.
Answer exchangeV3(const char *address, netsnmp_session &record,
                  const OVSnmpCredentials &credentials, const Identifiers &names,
                  const OVSNMPAnswer::Expected &expected) {
    OVSNMPSecurity security(credentials);
    if (const std::optional<Failure> unusable = security.failure())
        return {kNoSession, false, {std::nullopt, *unusable}, {}, 0};
    const std::lock_guard lock(OVSNMPSecurity::usersInUse());
    QByteArray engine = OVSNMPSecurity::knownEngine(record.peername);
    Answer answer;
    if (!engine.isEmpty())
        answer = askAs(security, engine, address, record, names, expected);
    if (engine.isEmpty() || isStale(answer)) {
        const Answer discovery = discoverEngine(address, record);
        engine = discovery.engine;
        answer = engine.isEmpty() ? discovery
                                  : askAs(security, engine, address, record, names, expected);
    }
    OVSNMPSecurity::rememberEngine(record.peername,
                                   answer.status == STAT_SUCCESS ? engine : QByteArray());
    return answer;
}

// One get request with the credentials' version.
Answer exchange(const char *address, const OVSnmpCredentials &credentials, SessionSettings settings,
                const Identifiers &names, const OVSNMPAnswer::Expected &expected) {
    prepareLibrary();
    OVSNMPHelper::PeerName peerName;
    if (!OVSNMPHelper::getConvertedAddress(peerName, address))
        return {};
    const OVSNMPHelper::Reading<QByteArray> host = OVSNMPHelper::resolve(address);
    if (!host.value) {
        qCInfo(orvoCore) << "SNMP request to" << address << "not sent:" << host.failure.detail;
        return {kNoSession, false, {std::nullopt, host.failure}, {}, 0};
    }
    if (!OVSNMPHelper::getConvertedAddress(peerName, host.value->constData()))
        return {};
    netsnmp_session record = sessionRecord(peerName, settings);
    if (credentials.version() == OVSnmpCredentials::Version::V3)
        return exchangeV3(address, record, credentials, names, expected);
    return exchangeV1(address, record, credentials.community(), names, expected);
}

// A scalar's one value.
Reading<QString> scalar(const Answer &answer) {
    if (!answer.values.value)
        return {std::nullopt, answer.values.failure};
    return {answer.values.value->first(), {}};
}

// Rows 1..count of a column, left in its class-level array as well (all of
// them, or none when the query fails).
Reading<QStringList> listQuery(const Column &column, int count, const char *address,
                               const OVSnmpCredentials &credentials,
                               SessionSettings settings = {}) {
    QStringList &array = classArrays().*column.array;
    array.clear();
    const Answer answer = exchange(address, credentials, settings,
                                   identifiers(column.prefix, count), {column.type, count});
    if (answer.values.value)
        array = *answer.values.value;
    return answer.values;
}

SessionSettings sharedBoxSettings(int totalCount) {
    SessionSettings settings;
    if (totalCount == kLargeSharedBoxCount)
        settings.timeout = kSharedBox100Timeout;
    return settings;
}

// Both columns hold count values once their queries succeed, so they pair up
// row by row.
Reading<QStringList> namesInUse(const Column &stateColumn, const Column &nameColumn, int count,
                                const char *address, const OVSnmpCredentials &credentials) {
    const Reading<QStringList> states = listQuery(stateColumn, count, address, credentials);
    if (!states.value)
        return states;
    const Reading<QStringList> names = listQuery(nameColumn, count, address, credentials);
    if (!names.value)
        return names;
    QStringList inUse;
    for (qsizetype index = 0; index < states.value->size(); ++index) {
        if (states.value->at(index) == kEnabled)
            inUse.append(names.value->at(index));
    }
    return {inUse, {}};
}

// The settings' own MAC address rule, which also lets an empty one pass: the
// printer has an address.
bool isMacAddress(const QString &text) {
    return !text.isEmpty() && OrvoSettingsRules::macAddress(text.toStdString()).ok();
}

} // namespace

const QStringList &OVSNMPHelper::sharedBoxStateArray() {
    return classArrays().sharedBoxState;
}
const QStringList &OVSNMPHelper::sharedBoxNameArray() {
    return classArrays().sharedBoxName;
}
const QStringList &OVSNMPHelper::formStateArray() {
    return classArrays().formState;
}
const QStringList &OVSNMPHelper::formNameArray() {
    return classArrays().formName;
}
const QStringList &OVSNMPHelper::barcodeAreaDefinitionStateArray() {
    return classArrays().barcodeAreaState;
}
const QStringList &OVSNMPHelper::barcodeAreaDefinitionNameArray() {
    return classArrays().barcodeAreaName;
}
const QStringList &OVSNMPHelper::colorProfileStateArray() {
    return classArrays().colorProfileState;
}
const QStringList &OVSNMPHelper::colorProfileNameArray() {
    return classArrays().colorProfileName;
}

int OVSNMPHelper::snmpGetSharedBoxEntryForIPAddress(const char *address,
                                                    const OVSnmpCredentials &credentials) {
    const Answer answer =
        exchange(address, credentials, {}, identifiers(kSharedBoxProbe), {ASN_INTEGER, 1});
    return answer.answered ? kLargeSharedBoxCount : kSmallSharedBoxCount;
}

bool OVSNMPHelper::snmpGetSharedBoxStateForIPAddress(const char *address,
                                                     const OVSnmpCredentials &credentials,
                                                     int totalCount) {
    return getValidatedSharedBoxStateArrayForIPAddress(address, credentials, totalCount)
        .value.has_value();
}

bool OVSNMPHelper::snmpGetSharedBoxNameForIPAddress(const char *address,
                                                    const OVSnmpCredentials &credentials,
                                                    int totalCount) {
    return getValidatedSharedBoxNameArrayForIPAddress(address, credentials, totalCount)
        .value.has_value();
}

bool OVSNMPHelper::snmpGetFormStateForIPAddress(const char *address,
                                                const OVSnmpCredentials &credentials) {
    return listQuery(kFormStates, kListCount, address, credentials).value.has_value();
}

bool OVSNMPHelper::snmpGetFormNameForIPAddress(const char *address,
                                               const OVSnmpCredentials &credentials) {
    return listQuery(kFormNames, kListCount, address, credentials).value.has_value();
}

bool OVSNMPHelper::snmpGetBarcodeAreDefinitionStateForIPAddress(
    const char *address, const OVSnmpCredentials &credentials) {
    return listQuery(kBarcodeAreaStates, kListCount, address, credentials).value.has_value();
}

bool OVSNMPHelper::snmpGetBarcodeAreDefinitionNameForIPAddress(
    const char *address, const OVSnmpCredentials &credentials) {
    return listQuery(kBarcodeAreaNames, kListCount, address, credentials).value.has_value();
}

bool OVSNMPHelper::snmpGetColorProfileStateForIPAddress(const char *address,
                                                        const OVSnmpCredentials &credentials) {
    return listQuery(kColorProfileStates, kColorProfileCount, address, credentials)
        .value.has_value();
}

bool OVSNMPHelper::snmpGetColorProfileNameForIPAddress(const char *address,
                                                       const OVSnmpCredentials &credentials) {
    return listQuery(kColorProfileNames, kColorProfileCount, address, credentials)
        .value.has_value();
}

bool OVSNMPHelper::snmpGetAdminLoginModeEnabled(const char *address,
                                                const OVSnmpCredentials &credentials) {
    return getAdminLoginModeEnabled(address, credentials).value.value_or(false);
}

OVSNMPHelper::Reading<bool>
OVSNMPHelper::getAdminLoginModeEnabled(const char *address, const OVSnmpCredentials &credentials) {
    const Reading<QString> mode =
        scalar(exchange(address, credentials, {}, identifiers(kAdminLoginMode),
                        {ASN_INTEGER, 1, kAdminLoginModes}));
    if (!mode.value)
        return {std::nullopt, mode.failure};
    return {mode.value == QString(kEnabled), {}};
}

OVSNMPHelper::Reading<QStringList> OVSNMPHelper::getValidatedSharedBoxNameArrayForIPAddress(
    const char *address, const OVSnmpCredentials &credentials, int totalCount) {
    return listQuery(kSharedBoxNames, totalCount, address, credentials,
                     sharedBoxSettings(totalCount));
}

OVSNMPHelper::Reading<QStringList> OVSNMPHelper::getValidatedSharedBoxStateArrayForIPAddress(
    const char *address, const OVSnmpCredentials &credentials, int totalCount) {
    return listQuery(kSharedBoxStates, totalCount, address, credentials,
                     sharedBoxSettings(totalCount));
}

OVSNMPHelper::Reading<QStringList>
OVSNMPHelper::getValidatedFormNameArrayForIPAddress(const char *address,
                                                    const OVSnmpCredentials &credentials) {
    return namesInUse(kFormStates, kFormNames, kListCount, address, credentials);
}

OVSNMPHelper::Reading<QStringList>
OVSNMPHelper::getValidatedBarcodeAreaNameArrayForIPAddress(const char *address,
                                                           const OVSnmpCredentials &credentials) {
    return namesInUse(kBarcodeAreaStates, kBarcodeAreaNames, kListCount, address, credentials);
}

OVSNMPHelper::Reading<QStringList>
OVSNMPHelper::getValidatedColorProfileForIPAddress(const char *address,
                                                   const OVSnmpCredentials &credentials) {
    return namesInUse(kColorProfileStates, kColorProfileNames, kColorProfileCount, address,
                      credentials);
}

int OVSNMPHelper::getSleepMode(const char *address, const OVSnmpCredentials &credentials,
                               int &sleepMode) {
    sleepMode = -1;
    const Answer answer = exchange(address, credentials, {kOneSecond, kSleepModeRetries},
                                   identifiers(kSleepMode), {ASN_INTEGER, 1});
    if (const auto mode = scalar(answer).value)
        sleepMode = mode->toInt();
    return answer.report ? statusUserRefused : answer.status;
}

OVSNMPHelper::Reading<QString> OVSNMPHelper::getMacAddress(const char *address,
                                                           const OVSnmpCredentials &credentials) {
    SessionSettings settings;
    settings.timeout = kOneSecond;
    const Reading<QString> mac = scalar(
        exchange(address, credentials, settings, identifiers(kMacAddress), {ASN_OCTET_STR, 1}));
    if (mac.value && !isMacAddress(*mac.value))
        return {std::nullopt,
                {Reason::Unreadable,
                 QStringLiteral("a MAC address that is not six two-digit hexadecimal octets")}};
    return mac;
}

void OVSNMPHelper::forgetEngines() {
    const std::lock_guard lock(OVSNMPSecurity::usersInUse());
    OVSNMPSecurity::forgetEngines();
}

// An empty address names no printer (Net-SNMP would take it for localhost),
// so it is refused like one that does not fit.
bool OVSNMPHelper::getConvertedAddress(PeerName &peerName, const char *sourceAddr) {
    peerName.fill('\0');
    const QByteArray address = withoutBrackets(sourceAddr);
    if (address.isEmpty())
        return false;
    const char *format = address.contains(':') ? "udp6:[%s]:161" : "%s";
    const int written =
        std::snprintf(peerName.data(), peerName.size(), format, address.constData());
    if (written < 0 || size_t(written) >= peerName.size()) {
        peerName.fill('\0');
        return false;
    }
    return true;
}

// The session is opened on the numeric address found here: a name costs one
// lookup per request rather than two, and the request goes to the address
// that was checked, not to what a second lookup answers a moment later.
OVSNMPHelper::Reading<QByteArray> OVSNMPHelper::resolve(const char *address) {
    addrinfo hints{};
    hints.ai_socktype = SOCK_DGRAM;
    addrinfo *found = nullptr;
    int error = getaddrinfo(withoutBrackets(address).constData(), nullptr, &hints, &found);
    char numeric[NI_MAXHOST] = {};
    if (error == 0) {
        const addrinfo *chosen = found;
        for (const addrinfo *each = found; each; each = each->ai_next)
            if (each->ai_family == AF_INET) {
                chosen = each;
                break;
            }
        error = getnameinfo(chosen->ai_addr, chosen->ai_addrlen, numeric, sizeof numeric, nullptr,
                            0, NI_NUMERICHOST);
        freeaddrinfo(found);
    }
    if (error == 0)
        return {QByteArray(numeric), {}};
    return {std::nullopt,
            Failure{Reason::UnknownHost, QStringLiteral("no host is known as that name (%1)")
                                             .arg(QString::fromLocal8Bit(gai_strerror(error)))}};
}

QByteArray OVSNMPHelper::withoutBrackets(const QByteArray &address) {
    if (address.size() >= 2 && address.startsWith('[') && address.endsWith(']'))
        return address.mid(1, address.size() - 2);
    return address;
}
