// Built into the utility's own program beside its main(): a user scripted in for the tests.
// Once the queue's settings show, Get Printer Info on the Forms tab asks the printer at
// ORVO_SCRIPT_PRINTER (with Wake-on-LAN on when ORVO_SCRIPT_WAKE is "1", off otherwise), and
// 300 ms later the window is closed as its title bar's close button closes it, and the question
// whether to discard the typed address is answered with its default button, Discard. The moment
// of closing goes to standard output (steady clock, ms), so that the test measures how long the
// program takes to exit after it.
#include <QAbstractButton>
#include <QApplication>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <QWidget>

#include <chrono>
#include <cstdio>

namespace {

constexpr int pollMs = 50;
constexpr int closeAfterMs = 300;

QWidget *mainWindow() {
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (window->findChild<QAbstractButton *>("formGetPrinterInfoButton"))
            return window;
    }
    return nullptr;
}

// The question runs its own event loop inside close(): answered from a timer.
void discardWhenAsked() {
    auto *question = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
    if (!question) {
        QTimer::singleShot(pollMs, discardWhenAsked);
        return;
    }
    question->defaultButton()->click();
}

void closeSoon(QWidget *window) {
    QTimer::singleShot(closeAfterMs, window, [window] {
        const auto now = std::chrono::steady_clock::now().time_since_epoch();
        std::printf("%lld\n",
                    static_cast<long long>(
                        std::chrono::duration_cast<std::chrono::milliseconds>(now).count()));
        std::fflush(stdout);
        QTimer::singleShot(0, discardWhenAsked);
        window->close();
    });
}

// The settings are loaded once OK takes clicks.
void getPrinterInfoOnceLoaded() {
    QWidget *window = mainWindow();
    const auto *ok = window ? window->findChild<QAbstractButton *>("okButton") : nullptr;
    if (!ok || !ok->isEnabled()) {
        QTimer::singleShot(pollMs, getPrinterInfoOnceLoaded);
        return;
    }
    window->findChild<QLineEdit *>("printerIPAddressText")
        ->setText(qEnvironmentVariable("ORVO_SCRIPT_PRINTER"));
    const bool wake = qEnvironmentVariable("ORVO_SCRIPT_WAKE") == "1";
    auto *wakeOnLan = window->findChild<QAbstractButton *>("wakeOnLANCheck");
    if (wakeOnLan->isChecked() != wake)
        wakeOnLan->click();
    if (wake)
        window->findChild<QLineEdit *>("macAddressText6")->setText("cc");
    closeSoon(window);
    window->findChild<QAbstractButton *>("formGetPrinterInfoButton")->click();
}

void startScript() {
    QTimer::singleShot(0, getPrinterInfoOnceLoaded);
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(startScript)
