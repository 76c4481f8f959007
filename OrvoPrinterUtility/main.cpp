#include "OVPrinterUtilityWindowController.h"

#include <QApplication>
#include <QTextStream>
#include <QWidget>

namespace {
constexpr char usage[] = "Usage: orvo-printer-utility [--printer QUEUE]\n"
                         "\n"
                         "Sets up the shared folders, forms, barcode area definitions, colour\n"
                         "profiles, SNMP community and Wake-on-LAN settings of one CUPS queue.\n"
                         "\n"
                         "  -p, --printer QUEUE  the CUPS queue to set up\n"
                         "  -h, --help           show this help\n"
                         "  -v, --version        show the version\n";

// Returns true when the arguments asked only for help or the version.
bool answerInformationRequest(const QStringList &arguments) {
    QTextStream out(stdout);
    if (arguments.contains("--help") || arguments.contains("-h")) {
        out << usage;
        return true;
    }
    if (arguments.contains("--version") || arguments.contains("-v")) {
        out << "orvo-printer-utility " << QCoreApplication::applicationVersion() << '\n';
        return true;
    }
    return false;
}
} // namespace

int main(int argc, char **argv) {
    QApplication app(argc, argv);
    QApplication::setApplicationName("orvo-printer-utility");
    QApplication::setApplicationVersion(ORVO_VERSION);
    QApplication::setDesktopFileName("orvo-printer-utility");
    const QStringList arguments = app.arguments().mid(1);
    if (answerInformationRequest(arguments))
        return 0;

    OVPrinterUtilityWindowController controller;
    QObject::connect(&controller, &OVPrinterUtilityWindowController::applicationShouldTerminate,
                     &app, &QApplication::quit, Qt::QueuedConnection);
    controller.applicationDidFinishLaunching(arguments);
    controller.mainWindowObject()->show();
    return app.exec();
}
