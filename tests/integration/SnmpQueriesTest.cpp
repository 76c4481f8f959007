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

using H = OVSNMPHelper;
using P = SimulatedPrinter;
using Table = P::Table;
constexpr const char *kCommunity = "cobalt";

QStringList numbered(const char *prefix, int count, int step) {
    QStringList names;
    for (int i = 1; i <= count; i += step)
        names.append(prefix + QString::number(i));
    return names;
}

using Change = std::function<void(P &)>;
using Check = std::function<void(const char *)>;
struct Case {
    const char *label;
    Change change;
    Check check;
};

// The sleep mode reads as unknown, with the given return code.
Check sleepUnknown(int code) {
    return [code](const char *ip) {
        int mode = 5;
        EXPECT_EQ(H::getSleepMode(ip, kCommunity, mode), code);
        EXPECT_EQ(mode, -1);
    };
}

// The form list with its first in-use name, or its failure (nullopt).
Check formsStartWith(std::optional<QString> first) {
    return [first](const char *ip) {
        const auto names = H::getValidatedFormNameArrayForIPAddress(ip, kCommunity);
        if (!first) {
            EXPECT_FALSE(names);
            EXPECT_TRUE(H::formNameArray().isEmpty());
            return;
        }
        ASSERT_TRUE(names);
        EXPECT_EQ(*names, QStringList{*first} + numbered("Form", 100, 2).mid(1));
    };
}

Change formOneNamed(const QByteArray &name) {
    return [name](P &p) { p.setString(p.nameOid(Table::Form, 1), name); };
}

Change set(const char *oid, std::variant<long, QByteArray> value) {
    return [oid, value](P &p) {
        if (const long *number = std::get_if<long>(&value))
            p.setInteger(oid, *number);
        else
            p.setString(oid, std::get<QByteArray>(value));
    };
}

const Check noForms = formsStartWith(std::nullopt);
const Check noMac = [](const char *ip) { EXPECT_TRUE(H::getMacAddress(ip, kCommunity).isNull()); };
const Check adminOff = [](const char *ip) {
    EXPECT_FALSE(H::snmpGetAdminLoginModeEnabled(ip, kCommunity));
};

class SnmpQueriesTest : public ::testing::Test {
protected:
    static void SetUpTestSuite() {
        printer = std::make_unique<P>();
        started = printer->start();
    }
    static void TearDownTestSuite() { printer.reset(); }
    void SetUp() override {
        ASSERT_TRUE(started) << printer->errorText().toStdString();
        printer->setDefaults();
    }
    static const char *address() {
        static const QByteArray ip = P::loopbackAddress().toLatin1();
        return ip.constData();
    }

    // Runs each case against a fresh default printer; returns the GETs each sent.
    static QList<int> run(const QList<Case> &cases) {
        QList<int> requests;
        for (const Case &c : cases) {
            SCOPED_TRACE(c.label);
            printer->setDefaults();
            c.change(*printer);
            const int before = printer->requestCount();
            c.check(address());
            requests.append(printer->requestCount() - before);
        }
        return requests;
    }

    static inline std::unique_ptr<P> printer;
    static inline bool started = false;
};

TEST_F(SnmpQueriesTest, PlainAnswers) {
    const char *ip = address();
    EXPECT_EQ(H::getValidatedFormNameArrayForIPAddress(ip, kCommunity), numbered("Form", 100, 2));
    EXPECT_EQ(H::getValidatedBarcodeAreaNameArrayForIPAddress(ip, kCommunity),
              numbered("Barcode", 100, 2));
    EXPECT_EQ(H::getValidatedColorProfileForIPAddress(ip, kCommunity), numbered("Profile", 30, 2));
    EXPECT_EQ(H::getValidatedSharedBoxNameArrayForIPAddress(ip, kCommunity, 30),
              numbered("Box", 30, 1));
    const auto states =
        H::getValidatedSharedBoxStateArrayForIPAddress(ip, kCommunity, 30).value_or(QStringList());
    EXPECT_EQ(states.size(), 30);
    EXPECT_EQ(states.mid(0, 3), QStringList({"1", "0", "1"}));
    EXPECT_TRUE(H::getAdminLoginModeEnabled(ip, kCommunity));
    EXPECT_EQ(H::getMacAddress(ip, kCommunity), "00:11:22:aa:bb:cc");
    int mode = 0;
    EXPECT_EQ(H::getSleepMode(ip, kCommunity, mode), 0);
    EXPECT_EQ(mode, 1);
    EXPECT_EQ(H::snmpGetSharedBoxEntryForIPAddress(ip, kCommunity), 30);
    QList<P::Entry> boxes;
    for (int i = 1; i <= 100; ++i)
        boxes.append({i % 3 == 0 ? 0 : 1, "Box" + QByteArray::number(i)});
    printer->setTable(Table::SharedBox, boxes);
    ASSERT_EQ(H::snmpGetSharedBoxEntryForIPAddress(ip, kCommunity), 100);
    EXPECT_EQ(H::getValidatedSharedBoxNameArrayForIPAddress(ip, kCommunity, 100),
              numbered("Box", 100, 1));
    EXPECT_TRUE(H::snmpGetSharedBoxStateForIPAddress(ip, kCommunity, 100));
    EXPECT_EQ(H::sharedBoxStateArray().count("0"), 33);
}

