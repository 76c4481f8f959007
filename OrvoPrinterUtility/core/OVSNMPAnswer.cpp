#include "OVSNMPAnswer.h"

#include <QByteArrayView>
#include <QStringDecoder>

#include <optional>

namespace {

using Reason = OVSNMPHelper::Reason;
template <typename T> using Reading = OVSNMPHelper::Reading<T>;

constexpr size_t kTextLimit = 4096;
constexpr qsizetype kInteger32Octets = 4;

// The answer of the request running on this thread.
thread_local OVSNMPAnswer *listening = nullptr;
// The user-based security module's own decoding.
SecmodInMsg *usmDecode = nullptr;

template <typename T> Reading<T> unreadable(const QString &detail) {
    return {std::nullopt, {Reason::Unreadable, detail}};
}

// One BER element: its tag and its contents.
struct Element {
    quint8 tag = 0;
    QByteArrayView contents;
};

// The element at the front of data, which then starts after it.
std::optional<Element> take(QByteArrayView &data) {
    if (data.size() < 2)
        return std::nullopt;
    qsizetype head = 2;
    qsizetype length = quint8(data[1]);
    if (length & 0x80) {
        const qsizetype octets = length & 0x7f;
        if (octets == 0 || octets > 4 || data.size() < head + octets)
            return std::nullopt;
        for (length = 0; head < 2 + octets; ++head)
            length = length << 8 | quint8(data[head]);
    }
    if (data.size() - head < length)
        return std::nullopt;
    const Element element{quint8(data[0]), data.sliced(head, length)};
    data = data.sliced(head + length);
    return element;
}

// Every element of a constructed element's contents; nothing if they do not
// fill it exactly.
QList<Element> elements(QByteArrayView contents) {
    QList<Element> list;
    while (!contents.isEmpty()) {
        const std::optional<Element> element = take(contents);
        if (!element)
            return {};
        list.append(*element);
    }
    return list;
}

// Whether every integer value of a response fits an SNMP INTEGER as sent:
// Message { version, community, PDU { request-id, error-status,
// error-index, { { name, value } ... } } }, or for SNMPv3 the scoped PDU
// { contextEngineID, contextName, PDU }. BER writes an integer in as few
// octets as it takes, so more than four hold more than 32 bits.
bool integersFit(QByteArrayView datagram) {
    const std::optional<Element> message = take(datagram);
    const QList<Element> parts = message ? elements(message->contents) : QList<Element>();
    const QList<Element> pdu = parts.size() == 3 ? elements(parts[2].contents) : QList<Element>();
    if (pdu.size() != 4)
        return false;
    for (const Element &binding : elements(pdu[3].contents)) {
        const QList<Element> pair = elements(binding.contents);
        if (pair.size() != 2 ||
            (pair[1].tag == ASN_INTEGER && pair[1].contents.size() > kInteger32Octets))
            return false;
    }
    return true;
}

QString typeName(u_char type) {
    if (type == ASN_INTEGER)
        return QStringLiteral("a number");
    if (type == ASN_OCTET_STR)
        return QStringLiteral("a text");
    return QStringLiteral("a value of type 0x%1").arg(type, 2, 16, QChar('0'));
}

// SNMPv3, like v2c, answers a missing object inside a successful response
// with an exception in place of its value, where v1 sets noSuchName.
const netsnmp_variable_list *firstException(const netsnmp_pdu *response) {
    for (const netsnmp_variable_list *var = response->variables; var; var = var->next_variable) {
        if (var->type == SNMP_NOSUCHOBJECT || var->type == SNMP_NOSUCHINSTANCE ||
            var->type == SNMP_ENDOFMIBVIEW)
            return var;
    }
    return nullptr;
}

QString exceptionName(u_char type) {
    if (type == SNMP_NOSUCHOBJECT)
        return QStringLiteral("no such object");
    return type == SNMP_NOSUCHINSTANCE ? QStringLiteral("no such instance")
                                       : QStringLiteral("end of MIB view");
}

Reading<QString> readInteger(long value, OVSNMPAnswer::Range range) {
    if (value < range.lowest || value > range.highest)
        return unreadable<QString>(QStringLiteral("%1 where a number from %2 to %3 belongs")
                                       .arg(value)
                                       .arg(range.lowest)
                                       .arg(range.highest));
    return {QString::number(value), {}};
}

// A text ends at its first zero byte, as a C string would: printers may send
// the terminator with it.
Reading<QString> readText(const netsnmp_variable_list *var) {
    if (var->val_len >= kTextLimit)
        return unreadable<QString>(QStringLiteral("a text of %1 bytes, longer than %2")
                                       .arg(var->val_len)
                                       .arg(kTextLimit - 1));
    QByteArrayView text(reinterpret_cast<const char *>(var->val.string), qsizetype(var->val_len));
    const qsizetype end = text.indexOf('\0');
    text = text.first(end < 0 ? text.size() : end);
    QStringDecoder decoder(QStringConverter::Utf8, QStringConverter::Flag::Stateless |
                                                       QStringConverter::Flag::ConvertInitialBom);
    const QString decoded = decoder(text);
    if (decoder.hasError())
        return unreadable<QString>(QStringLiteral("a text that is not UTF-8"));
    return {decoded.isNull() ? QString("") : decoded, {}};
}

Reading<QString> readVariable(const netsnmp_variable_list *var,
                              const OVSNMPAnswer::Expected &expected) {
    if (var->type != expected.type)
        return unreadable<QString>(QStringLiteral("%1 where %2 belongs")
                                       .arg(typeName(var->type), typeName(expected.type)));
    if (var->type == ASN_INTEGER)
        return readInteger(*var->val.integer, expected.range);
    return readText(var);
}

} // namespace

