#include "OVWakeOnLanHelper.h"

#include "OVSNMPHelper.h"
#include "OVSleep.h"
#include "OVSystemLog.h"
#include "OrvoSettingsKeywords.h"

#include <arpa/inet.h>
#include <ifaddrs.h>
#include <net/if.h>
#include <netdb.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <syslog.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <optional>

namespace {

constexpr const char *kIPv4Broadcast = "255.255.255.255";
constexpr const char *kIPv6AllRouters = "FF02::2";
constexpr const char *kInterfacePrefix = "en";
constexpr size_t kMacParts = 6;
constexpr size_t kMacPartBuffer = 10;
constexpr size_t kDestinationBuffer = 255;
constexpr size_t kAddressBuffer = 64;
constexpr size_t kCommunityBuffer = 256;
constexpr size_t kSyncBytes = 6;
constexpr size_t kMacRepeats = 16;

constexpr int kModeReady = 1;
constexpr int kModeAsleep = 2;
constexpr int kModeOff = 0;
constexpr int kStatusSuccess = 0;
constexpr int kStatusTimeout = 2;
constexpr int kAsleepChecks = 36;
constexpr unsigned kAsleepWait = 5;
constexpr unsigned kBetweenPackets = 5;
constexpr unsigned kAfterPackets = 10;
constexpr int kReadyPolls = 15;
constexpr unsigned kPollWait = 1;

// The port is the number 9 stored without conversion to network byte order,
// so the wire carries the bytes 0x09 0x00 (UDP port 2304). Receivers rely on
// exactly these bytes; the bytes are written directly so the host's byte
// order cannot change them.
constexpr std::uint8_t kPortBytes[2] = {0x09, 0x00};

constexpr const char *kLogGetifaddrs = "ERROR: getifaddrs error [%1]";
constexpr const char *kLogConvert = "ERROR: convert ip address text to byte [%1](%2)";
constexpr const char *kLogMulticastIf =
    "ERROR: cleate magic packet ipv6 sockfd setsockopt err [%1]";
constexpr const char *kLogSend = "ERROR: send packet : %1";

void logError(const QString &line) {
    OVSystemLog::write(LOG_ERR, line);
}

QString systemError() {
    return QString::fromLocal8Bit(std::strerror(errno));
}

// The bytes if they fit a C buffer of the given size with its terminator,
// else nothing (the conversion fails as a whole).
QByteArray fitting(const QByteArray &bytes, size_t bufferSize) {
    return size_t(bytes.size()) < bufferSize ? bytes : QByteArray();
}

// Six hexadecimal numbers from "a:b:c:d:e:f"; missing parts read as 0.
std::array<unsigned long, kMacParts> macNumbers(const QByteArray &mac) {
    std::array<unsigned long, kMacParts> numbers{};
    const QList<QByteArray> parts = mac.split(':');
    for (size_t i = 0; i < kMacParts && i < size_t(parts.size()); ++i)
        numbers[i] = std::strtoul(parts[qsizetype(i)].constData(), nullptr, 16);
    return numbers;
}

std::array<std::uint8_t, kMacParts> macBytes(const char *macAddr) {
    std::array<std::uint8_t, kMacParts> bytes{};
    const QList<QByteArray> parts = QByteArray(macAddr ? macAddr : "").split(':');
    if (size_t(parts.size()) != kMacParts)
        return bytes;
    for (size_t i = 0; i < kMacParts; ++i) {
        std::array<char, kMacPartBuffer> part{};
        std::strncpy(part.data(), parts[qsizetype(i)].constData(), part.size() - 1);
        bytes[i] = std::uint8_t(std::strtoul(part.data(), nullptr, 16) & 0xFF);
    }
    return bytes;
}

void sendPacket(int socketFd, const OVWakeOnLanHelper::MagicPacketBytes &packet,
                const sockaddr *address, socklen_t length) {
    if (sendto(socketFd, packet.data(), packet.size(), 0, address, length) < 1)
        logError(QString(kLogSend).arg(systemError()));
}

void sendIPv4(int socketFd, const OVWakeOnLanHelper::MagicPacketBytes &packet,
              const char *destination) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    std::memcpy(&address.sin_port, kPortBytes, sizeof kPortBytes);
    address.sin_addr.s_addr = inet_addr(destination);
    sendPacket(socketFd, packet, reinterpret_cast<sockaddr *>(&address), sizeof address);
}

