#pragma once

#include "OVSettingsSnapshot.h"

#include <QString>

#include <functional>

class QObject;

// OK's way to the print server, off the GUI thread: the queue's set-up check,
// then the update job that carries the settings to the PPD.
class OVWindowSave {
public:
    enum class Outcome { Submitted, QueueNotSetUp };

    // done runs on context's thread, and not at all once context is gone.
    static void save(QObject *context, const OVSettingsSnapshot &settings, const QString &printerID,
                     std::function<void(Outcome)> done);
};