OVSNMPAnswer::OVSNMPAnswer(void *session)
    : m_transport(snmp_sess_transport(session))
    , m_receive(m_transport->f_recv) {
    listening = this;
    m_transport->f_recv = receive;
}

OVSNMPAnswer::~OVSNMPAnswer() {
    m_transport->f_recv = m_receive;
    listening = nullptr;
}

// The transport's own receiving, keeping what it received.
int OVSNMPAnswer::receive(netsnmp_transport *transport, void *buffer, int size, void **opaque,
                          int *opaqueLength) {
    const int received = listening->m_receive(transport, buffer, size, opaque, opaqueLength);
    if (received > 0) {
        listening->m_datagram = QByteArray(static_cast<const char *>(buffer), received);
        listening->m_scopedPdu = QByteArray();
    }
    return received;
}

void OVSNMPAnswer::keepScopedPdus() {
    snmp_secmod_def *usm = find_sec_mod(USM_SEC_MODEL_NUMBER);
    if (!usm || usmDecode)
        return;
    usmDecode = usm->decode;
    usm->decode = decode;
}

// The module's own decoding, keeping the scoped PDU it found.
int OVSNMPAnswer::decode(snmp_secmod_incoming_params *params) {
    const int result = usmDecode(params);
    if (listening && result == SNMPERR_SUCCESS && *params->scopedPdu)
        listening->m_scopedPdu = QByteArray(reinterpret_cast<const char *>(*params->scopedPdu),
                                            qsizetype(*params->scopedPduLen));
    return result;
}

Reading<QStringList> OVSNMPAnswer::read(int status, const netsnmp_pdu *response,
                                        const Expected &expected) const {
    // Net-SNMP drops what it cannot parse and waits on: an answer came all
    // the same.
    if (status != STAT_SUCCESS || !response)
        return m_datagram.isNull() ? Reading<QStringList>{}
                                   : unreadable<QStringList>(QStringLiteral(
                                         "an answer that is not an SNMP response to the request"));
    if (response->errstat != SNMP_ERR_NOERROR)
        return {std::nullopt,
                {Reason::Refused, QString::fromUtf8(snmp_errstring(int(response->errstat)))}};
    if (const netsnmp_variable_list *missing = firstException(response))
        return {std::nullopt, {Reason::Refused, exceptionName(missing->type)}};
    if (!integersFit(m_scopedPdu.isNull() ? m_datagram : m_scopedPdu))
        return unreadable<QStringList>(QStringLiteral("a number wider than 32 bits"));
    qsizetype count = 0;
    for (const netsnmp_variable_list *var = response->variables; var; var = var->next_variable)
        ++count;
    if (count != expected.count)
        return unreadable<QStringList>(
            QStringLiteral("%1 values for a request of %2").arg(count).arg(expected.count));
    QStringList values;
    for (const netsnmp_variable_list *var = response->variables; var; var = var->next_variable) {
        const Reading<QString> value = readVariable(var, expected);
        if (!value.value)
            return {std::nullopt, value.failure};
        values.append(*value.value);
    }
    return {values, {}};
}
