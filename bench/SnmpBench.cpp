// SNMP costs against the simulated printer on a loopback address:
// - one 100-variable GET through OVSNMPHelper vs the same GET by a minimal
//   Net-SNMP client (the floor: what the library and the agent cost),
//   interleaved so both see the same machine load;
// - snmpget's whole-process time for that GET, for context;
// - the full fetch (every list query, admin mode, MAC) with 20 ms added to
//   each answer, against round trips x delay, over v1 and as an SNMPv3
//   user (authPriv, SHA-256/AES-128) whose engine is discovered anew for
//   every fetch, as the command line does; the discovery counts as the one
//   extra round trip it is. The simulated printer answers the discovery
//   without the added delay, so a second figure leaves it out of the round
//   trips as well.
// Ends with one RESULT line of ratios.
#include "OVSNMPHelper.h"
#include "SimulatedPrinter.h"

#include <QCoreApplication>
#include <QProcess>

#include <benchmark/benchmark.h>
#include <net-snmp/net-snmp-config.h>
#include <net-snmp/net-snmp-includes.h>

#include <chrono>
#include <cstdio>
#include <memory>

namespace {

using Clock = std::chrono::steady_clock;
constexpr const char *kCommunity = "cobalt";
constexpr int kFormOidLength = 14;
constexpr oid kFormNamePrefix[kFormOidLength - 1] = {1, 3, 6, 1, 4, 1, 41871, 1, 2, 2, 2, 10, 1};
constexpr int kFormNameColumn = 4;
constexpr int kAddedDelayMs = 20;

SimulatedPrinter *printer = nullptr;
double get100Ratio = 0;
double fetchOverhead = 0;
double v3FetchOverhead = 0;
double v3FetchOverheadDelayedOnly = 0;

const char *address() {
    static const QByteArray ip = SimulatedPrinter::loopbackAddress().toLatin1();
    return ip.constData();
}

// The same request as the form-name query, with nothing but the library.
bool floorGet100() {
    netsnmp_session settings;
    snmp_sess_init(&settings);
    settings.version = SNMP_VERSION_1;
    settings.community = reinterpret_cast<u_char *>(const_cast<char *>(kCommunity));
    settings.community_len = std::strlen(kCommunity);
    settings.peername = const_cast<char *>(address());
    netsnmp_session *session = snmp_open(&settings);
    if (!session)
        return false;
    netsnmp_pdu *request = snmp_pdu_create(SNMP_MSG_GET);
    oid name[kFormOidLength + 1];
    std::copy(std::begin(kFormNamePrefix), std::end(kFormNamePrefix), name);
    name[kFormOidLength - 1] = kFormNameColumn;
    for (oid index = 1; index <= 100; ++index) {
        name[kFormOidLength] = index;
        snmp_add_null_var(request, name, kFormOidLength + 1);
    }
    netsnmp_pdu *response = nullptr;
    const int status = snmp_synch_response(session, request, &response);
    const bool ok = status == STAT_SUCCESS && response && response->errstat == SNMP_ERR_NOERROR;
    if (response)
        snmp_free_pdu(response);
    snmp_close(session);
    return ok;
}

double seconds(Clock::duration d) {
    return std::chrono::duration<double>(d).count();
}

void BM_Get100OursVsFloor(benchmark::State &state) {
    double ours = 0, floor = 0;
    bool oursFirst = true;
    for (auto _ : state) {
        // Alternate which one goes first, so neither always finds a warm agent.
        for (int turn = 0; turn < 2; ++turn) {
            const bool runOurs = (turn == 0) == oursFirst;
            const auto t0 = Clock::now();
            const bool ok = runOurs
                                ? OVSNMPHelper::snmpGetFormNameForIPAddress(address(), kCommunity)
                                : floorGet100();
            (runOurs ? ours : floor) += seconds(Clock::now() - t0);
            if (!ok)
                state.SkipWithError(runOurs ? "OVSNMPHelper GET failed" : "floor GET failed");
        }
        oursFirst = !oursFirst;
    }
    const auto n = double(state.iterations());
    state.counters["ours_us"] = ours / n * 1e6;
    state.counters["floor_us"] = floor / n * 1e6;
    get100Ratio = ours / floor;
    state.counters["ratio"] = get100Ratio;
}
BENCHMARK(BM_Get100OursVsFloor)->Iterations(400)->Unit(benchmark::kMillisecond);

void BM_SnmpgetProcess(benchmark::State &state) {
    QStringList arguments = {"-v1", "-c", kCommunity, "-Oqv", address()};
    for (int index = 1; index <= 100; ++index)
        arguments.append(QString(".1.3.6.1.4.1.41871.1.2.2.2.10.1.4.%1").arg(index));
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert("MIBS", "");
    for (auto _ : state) {
        QProcess snmpget;
        snmpget.setProcessEnvironment(env);
        snmpget.start("snmpget", arguments);
        if (!snmpget.waitForFinished() || snmpget.exitCode() != 0)
            state.SkipWithError("snmpget failed");
    }
}
BENCHMARK(BM_SnmpgetProcess)->Iterations(20)->Unit(benchmark::kMillisecond);

OVSnmpCredentials v3User() {
    return OVSnmpCredentials::v3(SimulatedPrinter::kPrivUser, "SHA-256",
                                 SimulatedPrinter::kAuthPassphrase, "AES-128",
                                 SimulatedPrinter::kPrivPassphrase);
}

bool fullFetch(const OVSnmpCredentials &credentials) {
    const char *ip = address();
    const int total = OVSNMPHelper::snmpGetSharedBoxEntryForIPAddress(ip, credentials);
    return OVSNMPHelper::getValidatedSharedBoxNameArrayForIPAddress(ip, credentials, total).value &&
           OVSNMPHelper::getValidatedSharedBoxStateArrayForIPAddress(ip, credentials, total)
               .value &&
           OVSNMPHelper::getValidatedFormNameArrayForIPAddress(ip, credentials).value &&
           OVSNMPHelper::getValidatedBarcodeAreaNameArrayForIPAddress(ip, credentials).value &&
           OVSNMPHelper::getValidatedColorProfileForIPAddress(ip, credentials).value &&
           OVSNMPHelper::getAdminLoginModeEnabled(ip, credentials).value &&
           OVSNMPHelper::getMacAddress(ip, credentials).value;
}

// Elapsed time against the delay of the round trips: those the printer
// counted, plus the engine discoveries when counted.
void measureFetch(benchmark::State &state, const OVSnmpCredentials &credentials, double &overhead,
                  double *overheadDelayedOnly = nullptr) {
    const int discoveries = credentials.version() == OVSnmpCredentials::Version::V3 ? 1 : 0;
    printer->setResponseDelayMs(kAddedDelayMs);
    double elapsed = 0;
    int roundTrips = 0;
    for (auto _ : state) {
        OVSNMPHelper::forgetEngines();
        const int before = printer->requestCount();
        const auto t0 = Clock::now();
        if (!fullFetch(credentials))
            state.SkipWithError("fetch failed");
        elapsed += seconds(Clock::now() - t0);
        roundTrips += printer->requestCount() - before;
    }
    printer->setResponseDelayMs(0);
    const auto n = double(state.iterations());
    const double delay = kAddedDelayMs / 1000.0;
    overhead = elapsed / ((roundTrips + discoveries * n) * delay);
    if (overheadDelayedOnly)
        *overheadDelayedOnly = elapsed / (roundTrips * delay);
    state.counters["round_trips"] = double(roundTrips) / n + discoveries;
    state.counters["overhead"] = overhead;
}

void BM_FullFetchWithAddedDelay(benchmark::State &state) {
    measureFetch(state, kCommunity, fetchOverhead);
}
BENCHMARK(BM_FullFetchWithAddedDelay)->Iterations(10)->Unit(benchmark::kMillisecond);

void BM_V3FetchWithAddedDelay(benchmark::State &state) {
    measureFetch(state, v3User(), v3FetchOverhead, &v3FetchOverheadDelayedOnly);
}
BENCHMARK(BM_V3FetchWithAddedDelay)->Iterations(10)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv) {
    QCoreApplication app(argc, argv);
    SimulatedPrinter simulated;
    if (!simulated.start()) {
        std::fprintf(stderr, "simulated printer: %s\n", qPrintable(simulated.errorText()));
        return 1;
    }
    simulated.setDefaults();
    printer = &simulated;
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    std::printf("RESULT snmp_get100_vs_floor=%.3f snmp_fetch_overhead=%.3f "
                "snmp_v3_fetch_overhead=%.3f snmp_v3_fetch_overhead_delayed_only=%.3f\n",
                get100Ratio, fetchOverhead, v3FetchOverhead, v3FetchOverheadDelayedOnly);
    return 0;
}
