#include "OVSNMPHelper.h"

#include "OVCoreLogging.h"

#include <QStringDecoder>

#include <net-snmp/net-snmp-config.h>
#include <net-snmp/net-snmp-includes.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <map>
#include <mutex>
#include <string>
#include <vector>

namespace {

constexpr long kSharedBox100Timeout = 10'000'000;
constexpr long kOneSecond = 1'000'000;
constexpr int kSleepModeRetries = 1;
constexpr int kLargeSharedBoxCount = 100;
constexpr int kSmallSharedBoxCount = 30;
constexpr int kListCount = 100;
constexpr int kColorProfileCount = 30;
constexpr size_t kTextBufferSize = 4096;
constexpr int kNoSession = 1;

constexpr const char *kSharedBoxState = ".1.3.6.1.4.1.41871.1.2.2.2.6.1.2";
constexpr const char *kSharedBoxName = ".1.3.6.1.4.1.41871.1.2.2.2.6.1.3";
constexpr const char *kSharedBoxProbe = ".1.3.6.1.4.1.41871.1.2.2.2.6.1.2.100";
constexpr const char *kBarcodeAreaState = ".1.3.6.1.4.1.41871.1.2.2.2.9.1.2";
constexpr const char *kBarcodeAreaName = ".1.3.6.1.4.1.41871.1.2.2.2.9.1.4";
constexpr const char *kFormState = ".1.3.6.1.4.1.41871.1.2.2.2.10.1.2";
constexpr const char *kFormName = ".1.3.6.1.4.1.41871.1.2.2.2.10.1.4";
constexpr const char *kColorProfileState = ".1.3.6.1.4.1.41871.1.2.2.2.11.1.2";
constexpr const char *kColorProfileName = ".1.3.6.1.4.1.41871.1.2.2.2.11.1.4";
constexpr const char *kAdminLoginMode = ".1.3.6.1.4.1.41871.1.2.2.2.5.6.0";
constexpr const char *kSleepMode = ".1.3.6.1.4.1.41871.1.2.1.1.6.0";
constexpr const char *kMacAddress = ".1.3.6.1.4.1.41871.1.2.2.4.1.2.0";
constexpr const char *kEnabled = "1";

struct SessionSettings {
    long timeout = SNMP_DEFAULT_TIMEOUT;
    int retries = SNMP_DEFAULT_RETRIES;
};

// What one get request brought back. values holds one entry per variable of
// a readable answer (success, no error, first variable of the expected type);
// an entry is empty where that variable could not be read.
struct Answer {
    int status = kNoSession;
    bool answered = false;
    QList<std::optional<QString>> values;

