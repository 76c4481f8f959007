#include "OVUpdateJob.h"
#include "OrvoSNMPHelper.h"
#include "TestPPDFile.h"

#include <gtest/gtest.h>

namespace {

using Options = OVUpdateJob::OptionList;

// Each "name=value" of `expected` is sent; "name=-" is not sent at all.
void expectSent(const OVSettingsSnapshot &snapshot, const QByteArray &expected) {
    const Options options = OVUpdateJob::optionList(snapshot);
    for (const QByteArray &pair : expected.split(' ')) {
        const QByteArray name = pair.left(pair.indexOf('='));
        QByteArray value = "-";
        for (const auto &option : options)
            value = option.first == name ? option.second : value;
        EXPECT_EQ(value, pair.mid(name.size() + 1)) << name.data();
    }
}

QList<QByteArray> expectedOrder(bool community, bool address) {
    QList<QByteArray> order{"UpdatePPDOptions", "PPDOptionsUpdated", "IsCustomSnmpCommunity"};
    order << (community ? QList<QByteArray>{"SnmpCommunityName"} : QList<QByteArray>{})
          << "IsWakeOnLan"
          << "PrinterMacAddress"
          << "IsOverTheRouter";
    if (address)
        order << "PrinterIPAddress";
    const auto add = [&order](const QByteArray &keyword, int count, bool multiPart = true) {
        for (int i = 0; i < count; ++i) {
            for (int part = 1; part <= (multiPart ? 6 : 1); ++part)
                order << keyword + QByteArray::number(i) +
                             (multiPart ? "_Part" + QByteArray::number(part) : "");
        }
    };
    add("SharedBoxName", 100);
    add("SelSharedBoxName", 100);
    add("SelSharedBoxIndex", 100, false);
    order << "UsePersonalFolder"
          << "AdminLoginModeEnabled";
    add("PSFormName", 100);
    add("BarcodeAreaDefName", 100);
    add("ColorProfileName", 30);
    return order;
}

// The community name goes only with a custom community; the address whenever
// its field yields a string, even an empty one.
TEST(OVUpdateJob, EverySlotInOrder) {
    const std::tuple<bool, QString, qsizetype> cases[] = {
        {true, "10.0.0.5", 2690}, {false, "", 2689}, {false, QString(), 2688}};
    for (const auto &[community, address, count] : cases) {
        OVSettingsSnapshot snapshot;
        snapshot.snmpCommunityCheck = community;
        snapshot.printerIPAddressText = address;
        const Options options = OVUpdateJob::optionList(snapshot);
        QList<QByteArray> names;
        for (const auto &option : options)
            names << option.first;
        EXPECT_EQ(names, expectedOrder(community, !address.isNull())) << count;
        cups_option_t *cupsOptions = nullptr;
        EXPECT_EQ(OVUpdateJob::addOptions(options, 0, &cupsOptions), count);
        cupsFreeOptions(int(count), cupsOptions);
    }
}

TEST(OVUpdateJob, SendsSettingValues) {
    OVSettingsSnapshot set;
    set.snmpCommunityCheck = set.isPPDOptionsUpdated = set.folderPersonalFolderCheck = true;
    set.snmpCommunityText = "public";
    set.macAddressFields = {"AA", "BB", "CC", "DD", "EE", "FF"};
    set.overstepTheRouter = true;
    set.selectedSharedBoxIndex = {3, 0};
    set.selectedSharedBoxNames = {"共有", QString()};
    set.bAdminLoginModeEnabled = false;
    for (int i = 1; i <= 31; ++i)
        set.colorProfileNames << QString("profile %1").arg(i);
    expectSent({}, "UpdatePPDOptions=True PPDOptionsUpdated=0 IsCustomSnmpCommunity=0 "
                   "SnmpCommunityName=- AdminLoginModeEnabled=1");
    expectSent(set, "IsCustomSnmpCommunity=1 SnmpCommunityName=cHVibGlj PPDOptionsUpdated=1 "
                    "IsWakeOnLan=1 PrinterMacAddress=QUE6QkI6Q0M6REQ6RUU6RkY= IsOverTheRouter=1 "
                    "SelSharedBoxIndex1=0 SelSharedBoxIndex2= SelSharedBoxName0_Part1=5YWx5pyJ "
                    "SelSharedBoxName1_Part1= UsePersonalFolder=1 AdminLoginModeEnabled=0 "
                    "ColorProfileName29_Part1=cHJvZmlsZSAzMA== ColorProfileName30_Part1=-");
    // Wake-on-LAN off sends a plain empty address and never over the router.
    set.wakeOnLANCheck = false;
    expectSent(set, "IsWakeOnLan=0 PrinterMacAddress= IsOverTheRouter=0");
}

TEST(OVUpdateJob, MultiPartValueCutAfterSixParts) {
    const QByteArray encoded = QByteArray(1000, 'x').toBase64(); // 1336 characters
    const std::pair<QString, QList<QByteArray>> cases[] = {
        {"A", {"QQ==", "", "", "", "", ""}},
        {QString(1000, 'x'),
         {encoded.mid(0, 200), encoded.mid(200, 200), encoded.mid(400, 200), encoded.mid(600, 200),
          encoded.mid(800, 200), encoded.mid(1000, 200)}},
        {QString(), {}}};
    for (const auto &[value, parts] : cases) {
        cups_option_t *options = nullptr;
        int count = cupsAddOption("Existing", "1", 0, &options);
        count = OVUpdateJob::cupsAddMuliPartOption("PSFormName4", value, count, &options);
        EXPECT_EQ(count, 1 + parts.size());
        for (int i = 0; i < parts.size(); ++i) {
            const QByteArray name = "PSFormName4_Part" + QByteArray::number(i + 1);
            EXPECT_EQ(cupsGetOption(name.constData(), count, options), parts[i]) << name.data();
        }
        cupsFreeOptions(count, options);
    }
}

// What the driver stores, read back as the window would read it.
TEST(OVUpdateJob, SavedSettingsReadBack) {
    OVSettingsSnapshot saved;
    saved.snmpCommunityCheck = true;
    saved.snmpCommunityText = "コミュニティ";
    saved.macAddressFields = {"01", "23", "45", "67", "89", "ab"};
    saved.printerIPAddressText = "fd99::2";
    saved.allSharedBoxNames = {"Box 😀", "", "経理部"};
    saved.selectedSharedBoxIndex = {2};
    saved.formNames = {QString(1000, 'f')};
    saved.barcodeAreaDefinitionNames = {"a" + QString("😀").repeated(300)};
    Options options = OVUpdateJob::optionList(saved);
    options.removeFirst(); // the job marker, which the filter never stores
    const TestPPDFile file(options);
    ppd_file_t *ppd = file.ppd();
    EXPECT_EQ(OrvoSNMPHelper::snmpCommunityName(ppd), "コミュニティ");
    EXPECT_EQ(OrvoSNMPHelper::getPrinterMacAddress(ppd), "01:23:45:67:89:ab");
    EXPECT_EQ(OrvoSNMPHelper::getPrinterIPAddress(ppd), "fd99::2");
    EXPECT_EQ(OrvoSNMPHelper::getSharedBoxDetailsArray(ppd), QStringList({"Box 😀", "経理部"}));
    EXPECT_EQ(OrvoSNMPHelper::getSelectedSharedBoxIndexArray(ppd), QList<qint32>({2}));
    // Six parts carry 1200 characters of base64; names are kept up to 900
    // bytes of UTF-8 and a character cut there is dropped.
    EXPECT_EQ(OrvoSNMPHelper::getFormDetailsArray(ppd), QStringList({QString(900, 'f')}));
    EXPECT_EQ(OrvoSNMPHelper::getBarcodeAreaDefinitionDetailsArray(ppd),
              QStringList({"a" + QString("😀").repeated(224)}));
}

// Each option takes "name=value " with space, tab, line end, quotes and
// backslash escaped by a backslash.
TEST(OVUpdateJob, EstimatesFilterArgumentSize) {
    const std::pair<QList<std::pair<const char *, const char *>>, qsizetype> cases[] = {
        {{}, 0},
        {{{"Name", ""}}, 6},
        {{{"k", "a b\"c\\d'e\tf\ng"}}, 22},
        {{{"PSFormName0_Part1", "QQ=="}, {"IsWakeOnLan", "1"}}, 23 + 14}};
    for (const auto &[pairs, bytes] : cases) {
        cups_option_t *options = nullptr;
        int count = 0;
        for (const auto &[name, value] : pairs)
            count = cupsAddOption(name, value, count, &options);
        EXPECT_EQ(OVUpdateJob::filterArgumentSize(count, options),
                  OVUpdateJob::cupsdArgumentMargin + 1 + bytes);
        cupsFreeOptions(count, options);
    }
    OVSettingsSnapshot snapshot;
    snapshot.formNames = QStringList(51, QString(900, 'f'));
    EXPECT_TRUE(OVUpdateJob::reachesFilter(snapshot));
    snapshot.formNames << snapshot.formNames.first() << snapshot.formNames.first();
    EXPECT_FALSE(OVUpdateJob::reachesFilter(snapshot));
}

} // namespace
