#pragma once

#include "OVSnmpCredentials.h"

#include <QString>
#include <QStringList>

#include <array>
#include <optional>

// The printer's vendor MIB (.1.3.6.1.4.1.41871) over get requests of SNMP
// version 1 or SNMPv3, as the credentials say. Every query opens, uses and
// closes its own Net-SNMP session and blocks until the answer or the last
// retry's timeout. An SNMPv3 printer's engine is discovered once per address
// and remembered while its answers keep coming, so a whole fetch pays for the
// discovery with one extra round trip.
//
// The list queries leave their result in eight class-level arrays that are
// not guarded: only one fetch may run at a time (the window runs one fetch at
// a time on its worker thread). After a list query its array holds either the
// complete answer or nothing.
//
// Every answer is checked before any value of it is used (OVSNMPAnswer): a
// query that fails says why, as a Failure.
//
// The library is used without reading any file: no MIB is loaded (the
// identifiers are numeric), no snmp.conf is read (so no user setting changes
// the timeouts below) and no persistent state is loaded or saved.
class OVSNMPHelper {
public:
    OVSNMPHelper() = delete;

    // Net-SNMP's own maximum peer-name length is larger, but every address
    // this program sends fits; a longer one is refused rather than cut.
    using PeerName = std::array<char, 256>;

    // Why a query gave no value. Each asks something else of the user: to
    // check the address and community, to check that the printer is one
    // that keeps this information, to report a printer that sends what its
    // objects cannot hold, to correct one part of the SNMPv3 settings, or to
    // correct the address itself.
    enum class Reason {
        NoAnswer,                 // nothing came back (SNMP v1 is silent on a wrong community too)
        Refused,                  // the printer answered with an error status, such as noSuchName
        Unreadable,               // an answer of the wrong type, out of range, too long,
                                  // not UTF-8, or a MAC address that is not six octets
        UnknownUser,              // the printer has no SNMPv3 user of that name
        WrongPassphrase,          // a digest or a decryption that does not match
        UnsupportedSecurityLevel, // the user is not set up for privacy on (or off)
        UnknownHost,              // the address is a name that does not resolve: nothing was sent
    };
    struct Failure {
        Reason reason = Reason::NoAnswer;
        QString detail; // in words, for messages and the log; may be empty
    };
    // A query's value, or why it has none.
    template <typename T> struct Reading {
        std::optional<T> value;
        Failure failure; // meaningful only without a value
    };

    static const QStringList &sharedBoxStateArray();
    static const QStringList &sharedBoxNameArray();
    static const QStringList &formStateArray();
    static const QStringList &formNameArray();
    static const QStringList &barcodeAreaDefinitionStateArray();
    static const QStringList &barcodeAreaDefinitionNameArray();
    static const QStringList &colorProfileStateArray();
    static const QStringList &colorProfileNameArray();

    // 100 when the printer answers shared box 100, else 30.
    static int snmpGetSharedBoxEntryForIPAddress(const char *address,
                                                 const OVSnmpCredentials &credentials);
    static bool snmpGetSharedBoxStateForIPAddress(const char *address,
                                                  const OVSnmpCredentials &credentials,
                                                  int totalCount);
    static bool snmpGetSharedBoxNameForIPAddress(const char *address,
                                                 const OVSnmpCredentials &credentials,
                                                 int totalCount);
    static bool snmpGetFormStateForIPAddress(const char *address,
                                             const OVSnmpCredentials &credentials);
    static bool snmpGetFormNameForIPAddress(const char *address,
                                            const OVSnmpCredentials &credentials);
    static bool snmpGetBarcodeAreDefinitionStateForIPAddress(const char *address,
                                                             const OVSnmpCredentials &credentials);
    static bool snmpGetBarcodeAreDefinitionNameForIPAddress(const char *address,
                                                            const OVSnmpCredentials &credentials);
    static bool snmpGetColorProfileStateForIPAddress(const char *address,
                                                     const OVSnmpCredentials &credentials);
    static bool snmpGetColorProfileNameForIPAddress(const char *address,
                                                    const OVSnmpCredentials &credentials);
    // False on any failure.
    static bool snmpGetAdminLoginModeEnabled(const char *address,
                                             const OVSnmpCredentials &credentials);
    static Reading<bool> getAdminLoginModeEnabled(const char *address,
                                                  const OVSnmpCredentials &credentials);

    // Copies of the whole shared-box arrays; no value on failure or when empty.
    static Reading<QStringList> getValidatedSharedBoxNameArrayForIPAddress(
        const char *address, const OVSnmpCredentials &credentials, int totalCount);
    static Reading<QStringList> getValidatedSharedBoxStateArrayForIPAddress(
        const char *address, const OVSnmpCredentials &credentials, int totalCount);
    // The names of the entries in use (state "1"), in index order; no value
    // on failure, an empty list when none is in use.
    static Reading<QStringList>
    getValidatedFormNameArrayForIPAddress(const char *address,
                                          const OVSnmpCredentials &credentials);
    static Reading<QStringList>
    getValidatedBarcodeAreaNameArrayForIPAddress(const char *address,
                                                 const OVSnmpCredentials &credentials);
    static Reading<QStringList>
    getValidatedColorProfileForIPAddress(const char *address, const OVSnmpCredentials &credentials);

    // The request status (0 success, 1 error, 2 timeout; 1 when no session
    // opens; statusUserRefused when the printer refused the SNMPv3 user,
    // which says that it is awake). sleepMode is -1 unless the printer
    // answered with an integer that an SNMP INTEGER can hold.
    static constexpr int statusUserRefused = 3;
    static int getSleepMode(const char *address, const OVSnmpCredentials &credentials,
                            int &sleepMode);
    // The MAC address as six two-digit hexadecimal octets joined by ":", the
    // form the printer sends it in; any other answer is unreadable.
    static Reading<QString> getMacAddress(const char *address,
                                          const OVSnmpCredentials &credentials);

    // Forgets the SNMPv3 engines heard so far: the next request to each
    // printer discovers its engine again, as a new process does.
    static void forgetEngines();

    // The Net-SNMP peer name for an address: the address itself, or for any
    // address with a colon "udp6:[ADDRESS]:161". The brackets differ on
    // purpose from the plain "udp6:ADDRESS:161": Net-SNMP 5.9 reads the
    // unbracketed form as the host "ADDRESS:161" (udp6:fd99::2:161 goes to
    // fd99::2:161, udp6:::1:161 to ::0.1.1.97), while the bracketed one reaches
    // the IPv6 literal (a zone such as %en0 included) on UDP port 161.
    // An address typed in URL style ("[fd99::2]") is taken without its one
    // pair of enclosing brackets, which the peer name adds back itself.
    // False, with an empty peer name, when the result would not fit.
    static bool getConvertedAddress(PeerName &peerName, const char *sourceAddr);
    // The numeric address a query is sent to: an address literal (bracketed
    // or not) as it is, a host name as the system's resolver knows it, IPv4
    // where it has both. A name the resolver does not know fails with
    // UnknownHost (detail: the resolver's words) before anything is sent, so
    // it does not read as a silent printer.
    static Reading<QByteArray> resolve(const char *address);
    // The address without one pair of enclosing brackets, if it has them.
    static QByteArray withoutBrackets(const QByteArray &address);
};
