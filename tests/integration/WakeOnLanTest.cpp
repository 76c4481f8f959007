// The wake flow end to end, in real time, between two network namespaces the
// test creates (the client's interface is en0); nothing here runs the flow, or
// sends anything, in the machine's own namespace.
#include "OVSleep.h"
#include "OVSystemLog.h"
#include "OVWakeOnLanHelper.h"
#include "SimulatedPrinter.h"
#include "SpawnedProcess.h"
#include "TestNetworkNamespaces.h"

#include <QDateTime>
#include <QFile>
#include <QSaveFile>
#include <QThread>

#include <gtest/gtest.h>

#include <arpa/inet.h>
#include <net/if.h>
#include <syslog.h>
#include <unistd.h>

#include <atomic>
#include <cstring>
#include <functional>
#include <thread>
#include <utility>

namespace {

using Net = TestNetworkNamespaces;
constexpr const char *kMac = "00:11:22:aa:bb:cc";
constexpr const char *kOtherMac = "02:00:00:00:00:0A"; // wakes nobody
constexpr const char *kV4 = Net::kPrinterIPv4;
constexpr const char *kV6 = Net::kPrinterULA;
constexpr const char *kLinkLocal = "fe80::2%en0";
constexpr long kAsleep = 4;
constexpr const char *kNoAddress = "ERROR: convert ip address text to byte [";
const QString kAll4 = "255.255.255.255"; // sent only inside this test's network namespaces
const QString kAll6 = "ff02::2";         // sent only inside this test's network namespaces

OVSnmpCredentials v3User(const char *authPassphrase = SimulatedPrinter::kAuthPassphrase) {
    return OVSnmpCredentials::v3(SimulatedPrinter::kPrivUser, "SHA-256", authPassphrase, "AES-128",
                                 SimulatedPrinter::kPrivPassphrase);
}

QByteArray magicPacket(const char *mac) {
    const QByteArray bytes = QByteArray::fromHex(QByteArray(mac).replace(':', ""));
    return QByteArray(6, char(0xFF)) + bytes.repeated(16) + QByteArray(6, '\0');
}

// The Wake-on-LAN side of the printer, inside its namespace: listens on UDP port 2304 of its
// interface for IPv4 broadcast and unicast and for the IPv6 all-routers group. The magic packet
// for kMac wakes the printer: it writes the "awake-at" file the printer's agent reads, so the
// sleep mode reads 1 from 200 ms later on.
class MagicPacketListener {
public:
    // One dual-stack socket (IPv4 packets arrive with a v4-mapped
    // destination), made inside the namespace, where it stays; the thread that
    // reads it need not.
    MagicPacketListener(const QString &netns, const QString &printerDirectory)
        : m_awakeFile(printerDirectory + "/awake-at") {
        Net::runIn(netns, std::bind(&MagicPacketListener::open, this), &error);
        if (error.isEmpty())
            m_thread = std::thread([this] {
                while (!m_stopping)
                    receive();
            });
    }
    ~MagicPacketListener() {
        packets();
        close(m_socketFd);
    }
    // Stops listening; the packets that arrived until then, each with the
    // address it was sent to.
    QList<std::pair<QString, QByteArray>> packets() {
        m_stopping = true;
        if (m_thread.joinable())
            m_thread.join();
        return m_received;
    }

    QString error; // empty while listening

private:
    void open() {
        const int on = 1, off = 0;
        const timeval tick{0, 20000};
        const sockaddr_in6 any{AF_INET6, htons(2304), 0, in6addr_any, 0};
        ipv6_mreq group{{}, if_nametoindex(Net::kPrinterInterface)};
        inet_pton(AF_INET6, "ff02::2", &group.ipv6mr_multiaddr); // inside the printer namespace
        m_socketFd = socket(AF_INET6, SOCK_DGRAM, 0);
        if (setsockopt(m_socketFd, IPPROTO_IPV6, IPV6_V6ONLY, &off, sizeof off) != 0 ||
            setsockopt(m_socketFd, IPPROTO_IPV6, IPV6_RECVPKTINFO, &on, sizeof on) != 0 ||
            setsockopt(m_socketFd, SOL_SOCKET, SO_RCVTIMEO, &tick, sizeof tick) != 0 ||
            bind(m_socketFd, reinterpret_cast<const sockaddr *>(&any), sizeof any) != 0 ||
            setsockopt(m_socketFd, IPPROTO_IPV6, IPV6_JOIN_GROUP, &group, sizeof group) != 0)
            error = QString("listener set-up failed: ") + std::strerror(errno);
    }

