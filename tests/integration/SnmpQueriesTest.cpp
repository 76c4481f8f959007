// The vendor MIB queries against a real snmpd serving a simulated printer on
// a loopback address of this process.
#include "OVSNMPHelper.h"
#include "SimulatedPrinter.h"

#include <QLoggingCategory>

#include <gtest/gtest.h>

#include <arpa/inet.h>
#include <unistd.h>

#include <future>

namespace {

using H = OVSNMPHelper;
using P = SimulatedPrinter;
constexpr const char *kCommunity = "cobalt";

// What a query gives, as text a table row can state.
enum Query { Forms, AdminMode, Mac, SleepMode };
std::string ask(Query query, const char *ip) {
    int mode = 5;
    if (query == SleepMode) {
        const int status = H::getSleepMode(ip, kCommunity, mode);
        return "status " + std::to_string(status) + " mode " + std::to_string(mode);
    }
    if (query == Mac) {
        const QString mac = H::getMacAddress(ip, kCommunity);
        return mac.isNull() ? "null" : mac.toStdString();
    }
    if (query == AdminMode)
        return H::snmpGetAdminLoginModeEnabled(ip, kCommunity) ? "on" : "off";
    const auto names = H::getValidatedFormNameArrayForIPAddress(ip, kCommunity);
    // After a failed query each list holds all its entries or none.
    for (const QStringList *array : {&H::formStateArray(), &H::formNameArray()})
        if (!names && !array->isEmpty() && array->size() != 100)
            return "partial";
    return names ? names->value(0).toStdString() + " +" + std::to_string(names->size() - 1)
                 : "failed";
}

TEST(SnmpQueries, AnswersOfHealthyFaultyAndSlowPrinters) {
    P printer;
    ASSERT_TRUE(printer.start()) << printer.errorText().toStdString();
    printer.setDefaults();
    const QByteArray ip = P::loopbackAddress().toLatin1();
    // Each table in use in a pattern of its own, states 2, 3 and -1 not in use.
    EXPECT_EQ(H::getValidatedFormNameArrayForIPAddress(ip, kCommunity),
              printer.namesInUse(P::Table::Form));
    EXPECT_EQ(H::getValidatedBarcodeAreaNameArrayForIPAddress(ip, kCommunity),
              printer.namesInUse(P::Table::BarcodeArea));
    EXPECT_EQ(H::getValidatedColorProfileForIPAddress(ip, kCommunity),
              printer.namesInUse(P::Table::ColorProfile));
    EXPECT_EQ(H::getValidatedSharedBoxNameArrayForIPAddress(ip, kCommunity, 30).value().value(29),
              "Box30");
    EXPECT_EQ(H::getValidatedSharedBoxStateArrayForIPAddress(ip, kCommunity, 30).value().mid(0, 4),
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
        {"longestName", form2, QByteArray(4095, 'n'), Forms, std::string(4095, 'n') + " +49"},
        {"tooLongName", form2, QByteArray(4096, 'n'), Forms, "failed"},
        {"notUtf8", form2, QByteArray("\xe8\xab"), Forms, "failed"},
        {"missingName", form50, {}, Forms, "failed", -1, "refused: (noSuchName)"},
        // A later variable of another type than the first fails the list.
        {"nameIsInteger", P::nameOid(P::Table::Form, 3), 7L, Forms, "failed"},
        {"stateIsText", P::stateOid(P::Table::Form, 4), QByteArray("1"), Forms, "failed"},
        {"adminLoginText", P::kAdminLoginMode, QByteArray("1"), AdminMode, "off"},
        {"macOverlong", P::kMacAddress, QByteArray(60000, 'm'), Mac, "null"},
        {"sleepModeIsText", P::kSleepMode, QByteArray("1"), SleepMode, "status 0 mode -1"},
        // The session settings, proved at the printer: one that never answers
        // sees each query's retries plus one.
        {"silentSleepMode", "silent", 1L, SleepMode, "status 2 mode -1", 2, "failed: Timeout"},
        {"silentMac", "silent", 1L, Mac, "null", 6},
        {"silentForms", "silent", 1L, Forms, "failed", 6},
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

// The answer to a v1 GET with only its first `kept` variables, each INTEGER 1,
// which snmpd never sends: it always mirrors the variables asked.
QByteArray truncatedResponse(const QByteArray &request, int kept) {
    const QList<QByteArray> message = parts(request), pdu = parts(message[2]);
    QByteArray bindings;
    for (const QByteArray &binding : parts(pdu[3]).mid(0, kept))
        bindings += wrap(0x30, parts(binding)[0] + QByteArray("\x02\x01\x01"));
    return wrap(0x30, message[0] + message[1] +
                          wrap(char(0xA2), pdu[0] + pdu[1] + pdu[2] + wrap(0x30, bindings)));
}

// Each query here sends one request, answered by a thread of the test.
TEST(SnmpShortAnswers, GivePlainResults) {
    const QByteArray ip = "127.254." + P::loopbackAddress().section('.', 2).toLatin1();
    sockaddr_in at{AF_INET, htons(161), {}, {}};
    inet_pton(AF_INET, ip.constData(), &at.sin_addr);
    const int fd = socket(AF_INET, SOCK_DGRAM, 0);
    const timeval wait{5, 0};
    setsockopt(fd, SOL_SOCKET, SO_RCVTIMEO, &wait, sizeof wait);
    ASSERT_EQ(bind(fd, reinterpret_cast<sockaddr *>(&at), sizeof at), 0);
    const std::tuple<int, Query, const char *> cases[] = {{1, SleepMode, "status 0 mode 1"},
                                                          {0, SleepMode, "status 0 mode -1"},
                                                          {99, Forms, "failed"}};
    for (const auto &[kept, query, expected] : cases) {
        const auto responder = std::async(std::launch::async, [fd, kept = kept] {
            char data[65536];
            sockaddr_in from{};
            socklen_t size = sizeof from;
            auto *peer = reinterpret_cast<sockaddr *>(&from);
            const ssize_t n = recvfrom(fd, data, sizeof data, 0, peer, &size);
            if (n <= 0)
                return;
            const QByteArray answer = truncatedResponse(QByteArray(data, n), kept);
            sendto(fd, answer.data(), size_t(answer.size()), 0, peer, size);
        });
        EXPECT_EQ(ask(query, ip.constData()), expected) << kept;
    }
    close(fd);
}

} // namespace