TEST_F(SnmpQueriesTest, HostileAnswersGivePlainResults) {
    run({
        {"japaneseName", formOneNamed("請求書フォーム"), formsStartWith("請求書フォーム")},
        {"emptyName", formOneNamed(""), formsStartWith("")},
        {"longestName", formOneNamed(QByteArray(4095, 'n')), formsStartWith(QString(4095, 'n'))},
        {"tooLongName", formOneNamed(QByteArray(4096, 'n')), noForms},
        {"embeddedZero", formOneNamed(QByteArray("AB\0CD", 5)), formsStartWith("AB")},
        {"notUtf8", formOneNamed("\xff\xfe"), noForms},
        {"truncatedUtf8", formOneNamed("\xe8\xab"), noForms},
        {"missingName", [](P &p) { p.remove(p.nameOid(Table::Form, 50)); }, noForms},
        {"firstStateIsText", [](P &p) { p.setString(p.stateOid(Table::Form, 1), "1"); }, noForms},
        {"laterStateIsText", [](P &p) { p.setString(p.stateOid(Table::Form, 7), "1"); }, noForms},
        {"nameIsInteger", [](P &p) { p.setInteger(p.nameOid(Table::Form, 3), 7); }, noForms},
        {"noneInUse",
         [](P &p) {
             for (int i = 1; i <= 100; ++i)
                 p.setInteger(p.stateOid(Table::Form, i), 2);
         },
         [](const char *ip) {
             EXPECT_EQ(H::getValidatedFormNameArrayForIPAddress(ip, kCommunity), QStringList());
         }},
        {"missingColorProfile", [](P &p) { p.remove(p.stateOid(Table::ColorProfile, 30)); },
         [](const char *ip) {
             EXPECT_FALSE(H::getValidatedColorProfileForIPAddress(ip, kCommunity));
             EXPECT_TRUE(H::colorProfileStateArray().isEmpty());
         }},
        {"missingSharedBoxName", [](P &p) { p.remove(p.nameOid(Table::SharedBox, 30)); },
         [](const char *ip) {
             EXPECT_FALSE(H::getValidatedSharedBoxNameArrayForIPAddress(ip, kCommunity, 30));
             EXPECT_TRUE(H::sharedBoxNameArray().isEmpty());
         }},
        {"adminLoginTwo", set(P::kAdminLoginMode, 2L), adminOff},
        {"adminLoginText", set(P::kAdminLoginMode, "1"), adminOff},
        {"adminLoginMissing", [](P &p) { p.remove(P::kAdminLoginMode); }, adminOff},
        {"macIsInteger", set(P::kMacAddress, 1L), noMac},
        {"macMissing", [](P &p) { p.remove(P::kMacAddress); }, noMac},
        {"macOverlong", set(P::kMacAddress, QByteArray(60000, 'm')), noMac},
        {"macNotUtf8", set(P::kMacAddress, "\xc0\xaf"), noMac},
        {"sleepModeIsText", set(P::kSleepMode, "1"), sleepUnknown(0)},
        {"sleepModeMissing", [](P &p) { p.remove(P::kSleepMode); }, sleepUnknown(0)},
    });
}

// Addresses for which no session can open: nothing is sent.
TEST_F(SnmpQueriesTest, UnusableAddressGivesPlainResults) {
    for (const QByteArray &unusable : {QByteArray(""), QByteArray(300, '1')}) {
        const char *ip = unusable.constData();
        const int before = printer->requestCount();
        sleepUnknown(1)(ip);
        EXPECT_EQ(H::snmpGetSharedBoxEntryForIPAddress(ip, kCommunity), 30);
        EXPECT_FALSE(H::snmpGetSharedBoxStateForIPAddress(ip, kCommunity, 30));
        EXPECT_FALSE(H::getValidatedFormNameArrayForIPAddress(ip, kCommunity));
        EXPECT_TRUE(H::getMacAddress(ip, kCommunity).isNull());
        EXPECT_EQ(printer->requestCount(), before);
    }
}

