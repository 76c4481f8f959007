#include "OVStoredSettings.h"
#include "OVUpdateJob.h"
#include "OrvoPPD_Interface.h"
#include "OrvoSNMPHelper.h"
#include "OrvoSettingsCodec.h"
#include "OrvoSettingsKeywords.h"
#include "OrvoSettingsRules.h"
#include "SettingsInputs.h"

#include <QTemporaryFile>

#include <QRegularExpression>
#include <QSet>

#include <gtest/gtest.h>

#include <map>
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

// The reader is strict: a value the utility could not have written reads as absent, that is as
// its setting's default, and is reported as ignored.
TEST(OrvoSNMPHelper, StoredValuesTheRulesRefuseReadAsTheirDefault) {
    const auto b64 = [](const QByteArray &text) { return text.toBase64(); };
    using Read = QString (*)(ppd_file_t *);
    const Read community = OrvoSNMPHelper::snmpCommunityName;
    const Read mac = OrvoSNMPHelper::getPrinterMacAddress;
    const Read address = OrvoSNMPHelper::getPrinterIPAddress;
    const std::tuple<const char *, QByteArray, Read, QString, bool> cases[] = {
        {K::SnmpCommunityName, QByteArray(), community, "cobalt", false},
        {K::SnmpCommunityName, "", community, "", false},
        {K::SnmpCommunityName, b64("public\xc2\xa5"), community, "public\u00A5", false},
        {K::SnmpCommunityName, b64("bad-char"), community, "cobalt", true},
        {K::SnmpCommunityName, b64("ab\xe3\x81"), community, "cobalt", true},
        // Not a multiple of four characters, a letter outside base64, padding inside.
        {K::SnmpCommunityName, "QUJDR", community, "cobalt", true},
        {K::SnmpCommunityName, "Y29i!WF0", community, "cobalt", true},
        {K::SnmpCommunityName, "QQ==QUJD", community, "cobalt", true},
        {K::PrinterMacAddress, b64("0a:1b:2c:3d:4e:5f"), mac, "0a:1b:2c:3d:4e:5f", false},
        {K::PrinterMacAddress, b64(":11:22:aa:bb:cc"), mac, "", true},
        {K::PrinterIPAddress, b64("fd00::7"), address, "fd00::7", false},
        {K::PrinterIPAddress, b64(QByteArray("ab\0cd", 5)), address, "ab", false},
        {K::PrinterIPAddress, b64("192.168.0.300"), address, "", true}};
    for (const auto &[keyword, stored, read, expected, ignored] : cases) {
        SCOPED_TRACE(stored.constData());
        const OpenedPPD ppd = settingsPPD({{keyword, stored}});
        EXPECT_EQ(read(ppd.get()), expected);
        EXPECT_FALSE(read(ppd.get()).isNull());
        EXPECT_EQ(OrvoSNMPHelper::settings(ppd.get()).ignored.size(), ignored ? 1u : 0u);
    }
}

Attributes parts(const QByteArray &keyword, const QList<QByteArray> &values) {
    Attributes attributes;
    for (int i = 0; i < values.size(); ++i)
        attributes.append({keyword + "_Part" + QByteArray::number(i + 1), values[i]});
    return attributes;
}

// A name is read only from parts as the utility writes them: each full but the last, no gaps.
TEST(OrvoSNMPHelper, JoinsOnlyWholeParts) {
    const QByteArray encoded = QByteArray(600, 'x').toBase64(); // 800 characters
    const std::pair<QList<QByteArray>, QString> cases[] = {
        {{encoded.mid(0, 200), encoded.mid(200, 200), encoded.mid(400, 200), encoded.mid(600)},
         QString(600, 'x')},
        {{encoded.mid(0, 200), QByteArray(), encoded.mid(400, 200)}, ""},
        {{encoded.mid(0, 200), "", encoded.mid(400, 200)}, ""},
        {{encoded.mid(0, 100), encoded.mid(100, 200)}, ""},
        {{encoded.mid(0, 204)}, ""},
        {{encoded.mid(0, 100) + "\n" + encoded.mid(100, 99)}, ""},
        // Names once stored cut at 900 bytes may end inside a character: only it is dropped.
        {{QByteArray("ab\xf0\x9f\x98").toBase64()}, "ab"}};
    for (const auto &[stored, expected] : cases)
        EXPECT_EQ(OrvoSNMPHelper::getDecodedPPDAttributeMaltiPartValueForName(
                      "PSFormName0", settingsPPD(parts("PSFormName0", stored)).get()),
                  expected);
}

