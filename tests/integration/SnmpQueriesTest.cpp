// The vendor MIB queries against a real snmpd serving a simulated printer on
// a loopback address of this process.
#include "OVPrinterInfoFetch.h"
#include "OVSNMPHelper.h"
#include "SimulatedPrinter.h"

#include <QLoggingCategory>

#include <gtest/gtest.h>

#include <arpa/inet.h>
#include <unistd.h>

#include <atomic>
#include <future>

namespace {

using H = OVSNMPHelper;
using P = SimulatedPrinter;
constexpr const char *kCommunity = "cobalt";
constexpr const char *kTooWide = "unreadable: a number wider than 32 bits";

// What a query gives, as text a table row can state: its value, or why it
// has none.
enum Query { Forms, AdminMode, Mac, SleepMode };
template <typename T> std::string failure(const H::Reading<T> &reading) {
    constexpr const char *reasons[] = {"no answer",    "refused",          "unreadable",
                                       "unknown user", "wrong passphrase", "unsupported level",
                                       "unknown host"};
    const std::string detail = reading.failure.detail.toStdString();
    return reasons[int(reading.failure.reason)] + (detail.empty() ? "" : ": " + detail);
}
std::string ask(Query query, const char *ip) {
    int mode = 5;
    if (query == SleepMode) {
        const int status = H::getSleepMode(ip, kCommunity, mode);
        return "status " + std::to_string(status) + " mode " + std::to_string(mode);
    }
    if (query == Mac) {
        const auto mac = H::getMacAddress(ip, kCommunity);
        return mac.value ? mac.value->toStdString() : failure(mac);
    }
    if (query == AdminMode) {
        const auto enabled = H::getAdminLoginModeEnabled(ip, kCommunity);
        return enabled.value ? (*enabled.value ? "on" : "off") : failure(enabled);
    }
    const auto names = H::getValidatedFormNameArrayForIPAddress(ip, kCommunity);
    // After a failed query each list holds all its entries or none.
    for (const QStringList *array : {&H::formStateArray(), &H::formNameArray()})
        if (!names.value && !array->isEmpty() && array->size() != 100)
            return "partial";
    return names.value ? names.value->value(0).toStdString() + " +" +
                             std::to_string(names.value->size() - 1)
                       : failure(names);
}

TEST(SnmpQueries, AnswersOfHealthyFaultyAndSlowPrinters) {
    P printer;
    ASSERT_TRUE(printer.start()) << printer.errorText().toStdString();
    printer.setDefaults();
    const QByteArray ip = P::loopbackAddress().toLatin1();
    // Each table in use in a pattern of its own, states 2, 3 and -1 not in use.
    EXPECT_EQ(H::getValidatedFormNameArrayForIPAddress(ip, kCommunity).value,
              printer.namesInUse(P::Table::Form));
    EXPECT_EQ(H::getValidatedBarcodeAreaNameArrayForIPAddress(ip, kCommunity).value,
              printer.namesInUse(P::Table::BarcodeArea));
    EXPECT_EQ(H::getValidatedColorProfileForIPAddress(ip, kCommunity).value,
              printer.namesInUse(P::Table::ColorProfile));
    EXPECT_EQ(H::getValidatedSharedBoxNameArrayForIPAddress(ip, kCommunity, 30).value->value(29),
              "Box30");
    EXPECT_EQ(H::getValidatedSharedBoxStateArrayForIPAddress(ip, kCommunity, 30).value->mid(0, 4),
              QString("1 2 1 0").split(' '));
    EXPECT_EQ(H::snmpGetSharedBoxEntryForIPAddress(ip, kCommunity), 30);
    EXPECT_EQ(ask(AdminMode, ip), "on");
    EXPECT_EQ(ask(Mac, ip), "00:11:22:aa:bb:cc");
    EXPECT_EQ(ask(SleepMode, ip), "status 0 mode 1");
    // An empty address would be Net-SNMP's localhost: no session opens.
    EXPECT_EQ(ask(SleepMode, ""), "status 1 mode -1");

    // A failed request also logs Net-SNMP's own reason to the core's category.
    static QStringList coreLog;
    QLoggingCategory::setFilterRules("orvo.core.info=true");
    const QtMessageHandler previous = qInstallMessageHandler(
        [](QtMsgType, const QMessageLogContext &context, const QString &line) {
            if (qstrcmp(context.category, "orvo.core") == 0)
                coreLog << line;
        });
    const QByteArray form2 = P::nameOid(P::Table::Form, 2); // the first form in use
    const QByteArray form50 = P::nameOid(P::Table::Form, 50);
    const std::string kNotUtf8 = "unreadable: a text that is not UTF-8";
    const std::string kNoSuchName =
        "refused: (noSuchName) There is no such variable name in this MIB.";
    const std::string kNotMac =
        "unreadable: a MAC address that is not six two-digit hexadecimal octets";
    const struct {
        const char *label;
        QByteArray oid;
        P::Value value;
        Query query;
        std::string expected;
        int requests = -1; // GETs the printer receives; -1: not counted
        const char *logged = "";
    } cases[] = {
        {"japaneseName", form2, QByteArray("請求書フォーム"), Forms, "請求書フォーム +49"},
        {"emptyName", form2, QByteArray(""), Forms, " +49"},
        // A text may end with a C string's zero byte.
        {"zeroEndedName", form2, QByteArray("Invoice\0", 8), Forms, "Invoice +49"},
        {"longestName", form2, QByteArray(4095, 'n'), Forms, std::string(4095, 'n') + " +49"},
        {"adminLoginOff", P::kAdminLoginMode, 2L, AdminMode, "off"},
        {"adminLoginZero", P::kAdminLoginMode, 0L, AdminMode, "off"},
        {"macUpperCase", P::kMacAddress, QByteArray("00:11:22:AA:BB:CC"), Mac, "00:11:22:AA:BB:CC"},
        // A hostile or broken printer: an answer that its object cannot hold
        // gives no value at all, and says why.
        {"tooLongName", form2, QByteArray(4096, 'n'), Forms,
         "unreadable: a text of 4096 bytes, longer than 4095"},
        {"notUtf8", form2, QByteArray("\xe8\xab"), Forms, kNotUtf8},
        {"overlongUtf8Slash", form2, QByteArray("\xc0\xaf"), Forms, kNotUtf8},
        {"utf8Surrogate", form2, QByteArray("\xed\xa0\x80"), Forms, kNotUtf8},
        // A later variable of another type than the first fails the list.
        {"nameIsInteger", P::nameOid(P::Table::Form, 3), 7L, Forms,
         "unreadable: a number where a text belongs"},
        {"stateIsText", P::stateOid(P::Table::Form, 4), QByteArray("1"), Forms,
         "unreadable: a text where a number belongs"},
        // snmpd sends 2^31 to 2^32 - 1 in five octets, beyond what an INTEGER holds.
        {"stateBeyond32Bits", P::stateOid(P::Table::Form, 4), 2147483648L, Forms, kTooWide},
        {"adminLoginText", P::kAdminLoginMode, QByteArray("1"), AdminMode,
         "unreadable: a text where a number belongs"},
        {"adminLoginNegative", P::kAdminLoginMode, -1L, AdminMode,
         "unreadable: -1 where a number from 0 to 2 belongs"},
        {"adminLoginThree", P::kAdminLoginMode, 3L, AdminMode,
         "unreadable: 3 where a number from 0 to 2 belongs"},
        {"adminLoginBeyond32Bits", P::kAdminLoginMode, 4294967295L, AdminMode, kTooWide},
        {"macOverlong", P::kMacAddress, QByteArray(60000, 'm'), Mac,
         "unreadable: a text of 60000 bytes, longer than 4095"},
        {"macWithEscapeAndNewline", P::kMacAddress, QByteArray("00:11:22:aa:bb:cc\x1b[2J\n"), Mac,
         kNotMac},
        {"macOfFiveOctets", P::kMacAddress, QByteArray("00:11:22:aa:bb"), Mac, kNotMac},
        {"macOfSevenOctets", P::kMacAddress, QByteArray("00:11:22:aa:bb:cc:dd"), Mac, kNotMac},
        {"macWithDashes", P::kMacAddress, QByteArray("00-11-22-aa-bb-cc"), Mac, kNotMac},
        {"sleepModeIsText", P::kSleepMode, QByteArray("1"), SleepMode, "status 0 mode -1"},
        {"sleepModeBeyond32Bits", P::kSleepMode, 2147483649L, SleepMode, "status 0 mode -1"},
        {"missingName", form50, {}, Forms, kNoSuchName, -1, "refused: (noSuchName)"},
        // The session settings, proved at the printer: one that never answers
        // sees each query's retries plus one.
        {"silentSleepMode", "silent", 1L, SleepMode, "status 2 mode -1", 2, "failed: Timeout"},
        {"silentMac", "silent", 1L, Mac, "no answer", 6},
        {"silentForms", "silent", 1L, Forms, "no answer", 6},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.label);
        printer.setDefaults();
        printer.set(c.oid, c.value);
        const int before = printer.requestCount();
        coreLog.clear();
        EXPECT_EQ(ask(c.query, ip), c.expected);
        EXPECT_EQ(c.requests < 0 ? -1 : printer.requestCount() - before, c.requests);
        if (*c.logged) {
            EXPECT_TRUE(coreLog.join('|').startsWith("SNMP request to " + ip + ' ' + c.logged))
                << coreLog.join('|').toStdString();
        }
    }
    qInstallMessageHandler(previous);
    QLoggingCategory::setFilterRules({});

