// The embedded demo: a private cupsd with the queue "Orvo-Demo" and a simulated
// printer on loopback, then the utility's window for that queue. scripts/demo
// runs this inside a network namespace of its own, so nothing it does can
// reach a real network.
//
//   orvo-demo                    opens the window (again, after OK, on request)
//   orvo-demo --screenshots DIR  fetches from the printer in-process and writes
//                                one PNG per tab (for machines without a display)
#include "CupsServer.h"
#include "OVPrinterUtilityWindowController.h"
#include "OVQueueSetup.h"
#include "SimulatedPrinter.h"
#include "ui_MainUtilityWindiw.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTextStream>

#include <iostream>

namespace {
constexpr char queue[] = "Orvo-Demo";

// The demo queue's PPD: a PDF printer's, as cups-filters ships it, with the
// printer's address stored, as if the utility had saved it once. The queue is
// then set up for the utility by the same code as the command line's setup.
QString writeDemoPpd(const QTemporaryDir &dir) {
    QFile source("/usr/share/ppd/cupsfilters/Generic-PDF_Printer-PDF.ppd");
    QFile target(dir.filePath("orvo-demo.ppd"));
    if (!source.open(QIODevice::ReadOnly) || !target.open(QIODevice::WriteOnly))
        return QString();
    target.write(source.readAll());
    target.write("*PrinterIPAddress: \"" +
                 SimulatedPrinter::loopbackAddress().toLatin1().toBase64() + "\"\n");
    return target.fileName();
}

bool askToReopen() {
    std::cout << "Open the window again to see the saved settings? [Y/n] " << std::flush;
    std::string answer;
    return std::getline(std::cin, answer) &&
           (answer.empty() || answer[0] == 'y' || answer[0] == 'Y');
}

int runWindow(const QString &utility) {
    do {
        const int status = QProcess::execute(utility, {"--printer", queue});
        if (status != 0)
            return status;
    } while (isatty(STDIN_FILENO) && askToReopen());
    return 0;
}

// Clicks Get Printer Info in a window of this process and saves each tab.
int writeScreenshots(const QString &directory) {
    QDir().mkpath(directory);
    OVPrinterUtilityWindowController controller;
    controller.applicationDidFinishLaunching({"--printer", queue});
    QWidget *window = controller.mainWindowObject();
    window->show();
    Ui::MainUtilityWindiw &c = controller.controls();
    c.printerGetPrinterInfoButton->click();
    const QStringList names{"folder", "form", "barcode-area-definition", "color-profile"};
    for (int tab = 0; tab < names.size(); ++tab) {
        c.meinTabView->setCurrentIndex(tab);
        QApplication::processEvents();
        const QString file = QDir(directory).filePath("window-" + names[tab] + ".png");
        if (!window->grab().save(file))
            return 1;
        std::cout << "wrote " << file.toStdString() << '\n';
    }
    return controller.bError() ? 1 : 0;
}
} // namespace

int main(int argc, char **argv) {
    QApplication app(argc, argv);
    const QStringList arguments = app.arguments();
    QTemporaryDir dir;
    CupsServer cups(ORVO_PPD_UPDATE_FILTER);
    SimulatedPrinter printer;
    printer.setDefaults();
    const QString ppd = writeDemoPpd(dir);
    if (!cups.isRunning() || ppd.isEmpty() || !cups.addQueue(queue, ppd) ||
        OVQueueSetup::setUp(queue).outcome != OVQueueSetup::Outcome::Changed || !printer.start()) {
        std::cerr << "The demo's print server or printer did not start. "
                  << printer.errorText().toStdString() << '\n';
        return 1;
    }
    std::cout << "CUPS server " << cups.address().toStdString() << ", queue " << queue
              << ", printer at " << SimulatedPrinter::loopbackAddress().toStdString() << '\n';
    const int screenshots = arguments.indexOf("--screenshots");
    if (screenshots > 0 && screenshots + 1 < arguments.size())
        return writeScreenshots(arguments[screenshots + 1]);
    return runWindow(ORVO_UTILITY);
}
