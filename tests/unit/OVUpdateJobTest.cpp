#include "OVUpdateJob.h"
#include "OrvoSNMPHelper.h"
#include "TestPPDFile.h"

#include <gtest/gtest.h>

#include <optional>

namespace {

using Options = OVUpdateJob::OptionList;

QList<QByteArray> names(const Options &options) {
    QList<QByteArray> result;
    for (const auto &option : options)
        result.append(option.first);
    return result;
}

std::optional<QByteArray> valueOf(const Options &options, const QByteArray &name) {
    for (const auto &[optionName, value] : options) {
        if (optionName == name)
            return value;
    }
    return std::nullopt;
}

QList<QByteArray> documentedOrder(bool community, bool address) {
    QList<QByteArray> order{"UpdatePPDOptions", "PPDOptionsUpdated", "IsCustomSnmpCommunity"};
    if (community)
        order << "SnmpCommunityName";
    order << "IsWakeOnLan"
          << "PrinterMacAddress"
          << "IsOverTheRouter";
    if (address)
        order << "PrinterIPAddress";
    const auto multiPart = [&order](const QByteArray &keyword, int count) {
        for (int i = 0; i < count; ++i) {
            for (int part = 1; part <= 6; ++part)
                order << keyword + QByteArray::number(i) + "_Part" + QByteArray::number(part);
        }
    };
    multiPart("SharedBoxName", 100);
    multiPart("SelSharedBoxName", 100);
    for (int i = 0; i < 100; ++i)
        order << "SelSharedBoxIndex" + QByteArray::number(i);
    order << "UsePersonalFolder"
          << "AdminLoginModeEnabled";
    multiPart("PSFormName", 100);
    multiPart("BarcodeAreaDefName", 100);
    multiPart("ColorProfileName", 30);
    return order;
}

struct CountCase {
    bool community;
    QString address;
    qsizetype count;
};

class OptionOrderTest : public ::testing::TestWithParam<CountCase> {};

TEST_P(OptionOrderTest, EverySlotInDocumentedOrder) {
    OVSettingsSnapshot snapshot;
    snapshot.snmpCommunityCheck = GetParam().community;
    snapshot.printerIPAddressText = GetParam().address;
    snapshot.formNames = {"one form"};
    const Options options = OVUpdateJob::optionList(snapshot);
    EXPECT_EQ(options.size(), GetParam().count);
    EXPECT_EQ(names(options), documentedOrder(GetParam().community, !GetParam().address.isNull()));

    cups_option_t *cupsOptions = nullptr;
    EXPECT_EQ(OVUpdateJob::addOptions(options, 0, &cupsOptions), GetParam().count);
    cupsFreeOptions(int(GetParam().count), cupsOptions);
}

// 2 + (2 or 1) + 3 + (1 unless the field yields no string) + 600 + 600 + 100
// + 2 + 600 + 600 + 180.
INSTANTIATE_TEST_SUITE_P(Counts, OptionOrderTest,
                         ::testing::Values(CountCase{true, "10.0.0.5", 2690},
                                           CountCase{false, "", 2689},
                                           CountCase{false, QString(), 2688}));

struct ValueCase {
    const char *name;
    void (*edit)(OVSettingsSnapshot &);
    QList<std::pair<QByteArray, std::optional<QByteArray>>> expected; // nullopt: not sent
};

class OptionValueTest : public ::testing::TestWithParam<ValueCase> {};

TEST_P(OptionValueTest, SendsSettingValues) {
    OVSettingsSnapshot snapshot;
    GetParam().edit(snapshot);
    const Options options = OVUpdateJob::optionList(snapshot);
    for (const auto &[name, value] : GetParam().expected)
        EXPECT_EQ(valueOf(options, name), value) << name.constData();
}

INSTANTIATE_TEST_SUITE_P(
    Settings, OptionValueTest,
    ::testing::Values(
        ValueCase{"Defaults",
                  [](OVSettingsSnapshot &) {},
                  {{"UpdatePPDOptions", "True"},
                   {"PPDOptionsUpdated", "0"},
                   {"IsCustomSnmpCommunity", "0"},
                   {"SnmpCommunityName", std::nullopt},
                   {"AdminLoginModeEnabled", "1"}}},
        ValueCase{"CustomCommunity",
                  [](OVSettingsSnapshot &s) {
                      s.snmpCommunityCheck = true;
                      s.snmpCommunityText = "public";
                      s.isPPDOptionsUpdated = true;
                  },
                  {{"IsCustomSnmpCommunity", "1"},
                   {"SnmpCommunityName", "cHVibGlj"},
                   {"PPDOptionsUpdated", "1"}}},
        ValueCase{"WakeOnLanOn",
                  [](OVSettingsSnapshot &s) {
                      s.macAddressFields = {"AA", "BB", "CC", "DD", "EE", "FF"};
                      s.overstepTheRouter = true;
                  },
                  {{"IsWakeOnLan", "1"},
                   {"PrinterMacAddress", QByteArray("AA:BB:CC:DD:EE:FF").toBase64()},
                   {"IsOverTheRouter", "1"}}},
        ValueCase{"WakeOnLanOffSendsPlainEmptyAddress",
                  [](OVSettingsSnapshot &s) {
                      s.wakeOnLANCheck = false;
                      s.macAddressFields = {"AA", "BB", "CC", "DD", "EE", "FF"};
                      s.overstepTheRouter = true;
                  },
                  {{"IsWakeOnLan", "0"}, {"PrinterMacAddress", ""}, {"IsOverTheRouter", "0"}}},
        ValueCase{"Folders",
                  [](OVSettingsSnapshot &s) {
                      s.selectedSharedBoxIndex = {3, 0};
                      s.selectedSharedBoxNames = {"共有", QString()};
                      s.folderPersonalFolderCheck = true;
                      s.bAdminLoginModeEnabled = false;
                  },
                  {{"SelSharedBoxIndex0", "3"},
                   {"SelSharedBoxIndex1", "0"},
                   {"SelSharedBoxIndex2", ""},
                   {"SelSharedBoxName0_Part1", QString("共有").toUtf8().toBase64()},
                   {"SelSharedBoxName1_Part1", ""},
                   {"UsePersonalFolder", "1"},
                   {"AdminLoginModeEnabled", "0"}}},
        ValueCase{"ThirtyFirstColorProfileNotSent",
                  [](OVSettingsSnapshot &s) {
                      for (int i = 1; i <= 31; ++i)
                          s.colorProfileNames << QString("profile %1").arg(i);
                  },
                  {{"ColorProfileName29_Part1", QByteArray("profile 30").toBase64()},
                   {"ColorProfileName30_Part1", std::nullopt}}}),
    [](const auto &info) { return std::string(info.param.name); });

struct PartCase {
    const char *name;
    QString value;
    QList<QByteArray> parts; // empty: nothing added
};

class MultiPartOptionTest : public ::testing::TestWithParam<PartCase> {};

TEST_P(MultiPartOptionTest, AddsSixParts) {
    cups_option_t *options = nullptr;
    int count = cupsAddOption("Existing", "1", 0, &options);
    count = OVUpdateJob::cupsAddMuliPartOption("PSFormName4", GetParam().value, count, &options);
    EXPECT_EQ(count, 1 + GetParam().parts.size());
    for (int i = 0; i < GetParam().parts.size(); ++i) {
        const QByteArray name = "PSFormName4_Part" + QByteArray::number(i + 1);
        const char *value = cupsGetOption(name.constData(), count, options);
        EXPECT_EQ(QByteArray(value), GetParam().parts[i]) << name.constData();
    }
    cupsFreeOptions(count, options);
}

const QByteArray longEncoded = QByteArray(1000, 'x').toBase64(); // 1336 characters

INSTANTIATE_TEST_SUITE_P(
    Values, MultiPartOptionTest,
    ::testing::Values(PartCase{"Short", "A", {"QQ==", "", "", "", "", ""}},
                      PartCase{"CutAfterSixParts",
                               QString(1000, 'x'),
                               {longEncoded.mid(0, 200), longEncoded.mid(200, 200),
                                longEncoded.mid(400, 200), longEncoded.mid(600, 200),
                                longEncoded.mid(800, 200), longEncoded.mid(1000, 200)}},
                      PartCase{"Null", QString(), {}}),
    [](const auto &info) { return std::string(info.param.name); });

// What the driver stores, read back as the window would read it.
TEST(OVUpdateJob, SavedSettingsReadBack) {
    OVSettingsSnapshot saved;
    saved.isPPDOptionsUpdated = true;
    saved.snmpCommunityCheck = true;
    saved.snmpCommunityText = "コミュニティ";
    saved.macAddressFields = {"01", "23", "45", "67", "89", "ab"};
    saved.overstepTheRouter = true;
    saved.printerIPAddressText = "fd99::2";
    saved.allSharedBoxNames = {"Box 😀", "", "経理部"};
    saved.selectedSharedBoxNames = {"経理部"};
    saved.selectedSharedBoxIndex = {2};
    saved.formNames = {QString(1000, 'f')};
    saved.barcodeAreaDefinitionNames = {"a" + QString("😀").repeated(300)};
    for (int i = 0; i < 31; ++i)
        saved.colorProfileNames << QString::number(i);

    TestPPDFile::Attributes attributes;
    for (const auto &option : OVUpdateJob::optionList(saved)) {
        if (option.first != "UpdatePPDOptions")
            attributes.append(option);
    }
    const TestPPDFile file(attributes);
    ppd_file_t *ppd = file.ppd();
    EXPECT_TRUE(OrvoSNMPHelper::isPPDOptionsUpdated(ppd));
    EXPECT_TRUE(OrvoSNMPHelper::isCustomSnmpCommunity(ppd));
    EXPECT_EQ(OrvoSNMPHelper::snmpCommunityName(ppd), "コミュニティ");
    EXPECT_TRUE(OrvoSNMPHelper::isWakeOnLan(ppd));
    EXPECT_EQ(OrvoSNMPHelper::getPrinterMacAddress(ppd), "01:23:45:67:89:ab");
    EXPECT_TRUE(OrvoSNMPHelper::isOverTheRouter(ppd));
    EXPECT_EQ(OrvoSNMPHelper::getPrinterIPAddress(ppd), "fd99::2");
    EXPECT_EQ(OrvoSNMPHelper::getSharedBoxDetailsArray(ppd), QStringList({"Box 😀", "経理部"}));
    EXPECT_EQ(OrvoSNMPHelper::getSelectedSharedBoxDetailsArray(ppd), QStringList({"経理部"}));
    EXPECT_EQ(OrvoSNMPHelper::getSelectedSharedBoxIndexArray(ppd), QList<qint32>({2}));
    EXPECT_FALSE(OrvoSNMPHelper::isPersonalFolderSelected(ppd));
    EXPECT_TRUE(OrvoSNMPHelper::isAdminLoginModeEnabled(ppd));
    // Names are kept up to 900 bytes of UTF-8; a character cut there is dropped.
    EXPECT_EQ(OrvoSNMPHelper::getFormDetailsArray(ppd), QStringList({QString(900, 'f')}));
    EXPECT_EQ(OrvoSNMPHelper::getBarcodeAreaDefinitionDetailsArray(ppd),
              QStringList({"a" + QString("😀").repeated(224)}));
    EXPECT_EQ(OrvoSNMPHelper::getColorProfileDetailsArray(ppd).size(), 30);
}

struct SizeCase {
    const char *name;
    QList<std::pair<const char *, const char *>> options;
    qsizetype optionBytes; // beyond cupsd's margin and the terminating NUL
};

class FilterArgumentTest : public ::testing::TestWithParam<SizeCase> {};

TEST_P(FilterArgumentTest, BoundsArgumentSize) {
    cups_option_t *options = nullptr;
    int count = 0;
    for (const auto &[name, value] : GetParam().options)
        count = cupsAddOption(name, value, count, &options);
    EXPECT_EQ(OVUpdateJob::filterArgumentSize(count, options),
              OVUpdateJob::cupsdArgumentMargin + 1 + GetParam().optionBytes);
    cupsFreeOptions(count, options);
}

// Each option takes "name=value " with space, tab, line end, quotes and
// backslash escaped by a backslash.
INSTANTIATE_TEST_SUITE_P(
    Synthetic, FilterArgumentTest,
    ::testing::Values(
        SizeCase{"None", {}, 0}, SizeCase{"EmptyValue", {{"Name", ""}}, 6},
        SizeCase{"Escaped", {{"k", "a b\"c\\d'e\tf\ng"}}, 22},
        SizeCase{"Several", {{"PSFormName0_Part1", "QQ=="}, {"IsWakeOnLan", "1"}}, 23 + 14}),
    [](const auto &info) { return std::string(info.param.name); });

TEST(OVUpdateJob, LongListsCannotReachTheFilter) {
    OVSettingsSnapshot snapshot;
    EXPECT_TRUE(OVUpdateJob::reachesFilter(snapshot));
    snapshot.formNames = QStringList(53, QString(900, 'f'));
    EXPECT_FALSE(OVUpdateJob::reachesFilter(snapshot));
    snapshot.formNames.removeLast();
    snapshot.formNames.removeLast();
    EXPECT_TRUE(OVUpdateJob::reachesFilter(snapshot));
}

TEST(OVUpdateJob, NoServerSendsNothing) {
    cupsSetServer("127.0.0.1:1");
    EXPECT_EQ(OVUpdateJob::saveOptionsToPPD(OVSettingsSnapshot(), "AnyQueue"), 0);
    cupsSetServer(nullptr);
}

} // namespace