    // With 100 shared boxes, an answer 1.5 s late is waited for by the 10 s
    // timeout of the hundred-box query and asked again by the 1 s one of the
    // thirty-box query.
    printer.setDefaults();
    for (int index = 1; index <= 100; ++index) {
        printer.set(P::stateOid(P::Table::SharedBox, index), 1L);
        printer.set(P::nameOid(P::Table::SharedBox, index), QByteArray("Box"));
    }
    ASSERT_EQ(H::snmpGetSharedBoxEntryForIPAddress(ip, kCommunity), 100);
    printer.setResponseDelayMs(1500);
    for (int boxes : {100, 30}) {
        const int before = printer.requestCount();
        H::snmpGetSharedBoxStateForIPAddress(ip, kCommunity, boxes);
        const int requests = printer.requestCount() - before;
        EXPECT_TRUE(boxes == 100 ? requests == 1 : requests > 1) << boxes << ": " << requests;
    }
}

// Get Printer Info stops at the step whose answer fails, with the reason, and
// no value of that answer reaches the result.
TEST(SnmpQueries, FetchStopsAtTheStepThatFailedWithItsReason) {
    using Fetch = OVPrinterInfoFetch;
    using Reason = H::Reason;
    P printer;
    ASSERT_TRUE(printer.start()) << printer.errorText().toStdString();
    using S = Fetch::Step;
    const std::tuple<QByteArray, P::Value, S, Reason> cases[] = {
        {P::kMacAddress, QByteArray("00:11:22:aa:bb:cc\n"), S::MacAddress, Reason::Unreadable},
        {P::kAdminLoginMode, 3L, S::Folders, Reason::Unreadable},
        {P::nameOid(P::Table::ColorProfile, 30), {}, S::ColorProfiles, Reason::Refused}};
    for (const auto &[oid, value, step, reason] : cases) {
        SCOPED_TRACE(int(step));
        printer.setDefaults();
        printer.set(oid, value);
        const Fetch::Result result =
            Fetch::fetch({P::loopbackAddress(), kCommunity, std::nullopt}, Fetch::allSteps);
        ASSERT_TRUE(result.failedStep);
        EXPECT_EQ(result.failedStep->step, step);
        EXPECT_EQ(result.failedStep->failure.reason, reason);
        EXPECT_EQ(result.macAddress.isNull(), step == S::MacAddress);
        EXPECT_EQ(result.adminLoginModeEnabled.has_value(), step > S::Folders);
        EXPECT_FALSE(result.colorProfiles);
    }
}

