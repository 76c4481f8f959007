// The vendor MIB queries against a real snmpd serving a simulated printer on
// a loopback address of this process.
#include "OVSNMPHelper.h"
#include "SimulatedPrinter.h"
#include "TruncatingResponder.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

#include <functional>
#include <memory>

namespace {

using Table = SimulatedPrinter::Table;
constexpr const char *kCommunity = "cobalt";

QStringList numbered(const char *prefix, int count, int step) {
    QStringList names;
    for (int i = 1; i <= count; i += step)
        names.append(prefix + QString::number(i));
    return names;
}

class SnmpQueriesTest : public ::testing::Test {
protected:
    static void SetUpTestSuite() {
        printer = std::make_unique<SimulatedPrinter>();
        started = printer->start();
    }
    static void TearDownTestSuite() { printer.reset(); }
    void SetUp() override {
        ASSERT_TRUE(started) << printer->errorText().toStdString();
        printer->setDefaults();
        printer->setSilent(false);
    }

    static const char *address() {
        static const QByteArray ip = SimulatedPrinter::loopbackAddress().toLatin1();
        return ip.constData();
    }

    static inline std::unique_ptr<SimulatedPrinter> printer;
    static inline bool started = false;
};

TEST_F(SnmpQueriesTest, PlainAnswers) {
    const char *ip = address();
    EXPECT_EQ(OVSNMPHelper::getValidatedFormNameArrayForIPAddress(ip, kCommunity),
              numbered("Form", 100, 2));
    EXPECT_EQ(OVSNMPHelper::getValidatedBarcodeAreaNameArrayForIPAddress(ip, kCommunity),
              numbered("Barcode", 100, 2));
    EXPECT_EQ(OVSNMPHelper::getValidatedColorProfileForIPAddress(ip, kCommunity),
              numbered("Profile", 30, 2));
    EXPECT_EQ(OVSNMPHelper::snmpGetSharedBoxEntryForIPAddress(ip, kCommunity), 30);
    EXPECT_EQ(OVSNMPHelper::getValidatedSharedBoxNameArrayForIPAddress(ip, kCommunity, 30),
              numbered("Box", 30, 1));
    const auto states =
        OVSNMPHelper::getValidatedSharedBoxStateArrayForIPAddress(ip, kCommunity, 30);
    ASSERT_TRUE(states);
    EXPECT_EQ(states->size(), 30);
    EXPECT_EQ(states->mid(0, 3), QStringList({"1", "0", "1"}));
    EXPECT_TRUE(OVSNMPHelper::getAdminLoginModeEnabled(ip, kCommunity));
    EXPECT_EQ(OVSNMPHelper::getMacAddress(ip, kCommunity), "00:11:22:aa:bb:cc");
    int mode = 0;
    EXPECT_EQ(OVSNMPHelper::getSleepMode(ip, kCommunity, mode), 0);
    EXPECT_EQ(mode, 1);
}

TEST_F(SnmpQueriesTest, HundredSharedBoxes) {
    QList<SimulatedPrinter::Entry> boxes;
    for (int i = 1; i <= 100; ++i)
        boxes.append({i % 3 == 0 ? 0 : 1, "Box" + QByteArray::number(i)});
    printer->setTable(Table::SharedBox, boxes);
    const char *ip = address();
    ASSERT_EQ(OVSNMPHelper::snmpGetSharedBoxEntryForIPAddress(ip, kCommunity), 100);
    EXPECT_EQ(OVSNMPHelper::getValidatedSharedBoxNameArrayForIPAddress(ip, kCommunity, 100),
              numbered("Box", 100, 1));
    EXPECT_TRUE(OVSNMPHelper::snmpGetSharedBoxStateForIPAddress(ip, kCommunity, 100));
    EXPECT_EQ(OVSNMPHelper::sharedBoxStateArray().count("0"), 33);
}

// Form 2 is in use under each name; what the form list becomes.
struct NameCase {
    const char *label;
    QByteArray name;
    std::optional<QString> expected; // nullopt: the list fails
};

void PrintTo(const NameCase &c, std::ostream *os) {
    *os << c.label;
}

class FormNameTest : public SnmpQueriesTest, public ::testing::WithParamInterface<NameCase> {};

TEST_P(FormNameTest, NameOfAFormInUse) {
    printer->setTable(Table::Form, {{1, "A"}, {1, GetParam().name}, {0, "C"}});
    for (int i = 4; i <= 100; ++i) {
        printer->setInteger(SimulatedPrinter::stateOid(Table::Form, i), 0);
        printer->setString(SimulatedPrinter::nameOid(Table::Form, i), "");
    }
    const auto names = OVSNMPHelper::getValidatedFormNameArrayForIPAddress(address(), kCommunity);
    if (!GetParam().expected) {
        EXPECT_FALSE(names);
        EXPECT_TRUE(OVSNMPHelper::formNameArray().isEmpty());
        return;
    }
    ASSERT_TRUE(names);
    EXPECT_EQ(*names, QStringList({"A", *GetParam().expected}));
}

INSTANTIATE_TEST_SUITE_P(
    Names, FormNameTest,
    ::testing::Values(NameCase{"ascii", "Invoice", QString("Invoice")},
                      NameCase{"japanese", "請求書フォーム", QString("請求書フォーム")},
                      NameCase{"empty", "", QString("")},
                      NameCase{"longest", QByteArray(4095, 'n'), QString(4095, 'n')},
                      NameCase{"tooLong", QByteArray(4096, 'n'), std::nullopt},
                      NameCase{"farTooLong", QByteArray(20000, 'n'), std::nullopt},
                      NameCase{"embeddedZero", QByteArray("AB\0CD", 5), QString("AB")},
                      NameCase{"notUtf8", "\xff\xfe", std::nullopt},
                      NameCase{"truncatedUtf8", "\xe8\xab", std::nullopt}),
    [](const auto &info) { return std::string(info.param.label); });

// A change to a default printer and the plain result it must give.
struct FaultCase {
    const char *label;
    std::function<void(SimulatedPrinter &)> fault;
    std::function<void(const char *)> check;
};

void PrintTo(const FaultCase &c, std::ostream *os) {
    *os << c.label;
}

class PrinterFaultTest : public SnmpQueriesTest, public ::testing::WithParamInterface<FaultCase> {};

TEST_P(PrinterFaultTest, GivesPlainResult) {
    GetParam().fault(*printer);
    GetParam().check(address());
}

void expectNoForms(const char *ip) {
    EXPECT_FALSE(OVSNMPHelper::getValidatedFormNameArrayForIPAddress(ip, kCommunity));
}

void expectNoMac(const char *ip) {
    EXPECT_TRUE(OVSNMPHelper::getMacAddress(ip, kCommunity).isNull());
}

void expectAdminOff(const char *ip) {
    EXPECT_FALSE(OVSNMPHelper::snmpGetAdminLoginModeEnabled(ip, kCommunity));
}

INSTANTIATE_TEST_SUITE_P(
    Faults, PrinterFaultTest,
    ::testing::Values(
        FaultCase{"missingName", [](SimulatedPrinter &p) { p.remove(p.nameOid(Table::Form, 50)); },
                  expectNoForms},
        FaultCase{"firstStateIsText",
                  [](SimulatedPrinter &p) { p.setString(p.stateOid(Table::Form, 1), "1"); },
                  expectNoForms},
        FaultCase{"laterStateIsText",
                  [](SimulatedPrinter &p) { p.setString(p.stateOid(Table::Form, 7), "1"); },
                  expectNoForms},
        FaultCase{"nameIsInteger",
                  [](SimulatedPrinter &p) { p.setInteger(p.nameOid(Table::Form, 3), 7); },
                  expectNoForms},
        FaultCase{"noneInUse",
                  [](SimulatedPrinter &p) {
                      for (int i = 1; i <= 100; ++i)
                          p.setInteger(p.stateOid(Table::Form, i), 2);
                  },
                  [](const char *ip) {
                      EXPECT_EQ(OVSNMPHelper::getValidatedFormNameArrayForIPAddress(ip, kCommunity),
                                QStringList());
                  }},
        FaultCase{"missingColorProfile",
                  [](SimulatedPrinter &p) { p.remove(p.stateOid(Table::ColorProfile, 30)); },
                  [](const char *ip) {
                      EXPECT_FALSE(
                          OVSNMPHelper::getValidatedColorProfileForIPAddress(ip, kCommunity));
                      EXPECT_TRUE(OVSNMPHelper::colorProfileStateArray().isEmpty());
                  }},
        FaultCase{"missingSharedBoxName",
                  [](SimulatedPrinter &p) { p.remove(p.nameOid(Table::SharedBox, 30)); },
                  [](const char *ip) {
                      EXPECT_FALSE(OVSNMPHelper::getValidatedSharedBoxNameArrayForIPAddress(
                          ip, kCommunity, 30));
                      EXPECT_TRUE(OVSNMPHelper::sharedBoxNameArray().isEmpty());
                  }},
        FaultCase{"adminLoginTwo",
                  [](SimulatedPrinter &p) { p.setInteger(SimulatedPrinter::kAdminLoginMode, 2); },
                  expectAdminOff},
        FaultCase{"adminLoginText",
                  [](SimulatedPrinter &p) { p.setString(SimulatedPrinter::kAdminLoginMode, "1"); },
                  expectAdminOff},
        FaultCase{"adminLoginMissing",
                  [](SimulatedPrinter &p) { p.remove(SimulatedPrinter::kAdminLoginMode); },
                  expectAdminOff},
        FaultCase{"macIsInteger",
                  [](SimulatedPrinter &p) { p.setInteger(SimulatedPrinter::kMacAddress, 1); },
                  expectNoMac},
        FaultCase{"macMissing",
                  [](SimulatedPrinter &p) { p.remove(SimulatedPrinter::kMacAddress); },
                  expectNoMac},
        FaultCase{"macOverlong",
                  [](SimulatedPrinter &p) {
                      p.setString(SimulatedPrinter::kMacAddress, QByteArray(60000, 'm'));
                  },
                  expectNoMac},
        FaultCase{
            "macNotUtf8",
            [](SimulatedPrinter &p) { p.setString(SimulatedPrinter::kMacAddress, "\xc0\xaf"); },
            expectNoMac},
        FaultCase{"sleepModeIsText",
                  [](SimulatedPrinter &p) { p.setString(SimulatedPrinter::kSleepMode, "1"); },
                  [](const char *ip) {
                      int mode = 5;
                      EXPECT_EQ(OVSNMPHelper::getSleepMode(ip, kCommunity, mode), 0);
                      EXPECT_EQ(mode, -1);
                  }},
        FaultCase{"sleepModeMissing",
                  [](SimulatedPrinter &p) { p.remove(SimulatedPrinter::kSleepMode); },
                  [](const char *ip) {
                      int mode = 5;
                      EXPECT_EQ(OVSNMPHelper::getSleepMode(ip, kCommunity, mode), 0);
                      EXPECT_EQ(mode, -1);
                  }}),
    [](const auto &info) { return std::string(info.param.label); });

// Addresses for which no session can open: nothing is sent.
TEST_F(SnmpQueriesTest, UnusableAddressGivesPlainResults) {
    const int before = printer->requestCount();
    for (const QByteArray &unusable : {QByteArray(""), QByteArray(300, '1')}) {
        const char *ip = unusable.constData();
        int mode = 5;
        EXPECT_EQ(OVSNMPHelper::getSleepMode(ip, kCommunity, mode), 1);
        EXPECT_EQ(mode, -1);
        EXPECT_EQ(OVSNMPHelper::snmpGetSharedBoxEntryForIPAddress(ip, kCommunity), 30);
        EXPECT_FALSE(OVSNMPHelper::snmpGetSharedBoxStateForIPAddress(ip, kCommunity, 30));
        EXPECT_FALSE(OVSNMPHelper::getValidatedFormNameArrayForIPAddress(ip, kCommunity));
        EXPECT_TRUE(OVSNMPHelper::getMacAddress(ip, kCommunity).isNull());
    }
    EXPECT_EQ(printer->requestCount(), before);
}

// The session settings, proved by what reaches the printer: a printer that
// never answers sees each query's retries plus one.
struct RetryCase {
    const char *label;
    std::function<void(const char *)> query;
    int requests;
};

void PrintTo(const RetryCase &c, std::ostream *os) {
    *os << c.label;
}

class SilentPrinterTest : public SnmpQueriesTest,
                          public ::testing::WithParamInterface<RetryCase> {};

TEST_P(SilentPrinterTest, SendsRetriesPlusOne) {
    const int before = printer->requestCount();
    printer->setSilent(true);
    GetParam().query(address());
    printer->setSilent(false);
    EXPECT_EQ(printer->requestCount() - before, GetParam().requests);
}

INSTANTIATE_TEST_SUITE_P(
    Queries, SilentPrinterTest,
    ::testing::Values(
        RetryCase{"sleepMode",
                  [](const char *ip) {
                      int mode = 5;
                      EXPECT_EQ(OVSNMPHelper::getSleepMode(ip, kCommunity, mode), 2);
                      EXPECT_EQ(mode, -1);
                  },
                  2},
        RetryCase{"macAddress",
                  [](const char *ip) {
                      EXPECT_TRUE(OVSNMPHelper::getMacAddress(ip, kCommunity).isNull());
                  },
                  6},
        RetryCase{"probe",
                  [](const char *ip) {
                      EXPECT_EQ(OVSNMPHelper::snmpGetSharedBoxEntryForIPAddress(ip, kCommunity),
                                30);
                  },
                  6},
        RetryCase{"formStates",
                  [](const char *ip) {
                      EXPECT_FALSE(OVSNMPHelper::snmpGetFormStateForIPAddress(ip, kCommunity));
                      EXPECT_TRUE(OVSNMPHelper::formStateArray().isEmpty());
                  },
                  6}),
    [](const auto &info) { return std::string(info.param.label); });

// The timeouts, proved at the printer: an answer 1.5 s late is waited for
// by a 10 s timeout (one request) and asked again by a 1 s one.
struct SlowAnswerCase {
    const char *label;
    std::function<void(const char *)> query;
    bool retried;
};

void PrintTo(const SlowAnswerCase &c, std::ostream *os) {
    *os << c.label;
}

class SlowPrinterTest : public SnmpQueriesTest,
                        public ::testing::WithParamInterface<SlowAnswerCase> {};

TEST_P(SlowPrinterTest, RetriesOnlyAfterTheSessionTimeout) {
    QList<SimulatedPrinter::Entry> boxes(100, {1, "Box"});
    printer->setTable(Table::SharedBox, boxes);
    const int before = printer->requestCount();
    printer->setResponseDelayMs(1500);
    GetParam().query(address());
    const int requests = printer->requestCount() - before;
    printer->setResponseDelayMs(0);
    if (GetParam().retried)
        EXPECT_GT(requests, 1);
    else
        EXPECT_EQ(requests, 1);
}

INSTANTIATE_TEST_SUITE_P(
    Queries, SlowPrinterTest,
    ::testing::Values(
        SlowAnswerCase{"hundredBoxStates",
                       [](const char *ip) {
                           EXPECT_TRUE(OVSNMPHelper::snmpGetSharedBoxStateForIPAddress(
                               ip, kCommunity, 100));
                       },
                       false},
        SlowAnswerCase{"hundredBoxNames",
                       [](const char *ip) {
                           EXPECT_TRUE(
                               OVSNMPHelper::snmpGetSharedBoxNameForIPAddress(ip, kCommunity, 100));
                       },
                       false},
        SlowAnswerCase{"thirtyBoxStates",
                       [](const char *ip) {
                           OVSNMPHelper::snmpGetSharedBoxStateForIPAddress(ip, kCommunity, 30);
                       },
                       true},
        SlowAnswerCase{"macAddress",
                       [](const char *ip) { OVSNMPHelper::getMacAddress(ip, kCommunity); }, true}),
    [](const auto &info) { return std::string(info.param.label); });

// Answers with fewer variables than asked, which snmpd never sends.
struct ShortAnswerCase {
    const char *label;
    int kept;
    std::function<void(const char *)> check;
};

void PrintTo(const ShortAnswerCase &c, std::ostream *os) {
    *os << c.label;
}

class ShortAnswerTest : public ::testing::TestWithParam<ShortAnswerCase> {};

TEST_P(ShortAnswerTest, GivesPlainResult) {
    const qint64 pid = QCoreApplication::applicationPid();
    const QByteArray ip =
        QString("127.254.%1.%2").arg((pid >> 8) & 0xFF).arg(pid % 250 + 2).toLatin1();
    TruncatingResponder responder(ip, GetParam().kept, 1);
    ASSERT_TRUE(responder.isListening());
    GetParam().check(ip.constData());
    EXPECT_GT(responder.requestsAnswered(), 0);
}

INSTANTIATE_TEST_SUITE_P(
    Answers, ShortAnswerTest,
    ::testing::Values(
        ShortAnswerCase{"everyState", 100,
                        [](const char *ip) {
                            EXPECT_TRUE(OVSNMPHelper::snmpGetFormStateForIPAddress(ip, kCommunity));
                            EXPECT_EQ(OVSNMPHelper::formStateArray(), QStringList(100, "1"));
                        }},
        ShortAnswerCase{"oneStateShort", 99,
                        [](const char *ip) {
                            EXPECT_FALSE(
                                OVSNMPHelper::snmpGetFormStateForIPAddress(ip, kCommunity));
                            EXPECT_TRUE(OVSNMPHelper::formStateArray().isEmpty());
                        }},
        ShortAnswerCase{"noSleepMode", 0,
                        [](const char *ip) {
                            int mode = 5;
                            EXPECT_EQ(OVSNMPHelper::getSleepMode(ip, kCommunity, mode), 0);
                            EXPECT_EQ(mode, -1);
                        }},
        // An answer without error counts as the printer having box 100.
        ShortAnswerCase{
            "noProbeValue", 0,
            [](const char *ip) {
                EXPECT_EQ(OVSNMPHelper::snmpGetSharedBoxEntryForIPAddress(ip, kCommunity), 100);
            }},
        ShortAnswerCase{"noAdminMode", 0,
                        [](const char *ip) {
                            EXPECT_FALSE(
                                OVSNMPHelper::snmpGetAdminLoginModeEnabled(ip, kCommunity));
                        }}),
    [](const auto &info) { return std::string(info.param.label); });

// A printer reached over IPv6 loopback on port 161.
TEST(SnmpIPv6Loopback, ReachesPrinterOnPort161) {
    SimulatedPrinter::Options options;
    options.listen = "udp6:[::1]:161";
    options.counterPeer = "udp6:[::1]:161";
    SimulatedPrinter printer(options);
    ASSERT_TRUE(printer.start()) << printer.errorText().toStdString();
    printer.setDefaults();
    EXPECT_EQ(OVSNMPHelper::getMacAddress("::1", kCommunity), "00:11:22:aa:bb:cc");
    EXPECT_EQ(OVSNMPHelper::getValidatedColorProfileForIPAddress("::1", kCommunity),
              numbered("Profile", 30, 2));
}

} // namespace
