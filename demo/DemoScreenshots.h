#pragma once

#include <QString>

#include <functional>

class OVPrinterUtilityWindowController;
class QWidget;

// The pictures of the utility under docs/, drawn on the demo's print server and
// printer. Each picture is a named shot: a function that puts the utility in
// the state to show, and a row in the list of shots, drawn at one scale.
class DemoScreenshots {
public:
    // The demo's queues: one set up for the utility, one more set up, and one
    // that is not.
    static constexpr char demoQueue[] = "Orvo-Demo";
    static constexpr char secondQueue[] = "Orvo-Second-Floor";
    static constexpr char plainQueue[] = "Lab-Laser";

    explicit DemoScreenshots(QString directory);

    // Takes the shots drawn at the scale this process draws at
    // (QT_SCALE_FACTOR, 1 when unset); false when one of them failed.
    bool takeAll() const;

private:
    // Puts the utility in the state the picture shows and saves the picture
    // to the file; false when that state could not be reached.
    using Stage = std::function<bool(const DemoScreenshots &, const QString &file)>;
    struct Shot {
        const char *name;
        double scale;
        Stage take;
    };

    // The settings window after Get Printer Info, on the given tab.
    static Stage windowOnTab(int tab);
    bool queueChooser(const QString &file) const;
    bool settingsWindow(const QString &file, int tab) const;
    bool notSetUpWindow(const QString &file) const;
    bool savingWindow(const QString &file) const;
    bool fetchFailure(const QString &file) const;
    // Opens the window on the queue and waits for its settings.
    static bool showLoaded(OVPrinterUtilityWindowController &controller, const char *queue);
    static bool save(QWidget *widget, const QString &file);

    QString m_directory;
};