    bool complete(qsizetype count) const {
        return values.size() == count && std::all_of(values.cbegin(), values.cend(),
                                                     [](const auto &v) { return v.has_value(); });
    }
    std::optional<QString> first() const {
        return values.isEmpty() ? std::nullopt : values.first();
    }
};

struct ClassArrays {
    QStringList sharedBoxState, sharedBoxName, formState, formName, barcodeAreaState,
        barcodeAreaName, colorProfileState, colorProfileName;
};

ClassArrays &classArrays() {
    static ClassArrays arrays;
    return arrays;
}

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

// Text up to the first zero byte, as UTF-8; nothing if it is not UTF-8.
std::optional<QString> decodeUtf8(const char *text) {
    QStringDecoder decoder(QStringConverter::Utf8, QStringConverter::Flag::Stateless |
                                                       QStringConverter::Flag::ConvertInitialBom);
    QString decoded = decoder(QByteArrayView(text, qsizetype(std::strlen(text))));
    if (decoder.hasError())
        return std::nullopt;
    return decoded.isNull() ? QString("") : decoded;
}

// A variable of another type than the first one's is left unread rather than
// reinterpreted, so an answer of mixed types can never be read out of bounds.
std::optional<QString> readVariable(const netsnmp_variable_list *var, u_char type) {
    if (var->type != type)
        return std::nullopt;
    if (type == ASN_INTEGER)
        return QString::number(*var->val.integer);
    if (var->val_len >= kTextBufferSize)
        return std::nullopt;
    std::array<char, kTextBufferSize> text{};
    if (var->val_len > 0)
        std::memcpy(text.data(), var->val.string, var->val_len);
    return decodeUtf8(text.data());
}

void readResponse(const netsnmp_pdu *response, u_char type, Answer &answer) {
    answer.answered =
        answer.status == STAT_SUCCESS && response && response->errstat == SNMP_ERR_NOERROR;
    if (!answer.answered || !response->variables || response->variables->type != type)
        return;
    for (const netsnmp_variable_list *var = response->variables; var; var = var->next_variable)
        answer.values.append(readVariable(var, type));
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

netsnmp_pdu *buildRequest(const Identifiers &names) {
    netsnmp_pdu *request = snmp_pdu_create(SNMP_MSG_GET);
    for (const std::vector<oid> &name : names) {
        if (!name.empty())
            snmp_add_null_var(request, name.data(), name.size());
    }
    return request;
}

// One synchronous get request in its own session, torn down before returning.
Answer exchange(const char *address, const QString &community, SessionSettings settings,
                const Identifiers &names, u_char type) {
    prepareLibrary();
    Answer answer;
    OVSNMPHelper::PeerName peerName;
    if (!OVSNMPHelper::getConvertedAddress(peerName, address))
        return answer;
    const QByteArray communityBytes = community.toUtf8();
    netsnmp_session settingsRecord;
    snmp_sess_init(&settingsRecord);
    settingsRecord.version = SNMP_VERSION_1;
    settingsRecord.community =
        reinterpret_cast<u_char *>(const_cast<char *>(communityBytes.constData()));
    settingsRecord.community_len = std::strlen(communityBytes.constData());
    settingsRecord.timeout = settings.timeout;
    settingsRecord.retries = settings.retries;
    settingsRecord.peername = peerName.data();
    netsnmp_session *session = snmp_open(&settingsRecord);
    if (!session) {
        logSessionError(address, &settingsRecord);
        return answer;
    }
    netsnmp_pdu *response = nullptr;
    answer.status = snmp_synch_response(session, buildRequest(names), &response);
    if (answer.status != STAT_SUCCESS)
        logSessionError(address, session);
    logResponseError(address, response);
    readResponse(response, type, answer);
    if (response)
        snmp_free_pdu(response);
    snmp_close(session);
    return answer;
}

bool listQuery(QStringList &array, const char *prefix, int count, u_char type, const char *address,
               const QString &community, SessionSettings settings = {}) {
    array.clear();
    const Answer answer = exchange(address, community, settings, identifiers(prefix, count), type);
    if (!answer.complete(count))
        return false;
    for (const auto &value : answer.values)
        array.append(*value);
    return true;
}

SessionSettings sharedBoxSettings(int totalCount) {
    SessionSettings settings;
    if (totalCount == kLargeSharedBoxCount)
        settings.timeout = kSharedBox100Timeout;
    return settings;
}

using ListQuery = bool (*)(const char *, const QString &);

std::optional<QStringList> namesInUse(ListQuery stateQuery, ListQuery nameQuery,
                                      const QStringList &states, const QStringList &names,
                                      const char *address, const QString &community) {
    if (!stateQuery(address, community) || !nameQuery(address, community))
        return std::nullopt;
    if (states.size() != names.size())
        return std::nullopt;
    QStringList inUse;
    for (qsizetype index = 0; index < states.size(); ++index) {
        if (states[index] == kEnabled)
            inUse.append(names[index]);
    }
    return inUse;
}

std::optional<QStringList> nonEmptyCopy(bool succeeded, const QStringList &array) {
    if (!succeeded || array.isEmpty())
        return std::nullopt;
    return QStringList(array);
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

int OVSNMPHelper::snmpGetSharedBoxEntryForIPAddress(const char *address, const QString &community) {
    const Answer answer =
        exchange(address, community, {}, identifiers(kSharedBoxProbe), ASN_INTEGER);
    return answer.answered ? kLargeSharedBoxCount : kSmallSharedBoxCount;
}

bool OVSNMPHelper::snmpGetSharedBoxStateForIPAddress(const char *address, const QString &community,
                                                     int totalCount) {
    return listQuery(classArrays().sharedBoxState, kSharedBoxState, totalCount, ASN_INTEGER,
                     address, community, sharedBoxSettings(totalCount));
}

bool OVSNMPHelper::snmpGetSharedBoxNameForIPAddress(const char *address, const QString &community,
                                                    int totalCount) {
    return listQuery(classArrays().sharedBoxName, kSharedBoxName, totalCount, ASN_OCTET_STR,
                     address, community, sharedBoxSettings(totalCount));
}

bool OVSNMPHelper::snmpGetFormStateForIPAddress(const char *address, const QString &community) {
    return listQuery(classArrays().formState, kFormState, kListCount, ASN_INTEGER, address,
                     community);
}

bool OVSNMPHelper::snmpGetFormNameForIPAddress(const char *address, const QString &community) {
    return listQuery(classArrays().formName, kFormName, kListCount, ASN_OCTET_STR, address,
                     community);
}

bool OVSNMPHelper::snmpGetBarcodeAreDefinitionStateForIPAddress(const char *address,
                                                                const QString &community) {
    return listQuery(classArrays().barcodeAreaState, kBarcodeAreaState, kListCount, ASN_INTEGER,
                     address, community);
}

bool OVSNMPHelper::snmpGetBarcodeAreDefinitionNameForIPAddress(const char *address,
                                                               const QString &community) {
    return listQuery(classArrays().barcodeAreaName, kBarcodeAreaName, kListCount, ASN_OCTET_STR,
                     address, community);
}

bool OVSNMPHelper::snmpGetColorProfileStateForIPAddress(const char *address,
                                                        const QString &community) {
    return listQuery(classArrays().colorProfileState, kColorProfileState, kColorProfileCount,
                     ASN_INTEGER, address, community);
}

bool OVSNMPHelper::snmpGetColorProfileNameForIPAddress(const char *address,
                                                       const QString &community) {
    return listQuery(classArrays().colorProfileName, kColorProfileName, kColorProfileCount,
                     ASN_OCTET_STR, address, community);
}

bool OVSNMPHelper::snmpGetAdminLoginModeEnabled(const char *address, const QString &community) {
    const Answer answer =
        exchange(address, community, {}, identifiers(kAdminLoginMode), ASN_INTEGER);
    return answer.first() == QString(kEnabled);
}

bool OVSNMPHelper::getAdminLoginModeEnabled(const char *address, const QString &community) {
    return snmpGetAdminLoginModeEnabled(address, community);
}

std::optional<QStringList>
OVSNMPHelper::getValidatedSharedBoxNameArrayForIPAddress(const char *address,
                                                         const QString &community, int totalCount) {
    const bool succeeded = snmpGetSharedBoxNameForIPAddress(address, community, totalCount);
    return nonEmptyCopy(succeeded, sharedBoxNameArray());
}

std::optional<QStringList> OVSNMPHelper::getValidatedSharedBoxStateArrayForIPAddress(
    const char *address, const QString &community, int totalCount) {
    const bool succeeded = snmpGetSharedBoxStateForIPAddress(address, community, totalCount);
    return nonEmptyCopy(succeeded, sharedBoxStateArray());
}

std::optional<QStringList>
OVSNMPHelper::getValidatedFormNameArrayForIPAddress(const char *address, const QString &community) {
    return namesInUse(snmpGetFormStateForIPAddress, snmpGetFormNameForIPAddress, formStateArray(),
                      formNameArray(), address, community);
}

std::optional<QStringList>
OVSNMPHelper::getValidatedBarcodeAreaNameArrayForIPAddress(const char *address,
                                                           const QString &community) {
    return namesInUse(
        snmpGetBarcodeAreDefinitionStateForIPAddress, snmpGetBarcodeAreDefinitionNameForIPAddress,
        barcodeAreaDefinitionStateArray(), barcodeAreaDefinitionNameArray(), address, community);
}

std::optional<QStringList>
OVSNMPHelper::getValidatedColorProfileForIPAddress(const char *address, const QString &community) {
    return namesInUse(snmpGetColorProfileStateForIPAddress, snmpGetColorProfileNameForIPAddress,
                      colorProfileStateArray(), colorProfileNameArray(), address, community);
}

int OVSNMPHelper::getSleepMode(const char *address, const QString &community, int &sleepMode) {
    sleepMode = -1;
    const Answer answer = exchange(address, community, {kOneSecond, kSleepModeRetries},
                                   identifiers(kSleepMode), ASN_INTEGER);
    if (const auto mode = answer.first())
        sleepMode = int(mode->toLong());
    return answer.status;
}

QString OVSNMPHelper::getMacAddress(const char *address, const QString &community) {
    SessionSettings settings;
    settings.timeout = kOneSecond;
    const Answer answer =
        exchange(address, community, settings, identifiers(kMacAddress), ASN_OCTET_STR);
    return answer.first().value_or(QString());
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

QByteArray OVSNMPHelper::withoutBrackets(const QByteArray &address) {
    if (address.size() >= 2 && address.startsWith('[') && address.endsWith(']'))
        return address.mid(1, address.size() - 2);
    return address;
}