OVSnmpCredentials v3(const char *user, const char *auth, const char *authPassphrase,
                     const char *priv = "", const char *privPassphrase = P::kPrivPassphrase) {
    return OVSnmpCredentials::v3(user, auth, authPassphrase, priv, privPassphrase);
}

// What a whole fetch found, as text.
std::string fetched(const OVSnmpCredentials &credentials) {
    using Fetch = OVPrinterInfoFetch;
    const Fetch::Result r =
        Fetch::fetch({P::loopbackAddress(), credentials, std::nullopt}, Fetch::allSteps);
    if (r.failedStep)
        return Fetch::stepName(r.failedStep->step).toStdString() + ": " +
               failure(H::Reading<bool>{std::nullopt, r.failedStep->failure});
    return QStringList{r.macAddress,
                       r.foldersInUse()->join(','),
                       r.folderStates->join(','),
                       QString::number(*r.adminLoginModeEnabled),
                       r.forms->join(','),
                       r.barcodeAreas->join(','),
                       r.colorProfiles->join(',')}
        .join('|')
        .toStdString();
}

// A printer with SNMP v1 switched off answers its SNMPv3 users what it
// answered over v1, and each fault of the v3 settings fails the fetch with a
// reason of its own.
TEST(SnmpVersion3, AnswersAsVersion1DidAndTellsFaultsApart) {
    const OVSnmpCredentials privUser =
        v3(P::kPrivUser, "SHA-256", P::kAuthPassphrase, "AES-128", P::kPrivPassphrase);
    std::string overV1;
    {
        P printer;
        ASSERT_TRUE(printer.start()) << printer.errorText().toStdString();
        printer.setDefaults();
        overV1 = fetched(kCommunity);
    }
    P::Options options;
    options.v1Off = true;
    P printer(options);
    ASSERT_TRUE(printer.start()) << printer.errorText().toStdString();
    printer.setDefaults();
    EXPECT_NE(overV1.find("00:11:22:aa:bb:cc|Box1,Box3"), std::string::npos) << overV1;
    const std::string wrongDigest =
        "wrong passphrase: the authentication passphrase does not match";
    const std::tuple<const char *, OVSnmpCredentials, std::string> cases[] = {
        {"v1Off", kCommunity, "MAC address: no answer"},
        {"authPriv", privUser, overV1},
        {"authNoPriv", v3(P::kAuthUser, "SHA-256", P::kAuthPassphrase), overV1},
        {"longestKeys", v3(P::kStrongUser, "SHA-512", P::kAuthPassphrase, "AES-256"), overV1},
        {"unknownUser", v3("orvo_guest", "SHA-256", P::kAuthPassphrase),
         "MAC address: unknown user: the printer has no such SNMPv3 user"},
        {"wrongAuthPassphrase", v3(P::kPrivUser, "SHA-256", "not-the-phrase", "AES-128"),
         "MAC address: " + wrongDigest},
        {"wrongAuthProtocol", v3(P::kPrivUser, "SHA-512", P::kAuthPassphrase, "AES-128"),
         "MAC address: " + wrongDigest},
        // The printer cannot read what it decrypts and stays silent.
        {"wrongPrivPassphrase",
         v3(P::kPrivUser, "SHA-256", P::kAuthPassphrase, "AES-128", "not-the-phrase"),
         "MAC address: no answer"},
        {"privacyForAuthOnlyUser", v3(P::kAuthUser, "SHA-256", P::kAuthPassphrase, "AES-128"),
         "MAC address: unsupported level: the user is not set up for this security level"},
        {"shortPassphrase", v3(P::kPrivUser, "SHA-256", "short", "AES-128"),
         "MAC address: wrong passphrase: a passphrase of fewer than 8 characters"},
        // The engine is remembered: the right passphrase after a wrong one works.
        {"authPrivAgain", privUser, overV1},
    };
    for (const auto &[label, credentials, expected] : cases) {
        SCOPED_TRACE(label);
        EXPECT_EQ(fetched(credentials), expected);
    }
    // A refused user says the printer is awake, which the wake flow needs to know; a passphrase
    // too short for a key sends nothing.
    const QByteArray address = P::loopbackAddress().toLatin1();
    int mode = -1;
    EXPECT_EQ(H::getSleepMode(address, v3("orvo_guest", "SHA-256", P::kAuthPassphrase), mode),
              H::statusUserRefused);
    EXPECT_EQ(H::getSleepMode(address, v3(P::kPrivUser, "SHA-256", "short"), mode), 1);
    EXPECT_EQ(H::getSleepMode(address, privUser, mode), 0);
    // Integers are checked as sent inside the encrypted answer too.
    printer.set(P::kAdminLoginMode, 4294967295L);
    EXPECT_EQ(failure(H::getAdminLoginModeEnabled(P::loopbackAddress().toLatin1(), privUser)),
              kTooWide);
}