TEST(OrvoSNMPHelper, ArraysSkipEmptyAndIgnoredEntriesAndStopAtTheirLimit) {
    Attributes attributes = parts("SharedBoxName0", {"", ""});
    for (const char *index : {"1", "99", "100"})
        attributes += parts(QByteArray("SharedBoxName") + index, {QByteArray(index).toBase64()});
    attributes += parts("SharedBoxName2", {"QUJ"});
    attributes += parts("ColorProfileName29", {QByteArray("30th").toBase64()});
    attributes += parts("ColorProfileName30", {QByteArray("31st").toBase64()});
    for (int i = 0; const char *value :
                    {"7", "12abc", "abc", "", "-1", "100", "007", "-99999999999999999999", "-2"})
        attributes.append({"SelSharedBoxIndex" + QByteArray::number(i++), value});
    attributes += {{"SelSharedBoxIndex100", "5"}};
    const OpenedPPD ppd = settingsPPD(attributes);
    EXPECT_EQ(OrvoSNMPHelper::getSharedBoxDetailsArray(ppd.get()), QStringList({"1", "99"}));
    EXPECT_EQ(OrvoSNMPHelper::getColorProfileDetailsArray(ppd.get()), QStringList({"30th"}));
    EXPECT_EQ(OrvoSNMPHelper::getSelectedSharedBoxIndexArray(ppd.get()), QList<qint32>({7, -1}));
    QStringList ignored;
    OVStoredSettings::read(ppd.get(), &ignored);
    EXPECT_EQ(ignored, QStringList({"SharedBoxName2 is not base64 of UTF-8 text in whole parts",
                                    "SelSharedBoxIndex1 is not a decimal index",
                                    "SelSharedBoxIndex2 is not a decimal index",
                                    "SelSharedBoxIndex5 holds an index outside -1 to 99",
                                    "SelSharedBoxIndex6 is not a decimal index",
                                    "SelSharedBoxIndex7 holds an index outside -1 to 99",
                                    "SelSharedBoxIndex8 holds an index outside -1 to 99"}));
}

using Stored = std::map<std::string, std::string>;

// Looks keywords up in stored, as the filter looks them up in the queue's PPD.
OrvoSettingsCodec::Lookup lookupIn(const Stored &stored) {
    return [&stored](const std::string &keyword) -> const char * {
        const auto found = stored.find(keyword);
        return found == stored.end() ? nullptr : found->second.c_str();
    };
}

// Each input reaches its verdict, and what the rules accept reads back from the update job's
// options exactly as it was given.
TEST(OrvoSettingsRules, TheSettingsInputs) {
    for (const SettingsInput &input : settingsInputs()) {
        SCOPED_TRACE(input.what);
        const OVSettingsSnapshot snapshot = input.snapshot();
        const OrvoSettingsVerdict verdict = snapshot.check();
        EXPECT_EQ(verdict.problem, input.problem);
        EXPECT_EQ(verdict.field, input.field ? input.field : "");
        if (!verdict.ok())
            continue;
        const OrvoSettingsCodec::Options options = OrvoSettingsCodec::encode(snapshot.settings());
        const Stored sent(options.begin(), options.end());
        const OrvoSettingsCodec::Decoded read = OrvoSettingsCodec::decode(lookupIn(sent));
        // A community that is not custom is not sent: the default reads back.
        OrvoSettings expected = snapshot.settings();
        expected.community = expected.customCommunity ? expected.community : K::defaultCommunity;
        // Nor are the SNMPv3 settings without version 3.
        if (expected.snmpVersion != 3) {
            const OrvoSettings defaults;
            expected.snmpUser = defaults.snmpUser;
            expected.snmpAuthProtocol = defaults.snmpAuthProtocol;
            expected.snmpPrivProtocol = defaults.snmpPrivProtocol;
        }
        EXPECT_TRUE(read.ignored.empty());
        EXPECT_TRUE(read.settings == expected);
    }
}

