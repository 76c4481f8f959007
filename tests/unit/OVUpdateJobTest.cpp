#include "OVUpdateJob.h"

#include <gtest/gtest.h>

namespace {

// The community name goes only with a custom community; the address whenever
// its field yields a string, even an empty one.
TEST(OVUpdateJob, EverySlotInOrder) {
    const auto slotNames = [](const QByteArray &keyword, int count, int parts) {
        QList<QByteArray> names;
        for (int i = 0; i < count; ++i)
            for (int part = 1; part <= parts; ++part)
                names << keyword + QByteArray::number(i) +
                             (parts > 1 ? "_Part" + QByteArray::number(part) : "");
        return names;
    };
    const std::tuple<bool, QString, qsizetype> cases[] = {
        {true, "10.0.0.5", 2690}, {false, "", 2689}, {false, QString(), 2688}};
    for (const auto &[community, address, count] : cases) {
        QList<QByteArray> expected{"UpdatePPDOptions", "PPDOptionsUpdated",
                                   "IsCustomSnmpCommunity"};
        if (community)
            expected << "SnmpCommunityName";
        expected += {"IsWakeOnLan", "PrinterMacAddress", "IsOverTheRouter"};
        if (!address.isNull())
            expected << "PrinterIPAddress";
        expected << slotNames("SharedBoxName", 100, 6) << slotNames("SelSharedBoxName", 100, 6)
                 << slotNames("SelSharedBoxIndex", 100, 1) << "UsePersonalFolder"
                 << "AdminLoginModeEnabled" << slotNames("PSFormName", 100, 6)
                 << slotNames("BarcodeAreaDefName", 100, 6) << slotNames("ColorProfileName", 30, 6);
        OVSettingsSnapshot snapshot;
        snapshot.snmpCommunityCheck = community;
        snapshot.printerIPAddressText = address;
        QList<QByteArray> names;
        for (const auto &option : OVUpdateJob::optionList(snapshot))
            names << option.first;
        EXPECT_EQ(names.size(), count);
        EXPECT_EQ(names, expected);
    }
}

} // namespace
