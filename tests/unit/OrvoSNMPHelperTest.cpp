#include "OrvoSNMPHelper.h"
#include "OrvoPPD_Interface.h"
#include "OrvoSettingsKeywords.h"
#include "TestPPDFile.h"

#include <gtest/gtest.h>

#include <cstring>
#include <limits>

namespace K = OrvoSettingsKeywords;

namespace {

QByteArray b64(const QByteArray &bytes) {
    return bytes.toBase64();
}
QByteArray b64(const QString &text) {
    return text.toUtf8().toBase64();
}

// The six parts of a multi-part value; a null part is left out of the PPD.
TestPPDFile::Attributes parts(const QByteArray &keyword, const QList<QByteArray> &values) {
    TestPPDFile::Attributes attributes;
    for (int i = 0; i < values.size(); ++i) {
        if (!values[i].isNull())
            attributes.append({keyword + "_Part" + QByteArray::number(i + 1), values[i]});
    }
    return attributes;
}

TEST(OrvoSNMPHelper, NeverWrittenPPDReadsAsDefaults) {
    const TestPPDFile file(TestPPDFile::Attributes{});
    ppd_file_t *ppd = file.ppd();
    EXPECT_FALSE(OrvoSNMPHelper::isCustomSnmpCommunity(ppd));
    EXPECT_EQ(OrvoSNMPHelper::snmpCommunityName(ppd), "cobalt");
    EXPECT_TRUE(OrvoSNMPHelper::isWakeOnLan(ppd));
    EXPECT_FALSE(OrvoSNMPHelper::isOverTheRouter(ppd));
    EXPECT_FALSE(OrvoSNMPHelper::isPPDOptionsUpdated(ppd));
    EXPECT_FALSE(OrvoSNMPHelper::isPersonalFolderSelected(ppd));
    EXPECT_TRUE(OrvoSNMPHelper::isAdminLoginModeEnabled(ppd));
    for (const QString &text :
         {OrvoSNMPHelper::getPrinterMacAddress(ppd), OrvoSNMPHelper::getPrinterIPAddress(ppd),
          OrvoSNMPHelper::getPPDAttributeValueForName(K::IsWakeOnLan, ppd),
          OrvoSNMPHelper::getDecodedPPDAttributeMaltiPartValueForName(K::PSFormName, ppd)}) {
        EXPECT_FALSE(text.isNull());
        EXPECT_EQ(text, "");
    }
    EXPECT_TRUE(
        OrvoSNMPHelper::getDecodedPPDAttributeValueForName(K::PrinterIPAddress, ppd).isNull());
    for (const auto &array : {OrvoSNMPHelper::getSharedBoxDetailsArray(ppd),
                              OrvoSNMPHelper::getSelectedSharedBoxDetailsArray(ppd),
                              OrvoSNMPHelper::getFormDetailsArray(ppd),
                              OrvoSNMPHelper::getBarcodeAreaDefinitionDetailsArray(ppd),
                              OrvoSNMPHelper::getColorProfileDetailsArray(ppd)})
        EXPECT_TRUE(array.isEmpty());
    EXPECT_TRUE(OrvoSNMPHelper::getSelectedSharedBoxIndexArray(ppd).isEmpty());
}

struct FlagCase {
    const char *keyword;
    const char *value;
    bool (*read)(ppd_file_t *);
    bool expected;
};

class FlagTest : public ::testing::TestWithParam<FlagCase> {};

TEST_P(FlagTest, ReadsStoredFlag) {
    const TestPPDFile file(TestPPDFile::Attributes{{GetParam().keyword, GetParam().value}});
    EXPECT_EQ(GetParam().read(file.ppd()), GetParam().expected)
        << GetParam().keyword << "=\"" << GetParam().value << "\"";
}

// Wake-on-LAN is on unless set otherwise, administrator login mode is on
// unless exactly "0", every other flag only when exactly "1".
INSTANTIATE_TEST_SUITE_P(
    Asymmetries, FlagTest,
    ::testing::Values(
        FlagCase{K::IsWakeOnLan, "", OrvoSNMPHelper::isWakeOnLan, true},
        FlagCase{K::IsWakeOnLan, "0", OrvoSNMPHelper::isWakeOnLan, false},
        FlagCase{K::IsWakeOnLan, "yes", OrvoSNMPHelper::isWakeOnLan, false},
        FlagCase{K::AdminLoginModeEnabled, "0", OrvoSNMPHelper::isAdminLoginModeEnabled, false},
        FlagCase{K::AdminLoginModeEnabled, "false", OrvoSNMPHelper::isAdminLoginModeEnabled, true},
        FlagCase{K::IsCustomSnmpCommunity, "1", OrvoSNMPHelper::isCustomSnmpCommunity, true},
        FlagCase{K::IsCustomSnmpCommunity, "yes", OrvoSNMPHelper::isCustomSnmpCommunity, false},
        FlagCase{K::IsOverTheRouter, "1", OrvoSNMPHelper::isOverTheRouter, true},
        FlagCase{K::PPDOptionsUpdated, "1", OrvoSNMPHelper::isPPDOptionsUpdated, true},
        FlagCase{K::PPDOptionsUpdated, "true", OrvoSNMPHelper::isPPDOptionsUpdated, false},
        FlagCase{K::UsePersonalFolder, "1", OrvoSNMPHelper::isPersonalFolderSelected, true},
        FlagCase{K::UsePersonalFolder, "01", OrvoSNMPHelper::isPersonalFolderSelected, false}));

struct DecodedCase {
    const char *name;
    QByteArray stored;
    QString community; // what snmpCommunityName reads
    QString address;   // what getPrinterIPAddress reads
};

class DecodedTest : public ::testing::TestWithParam<DecodedCase> {};

TEST_P(DecodedTest, DecodesSingleValue) {
    const TestPPDFile file(TestPPDFile::Attributes{{K::SnmpCommunityName, GetParam().stored},
                                                   {K::PrinterIPAddress, GetParam().stored}});
    EXPECT_EQ(OrvoSNMPHelper::snmpCommunityName(file.ppd()), GetParam().community);
    EXPECT_EQ(OrvoSNMPHelper::getPrinterIPAddress(file.ppd()), GetParam().address);
    EXPECT_FALSE(OrvoSNMPHelper::getPrinterIPAddress(file.ppd()).isNull());
}

// Invalid UTF-8 counts as a failed decoding: the community falls back to its
// default, the address to "".
INSTANTIATE_TEST_SUITE_P(
    Values, DecodedTest,
    ::testing::Values(DecodedCase{"Plain", b64(QByteArray("public")), "public", "public"},
                      DecodedCase{"Empty", "", "", ""},
                      DecodedCase{"Japanese", b64(QString("共有フォルダ")), "共有フォルダ",
                                  "共有フォルダ"},
                      DecodedCase{"InvalidUtf8", b64(QByteArray("ab\xff\xfe")), "cobalt", ""},
                      DecodedCase{"CutCharacter", b64(QByteArray("ab\xe3\x81")), "cobalt", ""},
                      DecodedCase{"StopsAtNul", b64(QByteArray("ab\0cd", 5)), "ab", "ab"}),
    [](const auto &info) { return std::string(info.param.name); });

struct MultiPartCase {
    const char *name;
    QList<QByteArray> parts; // a null part is absent
    QString expected;
};

class MultiPartTest : public ::testing::TestWithParam<MultiPartCase> {};

TEST_P(MultiPartTest, JoinsAndDecodes) {
    const TestPPDFile file(parts("PSFormName0", GetParam().parts));
    const QString value =
        OrvoSNMPHelper::getDecodedPPDAttributeMaltiPartValueForName("PSFormName0", file.ppd());
    EXPECT_FALSE(value.isNull());
    EXPECT_EQ(value, GetParam().expected);
    for (int i = 0; i < GetParam().parts.size(); ++i) {
        const ppd_attr_t *attr =
            r_ppdFindAttr(file.ppd(), "PSFormName0_Part" + QByteArray::number(i + 1), nullptr);
        ASSERT_EQ(attr ? qsizetype(strlen(attr->value)) : -1,
                  GetParam().parts[i].isNull() ? -1 : GetParam().parts[i].size());
    }
}

const QByteArray longEncoded = b64(QByteArray(600, 'x'));  // 800 characters
const QByteArray fullEncoded = b64(QByteArray(3000, 'a')); // 4000 characters

// A PPD line holds at most 255 characters, so a long value is stored over
// several lines; the line ends count towards its length. Padded with line
// ends (which decoding ignores) up to length.
QByteArray folded(const QByteArray &encoded, qsizetype length = 0) {
    QByteArray text;
    for (qsizetype i = 0; i < encoded.size(); i += 200)
        text += (i ? "\n" : "") + encoded.mid(i, 200);
    return text.leftJustified(length, '\n');
}

INSTANTIATE_TEST_SUITE_P(
    Joins, MultiPartTest,
    ::testing::Values(
        MultiPartCase{"OnePart", {b64(QString("Form A"))}, "Form A"},
        MultiPartCase{"FourParts",
                      {longEncoded.mid(0, 200), longEncoded.mid(200, 200),
                       longEncoded.mid(400, 200), longEncoded.mid(600), "", ""},
                      QString(600, 'x')},
        // A missing part does not end the scan: parts 1 and 3 are joined.
        MultiPartCase{"GapJoinsLaterPart",
                      {longEncoded.mid(0, 200), QByteArray(), longEncoded.mid(400, 200)},
                      QString::fromUtf8(QByteArray::fromBase64(longEncoded.mid(0, 200) +
                                                               longEncoded.mid(400, 200)))},
        // A part is joined while the 4096-byte buffer keeps more than its
        // length plus one free: 4094 fits, 4095 does not.
        MultiPartCase{"LargestPartFits", {folded(fullEncoded, 4094), "Qw"}, QString(3000, 'a')},
        MultiPartCase{"PartTooLargeSkipped", {folded(fullEncoded, 4095), "Qw"}, "C"},
        // 4019 used: an 80-character part no longer fits, a later short one does.
        MultiPartCase{"LaterShorterPartStillJoined",
                      {folded(fullEncoded), b64(QByteArray(60, 'b')), "Qw"},
                      QString(3000, 'a') + "C"},
        MultiPartCase{"AllEmpty", {"", "", "", "", "", ""}, ""},
        MultiPartCase{"InvalidUtf8", {b64(QByteArray("\xc3\x28"))}, ""},
        // The 900-byte limit can cut a character: only the cut one is dropped.
        MultiPartCase{"IncompleteLastCharacter", {b64(QByteArray("ab\xf0\x9f\x98"))}, "ab"}),
    [](const auto &info) { return std::string(info.param.name); });

TEST(OrvoSNMPHelper, ArraysSkipEmptyEntriesAndStopAtTheirLimit) {
    TestPPDFile::Attributes attributes = parts("SharedBoxName0", {"", "", "", "", "", ""});
    attributes += parts("SharedBoxName1", {b64(QString("A"))});
    attributes += parts("SharedBoxName7", {b64(QString("😀 Box"))});
    attributes += parts("SharedBoxName99", {b64(QString("last"))});
    attributes += parts("SharedBoxName100", {b64(QString("beyond"))});
    attributes += parts("ColorProfileName29", {b64(QString("profile 30"))});
    attributes += parts("ColorProfileName30", {b64(QString("profile 31"))});
    attributes += parts("BarcodeAreaDefName3", {b64(QString("バーコード"))});
    attributes += parts("SelSharedBoxName2", {b64(QString("chosen"))});
    const TestPPDFile file(attributes);
    EXPECT_EQ(OrvoSNMPHelper::getSharedBoxDetailsArray(file.ppd()),
              QStringList({"A", "😀 Box", "last"}));
    EXPECT_EQ(OrvoSNMPHelper::getColorProfileDetailsArray(file.ppd()), QStringList({"profile 30"}));
    EXPECT_EQ(OrvoSNMPHelper::getBarcodeAreaDefinitionDetailsArray(file.ppd()),
              QStringList({"バーコード"}));
    EXPECT_EQ(OrvoSNMPHelper::getSelectedSharedBoxDetailsArray(file.ppd()),
              QStringList({"chosen"}));
    EXPECT_TRUE(OrvoSNMPHelper::getFormDetailsArray(file.ppd()).isEmpty());
}

TEST(OrvoSNMPHelper, IndicesKeepLeadingDigits) {
    const TestPPDFile file(TestPPDFile::Attributes{{"SelSharedBoxIndex0", "12abc"},
                                                   {"SelSharedBoxIndex1", "abc"},
                                                   {"SelSharedBoxIndex2", ""},
                                                   {"SelSharedBoxIndex3", "7"},
                                                   {"SelSharedBoxIndex4", "-3"},
                                                   {"SelSharedBoxIndex5", "99999999999"},
                                                   {"SelSharedBoxIndex100", "5"}});
    EXPECT_EQ(OrvoSNMPHelper::getSelectedSharedBoxIndexArray(file.ppd()),
              QList<qint32>({12, 0, 7, -3, std::numeric_limits<qint32>::max()}));
}

} // namespace