void sendIPv6(int socketFd, const OVWakeOnLanHelper::MagicPacketBytes &packet,
              const char *destination) {
    sockaddr_in6 address{};
    address.sin6_family = AF_INET6;
    std::memcpy(&address.sin6_port, kPortBytes, sizeof kPortBytes);
    const int converted = inet_pton(AF_INET6, destination, &address.sin6_addr);
    if (converted != 1)
        logError(QString(kLogConvert).arg(systemError()).arg(converted));
    const unsigned scope = OVWakeOnLanHelper::getScopeIDforIPv6();
    if (setsockopt(socketFd, IPPROTO_IPV6, IPV6_MULTICAST_IF, &scope, sizeof scope) != 0)
        logError(QString(kLogMulticastIf).arg(systemError()));
    sendPacket(socketFd, packet, reinterpret_cast<sockaddr *>(&address), sizeof address);
}

bool askedReady(const char *address, const OVSnmpCredentials &credentials, int &status) {
    int mode = -1;
    status = OVSNMPHelper::getSleepMode(address, credentials, mode);
    return status == kStatusSuccess && mode == kModeReady;
}

// While the printer says it is going to sleep (mode 2), wait for it to settle.
// True when it reports ready meanwhile.
bool waitWhileAsleep(const char *address, const OVSnmpCredentials &credentials) {
    int mode = -1;
    if (OVSNMPHelper::getSleepMode(address, credentials, mode) != kStatusSuccess)
        return false;
    if (mode == kModeReady)
        return true;
    if (mode != kModeAsleep)
        return false;
    for (int check = 0; check < kAsleepChecks; ++check) {
        if (!OVSleep::sleepSeconds(kAsleepWait))
            return false;
        const int status = OVSNMPHelper::getSleepMode(address, credentials, mode);
        if (status == kStatusSuccess && mode == kModeReady)
            return true;
        if ((status == kStatusSuccess && mode == kModeOff) || status == kStatusTimeout)
            return false;
    }
    return false;
}

// An empty community, or one too long for its buffer, is the default one;
// SNMPv3 credentials are used as they are.
OVSnmpCredentials askedWith(const OVSnmpCredentials &given) {
    if (given.version() == OVSnmpCredentials::Version::V3)
        return given;
    const QByteArray community = fitting(given.community().toUtf8(), kCommunityBuffer);
    return community.isEmpty() ? OVSnmpCredentials(OrvoSettingsKeywords::defaultCommunity)
                               : OVSnmpCredentials(QString::fromUtf8(community));
}

bool pollReady(const char *address, const OVSnmpCredentials &credentials) {
    for (int poll = 0; poll < kReadyPolls; ++poll) {
        int status = kStatusSuccess;
        if (askedReady(address, credentials, status))
            return true;
        // A printer that refuses the SNMPv3 user will never say it is ready.
        if (status == OVSNMPHelper::statusUserRefused)
            return false;
        // A timeout has already taken its own time.
        if (status != kStatusTimeout && !OVSleep::sleepSeconds(kPollWait))
            return false;
    }
    return false;
}

} // namespace

int OVWakeOnLanHelper::spJudgeIPtype(const char *address) {
    if (!address)
        return 0;
    addrinfo hints{};
    hints.ai_flags = AI_CANONNAME;
    addrinfo *result = nullptr;
    if (getaddrinfo(address, nullptr, &hints, &result) != 0 || !result)
        return 0;
    const int family = result->ai_family;
    freeaddrinfo(result);
    return family;
}

