// The peer names the SNMP helper gives Net-SNMP for the addresses a user
// may type; nothing is sent.
#include "OVSNMPHelper.h"

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

} // namespace