// The session settings, proved by what reaches the printer: a printer that
// never answers sees each query's retries plus one.
TEST_F(SnmpQueriesTest, SilentPrinterSeesRetriesPlusOne) {
    const Change silent = [](P &p) { p.setSilent(true); };
    const auto requests = run({
        {"sleepMode", silent, sleepUnknown(2)},
        {"macAddress", silent, noMac},
        {"probe", silent,
         [](const char *ip) {
             EXPECT_EQ(H::snmpGetSharedBoxEntryForIPAddress(ip, kCommunity), 30);
         }},
        {"formStates", silent,
         [](const char *ip) {
             EXPECT_FALSE(H::snmpGetFormStateForIPAddress(ip, kCommunity));
             EXPECT_TRUE(H::formStateArray().isEmpty());
         }},
    });
    printer->setSilent(false);
    EXPECT_EQ(requests, QList<int>({2, 6, 6, 6}));
}

// The timeouts, proved at the printer: an answer 1.5 s late is waited for
// by the 10 s timeout of the hundred-entry queries (one request) and asked
// again by the 1 s one of the others.
TEST_F(SnmpQueriesTest, SlowPrinterIsAskedAgainOnlyAfterTheSessionTimeout) {
    const Change slow = [](P &p) {
        p.setTable(Table::SharedBox, QList<P::Entry>(100, {1, "Box"}));
        p.setResponseDelayMs(1500);
    };
    const auto requests = run({
        {"hundredBoxStates", slow,
         [](const char *ip) {
             EXPECT_TRUE(H::snmpGetSharedBoxStateForIPAddress(ip, kCommunity, 100));
         }},
        {"hundredBoxNames", slow,
         [](const char *ip) {
             EXPECT_TRUE(H::snmpGetSharedBoxNameForIPAddress(ip, kCommunity, 100));
         }},
        {"thirtyBoxStates", slow,
         [](const char *ip) { H::snmpGetSharedBoxStateForIPAddress(ip, kCommunity, 30); }},
        {"macAddress", slow, [](const char *ip) { H::getMacAddress(ip, kCommunity); }},
    });
    printer->setResponseDelayMs(0);
    ASSERT_EQ(requests.size(), 4);
    EXPECT_EQ(requests.mid(0, 2), QList<int>({1, 1}));
    EXPECT_GT(requests[2], 1);
    EXPECT_GT(requests[3], 1);
}

// Answers with fewer variables than asked, which snmpd never sends.
TEST(SnmpShortAnswers, GivePlainResults) {
    const qint64 pid = QCoreApplication::applicationPid();
    const QByteArray ip =
        QString("127.254.%1.%2").arg((pid >> 8) & 0xFF).arg(pid % 250 + 2).toLatin1();
    const struct {
        const char *label;
        int kept;
        Check check;
    } cases[] = {
        {"everyState", 100,
         [](const char *at) {
             EXPECT_TRUE(H::snmpGetFormStateForIPAddress(at, kCommunity));
             EXPECT_EQ(H::formStateArray(), QStringList(100, "1"));
         }},
        {"oneStateShort", 99,
         [](const char *at) {
             EXPECT_FALSE(H::snmpGetFormStateForIPAddress(at, kCommunity));
             EXPECT_TRUE(H::formStateArray().isEmpty());
         }},
        {"noSleepMode", 0, sleepUnknown(0)},
        // An answer without error counts as the printer having box 100.
        {"noProbeValue", 0,
         [](const char *at) {
             EXPECT_EQ(H::snmpGetSharedBoxEntryForIPAddress(at, kCommunity), 100);
         }},
        {"noAdminMode", 0, adminOff},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.label);
        TruncatingResponder responder(ip, c.kept);
        ASSERT_TRUE(responder.isListening());
        c.check(ip.constData());
        EXPECT_GT(responder.requestsAnswered(), 0);
    }
}

// A printer reached over IPv6 loopback on port 161.
TEST(SnmpIPv6Loopback, ReachesPrinterOnPort161) {
    P::Options options;
    options.listen = options.counterPeer = "udp6:[::1]:161";
    P printer(options);
    ASSERT_TRUE(printer.start()) << printer.errorText().toStdString();
    printer.setDefaults();
    EXPECT_EQ(H::getMacAddress("::1", kCommunity), "00:11:22:aa:bb:cc");
    EXPECT_EQ(H::getValidatedColorProfileForIPAddress("::1", kCommunity),
              numbered("Profile", 30, 2));
}

} // namespace
