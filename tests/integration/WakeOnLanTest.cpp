// The wake flow end to end, in real time, between two network namespaces the
// test creates (the client's interface is en0); nothing here runs the flow, or
// sends anything, in the machine's own namespace.
#include "MagicPacketListener.h"
#include "OVSNMPHelper.h"
#include "OVSleep.h"
#include "OVSystemLog.h"
#include "OVWakeOnLanHelper.h"
#include "SimulatedPrinter.h"
#include "TestNetworkNamespaces.h"

#include <QFile>
#include <QThread>

#include <gtest/gtest.h>

#include <syslog.h>

namespace {

using Net = TestNetworkNamespaces;
constexpr const char *kMac = "00:11:22:aa:bb:cc";
constexpr const char *kOtherMac = "02:00:00:00:00:0A"; // wakes nobody
constexpr const char *kV4 = Net::kPrinterIPv4;
constexpr const char *kV6 = Net::kPrinterULA;
constexpr const char *kLinkLocal = "fe80::2%en0";
constexpr long kAsleep = 4;
constexpr const char *kNoAddress = "ERROR: convert ip address text to byte [";
// Destinations seen only inside the network namespaces this test creates.
const QString kBroadcast = "255.255.255.255";
const QString kAllRouters = "ff02::2";

QByteArray macBytes(const char *mac) {
    return QByteArray::fromHex(QByteArray(mac).replace(':', ""));
}

// The printer answers at each of its addresses on port 161 (::1 from inside
// its own namespace) and is woken by the flow run in the client namespace.
TEST(WakeOnLan, ReachesAndWakesThePrinter) {
    Net namespaces;
    QString error;
    ASSERT_TRUE(namespaces.create(&error)) << error.toStdString();
    SimulatedPrinter::Options options;
    options.netns = namespaces.printerName();
    options.listen = "udp:161,udp6:161";
    options.counterPeer = "udp:127.0.0.1:161";
    options.source4 = "default";
    SimulatedPrinter printer(options);
    ASSERT_TRUE(printer.start()) << printer.errorText().toStdString();
    printer.setDefaults();
    const auto runIn = [&error](const QString &netns, const std::function<void()> &work) {
        EXPECT_TRUE(Net::runIn(netns, work, &error)) << error.toStdString();
    };
    const QString client = namespaces.clientName(), own = namespaces.printerName();
    const std::pair<QString, const char *> addresses[] = {
        {client, kV4}, {client, kV6}, {client, kLinkLocal}, {own, "::1"}};
    for (const auto &[netns, address] : addresses) {
        QString mac;
        runIn(netns, [&] { mac = OVSNMPHelper::getMacAddress(address, "cobalt"); });
        EXPECT_EQ(mac, kMac) << address;
    }

    // The flow's thread is joined before these are read.
    int sleptSeconds = 0;
    QStringList log;
    OVSleep::setSleeper([&](unsigned seconds) {
        sleptSeconds += int(seconds);
        QThread::msleep(50);
    });
    OVSystemLog::setSink([&](int priority, const QString &line) {
        log << QString("%1 %2").arg(priority).arg(line);
    });
    const struct {
        const char *label, *address, *mac;
        bool isWakeOnLan, isOverRouter;
        long sleepMode;
        bool result;
        QStringList destinations; // sorted
        int requests = -1;        // GETs the printer receives; -1: not counted
        int sleptSeconds = -1;    // -1: not checked
        const char *logged = "";
    } cases[] = {
        {"ipv4Broadcast", kV4, kMac, true, false, kAsleep, true, {kBroadcast, kBroadcast}},
        {"ipv6Group", kV6, kMac, true, false, kAsleep, true, {kAllRouters, kAllRouters}},
        {"ipv4OverRouter", kV4, kMac, true, true, kAsleep, true, {kV4, kV4}},
        {"ipv6OverRouter", kV6, kMac, true, true, kAsleep, true, {kV6, kV6}},
        {"emptyAddress", "", kMac, true, false, kAsleep, false, {kBroadcast, kAllRouters}, 0},
        {"wakeOnLanOff", kV4, kMac, false, false, kAsleep, true, {}, 0},
        // Going to sleep (2) throughout: 1 + 36 checks 5 s apart, two packets
        // nobody answers (5 s and 10 s after them), 15 polls 1 s apart.
        {"drowsy", kV4, kOtherMac, true, false, 2, false, {kBroadcast, kBroadcast}, 52, 210},
        // A link-local address is asked with its zone, but the packet to it
        // cannot be addressed: logged, and the printer sleeps on.
        {"linkLocal", kLinkLocal, kMac, true, true, kAsleep, false, {}, 16, -1, kNoAddress},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.label);
        QFile::remove(printer.directory() + "/awake-at");
        printer.setDefaults();
        printer.setInteger(SimulatedPrinter::kSleepMode, c.sleepMode);
        sleptSeconds = 0;
        log.clear();
        MagicPacketListener listener(own, Net::kPrinterInterface, printer.directory(),
                                     macBytes(kMac), 200);
        ASSERT_TRUE(listener.isListening()) << listener.errorText().toStdString();
        const int before = printer.requestCount();
        runIn(client, [&] {
            EXPECT_EQ(OVWakeOnLanHelper::SnmpWakeUpOnLan(c.address, c.mac, "", c.isWakeOnLan,
                                                         c.isOverRouter),
                      c.result);
        });
        QThread::msleep(100); // packets still in flight to the listener
        QStringList destinations;
        for (const auto &packet : listener.packets()) {
            EXPECT_EQ(packet.bytes.toHex(),
                      MagicPacketListener::expectedPacket(macBytes(c.mac)).toHex());
            destinations.append(packet.destination);
        }
        destinations.sort();
        EXPECT_EQ(destinations, c.destinations);
        EXPECT_EQ(c.requests < 0 ? -1 : printer.requestCount() - before, c.requests);
        EXPECT_EQ(c.sleptSeconds < 0 ? -1 : sleptSeconds, c.sleptSeconds);
        const QString logged = *c.logged ? QString("%1 %2").arg(LOG_ERR).arg(c.logged) : "";
        EXPECT_EQ(log.value(0).left(logged.size()), logged) << log.join('\n').toStdString();
        EXPECT_EQ(log.isEmpty(), !*c.logged);
    }
    OVSleep::setSleeper({});
    OVSystemLog::setSink({});
}

} // namespace
