// Address handling and packet building of the SNMP and Wake-on-LAN helpers,
// which send nothing.
#include "OVSNMPHelper.h"
#include "OVWakeOnLanHelper.h"

#include <sys/socket.h>

#include <gtest/gtest.h>

#include <string>

namespace {

struct PeerNameCase {
    std::string address;
    bool fits;
    std::string peerName;
};

class ConvertedAddressTest : public ::testing::TestWithParam<PeerNameCase> {};

TEST_P(ConvertedAddressTest, FormsPeerName) {
    OVSNMPHelper::PeerName peerName;
    peerName.fill('x');
    EXPECT_EQ(OVSNMPHelper::getConvertedAddress(peerName, GetParam().address.c_str()),
              GetParam().fits);
    EXPECT_EQ(std::string(peerName.data()), GetParam().peerName);
}

INSTANTIATE_TEST_SUITE_P(
    Addresses, ConvertedAddressTest,
    ::testing::Values(PeerNameCase{"192.168.0.10", true, "192.168.0.10"},
                      PeerNameCase{"printer.example", true, "printer.example"},
                      PeerNameCase{"::1", true, "udp6:[::1]:161"},
                      PeerNameCase{"fd99::2", true, "udp6:[fd99::2]:161"},
                      PeerNameCase{"fe80::1%en0", true, "udp6:[fe80::1%en0]:161"},
                      PeerNameCase{"printer:8161", true, "udp6:[printer:8161]:161"},
                      PeerNameCase{"", false, ""},
                      PeerNameCase{std::string(255, 'a'), true, std::string(255, 'a')},
                      PeerNameCase{std::string(256, 'a'), false, ""},
                      PeerNameCase{"::" + std::string(250, 'f'), false, ""}));

TEST(ConvertedAddress, NullAddressIsRefused) {
    OVSNMPHelper::PeerName peerName;
    EXPECT_FALSE(OVSNMPHelper::getConvertedAddress(peerName, nullptr));
    EXPECT_EQ(peerName[0], '\0');
}

// Literals only: a host name would make the resolver send a query.
struct FamilyCase {
    const char *address;
    int family;
};

class JudgeIPTypeTest : public ::testing::TestWithParam<FamilyCase> {};

TEST_P(JudgeIPTypeTest, FindsAddressFamily) {
    EXPECT_EQ(OVWakeOnLanHelper::spJudgeIPtype(GetParam().address), GetParam().family);
}

INSTANTIATE_TEST_SUITE_P(
    Literals, JudgeIPTypeTest,
    ::testing::Values(FamilyCase{"192.168.0.10", AF_INET}, FamilyCase{"127.0.0.1", AF_INET},
                      FamilyCase{"fd99::2", AF_INET6}, FamilyCase{"::1", AF_INET6},
                      FamilyCase{"fe80::1%lo", AF_INET6}, FamilyCase{nullptr, 0}));

struct PacketCase {
    const char *mac;
    std::array<std::uint8_t, 6> bytes;
};

class MagicPacketBytesTest : public ::testing::TestWithParam<PacketCase> {};

TEST_P(MagicPacketBytesTest, SyncMacSixteenTimesAndZeroTail) {
    const auto packet = OVWakeOnLanHelper::magicPacketBytes(GetParam().mac);
    for (size_t i = 0; i < 6; ++i)
        ASSERT_EQ(packet[i], 0xFF) << i;
    for (size_t i = 6; i < 102; ++i)
        ASSERT_EQ(packet[i], GetParam().bytes[(i - 6) % 6]) << i;
    for (size_t i = 102; i < 108; ++i)
        ASSERT_EQ(packet[i], 0) << i;
}

INSTANTIATE_TEST_SUITE_P(
    Macs, MagicPacketBytesTest,
    ::testing::Values(PacketCase{"00:11:22:aa:bb:CC", {0x00, 0x11, 0x22, 0xaa, 0xbb, 0xcc}},
                      PacketCase{"1:2:3:4:5:6", {1, 2, 3, 4, 5, 6}},
                      PacketCase{"1ff:0:0:0:0:a", {0xff, 0, 0, 0, 0, 0x0a}},
                      // Each part is read from at most nine characters.
                      PacketCase{"123456789abc:1:1:1:1:1", {0x89, 1, 1, 1, 1, 1}},
                      PacketCase{"zz:11:22:33:44:55", {0, 0x11, 0x22, 0x33, 0x44, 0x55}},
                      PacketCase{"00:11:22:33:44", {0, 0, 0, 0, 0, 0}},
                      PacketCase{"00:11:22:33:44:55:66", {0, 0, 0, 0, 0, 0}},
                      PacketCase{"", {0, 0, 0, 0, 0, 0}}, PacketCase{nullptr, {0, 0, 0, 0, 0, 0}}));

} // namespace
