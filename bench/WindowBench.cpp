// The window against a private cupsd and the simulated printer:
// - start-up: from process start to the window shown with the queue's settings
//   loaded, in a fresh process each time (median of 10);
// - save: from OK to the window closed, which it is once the queue's PPD holds
//   the new settings (median of 10);
// - fetch: the combined Get Printer Info with 20 ms added to every answer,
//   against round trips x delay (median of 5), and the longest the event loop
//   went without running meanwhile (the worst of the 5);
// - slow server: the longest the event loop went without running while the
//   window loads, sets up its queue and saves through a server that answers
//   every request 500 ms late.
// Ends with one RESULT line.
#include "CupsServer.h"
#include "DelayingProxy.h"
#include "EventLoopStallMeter.h"
#include "OVAlert.h"
#include "OVBackgroundTask.h"
#include "OVMessageBar.h"
#include "OVPrinterUtilityWindowController.h"
#include "OVQueueSetup.h"
#include "SimulatedPrinter.h"
#include "ui_MainUtilityWindiw.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QProcess>
#include <QTimer>

#include <cups/cups.h>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <functional>
#include <unistd.h>

namespace {
constexpr char queue[] = "OrvoBench";
constexpr int runs = 10;
constexpr int addedDelayMs = 20;

// Opens the window on a queue and waits for its settings, as the user does.
void launch(OVPrinterUtilityWindowController &controller, const QString &queueName) {
    QEventLoop loading;
    QObject::connect(&controller, &OVPrinterUtilityWindowController::settingsLoaded, &loading,
                     &QEventLoop::quit);
    controller.applicationDidFinishLaunching({"--printer", queueName});
    controller.mainWindowObject()->show();
    loading.exec();
}

// Runs the event loop until done() holds, or for a minute.
void waitUntil(const std::function<bool()> &done) {
    QEventLoop loop;
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, &loop, [&] {
        if (done())
            loop.quit();
    });
    poll.start(5);
    QTimer::singleShot(60000, &loop, &QEventLoop::quit);
    if (!done())
        loop.exec();
}

// Clicks OK and waits for the window to close, which it does once the save is
// known to have arrived.
void okAndWaitForClose(OVPrinterUtilityWindowController &controller) {
    bool closed = false;
    QObject::connect(&controller, &OVPrinterUtilityWindowController::applicationShouldTerminate,
                     [&closed] { closed = true; });
    controller.controls().okButton->click();
    waitUntil([&closed] { return closed; });
}

double median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

// Milliseconds since this process started, from /proc (field 22, in ticks).
double msSinceProcessStart() {
    QFile stat("/proc/self/stat");
    if (!stat.open(QIODevice::ReadOnly))
        return -1;
    const QList<QByteArray> fields = stat.readAll().split(')').last().trimmed().split(' ');
    const double startTicks = fields.value(19).toDouble();
    timespec now{};
    clock_gettime(CLOCK_BOOTTIME, &now);
    return (now.tv_sec + now.tv_nsec / 1e9) * 1000.0 - startTicks * 1000.0 / sysconf(_SC_CLK_TCK);
}

// Child mode: open the window as the program does and say when it shows.
int startupChild() {
    OVPrinterUtilityWindowController controller;
    launch(controller, queue);
    QApplication::processEvents();
    std::printf("%.1f\n", msSinceProcessStart());
    return 0;
}

double startupMs(const QString &self) {
    std::vector<double> times;
    for (int i = 0; i < runs; ++i) {
        QProcess child;
        child.start(self, {"--startup-child"});
        child.waitForFinished(60000);
        times.push_back(child.readAllStandardOutput().trimmed().toDouble());
    }
    return median(times);
}

// OK to the window closed, the queue's PPD holding the saved address.
double saveMs(CupsServer &cups, const QString &saveQueue) {
    std::vector<double> times;
    for (int i = 0; i < runs; ++i) {
        OVPrinterUtilityWindowController controller;
        launch(controller, saveQueue);
        const QString marker = QString("10.9.%1.1").arg(i);
        controller.controls().printerIPAddressText->setText(marker);
        QElapsedTimer timer;
        timer.start();
        okAndWaitForClose(controller);
        times.push_back(timer.nsecsElapsed() / 1e6);
        if (!cups.queuePpd(saveQueue).contains(marker.toLatin1().toBase64()))
            return -1;
    }
    return median(times);
}

