// The embedded demo: a private cupsd with the queue "Orvo-Demo" (and two more
// for the queue chooser) and a simulated printer on loopback, then the
// utility's window for that queue. scripts/demo
// runs this inside a network namespace of its own, so nothing it does can
// reach a real network.
//
//   orvo-demo                    opens the window (again, after OK, on request)
//   orvo-demo --screenshots DIR  draws the pictures of DemoScreenshots made at
//                                this process's scale (QT_SCALE_FACTOR) into DIR
#include "CupsServer.h"
#include "DemoScreenshots.h"
#include "OVQueueSetup.h"
#include "SimulatedPrinter.h"

#include <QApplication>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTextStream>

#include <iostream>

namespace {
constexpr const char *queue = DemoScreenshots::demoQueue;
constexpr char plainPpd[] = "/usr/share/ppd/cupsfilters/Generic-PDF_Printer-PDF.ppd";

// The demo queue's PPD: a PDF printer's, as cups-filters ships it, with the
// printer's address stored, as if the utility had saved it once. The queue is
// then set up for the utility by the same code as the command line's setup.
QString writeDemoPpd(const QTemporaryDir &dir) {
    QFile source(plainPpd);
    QFile target(dir.filePath("orvo-demo.ppd"));
    if (!source.open(QIODevice::ReadOnly) || !target.open(QIODevice::WriteOnly))
        return QString();
    target.write(source.readAll());
    target.write("*PrinterIPAddress: \"" +
                 SimulatedPrinter::loopbackAddress().toLatin1().toBase64() + "\"\n");
    return target.fileName();
}

// The demo queue, a second queue set up for the utility and one that is not,
// so that the queue chooser has a list to show.
bool addQueues(const CupsServer &cups, const QString &ppd) {
    const std::pair<const char *, const char *> described[] = {
        {DemoScreenshots::demoQueue, "Demo printer on loopback"},
        {DemoScreenshots::secondQueue, "Copy room, second floor"},
        {DemoScreenshots::plainQueue, "Lab laser, prints with its own driver"}};
    for (const auto &[name, description] : described) {
        const bool plain = QString(name) == DemoScreenshots::plainQueue;
        if (!cups.addQueue(name, plain ? QString(plainPpd) : ppd) ||
            !cups.lpadmin({"-p", name, "-D", description}) ||
            (!plain && OVQueueSetup::setUp(name).outcome != OVQueueSetup::Outcome::Changed))
            return false;
    }
    return true;
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

} // namespace

int main(int argc, char **argv) {
    QApplication app(argc, argv);
    const QStringList arguments = app.arguments();
    QTemporaryDir dir;
    CupsServer cups(ORVO_PPD_UPDATE_FILTER);
    SimulatedPrinter printer;
    printer.setDefaults();
    const QString ppd = writeDemoPpd(dir);
    if (!cups.isRunning() || ppd.isEmpty() || !addQueues(cups, ppd) || !printer.start()) {
        std::cerr << "The demo's print server or printer did not start. "
                  << printer.errorText().toStdString() << '\n';
        return 1;
    }
    std::cout << "CUPS server " << cups.address().toStdString() << ", queue " << queue
              << ", printer at " << SimulatedPrinter::loopbackAddress().toStdString() << '\n';
    const int screenshots = arguments.indexOf("--screenshots");
    if (screenshots > 0 && screenshots + 1 < arguments.size())
        return DemoScreenshots(arguments[screenshots + 1]).takeAll() ? 0 : 1;
    return runWindow(ORVO_UTILITY);
}
