// Address handling and packet building of the SNMP and Wake-on-LAN helpers,
// which send nothing.
#include "OVSNMPHelper.h"
#include "OVWakeOnLanHelper.h"

#include <sys/socket.h>

#include <gtest/gtest.h>

#include <string>

namespace {

TEST(SnmpAddressing, ConvertedAddressFormsPeerName) {
    const struct {
        std::string address;
        bool fits;
        std::string peerName;
    } cases[] = {{"192.168.0.10", true, "192.168.0.10"},
                 {"printer.example", true, "printer.example"},
                 {"::1", true, "udp6:[::1]:161"},
                 {"fe80::1%en0", true, "udp6:[fe80::1%en0]:161"},
                 {"printer:8161", true, "udp6:[printer:8161]:161"},
                 {"", false, ""},
                 {std::string(255, 'a'), true, std::string(255, 'a')},
                 {std::string(256, 'a'), false, ""},
                 {"::" + std::string(250, 'f'), false, ""}};
    for (const auto &c : cases) {
        SCOPED_TRACE(c.address);
        OVSNMPHelper::PeerName peerName;
        peerName.fill('x');
        EXPECT_EQ(OVSNMPHelper::getConvertedAddress(peerName, c.address.c_str()), c.fits);
        EXPECT_EQ(std::string(peerName.data()), c.peerName);
    }
    OVSNMPHelper::PeerName peerName;
    peerName.fill('x');
    EXPECT_FALSE(OVSNMPHelper::getConvertedAddress(peerName, nullptr));
    EXPECT_EQ(peerName[0], '\0');
}

// Literals only: a host name would make the resolver send a query.
TEST(SnmpAddressing, JudgesAddressFamily) {
    EXPECT_EQ(OVWakeOnLanHelper::spJudgeIPtype("192.168.0.10"), AF_INET);
    EXPECT_EQ(OVWakeOnLanHelper::spJudgeIPtype("fd99::2"), AF_INET6);
    EXPECT_EQ(OVWakeOnLanHelper::spJudgeIPtype("fe80::1%lo"), AF_INET6);
    EXPECT_EQ(OVWakeOnLanHelper::spJudgeIPtype(nullptr), 0);
}

TEST(SnmpAddressing, MagicPacketIsSyncMacSixteenTimesAndZeroTail) {
    const struct {
        const char *mac;
        std::array<std::uint8_t, 6> bytes;
    } cases[] = {{"00:11:22:aa:bb:CC", {0x00, 0x11, 0x22, 0xaa, 0xbb, 0xcc}},
                 {"1ff:0:0:0:0:a", {0xff, 0, 0, 0, 0, 0x0a}},
                 // Each part is read from at most nine characters.
                 {"123456789abc:1:1:1:1:1", {0x89, 1, 1, 1, 1, 1}},
                 {"zz:11:22:33:44:55", {0, 0x11, 0x22, 0x33, 0x44, 0x55}},
                 {"00:11:22:33:44", {}},
                 {"00:11:22:33:44:55:66", {}},
                 {"", {}},
                 {nullptr, {}}};
    for (const auto &c : cases) {
        SCOPED_TRACE(c.mac ? c.mac : "null");
        const auto packet = OVWakeOnLanHelper::magicPacketBytes(c.mac);
        for (size_t i = 0; i < 108; ++i) {
            const int expected = i < 6 ? 0xFF : i < 102 ? c.bytes[(i - 6) % 6] : 0;
            ASSERT_EQ(packet[i], expected) << i;
        }
    }
}

} // namespace
