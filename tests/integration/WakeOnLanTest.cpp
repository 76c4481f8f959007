// The wake flow end to end, in real time, between two network namespaces
// that the test creates: the client (interface en0) runs the flow, the printer
// namespace holds the simulated printer and its magic-packet listener.
// Nothing here runs the flow, or sends anything, in the machine's own
// namespace.
#include "MagicPacketListener.h"
#include "OVSNMPHelper.h"
#include "OVSleep.h"
#include "OVSystemLog.h"
#include "OVWakeOnLanHelper.h"
#include "SimulatedPrinter.h"
#include "TestNetworkNamespaces.h"

#include <QDir>
#include <QThread>

#include <gtest/gtest.h>

#include <syslog.h>

#include <memory>
#include <mutex>

namespace {

using Net = TestNetworkNamespaces;
constexpr const char *kMac = "00:11:22:aa:bb:cc";
constexpr const char *kOtherMac = "02:00:00:00:00:01";
constexpr const char *kV4 = Net::kPrinterIPv4;
constexpr const char *kV6 = Net::kPrinterULA;
constexpr long kAsleep = 4;
constexpr long kGoingToSleep = 2;
// Destinations seen only inside the network namespaces this test creates.
const QString kBroadcast = "255.255.255.255"; // namespace-only
const QString kAllRouters = "ff02::2";        // namespace-only

QByteArray macBytes(const char *mac) {
    return QByteArray::fromHex(QByteArray(mac).replace(':', ""));
}

class WakeOnLanTest : public ::testing::Test {
protected:
    static void SetUpTestSuite() {
        namespaces = std::make_unique<Net>();
        if (!namespaces->create(&setupError))
            return;
        SimulatedPrinter::Options options;
        options.netns = namespaces->printerName();
        options.listen = "udp:161,udp6:161";
        options.counterPeer = "udp:127.0.0.1:161";
        options.source4 = options.source6 = "default";
        printer = std::make_unique<SimulatedPrinter>(options);
        if (!printer->start())
            setupError = printer->errorText();
    }
    static void TearDownTestSuite() {
        printer.reset();
        namespaces.reset();
    }

    void SetUp() override {
        ASSERT_TRUE(setupError.isEmpty()) << setupError.toStdString();
        OVSleep::setSleeper([this](unsigned seconds) {
            sleptSeconds += seconds;
            QThread::msleep(50);
        });
        OVSystemLog::setSink([this](int priority, const QString &line) {
            std::lock_guard lock(logMutex);
            log.append(QString::number(priority) + " " + line);
        });
    }
    void TearDown() override {
        OVSleep::setSleeper({});
        OVSystemLog::setSink({});
    }

    // Runs work in the client namespace.
    void inClient(const std::function<void()> &work) {
        QString error;
        EXPECT_TRUE(Net::runIn(namespaces->clientName(), work, &error)) << error.toStdString();
    }

    static inline std::unique_ptr<Net> namespaces;
    static inline std::unique_ptr<SimulatedPrinter> printer;
    static inline QString setupError;
    std::atomic<unsigned> sleptSeconds{0};
    std::mutex logMutex;
    QStringList log;
};

struct WakeCase {
    const char *label;
    const char *address;
    const char *mac;
    bool isWakeOnLan;
    bool isOverRouter;
    long sleepMode;
    bool result;
    QStringList destinations; // sorted
    int requests = -1;        // GETs the printer receives; -1: not counted
    int sleptSeconds = -1;    // -1: not checked
    const char *logged = nullptr;
};

TEST_F(WakeOnLanTest, WakesAndAnswers) {
    const WakeCase cases[] = {
        {"ipv4Broadcast", kV4, kMac, true, false, kAsleep, true, {kBroadcast, kBroadcast}},
        {"ipv6Group", kV6, kMac, true, false, kAsleep, true, {kAllRouters, kAllRouters}},
        {"ipv4OverRouter", kV4, kMac, true, true, kAsleep, true, {kV4, kV4}},
        {"ipv6OverRouter", kV6, kMac, true, true, kAsleep, true, {kV6, kV6}},
        {"emptyAddress", "", kMac, true, false, kAsleep, false, {kBroadcast, kAllRouters}, 0},
        {"emptyAddressOverRouter", "", kMac, true, true, kAsleep, false, {}, 0},
        {"alreadyReady", kV4, kMac, true, false, 1, true, {}, 1},
        {"wakeOnLanOff", kV4, kMac, false, false, kAsleep, true, {}, 0},
        {"zeroMac", kV4, "00:00:00:00:00:00", true, false, kAsleep, true, {}, 0},
        {"emptyMac", kV4, "", true, false, kAsleep, false, {}, 0},
        // 36 more checks 5 s apart, two packets nobody answers, 15 polls.
        {"staysGoingToSleep",
         kV4,
         kOtherMac,
         true,
         false,
         kGoingToSleep,
         false,
         {kBroadcast, kBroadcast},
         1 + 36 + 15,
         36 * 5 + 5 + 10 + 15},
        // A link-local address is asked with its zone, but the packet to it
        // cannot be addressed: logged, and the printer sleeps on.
        {"linkLocalOverRouter",
         "fe80::2%en0",
         kMac,
         true,
         true,
         kAsleep,
         false,
         {},
         1 + 15,
         -1,
         "ERROR: convert ip address text to byte ["},
    };
    for (const WakeCase &c : cases) {
        SCOPED_TRACE(c.label);
        QFile::remove(QDir(printer->directory()).filePath("awake-at"));
        printer->setDefaults();
        printer->setInteger(SimulatedPrinter::kSleepMode, c.sleepMode);
        sleptSeconds = 0;
        log.clear();
        MagicPacketListener listener(namespaces->printerName(), Net::kPrinterInterface,
                                     printer->directory(), macBytes(kMac), 200);
        ASSERT_TRUE(listener.isListening()) << listener.errorText().toStdString();
        const int before = printer->requestCount();
        inClient([&] {
            EXPECT_EQ(OVWakeOnLanHelper::SnmpWakeUpOnLan(c.address, c.mac, "", c.isWakeOnLan,
                                                         c.isOverRouter),
                      c.result);
        });
        QThread::msleep(100); // packets still in flight to the listener
        QStringList destinations;
        for (const auto &packet : listener.packets()) {
            EXPECT_EQ(packet.bytes.toHex(),
                      MagicPacketListener::expectedPacket(macBytes(c.mac)).toHex());
            EXPECT_EQ(packet.interfaceName, Net::kPrinterInterface);
            destinations.append(packet.destination);
        }
        destinations.sort();
        EXPECT_EQ(destinations, c.destinations);
        if (c.requests >= 0) {
            EXPECT_EQ(printer->requestCount() - before, c.requests);
        }
        if (c.sleptSeconds >= 0) {
            EXPECT_EQ(sleptSeconds, unsigned(c.sleptSeconds));
        }
        std::lock_guard lock(logMutex);
        const QString logged = c.logged ? QString::number(LOG_ERR) + " " + c.logged : QString();
        EXPECT_EQ(c.logged ? log.value(0).left(logged.size()) : log.value(0), logged)
            << log.join('\n').toStdString();
    }
}

// Queries reach the printer's own address on port 161 in every form.
TEST_F(WakeOnLanTest, QueriesReachPrinterAtEachAddress) {
    for (const char *address : {kV4, kV6, "fe80::2%en0"}) {
        QString mac;
        inClient([&] { mac = OVSNMPHelper::getMacAddress(address, "cobalt"); });
        EXPECT_EQ(mac, kMac) << address;
    }
}

} // namespace
