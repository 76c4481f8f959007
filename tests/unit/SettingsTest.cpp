#include "OVUpdateJob.h"
#include "OrvoPPD_Interface.h"
#include "OrvoSNMPHelper.h"
#include "OrvoSettingsKeywords.h"

#include <QTemporaryFile>

#include <QRegularExpression>
#include <QSet>

#include <gtest/gtest.h>

#include <memory>

namespace K = OrvoSettingsKeywords;

namespace {

using Attributes = QList<std::pair<QByteArray, QByteArray>>;
using OpenedPPD = std::unique_ptr<ppd_file_t, decltype(&r_ppdClose)>;

// A minimal PPD with the given main keywords and quoted values, a null value
// left out, opened through the program's libcups wrapper.
OpenedPPD settingsPPD(const Attributes &attributes) {
    QByteArray text = "*PPD-Adobe: \"4.3\"\n*FormatVersion: \"4.3\"\n*LanguageVersion: English\n"
                      "*LanguageEncoding: ISOLatin1\n*ModelName: \"T\"\n*NickName: \"T\"\n";
    for (const auto &[keyword, value] : attributes)
        if (!value.isNull())
            text += "*" + keyword + ": \"" + value + "\"\n";
    QTemporaryFile file;
    EXPECT_TRUE(file.open() && file.write(text) == text.size() && file.flush());
    OpenedPPD ppd(r_ppdOpenFile(QFile::encodeName(file.fileName()).constData()), &r_ppdClose);
    EXPECT_TRUE(ppd) << "libcups refused the test PPD";
    return ppd;
}

// Wake-on-LAN is on unless set otherwise, administrator login mode is on
// unless exactly "0", every other flag only when exactly "1".
TEST(OrvoSNMPHelper, FlagsDefaultsAndAsymmetries) {
    const std::tuple<Attributes, bool (*)(ppd_file_t *), bool> cases[] = {
        {{}, OrvoSNMPHelper::isWakeOnLan, true},
        {{{K::IsWakeOnLan, "yes"}}, OrvoSNMPHelper::isWakeOnLan, false},
        {{}, OrvoSNMPHelper::isAdminLoginModeEnabled, true},
        {{{K::AdminLoginModeEnabled, "0"}}, OrvoSNMPHelper::isAdminLoginModeEnabled, false},
        {{{K::AdminLoginModeEnabled, "false"}}, OrvoSNMPHelper::isAdminLoginModeEnabled, true},
        {{{K::IsCustomSnmpCommunity, "1"}}, OrvoSNMPHelper::isCustomSnmpCommunity, true},
        {{{K::PPDOptionsUpdated, "true"}}, OrvoSNMPHelper::isPPDOptionsUpdated, false},
        {{{K::UsePersonalFolder, "01"}}, OrvoSNMPHelper::isPersonalFolderSelected, false}};
    for (const auto &[attributes, read, expected] : cases)
        EXPECT_EQ(read(settingsPPD(attributes).get()), expected)
            << attributes.value(0).second.constData();
}

// Invalid UTF-8 counts as a failed decoding: the community falls back to its
// default, the address to "".
TEST(OrvoSNMPHelper, DecodesSingleValues) {
    const std::tuple<QByteArray, QString, QString> cases[] = {
        {QByteArray(), "cobalt", ""},
        {"", "", ""},
        {QString("共有").toUtf8().toBase64(), "共有", "共有"},
        {QByteArray("ab\xe3\x81").toBase64(), "cobalt", ""},
        {QByteArray("ab\0cd", 5).toBase64(), "ab", "ab"}};
    for (const auto &[stored, community, address] : cases) {
        const OpenedPPD ppd =
            settingsPPD({{K::SnmpCommunityName, stored}, {K::PrinterIPAddress, stored}});
        EXPECT_EQ(OrvoSNMPHelper::snmpCommunityName(ppd.get()), community);
        EXPECT_FALSE(OrvoSNMPHelper::getPrinterIPAddress(ppd.get()).isNull());
        EXPECT_EQ(OrvoSNMPHelper::getPrinterIPAddress(ppd.get()), address);
    }
}

Attributes parts(const QByteArray &keyword, const QList<QByteArray> &values) {
    Attributes attributes;
    for (int i = 0; i < values.size(); ++i)
        attributes.append({keyword + "_Part" + QByteArray::number(i + 1), values[i]});
    return attributes;
}

TEST(OrvoSNMPHelper, JoinsPartsIntoA4096ByteBuffer) {
    const QByteArray encoded = QByteArray(600, 'x').toBase64(); // 800 characters
    // A PPD line holds at most 255 characters: long values span lines, whose
    // ends count towards the length but not the decoding.
    QByteArray full = QByteArray(3000, 'a').toBase64();
    for (qsizetype i = 200; i < full.size(); i += 201)
        full.insert(i, '\n'); // 4019 characters
    const std::pair<QList<QByteArray>, QString> cases[] = {
        {{encoded.mid(0, 200), encoded.mid(200, 200), encoded.mid(400, 200), encoded.mid(600)},
         QString(600, 'x')},
        // A missing part does not end the scan.
        {{encoded.mid(0, 200), QByteArray(), encoded.mid(400, 200)},
         QByteArray::fromBase64(encoded.mid(0, 200) + encoded.mid(400, 200))},
        // A part is joined while the buffer keeps more than its length plus
        // one free: 4094 fits, 4095 does not, a later short one may.
        {{full.leftJustified(4094, '\n'), "Qw"}, QString(3000, 'a')},
        {{full.leftJustified(4095, '\n'), "Qw"}, "C"},
        {{full, QByteArray(60, 'b').toBase64(), "Qw"}, QString(3000, 'a') + "C"},
        // The 900-byte limit can cut a character: only the cut one is dropped.
        {{QByteArray("ab\xf0\x9f\x98").toBase64()}, "ab"}};
    for (const auto &[stored, expected] : cases)
        EXPECT_EQ(OrvoSNMPHelper::getDecodedPPDAttributeMaltiPartValueForName(
                      "PSFormName0", settingsPPD(parts("PSFormName0", stored)).get()),
                  expected);
}

TEST(OrvoSNMPHelper, ArraysSkipEmptyEntriesAndStopAtTheirLimit) {
    Attributes attributes = parts("SharedBoxName0", {"", ""});
    for (const char *index : {"1", "99", "100"})
        attributes += parts(QByteArray("SharedBoxName") + index, {QByteArray(index).toBase64()});
    attributes += parts("ColorProfileName29", {QByteArray("30th").toBase64()});
    attributes += parts("ColorProfileName30", {QByteArray("31st").toBase64()});
    for (int i = 0; const char *value : {"12abc", "abc", "", "99999999999"})
        attributes.append({"SelSharedBoxIndex" + QByteArray::number(i++), value});
    attributes += {{"SelSharedBoxIndex100", "5"}};
    const OpenedPPD ppd = settingsPPD(attributes);
    EXPECT_EQ(OrvoSNMPHelper::getSharedBoxDetailsArray(ppd.get()), QStringList({"1", "99"}));
    EXPECT_EQ(OrvoSNMPHelper::getColorProfileDetailsArray(ppd.get()), QStringList({"30th"}));
    EXPECT_EQ(OrvoSNMPHelper::getSelectedSharedBoxIndexArray(ppd.get()),
              QList<qint32>({12, 0, 2147483647}));
}

// The keyword groups in their order, and every list slot written (so that a shorter list clears
// the entries of a longer one). The community name goes only with a custom community; the
// address whenever its field yields a string, even an empty one. The values themselves are
// checked where a save reads back through the server.
TEST(OVUpdateJob, OptionGroupsAndSlots) {
    OVSettingsSnapshot s;
    s.snmpCommunityCheck = true;
    s.printerIPAddressText = "";
    QSet<QByteArray> names;
    QList<QByteArray> groups;
    static const QRegularExpression slot(QStringLiteral("\\d+(_Part\\d)?$"));
    for (const auto &[name, value] : OVUpdateJob::optionList(s)) {
        names << name;
        const QByteArray group = QString::fromLatin1(name).remove(slot).toLatin1();
        if (groups.isEmpty() || groups.last() != group)
            groups << group;
    }
    EXPECT_EQ(groups,
              (QList<QByteArray>{"UpdatePPDOptions", "PPDOptionsUpdated", "IsCustomSnmpCommunity",
                                 "SnmpCommunityName", "IsWakeOnLan", "PrinterMacAddress",
                                 "IsOverTheRouter", "PrinterIPAddress", "SharedBoxName",
                                 "SelSharedBoxName", "SelSharedBoxIndex", "UsePersonalFolder",
                                 "AdminLoginModeEnabled", "PSFormName", "BarcodeAreaDefName",
                                 "ColorProfileName"}));
    for (const char *name :
         {"SelSharedBoxIndex99", "PSFormName99_Part6", "ColorProfileName29_Part6"})
        EXPECT_TRUE(names.contains(name)) << name;
    EXPECT_EQ(names.size(), 2690);
    s.snmpCommunityCheck = false;
    s.printerIPAddressText = QString();
    EXPECT_EQ(OVUpdateJob::optionList(s).size(), 2688);
}

} // namespace
