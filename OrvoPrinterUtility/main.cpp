#include "OVPasswordPrompt.h"
#include "OVPrinterUtilityHelper.h"
#include "OVPrinterUtilityWindowController.h"
#include "OVQueueChooser.h"
#include "OVWindowTexts.h"

#include <QApplication>
#include <QTextStream>
#include <QWidget>

namespace {
constexpr char usage[] = "Usage: orvo-printer-utility [--printer QUEUE]\n"
                         "\n"
                         "Sets up the shared folders, forms, barcode area definitions, colour\n"
                         "profiles, SNMP community and Wake-on-LAN settings of one CUPS queue.\n"
                         "Started without arguments it first lists the print server's queues to\n"
                         "choose from; when exactly one queue is set up for the utility, that one\n"
                         "opens at once.\n"
                         "\n"
                         "  -p, --printer QUEUE  the CUPS queue to set up\n"
                         "  -h, --help           show this help\n"
                         "  -v, --version        show the version\n";

// Returns true when the arguments asked only for help or the version. Asked
// before the GUI starts, so that it answers without a display too.
bool answerInformationRequest(const QStringList &arguments) {
    QTextStream out(stdout);
    if (arguments.contains("--help") || arguments.contains("-h")) {
        out << usage;
        return true;
    }
    if (arguments.contains("--version") || arguments.contains("-v")) {
        out << "orvo-printer-utility " << ORVO_VERSION << '\n';
        return true;
    }
    return false;
}
} // namespace

int main(int argc, char **argv) {
    QStringList given;
    for (int i = 1; i < argc; ++i)
        given << QString::fromLocal8Bit(argv[i]);
    if (answerInformationRequest(given))
        return 0;
    QApplication app(argc, argv);
    QApplication::setApplicationName("orvo-printer-utility");
    QApplication::setApplicationVersion(ORVO_VERSION);
    QApplication::setDesktopFileName("orvo-printer-utility");
    // Titles the alerts, in the user's language.
    QApplication::setApplicationDisplayName(
        OVPrinterUtilityHelper::getLocalizedStringFor(OVWindowTexts::defaultTitle));
    // Qt's own options (-platform, -style) are taken out here.
    const QStringList arguments = app.arguments().mid(1);

    OVPasswordPrompt passwordPrompt;
    OVPrinterUtilityWindowController controller;
    QObject::connect(&controller, &OVPrinterUtilityWindowController::applicationShouldTerminate,
                     &app, &QApplication::quit, Qt::QueuedConnection);
    const auto openWindow = [&controller](const QStringList &launchArguments) {
        controller.applicationDidFinishLaunching(launchArguments);
        controller.mainWindowObject()->show();
    };
    // Arguments without a queue keep their old meaning (the test queue ID);
    // only a start with no arguments at all, as from the desktop menu, asks.
    if (!arguments.isEmpty()) {
        openWindow(arguments);
        return app.exec();
    }
    OVQueueChooser chooser;
    // Its closing after a choice must not end the application before the
    // window is up; Cancel quits explicitly.
    chooser.setAttribute(Qt::WA_QuitOnClose, false);
    QObject::connect(&chooser, &QDialog::accepted, &app, [&] {
        openWindow({QStringLiteral("--printer"), chooser.chosenQueue()});
    });
    QObject::connect(&chooser, &QDialog::rejected, &app, &QApplication::quit);
    chooser.start();
    return app.exec();
}