// The elements inside a constructed BER element of a request Net-SNMP built
// (definite lengths only).
QList<QByteArray> parts(const QByteArray &element) {
    QList<QByteArray> list;
    for (qsizetype at = element[1] & 0x80 ? 2 + (element[1] & 0x7F) : 2; at < element.size();) {
        qsizetype head = 2, length = quint8(element[at + 1]);
        if (length > 0x80)
            for (length = 0; head < 2 + (quint8(element[at + 1]) & 0x7F); ++head)
                length = length << 8 | quint8(element[at + head]);
        list.append(element.mid(at, head + length));
        at += head + length;
    }
    return list;
}

QByteArray wrap(char tag, const QByteArray &content) {
    const qsizetype n = content.size();
    return tag + (n < 0x80 ? QByteArray() : QByteArray(1, char(0x82)) + char(n >> 8)) +
           char(n & 0xFF) + content;
}

// The answer to a v1 GET that snmpd never sends: `count` variables, named as
// asked (the last name again past their end), each holding the BER element
// `value`.
QByteArray forgedResponse(const QByteArray &request, int count, const QByteArray &value) {
    const QList<QByteArray> message = parts(request), pdu = parts(message[2]);
    const QList<QByteArray> asked = parts(pdu[3]);
    QByteArray bindings;
    for (int i = 0; i < count; ++i)
        bindings += wrap(0x30, parts(asked[std::min(qsizetype(i), asked.size() - 1)])[0] + value);
    return wrap(0x30, message[0] + message[1] +
                          wrap(char(0xA2), pdu[0] + pdu[1] + pdu[2] + wrap(0x30, bindings)));
}

