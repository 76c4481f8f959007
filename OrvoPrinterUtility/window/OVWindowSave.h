#pragma once

#include "OVSettingsSave.h"
#include "OVSettingsSnapshot.h"

#include <QString>

#include <functional>

class QObject;

// OK's way to the print server, off the GUI thread: the size check, the
// queue's set-up check, then the update job, waited for, and the queue's PPD
// read back. The window
// closes only on a save that stored every setting; anything else is said in
// words the user can act on.
class OVWindowSave {
public:
    struct Outcome {
        // Not empty: the job would not reach the driver unless these lists
        // (OVSaveSizeCheck) are shortened, and nothing was sent.
        QStringList listsToShorten;
        // False: the queue is not set up, and nothing was sent.
        bool queueSetUp = true;
        // True: the queue's PPD is damaged, and nothing was sent.
        bool queueDamaged = false;
        OVSettingsSave::Outcome save;

        bool stored() const {
            return listsToShorten.isEmpty() && queueSetUp &&
                   save.result == OVSettingsSave::Result::Stored;
        }
    };

    // done runs on context's thread, and not at all once context is gone.
    static void save(QObject *context, const OVSettingsSnapshot &settings, const QString &printerID,
                     std::function<void(const Outcome &)> done);

    // What became of a save that did not store, in the user's language.
    static QString failureText(const Outcome &outcome, const QString &queue);

private:
    static QString jobFailureText(const OVSettingsSave::Outcome &save);
};