    void receive() {
        char data[2048];
        alignas(cmsghdr) char control[256];
        iovec io{data, sizeof data};
        msghdr message{nullptr, 0, &io, 1, control, sizeof control, 0};
        const ssize_t length = recvmsg(m_socketFd, &message, 0);
        const cmsghdr *info = length >= 0 ? CMSG_FIRSTHDR(&message) : nullptr;
        if (!info || info->cmsg_type != IPV6_PKTINFO)
            return;
        char to[INET6_ADDRSTRLEN] = {};
        inet_ntop(AF_INET6, CMSG_DATA(info), to, sizeof to); // in6_pktinfo starts with it
        m_received.append({QString(to).remove("::ffff:"), QByteArray(data, length)});
        if (m_received.last().second != magicPacket(kMac))
            return;
        QSaveFile file(m_awakeFile);
        file.open(QIODevice::WriteOnly);
        file.write(QByteArray::number(QDateTime::currentMSecsSinceEpoch() + 200));
        file.commit();
    }

    const QString m_awakeFile;
    int m_socketFd = -1;
    QList<std::pair<QString, QByteArray>> m_received;
    std::atomic<bool> m_stopping{false};
    std::thread m_thread;
};

// The printer, in a namespace of its own, is asked at each of its addresses
// and woken by the flow run in the client namespace.
TEST(WakeOnLan, ReachesAndWakesThePrinter) {
    Net namespaces;
    QString error;
    ASSERT_TRUE(namespaces.create(&error)) << error.toStdString();
    const QString &client = namespaces.client, &own = namespaces.printer;
    SimulatedPrinter printer({.listen = "udp:161,udp6:161",
                              .netns = own,
                              .counterPeer = "udp:127.0.0.1:161",
                              .source4 = "default"});
    ASSERT_TRUE(printer.start()) << printer.errorText().toStdString();
    printer.setDefaults();
    // The flow's thread is joined before these are read.
    int sleptSeconds = 0;
    long laterMode = -1; // the sleep mode from the flow's first wait on, -1: unchanged
    QStringList log;
    OVSleep::setSleeper([&](unsigned seconds) {
        sleptSeconds += int(seconds);
        if (laterMode >= 0)
            printer.set(SimulatedPrinter::kSleepMode, std::exchange(laterMode, -1));
        QThread::msleep(50);
    });
    OVSystemLog::setSink([&](int priority, const QString &line) {
        log << QString("%1 %2").arg(priority).arg(line);
    });
    const OVSnmpCredentials refused = v3User("not-the-passphrase");
    const struct {
        const char *label, *address, *mac;
        long sleepMode;
        bool isWakeOnLan, isOverRouter, result;
        QStringList destinations; // sorted
        int requests = -1;        // GETs the printer receives; -1: not counted
        int sleptSeconds = -1;    // -1: not checked
        long laterMode = -1;
        const char *logged = "";
        OVSnmpCredentials snmp = ""; // the default community
    } cases[] = {
        {"ipv4Broadcast", kV4, kMac, kAsleep, true, false, true, {kAll4, kAll4}},
        {"ipv6Group", kV6, kMac, kAsleep, true, false, true, {kAll6, kAll6}},
        {"ipv4OverRouter", kV4, kMac, kAsleep, true, true, true, {kV4, kV4}},
        {"ipv6OverRouter", kV6, kMac, kAsleep, true, true, true, {kV6, kV6}},
        {"ipv6Bracketed", "[fd99::2]", kMac, kAsleep, true, true, true, {kV6, kV6}},
        {"emptyAddress", "", kMac, kAsleep, true, false, false, {kAll4, kAll6}, 0},
        {"emptyAddressOverRouter", "", kMac, kAsleep, true, true, false, {}, 0},
        {"wakeOnLanOff", kV4, kMac, kAsleep, false, false, true, {}, 0},
        // Going to sleep (2) throughout: 1 + 36 checks 5 s apart, two packets
        // nobody answers (5 s and 10 s after them), 15 polls 1 s apart.
        {"drowsy", kV4, kOtherMac, 2, true, false, false, {kAll4, kAll4}, 52, 210},
        // Switched off (0) during that wait: it ends, then packets and polls.
        {"offWhileWaiting", kV4, kOtherMac, 2, true, false, false, {kAll4, kAll4}, 17, 35, 0},
        // A link-local address is asked with its zone, but the packet to it
        // cannot be addressed: logged, and the printer sleeps on.
        {"linkLocal", kLinkLocal, kMac, kAsleep, true, true, false, {}, 16, -1, -1, kNoAddress},
        // The sleep mode asked as an SNMPv3 user; one the printer refuses
        // learns nothing from it, sends the packets, and stops polling at
        // the first refusal.
        {"snmpV3", kV4, kMac, kAsleep, true, true, true, {kV4, kV4}, -1, -1, -1, "", v3User()},
        {"snmpV3Wrong", kV4, kMac, kAsleep, true, true, false, {kV4, kV4}, 0, 15, -1, "", refused},
    };
    // The packets that reached the printer while `wake` ran in the client namespace, each
    // checked to be the magic packet for `mac`; their destinations, sorted.
    const auto sent = [&](const char *mac, const std::function<void()> &wake) {
        QFile::remove(printer.directory() + "/awake-at");
        MagicPacketListener listener(own, printer.directory());
        EXPECT_EQ(listener.error, "");
        EXPECT_TRUE(Net::runIn(client, wake, &error)) << error.toStdString();
        QThread::msleep(100); // packets still in flight to the listener
        QStringList destinations;
        for (const auto &[destination, bytes] : listener.packets()) {
            EXPECT_EQ(bytes.toHex(), magicPacket(mac).toHex());
            destinations.append(destination);
        }
        destinations.sort();
        return destinations;
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.label);
        printer.setDefaults();
        printer.set(SimulatedPrinter::kSleepMode, c.sleepMode);
        sleptSeconds = 0;
        laterMode = c.laterMode;
        log.clear();
        const int before = printer.requestCount();
        const auto wake = [&] {
            EXPECT_EQ(OVWakeOnLanHelper::SnmpWakeUpOnLan(c.address, c.mac, c.snmp, c.isWakeOnLan,
                                                         c.isOverRouter),
                      c.result);
        };
        EXPECT_EQ(sent(c.mac, wake), c.destinations);
        EXPECT_EQ(c.requests < 0 ? -1 : printer.requestCount() - before, c.requests);
        EXPECT_EQ(c.sleptSeconds < 0 ? -1 : sleptSeconds, c.sleptSeconds);
        const QString logged = QString("%1 %2").arg(LOG_ERR).arg(c.logged);
        EXPECT_TRUE(*c.logged ? log.value(0).startsWith(logged) : log.isEmpty())
            << log.join('\n').toStdString();
    }
    OVSleep::setSleeper({});
    OVSystemLog::setSink({});

    // The command line's --mac: both separators wake the printer with its own packet; any
    // other text is refused before a packet is sent.
    const std::pair<const char *, int> macs[] = {
        {"00:11:22:aa:bb:cc", 0},    {"00-11-22-AA-BB-CC", 0},
        {"001122334455", 2},         {"00:11:22:aa:bb", 2},
        {"00:11-22:aa:bb:cc", 2},    {"gg:11:22:aa:bb:cc", 2},
        {"00:11:22:aa:bb:cc:dd", 2}, {"", 2},
    };
    for (const auto &[mac, exit] : macs) {
        SCOPED_TRACE(mac);
        printer.set(SimulatedPrinter::kSleepMode, kAsleep);
        const auto wake = [&, mac = mac, exit = exit] {
            EXPECT_EQ(SpawnedProcess::execute(ORVO_CLI, {"fetch", "--wake", "--over-router",
                                                         "--mac", mac, "--address", kV4}),
                      exit);
        };
        EXPECT_EQ(sent(kMac, wake), exit == 0 ? QStringList({kV4, kV4}) : QStringList());
    }
}

} // namespace