// Answers too short, too long, or with integers wider than Net-SNMP keeps
// (it reads 4294967297 as 1), from a responder thread of the test.
TEST(SnmpForgedAnswers, GiveNoValueAndSayWhy) {
    const QByteArray ip = "127.254." + P::loopbackAddress().section('.', 2).toLatin1();
    sockaddr_in at{AF_INET, htons(161), {}, {}};
    inet_pton(AF_INET, ip.constData(), &at.sin_addr);
    const int fd = socket(AF_INET, SOCK_DGRAM, 0);
    const timeval wait{0, 100'000};
    setsockopt(fd, SOL_SOCKET, SO_RCVTIMEO, &wait, sizeof wait);
    ASSERT_EQ(bind(fd, reinterpret_cast<sockaddr *>(&at), sizeof at), 0);
    const QByteArray one("\x02\x01\x01", 3);
    const QByteArray beyond32Bits("\x02\x05\x01\x00\x00\x00\x01", 7);     // 4294967297
    const QByteArray below32Bits("\x02\x05\xfe\xff\xff\xff\xff", 7);      // -4294967297
    const QByteArray beyond64Bits = "\x02\x09\x01" + QByteArray(8, '\0'); // 2^64
    const QByteArray mac = "\x04\x11" + QByteArray("00:11:22:aa:bb:cc");
    const std::tuple<int, QByteArray, Query, std::string> cases[] = {
        {1, one, SleepMode, "status 0 mode 1"},
        {0, one, SleepMode, "status 0 mode -1"},
        {1, mac, Mac, "00:11:22:aa:bb:cc"},
        {99, one, Forms, "unreadable: 99 values for a request of 100"},
        {101, one, Forms, "unreadable: 101 values for a request of 100"},
        {2, mac, Mac, "unreadable: 2 values for a request of 1"},
        {1, beyond32Bits, AdminMode, kTooWide},
        {1, below32Bits, AdminMode, kTooWide},
        {100, beyond32Bits, Forms, kTooWide},
        {1, beyond32Bits, SleepMode, "status 0 mode -1"},
        // Net-SNMP drops what it cannot parse and waits on, but an answer came.
        {1, beyond64Bits, AdminMode,
         "unreadable: an answer that is not an SNMP response to the request"},
    };
    for (const auto &[count, value, query, expected] : cases) {
        std::atomic<bool> done = false;
        const auto responder =
            std::async(std::launch::async, [&done, fd, count = count, value = value] {
                while (!done) {
                    char data[65536];
                    sockaddr_in from{};
                    socklen_t size = sizeof from;
                    auto *peer = reinterpret_cast<sockaddr *>(&from);
                    const ssize_t n = recvfrom(fd, data, sizeof data, 0, peer, &size);
                    if (n <= 0)
                        continue;
                    const QByteArray answer = forgedResponse(QByteArray(data, n), count, value);
                    sendto(fd, answer.data(), size_t(answer.size()), 0, peer, size);
                }
            });
        EXPECT_EQ(ask(query, ip.constData()), expected) << count << " " << value.toHex().data();
        done = true;
    }
    close(fd);
}

} // namespace
