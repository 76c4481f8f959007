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

#include <algorithm>
#include <memory>
#include <mutex>

namespace {

using Net = TestNetworkNamespaces;
constexpr const char *kPrinterMac = "00:11:22:aa:bb:cc";
constexpr std::array<quint8, 6> kPrinterMacBytes = {0x00, 0x11, 0x22, 0xaa, 0xbb, 0xcc};
constexpr const char *kOtherMac = "02:00:00:00:00:01";
constexpr int kWakeDelayMs = 200;
constexpr unsigned kSeamSleepMs = 50;
constexpr long kAsleep = 4;

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
        options.source4 = "default";
        options.source6 = "default";
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
        QFile::remove(QDir(printer->directory()).filePath("awake-at"));
        printer->setDefaults();
        OVSleep::setSleeper([this](unsigned seconds) {
            sleptSeconds += seconds;
            QThread::msleep(kSeamSleepMs);
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

    std::unique_ptr<MagicPacketListener> listen() {
        auto listener = std::make_unique<MagicPacketListener>(
            namespaces->printerName(), Net::kPrinterInterface, printer->directory(),
            kPrinterMacBytes, kWakeDelayMs);
        EXPECT_TRUE(listener->isListening()) << listener->errorText().toStdString();
        return listener;
    }

    // Runs the wake flow in the client namespace.
    bool wake(const QString &address, const QString &mac, bool isWakeOnLan, bool isOverRouter) {
        bool result = false;
        QString error;
        EXPECT_TRUE(Net::runIn(
            namespaces->clientName(),
            [&] {
                result =
                    OVWakeOnLanHelper::SnmpWakeUpOnLan(address, mac, "", isWakeOnLan, isOverRouter);
            },
            &error))
            << error.toStdString();
        return result;
    }

    static inline std::unique_ptr<Net> namespaces;
    static inline std::unique_ptr<SimulatedPrinter> printer;
    static inline QString setupError;
    std::atomic<unsigned> sleptSeconds{0};
    std::mutex logMutex;
    QStringList log;
};

QStringList destinations(const QList<MagicPacketListener::Packet> &packets,
                         const QByteArray &bytes) {
    QStringList result;
    for (const auto &packet : packets) {
        EXPECT_EQ(packet.bytes.toHex(), bytes.toHex());
        EXPECT_EQ(packet.interfaceName, Net::kPrinterInterface);
        result.append(packet.destination);
    }
    result.sort();
    return result;
}

struct WakeCase {
    const char *label;
    const char *address;
    const char *mac;
    bool isWakeOnLan;
    bool isOverRouter;
    long sleepMode;
    bool result;
    QStringList destinations; // sorted
    int requests;             // GETs the printer receives; -1: not counted
    const char *logged;       // a line the flow logs, or nullptr for none
};

void PrintTo(const WakeCase &c, std::ostream *os) {
    *os << c.label;
}

class WakeFlowTest : public WakeOnLanTest, public ::testing::WithParamInterface<WakeCase> {};

TEST_P(WakeFlowTest, WakesAndAnswers) {
    const WakeCase &c = GetParam();
    printer->setInteger(SimulatedPrinter::kSleepMode, c.sleepMode);
    const auto listener = listen();
    const int before = printer->requestCount();

    EXPECT_EQ(wake(c.address, c.mac, c.isWakeOnLan, c.isOverRouter), c.result);

    QThread::msleep(100); // packets still in flight to the listener
    const auto packets = listener->packets();
    std::array<quint8, 6> macBytes{};
    if (c.mac && QByteArray(c.mac) == kOtherMac)
        macBytes = {0x02, 0, 0, 0, 0, 0x01};
    else
        macBytes = kPrinterMacBytes;
    EXPECT_EQ(destinations(packets, MagicPacketListener::expectedPacket(macBytes)), c.destinations);
    if (c.requests >= 0) {
        EXPECT_EQ(printer->requestCount() - before, c.requests);
    }
    std::lock_guard lock(logMutex);
    if (c.logged) {
        ASSERT_FALSE(log.isEmpty());
        EXPECT_TRUE(log.first().startsWith(QString::number(LOG_ERR) + " " + c.logged))
            << log.first().toStdString();
    } else {
        EXPECT_EQ(log, QStringList());
    }
}

const QString kBroadcast = "255.255.255.255";
const QString kAllRouters = "ff02::2";

INSTANTIATE_TEST_SUITE_P(
    Flows, WakeFlowTest,
    ::testing::Values(
        WakeCase{"ipv4Broadcast",
                 "10.200.0.2",
                 kPrinterMac,
                 true,
                 false,
                 kAsleep,
                 true,
                 {kBroadcast, kBroadcast},
                 -1,
                 nullptr},
        WakeCase{"ipv6Group",
                 "fd99::2",
                 kPrinterMac,
                 true,
                 false,
                 kAsleep,
                 true,
                 {kAllRouters, kAllRouters},
                 -1,
                 nullptr},
        WakeCase{"ipv4OverRouter",
                 "10.200.0.2",
                 kPrinterMac,
                 true,
                 true,
                 kAsleep,
                 true,
                 {"10.200.0.2", "10.200.0.2"},
                 -1,
                 nullptr},
        WakeCase{"ipv6OverRouter",
                 "fd99::2",
                 kPrinterMac,
                 true,
                 true,
                 kAsleep,
                 true,
                 {"fd99::2", "fd99::2"},
                 -1,
                 nullptr},
        WakeCase{"emptyAddress",
                 "",
                 kPrinterMac,
                 true,
                 false,
                 kAsleep,
                 false,
                 {kBroadcast, kAllRouters},
                 0,
                 nullptr},
        WakeCase{
            "emptyAddressOverRouter", "", kPrinterMac, true, true, kAsleep, false, {}, 0, nullptr},
        WakeCase{"alreadyReady", "10.200.0.2", kPrinterMac, true, false, 1, true, {}, 1, nullptr},
        WakeCase{
            "wakeOnLanOff", "10.200.0.2", kPrinterMac, false, false, kAsleep, true, {}, 0, nullptr},
        WakeCase{"zeroMac",
                 "10.200.0.2",
                 "00:00:00:00:00:00",
                 true,
                 false,
                 kAsleep,
                 true,
                 {},
                 0,
                 nullptr},
        WakeCase{"emptyMac", "10.200.0.2", "", true, false, kAsleep, false, {}, 0, nullptr},
        // Mode 2: 36 more checks, two packets nobody answers, 15 polls.
        WakeCase{"staysGoingToSleep",
                 "10.200.0.2",
                 kOtherMac,
                 true,
                 false,
                 2,
                 false,
                 {kBroadcast, kBroadcast},
                 1 + 36 + 15,
                 nullptr},
        // A link-local address is asked with its zone, but the packet to it
        // cannot be addressed: logged, and the printer sleeps on.
        WakeCase{"linkLocalOverRouter",
                 "fe80::2%en0",
                 kPrinterMac,
                 true,
                 true,
                 kAsleep,
                 false,
                 {},
                 1 + 15,
                 "ERROR: convert ip address text to byte ["}),
    [](const auto &info) { return std::string(info.param.label); });

TEST_F(WakeOnLanTest, WaitsOutGoingToSleepInWholeSeconds) {
    printer->setInteger(SimulatedPrinter::kSleepMode, 2);
    EXPECT_FALSE(wake("10.200.0.2", kOtherMac, true, false));
    EXPECT_EQ(sleptSeconds, 36u * 5 + 5 + 10 + 15 * 1);
}

// Queries reach the printer's own address on port 161 in every form.
class PrinterAddressTest : public WakeOnLanTest,
                           public ::testing::WithParamInterface<const char *> {};

TEST_P(PrinterAddressTest, ReachesPrinter) {
    QString mac;
    QString error;
    ASSERT_TRUE(Net::runIn(
        namespaces->clientName(), [&] { mac = OVSNMPHelper::getMacAddress(GetParam(), "cobalt"); },
        &error))
        << error.toStdString();
    EXPECT_EQ(mac, kPrinterMac);
}

INSTANTIATE_TEST_SUITE_P(Addresses, PrinterAddressTest,
                         ::testing::Values("10.200.0.2", "fd99::2", "fe80::2%en0"));

} // namespace
