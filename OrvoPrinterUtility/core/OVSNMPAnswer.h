#pragma once

#include "OVSNMPHelper.h"

#include <net-snmp/net-snmp-config.h>
#include <net-snmp/net-snmp-includes.h>

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <cstdint>

// The answer to one get request, checked before any value of it is used: it
// holds exactly the variables asked for, each of the expected type, integers
// within their object's range as the printer sent them, texts UTF-8 and
// shorter than 4096 bytes.
//
// Net-SNMP parses an integer wider than 32 bits into one that fits
// (4294967297 reads as 1), so the answer listens to its session's transport
// and keeps the datagram, where the widths the printer sent can be read. An
// SNMPv3 answer may be encrypted: its scoped PDU is kept as the user-based
// security module hands it on, in plaintext. The request runs on the thread
// that made the answer, while the answer exists.
class OVSNMPAnswer {
public:
    struct Range {
        long lowest;
        long highest;
    };
    // What an SNMP INTEGER can hold at all.
    static constexpr Range integer32{INT32_MIN, INT32_MAX};
    struct Expected {
        u_char type;
        qsizetype count;
        Range range = integer32;
    };

    // Listens to an open session (from snmp_sess_open) until the answer
    // ends, which must be before the session closes.
    explicit OVSNMPAnswer(void *session);
    ~OVSNMPAnswer();
    OVSNMPAnswer(const OVSNMPAnswer &) = delete;
    OVSNMPAnswer &operator=(const OVSNMPAnswer &) = delete;

    // From now on, answers keep the scoped PDU of each SNMPv3 message they
    // receive. Once, before any SNMPv3 session opens.
    static void keepScopedPdus();

    // The values in the order asked, integers as decimal text, from the
    // status and response of the session's request.
    OVSNMPHelper::Reading<QStringList> read(int status, const netsnmp_pdu *response,
                                            const Expected &expected) const;

private:
    using Receive = int (*)(netsnmp_transport *, void *, int, void **, int *);
    static int receive(netsnmp_transport *transport, void *buffer, int size, void **opaque,
                       int *opaqueLength);
    static int decode(snmp_secmod_incoming_params *params);

    netsnmp_transport *m_transport;
    Receive m_receive;
    QByteArray m_datagram;  // the last one received; null while none came
    QByteArray m_scopedPdu; // that datagram's, if it was an SNMPv3 message
};
