#pragma once

#include "OVSnmpCredentials.h"

#include <QString>

#include <array>
#include <cstdint>

// Wakes a sleeping printer before it is queried: asks its sleep mode over
// SNMP, sends a Wake-on-LAN magic packet for its MAC address (twice) and
// polls until it reports ready. Waits go through OVSleep and packet errors to
// the system log; the caller sees only YES/NO.
class OVWakeOnLanHelper {
public:
    OVWakeOnLanHelper() = delete;

    static constexpr size_t kMagicPacketSize = 108;
    using MagicPacketBytes = std::array<std::uint8_t, kMagicPacketSize>;

    // The address family of an address text (AF_INET, AF_INET6), 0 if it
    // does not resolve.
    static int spJudgeIPtype(const char *address);
    // The index of the first "en" interface with an IPv6 address, else 0.
    static unsigned getScopeIDforIPv6();
    // The payload for a MAC of six hexadecimal parts joined by ":"; any other
    // MAC text gives six zero bytes.
    static MagicPacketBytes magicPacketBytes(const char *macAddr);
    // Sends one magic packet to destination (255.255.255.255 when null or
    // too long). 0 once a send was attempted, else the socket error.
    static int MagicPacket(const char *destination, const char *macAddr, int ipType);
    // YES when the printer reports ready, or when there is nothing to wake.
    static bool SnmpWakeUpOnLan(const QString &ipAddress, const QString &macAddress,
                                const OVSnmpCredentials &snmp, bool isWakeOnLan, bool isOverRouter);
};
