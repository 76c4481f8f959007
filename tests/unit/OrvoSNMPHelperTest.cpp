#include "OrvoSNMPHelper.h"
#include "OrvoPPD_Interface.h"
#include "OrvoSettingsKeywords.h"
#include "TestPPDFile.h"

#include <gtest/gtest.h>

#include <limits>

namespace K = OrvoSettingsKeywords;

namespace {

QByteArray b64(const QByteArray &bytes) {
    return bytes.toBase64();
}

// The parts of a multi-part value; a null part is left out of the PPD.
TestPPDFile::Attributes parts(const QByteArray &keyword, const QList<QByteArray> &values) {
    TestPPDFile::Attributes attributes;
    for (int i = 0; i < values.size(); ++i) {
        if (!values[i].isNull())
            attributes.append({keyword + "_Part" + QByteArray::number(i + 1), values[i]});
    }
    return attributes;
}

// Wake-on-LAN is on unless set otherwise, administrator login mode is on
// unless exactly "0", every other flag only when exactly "1"; missing texts
// read as "" and missing lists as empty.
TEST(OrvoSNMPHelper, FlagsAndDefaults) {
    const TestPPDFile none(TestPPDFile::Attributes{});
    EXPECT_FALSE(OrvoSNMPHelper::isCustomSnmpCommunity(none.ppd()));
    EXPECT_EQ(OrvoSNMPHelper::snmpCommunityName(none.ppd()), "cobalt");
    EXPECT_TRUE(OrvoSNMPHelper::isWakeOnLan(none.ppd()));
    EXPECT_FALSE(OrvoSNMPHelper::isOverTheRouter(none.ppd()));
    EXPECT_TRUE(OrvoSNMPHelper::isAdminLoginModeEnabled(none.ppd()));
    EXPECT_FALSE(OrvoSNMPHelper::isPPDOptionsUpdated(none.ppd()));
    for (const QString &text : {OrvoSNMPHelper::getPrinterMacAddress(none.ppd()),
                                OrvoSNMPHelper::getPrinterIPAddress(none.ppd())})
        EXPECT_TRUE(!text.isNull() && text.isEmpty());
    EXPECT_TRUE(OrvoSNMPHelper::getSharedBoxDetailsArray(none.ppd()).isEmpty());
    EXPECT_TRUE(OrvoSNMPHelper::getSelectedSharedBoxIndexArray(none.ppd()).isEmpty());

    const std::tuple<const char *, const char *, bool (*)(ppd_file_t *), bool> cases[] = {
        {K::IsWakeOnLan, "", OrvoSNMPHelper::isWakeOnLan, true},
        {K::IsWakeOnLan, "yes", OrvoSNMPHelper::isWakeOnLan, false},
        {K::AdminLoginModeEnabled, "0", OrvoSNMPHelper::isAdminLoginModeEnabled, false},
        {K::AdminLoginModeEnabled, "false", OrvoSNMPHelper::isAdminLoginModeEnabled, true},
        {K::IsCustomSnmpCommunity, "1", OrvoSNMPHelper::isCustomSnmpCommunity, true},
        {K::IsOverTheRouter, "1", OrvoSNMPHelper::isOverTheRouter, true},
        {K::PPDOptionsUpdated, "true", OrvoSNMPHelper::isPPDOptionsUpdated, false},
        {K::UsePersonalFolder, "01", OrvoSNMPHelper::isPersonalFolderSelected, false}};
    for (const auto &[keyword, value, read, expected] : cases) {
        const TestPPDFile file(TestPPDFile::Attributes{{keyword, value}});
        EXPECT_EQ(read(file.ppd()), expected) << keyword << "=\"" << value << "\"";
    }
}

// Invalid UTF-8 counts as a failed decoding: the community falls back to its
// default, the address to "".
TEST(OrvoSNMPHelper, DecodesSingleValues) {
    const std::tuple<QByteArray, QString, QString> cases[] = {
        {b64("public"), "public", "public"},
        {"", "", ""},
        {b64(QString("共有").toUtf8()), "共有", "共有"},
        {b64("ab\xe3\x81"), "cobalt", ""},
        {b64(QByteArray("ab\0cd", 5)), "ab", "ab"}};
    for (const auto &[stored, community, address] : cases) {
        const TestPPDFile file(
            TestPPDFile::Attributes{{K::SnmpCommunityName, stored}, {K::PrinterIPAddress, stored}});
        EXPECT_EQ(OrvoSNMPHelper::snmpCommunityName(file.ppd()), community);
        EXPECT_EQ(OrvoSNMPHelper::getPrinterIPAddress(file.ppd()), address);
        EXPECT_FALSE(OrvoSNMPHelper::getPrinterIPAddress(file.ppd()).isNull());
    }
}

// A PPD line holds at most 255 characters, so a long value is stored over
// several lines whose ends count towards its length; padded with line ends
// (which decoding ignores) up to length.
QByteArray folded(const QByteArray &encoded, qsizetype length = 0) {
    QByteArray text;
    for (qsizetype i = 0; i < encoded.size(); i += 200)
        text += (i ? "\n" : "") + encoded.mid(i, 200);
    return text.leftJustified(length, '\n');
}

TEST(OrvoSNMPHelper, JoinsParts) {
    const QByteArray encoded = b64(QByteArray(600, 'x'));       // 800 characters
    const QByteArray full = folded(b64(QByteArray(3000, 'a'))); // 4019 characters
    const std::pair<QList<QByteArray>, QString> cases[] = {
        {{encoded.mid(0, 200), encoded.mid(200, 200), encoded.mid(400, 200), encoded.mid(600)},
         QString(600, 'x')},
        // A missing part does not end the scan.
        {{encoded.mid(0, 200), QByteArray(), encoded.mid(400, 200)},
         QString::fromUtf8(QByteArray::fromBase64(encoded.mid(0, 200) + encoded.mid(400, 200)))},
        // A part is joined while the 4096-byte buffer keeps more than its
        // length plus one free: 4094 fits, 4095 does not, a later short one may.
        {{full.leftJustified(4094, '\n'), "Qw"}, QString(3000, 'a')},
        {{full.leftJustified(4095, '\n'), "Qw"}, "C"},
        {{full, b64(QByteArray(60, 'b')), "Qw"}, QString(3000, 'a') + "C"},
        {{"", "", "", "", "", ""}, ""},
        {{b64("\xc3\x28")}, ""},
        // The 900-byte limit can cut a character: only the cut one is dropped.
        {{b64("ab\xf0\x9f\x98")}, "ab"}};
    for (const auto &[stored, expected] : cases) {
        const TestPPDFile file(parts("PSFormName0", stored));
        const QString value =
            OrvoSNMPHelper::getDecodedPPDAttributeMaltiPartValueForName("PSFormName0", file.ppd());
        EXPECT_FALSE(value.isNull());
        EXPECT_EQ(value, expected) << expected.left(20).toStdString();
    }
}

TEST(OrvoSNMPHelper, ArraysSkipEmptyEntriesAndStopAtTheirLimit) {
    TestPPDFile::Attributes attributes = parts("SharedBoxName0", {"", "", ""});
    for (const char *index : {"1", "99", "100"})
        attributes += parts(QByteArray("SharedBoxName") + index, {b64(index)});
    attributes += parts("ColorProfileName29", {b64("30th")});
    attributes += parts("ColorProfileName30", {b64("31st")});
    attributes += {{"SelSharedBoxIndex0", "12abc"},
                   {"SelSharedBoxIndex1", "abc"},
                   {"SelSharedBoxIndex2", ""},
                   {"SelSharedBoxIndex3", "-3"},
                   {"SelSharedBoxIndex4", "99999999999"},
                   {"SelSharedBoxIndex100", "5"}};
    const TestPPDFile file(attributes);
    EXPECT_EQ(OrvoSNMPHelper::getSharedBoxDetailsArray(file.ppd()), QStringList({"1", "99"}));
    EXPECT_EQ(OrvoSNMPHelper::getColorProfileDetailsArray(file.ppd()), QStringList({"30th"}));
    EXPECT_EQ(OrvoSNMPHelper::getSelectedSharedBoxIndexArray(file.ppd()),
              QList<qint32>({12, 0, -3, std::numeric_limits<qint32>::max()}));
}

} // namespace
