#include "DemoScreenshots.h"

#include "OVAlert.h"
#include "OVPrinterUtilityWindowController.h"
#include "OVQueueChooser.h"
#include "ui_MainUtilityWindiw.h"

#include <QApplication>
#include <QDir>
#include <QEventLoop>
#include <QTimer>

#include <iostream>

namespace {
constexpr int answerTimeoutMs = 30000;

// Runs the event loop until the signal comes or the time is up.
template <typename Sender, typename Signal> bool waitFor(Sender *sender, Signal signal) {
    QEventLoop loop;
    bool arrived = false;
    QObject::connect(sender, signal, &loop, [&] {
        arrived = true;
        loop.quit();
    });
    QTimer::singleShot(answerTimeoutMs, &loop, &QEventLoop::quit);
    loop.exec();
    return arrived;
}
} // namespace

DemoScreenshots::DemoScreenshots(QString directory)
    : m_directory(std::move(directory)) {}

bool DemoScreenshots::takeAll() const {
    // A new picture is a row here, with a function that stages the state it shows.
    const Shot shots[] = {
        {"queue-chooser", 1, &DemoScreenshots::queueChooser},
        {"settings-window", 1, windowOnTab(0)},
        {"window-form", 1, windowOnTab(1)},
        {"window-barcode-area-definition", 1, windowOnTab(2)},
        {"window-color-profile", 1, windowOnTab(3)},
        {"window-200-percent", 2, windowOnTab(0)},
        {"window-not-set-up", 1, &DemoScreenshots::notSetUpWindow},
        {"window-saving", 1, &DemoScreenshots::savingWindow},
        {"fetch-failure", 1, &DemoScreenshots::fetchFailure},
    };
    const double scale = qEnvironmentVariable("QT_SCALE_FACTOR", "1").toDouble();
    QDir().mkpath(m_directory);
    bool allTaken = true;
    for (const Shot &shot : shots) {
        if (!qFuzzyCompare(shot.scale, scale))
            continue;
        const QString file = QDir(m_directory).filePath(QString::fromUtf8(shot.name) + ".png");
        const bool taken = shot.take(*this, file);
        std::cout << (taken ? "wrote " : "FAILED ") << file.toStdString() << '\n';
        allTaken = allTaken && taken;
    }
    return allTaken;
}

DemoScreenshots::Stage DemoScreenshots::windowOnTab(int tab) {
    return [tab](const DemoScreenshots &shots, const QString &file) {
        return shots.settingsWindow(file, tab);
    };
}

bool DemoScreenshots::queueChooser(const QString &file) const {
    OVQueueChooser chooser;
    chooser.start();
    return waitFor(&chooser, &OVQueueChooser::listed) && chooser.isVisible() &&
           save(&chooser, file);
}

// Waits for the queue's settings, since Get Printer Info is off until they are in.
bool DemoScreenshots::settingsWindow(const QString &file, int tab) const {
    OVPrinterUtilityWindowController controller;
    if (!showLoaded(controller, demoQueue))
        return false;
    QWidget *window = controller.mainWindowObject();
    Ui::MainUtilityWindiw &c = controller.controls();
    c.printerGetPrinterInfoButton->click();
    c.meinTabView->setCurrentIndex(tab);
    return !controller.bError() && save(window, file);
}

// The bar above the tabs, offering to set up a queue that is not.
bool DemoScreenshots::notSetUpWindow(const QString &file) const {
    OVPrinterUtilityWindowController controller;
    return showLoaded(controller, plainQueue) && save(controller.mainWindowObject(), file);
}

// The window while OK's save waits for the update job; drawn before the save
// ends, and the save then runs to its end so that the next shot finds the
// queue's PPD written.
bool DemoScreenshots::savingWindow(const QString &file) const {
    OVPrinterUtilityWindowController controller;
    if (!showLoaded(controller, demoQueue))
        return false;
    controller.controls().okButton->click();
    return save(controller.mainWindowObject(), file) &&
           waitFor(&controller, &OVPrinterUtilityWindowController::applicationShouldTerminate);
}

// The alert of Get Printer Info without an address, which says why it failed.
bool DemoScreenshots::fetchFailure(const QString &file) const {
    OVPrinterUtilityWindowController controller;
    if (!showLoaded(controller, demoQueue))
        return false;
    bool saved = false;
    OVAlert::setResponder([&](const OVAlert &alert) {
        auto &shown = const_cast<OVAlert &>(alert);
        shown.show();
        saved = save(&shown, file);
        return 0;
    });
    controller.controls().printerIPAddressText->clear();
    controller.controls().printerGetPrinterInfoButton->click();
    OVAlert::setResponder({});
    return saved;
}

bool DemoScreenshots::showLoaded(OVPrinterUtilityWindowController &controller, const char *queue) {
    controller.applicationDidFinishLaunching({"--printer", queue});
    controller.mainWindowObject()->show();
    return waitFor(&controller, &OVPrinterUtilityWindowController::settingsLoaded);
}

bool DemoScreenshots::save(QWidget *widget, const QString &file) {
    QApplication::processEvents();
    return widget->grab().save(file);
}
