// Address handling and packet building of the SNMP and Wake-on-LAN helpers,
// which send nothing.
#include "OVSNMPHelper.h"
#include "OVWakeOnLanHelper.h"

#include <gtest/gtest.h>

#include <string>

namespace {

TEST(SnmpAddressing, ConvertedAddressFormsPeerName) {
    // Each address and its peer name, empty for one that does not fit.
    const std::pair<std::string, std::string> cases[] = {
        {"192.168.0.10", "192.168.0.10"},
        {"fe80::2%en0", "udp6:[fe80::2%en0]:161"},
        // One pair of enclosing brackets is the URL form of the same address.
        {"[fd99::2]", "udp6:[fd99::2]:161"},
        {"[127.0.0.2]", "127.0.0.2"},
        {"[]", ""},
        {std::string(255, 'a'), std::string(255, 'a')},
        {std::string(256, 'a'), ""},
        {"::" + std::string(250, 'f'), ""}};
    for (const auto &[address, expected] : cases) {
        SCOPED_TRACE(address);
        OVSNMPHelper::PeerName peerName;
        peerName.fill('x');
        EXPECT_EQ(OVSNMPHelper::getConvertedAddress(peerName, address.c_str()), !expected.empty());
        EXPECT_EQ(std::string(peerName.data()), expected);
    }
    OVSNMPHelper::PeerName peerName;
    EXPECT_FALSE(OVSNMPHelper::getConvertedAddress(peerName, nullptr));
}

TEST(SnmpAddressing, MagicPacketIsSyncMacSixteenTimesAndZeroTail) {
    const struct {
        const char *mac;
        std::array<std::uint8_t, 6> bytes;
    } cases[] = {{"00:11:22:aa:bb:CC", {0x00, 0x11, 0x22, 0xaa, 0xbb, 0xcc}},
                 // Each part is read from at most nine characters.
                 {"123456789abc:1:1:1:1:1", {0x89, 1, 1, 1, 1, 1}},
                 {"00:11:22:33:44", {}},
                 {nullptr, {}}};
    for (const auto &c : cases) {
        SCOPED_TRACE(c.mac ? c.mac : "null");
        const auto packet = OVWakeOnLanHelper::magicPacketBytes(c.mac);
        for (size_t i = 0; i < 108; ++i)
            ASSERT_EQ(packet[i], i < 6 ? 0xFF : i < 102 ? c.bytes[(i - 6) % 6] : 0) << i;
    }
}

} // namespace