// Load, set-up from the window's bar and save, each request 500 ms late.
double slowServerMaxStallMs(const CupsServer &cups) {
    const QString slowQueue = "OrvoSlow";
    if (!cups.addQueue(slowQueue) ||
        OVQueueSetup::remove(slowQueue).outcome != OVQueueSetup::Outcome::Changed)
        return -1;
    using namespace std::chrono_literals;
    const DelayingProxy proxy(cups.address(), 500ms);
    const QByteArray address = proxy.address().toUtf8();
    OVBackgroundTask::wait([&address] { cupsSetServer(address.constData()); });
    const EventLoopStallMeter meter;
    OVPrinterUtilityWindowController controller;
    launch(controller, slowQueue);
    controller.messageBar()->actionButton()->click();
    waitUntil([&controller] { return controller.messageBar()->isHidden(); });
    okAndWaitForClose(controller);
    const double stall = double(meter.largestGap().count());
    OVBackgroundTask::wait([] { cupsSetServer(nullptr); });
    return stall;
}

struct Fetch {
    double overhead;
    double maxStallMs;
};

Fetch fetch(SimulatedPrinter &printer) {
    OVPrinterUtilityWindowController controller;
    launch(controller, queue);
    controller.controls().printerIPAddressText->setText(SimulatedPrinter::loopbackAddress());
    controller.controls().wakeOnLANCheck->setChecked(false);
    printer.setResponseDelayMs(addedDelayMs);
    QElapsedTimer sinceTick, total;
    double maxStall = 0;
    QTimer ticker;
    QObject::connect(&ticker, &QTimer::timeout, [&] {
        maxStall = std::max(maxStall, sinceTick.nsecsElapsed() / 1e6);
        sinceTick.restart();
    });
    const int before = printer.requestCount();
    ticker.start(1);
    sinceTick.start();
    total.start();
    controller.controls().printerGetPrinterInfoButton->click();
    const double elapsed = total.nsecsElapsed() / 1e6;
    ticker.stop();
    printer.setResponseDelayMs(0);
    const int roundTrips = printer.requestCount() - before;
    std::printf("fetch: %.1f ms for %d round trips of %d ms\n", elapsed, roundTrips, addedDelayMs);
    return {elapsed / (roundTrips * addedDelayMs), maxStall};
}
} // namespace

int main(int argc, char **argv) {
    QApplication app(argc, argv);
    // An alert would wait for a click no one gives: it is shown and the run fails.
    bool alerted = false;
    OVAlert::setResponder([&alerted](const OVAlert &alert) {
        std::fprintf(stderr, "alert: %s\n", qPrintable(alert.text()));
        alerted = true;
        return 0;
    });
    // The child talks to its parent's server, found through the environment.
    if (app.arguments().contains("--startup-child"))
        return startupChild();
    CupsServer cups(ORVO_PPD_UPDATE_FILTER);
    if (!cups.isRunning() || !cups.addQueue(queue))
        return 1;
    SimulatedPrinter printer;
    printer.setDefaults();
    if (!printer.start())
        return 1;
    const double startup = startupMs(app.applicationFilePath());
    const double save = saveMs(cups, queue);
    // The same save on a set-up queue that forwards its jobs to a printer over IPP.
    CupsServer::Options second;
    second.clientsUseIt = false;
    CupsServer remote(ORVO_PPD_UPDATE_FILTER, second);
    const QString forwarding = "Forwarding";
    if (!remote.addQueue("Remote") ||
        !cups.addQueue(forwarding, CupsServer::samplePpdPath(),
                       QStringLiteral("ipp://%1/printers/Remote").arg(remote.address())))
        return 1;
    const double saveIpp = saveMs(cups, forwarding);
    std::vector<double> overheads, stalls;
    for (int i = 0; i < 5; ++i) {
        const Fetch fetched = fetch(printer);
        overheads.push_back(fetched.overhead);
        stalls.push_back(fetched.maxStallMs);
    }
    const double slowServerStall = slowServerMaxStallMs(cups);
    std::printf("RESULT startup_ms=%.0f save_ms=%.0f save_ipp_ms=%.0f fetch_overhead=%.3f "
                "max_stall_ms=%.1f slow_server_max_stall_ms=%.0f\n",
                startup, save, saveIpp, median(overheads),
                *std::max_element(stalls.begin(), stalls.end()), slowServerStall);
    return alerted ? 1 : 0;
}