// A job's Wake-on-LAN and MAC address options are judged over what the queue stores: the result
// may not be Wake-on-LAN on without a MAC address; a job that touches neither leaves the pair.
TEST(OrvoSettingsRules, AJobIsJudgedOverTheStoredSettings) {
    const std::string mac = OrvoSettingsCodec::encodeBase64("00:11:22:aa:bb:cc");
    const std::string partial = OrvoSettingsCodec::encodeBase64("00:11");
    using Job = std::vector<OrvoSettingsRules::JobOption>;
    // The job's options, what the queue stores, whether the job is refused.
    const std::tuple<const char *, Job, Stored, bool> jobs[] = {
        {"WakeOnOverAStoredMac", {{K::IsWakeOnLan, "1"}}, {{K::PrinterMacAddress, mac}}, false},
        {"WakeOnOverNoMac", {{K::IsWakeOnLan, "1"}}, {}, true},
        {"WakeOnOverAMalformedMac",
         {{K::IsWakeOnLan, "1"}},
         {{K::PrinterMacAddress, partial}},
         true},
        {"WakeOff", {{K::IsWakeOnLan, "0"}}, {}, false},
        {"MacClearedWithWakeOff", {{K::PrinterMacAddress, ""}}, {{K::IsWakeOnLan, "0"}}, false},
        {"MacClearedWithWakeOn", {{K::PrinterMacAddress, ""}}, {{K::IsWakeOnLan, "1"}}, true},
        {"NeitherTouched", {{"PSFormName0_Part1", "QUJD"}}, {{K::IsWakeOnLan, "1"}}, false},
    };
    for (const auto &[what, job, stored, refused] : jobs) {
        SCOPED_TRACE(what);
        const auto refusal = OrvoSettingsRules::checkJob(job, lookupIn(stored));
        EXPECT_EQ(refusal.has_value(), refused);
        EXPECT_EQ(refusal.value_or(OrvoSettingsRules::Refusal{}).keyword,
                  refused ? K::PrinterMacAddress : "");
    }
}

// The keyword groups in their order, and every list slot written (so that a shorter list clears
// the entries of a longer one). The community name goes only with a custom community, the
// SNMPv3 user and protocols only with version 3, the address whenever its field yields a
// string, even an empty one. The values themselves are checked where a save reads back
// through the server.
TEST(OVUpdateJob, OptionGroupsAndSlots) {
    OVSettingsSnapshot s;
    s.snmpCommunityCheck = true;
    s.snmpVersion = "3";
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
    EXPECT_EQ(groups, (QList<QByteArray>{
                          "UpdatePPDOptions",   "PPDOptionsUpdated",     "IsCustomSnmpCommunity",
                          "SnmpCommunityName",  "SnmpVersion",           "SnmpUserName",
                          "SnmpAuthProtocol",   "SnmpPrivProtocol",      "IsWakeOnLan",
                          "PrinterMacAddress",  "IsOverTheRouter",       "PrinterIPAddress",
                          "SharedBoxName",      "SelSharedBoxName",      "SelSharedBoxIndex",
                          "UsePersonalFolder",  "AdminLoginModeEnabled", "PSFormName",
                          "BarcodeAreaDefName", "ColorProfileName"}));
    for (const char *name :
         {"SelSharedBoxIndex99", "PSFormName99_Part6", "ColorProfileName29_Part6"})
        EXPECT_TRUE(names.contains(name)) << name;
    EXPECT_EQ(names.size(), 2694);
    s.snmpCommunityCheck = false;
    s.snmpVersion = "1";
    s.printerIPAddressText = QString();
    EXPECT_EQ(OVUpdateJob::optionList(s).size(), 2689);
}

} // namespace