unsigned OVWakeOnLanHelper::getScopeIDforIPv6() {
    ifaddrs *interfaces = nullptr;
    if (getifaddrs(&interfaces) != 0) {
        logError(QString(kLogGetifaddrs).arg(systemError()));
        return 0;
    }
    unsigned index = 0;
    for (const ifaddrs *entry = interfaces; entry && index == 0; entry = entry->ifa_next) {
        if (entry->ifa_addr && entry->ifa_addr->sa_family == AF_INET6 &&
            std::strncmp(entry->ifa_name, kInterfacePrefix, std::strlen(kInterfacePrefix)) == 0)
            index = if_nametoindex(entry->ifa_name);
    }
    freeifaddrs(interfaces);
    return index;
}

OVWakeOnLanHelper::MagicPacketBytes OVWakeOnLanHelper::magicPacketBytes(const char *macAddr) {
    MagicPacketBytes packet{};
    std::fill_n(packet.begin(), kSyncBytes, std::uint8_t(0xFF));
    const auto mac = macBytes(macAddr);
    for (size_t repeat = 0; repeat < kMacRepeats; ++repeat)
        std::copy(mac.begin(), mac.end(), packet.begin() + kSyncBytes + repeat * kMacParts);
    return packet;
}

int OVWakeOnLanHelper::MagicPacket(const char *destination, const char *macAddr, int ipType) {
    std::array<char, kDestinationBuffer> target{};
    const bool given = destination && std::strlen(destination) < target.size();
    std::strncpy(target.data(), given ? destination : kIPv4Broadcast, target.size() - 1);
    const int socketFd = socket(ipType, SOCK_DGRAM, 0);
    if (socketFd < 0)
        return -1;
    const int on = 1;
    if (setsockopt(socketFd, SOL_SOCKET, SO_BROADCAST, &on, sizeof on) != 0) {
        const int error = errno;
        close(socketFd);
        return error;
    }
    const MagicPacketBytes packet = magicPacketBytes(macAddr);
    if (ipType == AF_INET)
        sendIPv4(socketFd, packet, target.data());
    else
        sendIPv6(socketFd, packet, target.data());
    close(socketFd);
    return 0;
}

bool OVWakeOnLanHelper::SnmpWakeUpOnLan(const QString &ipAddress, const QString &macAddress,
                                        const OVSnmpCredentials &snmp, bool isWakeOnLan,
                                        bool isOverRouter) {
    if (!isWakeOnLan)
        return true;
    if (macAddress.isEmpty())
        return false;
    const auto numbers = macNumbers(macAddress.toUtf8());
    if (std::all_of(numbers.begin(), numbers.end(), [](unsigned long n) { return n == 0; }))
        return true;
    const QByteArray mac =
        QString::asprintf("%02lx:%02lx:%02lx:%02lx:%02lx:%02lx", numbers[0], numbers[1], numbers[2],
                          numbers[3], numbers[4], numbers[5])
            .toUtf8();
    const QByteArray address =
        fitting(OVSNMPHelper::withoutBrackets(ipAddress.toUtf8()), kAddressBuffer);
    if (address.isEmpty()) {
        if (isOverRouter)
            return false;
        MagicPacket(kIPv6AllRouters, mac.constData(), AF_INET6);
        MagicPacket(kIPv4Broadcast, mac.constData(), AF_INET);
        return false;
    }
    const OVSnmpCredentials credentials = askedWith(snmp);
    const int ipType = spJudgeIPtype(address.constData());
    if (waitWhileAsleep(address.constData(), credentials))
        return true;
    const char *destination = isOverRouter         ? address.constData()
                              : ipType == AF_INET6 ? kIPv6AllRouters
                                                   : kIPv4Broadcast;
    MagicPacket(destination, mac.constData(), ipType);
    if (!OVSleep::sleepSeconds(kBetweenPackets))
        return false;
    MagicPacket(destination, mac.constData(), ipType);
    return OVSleep::sleepSeconds(kAfterPackets) && pollReady(address.constData(), credentials);
}
