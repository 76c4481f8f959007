#pragma once

#include "OVSettingsSave.h"
#include "OVSettingsSnapshot.h"
#include "OrvoSettingsVerdict.h"

#include <QString>

#include <functional>
#include <string_view>

class QObject;

// OK's way to the print server, off the GUI thread: the settings' rules (the
// size of the update job among them), the queue's set-up check, then the
// update job, waited for, and the queue's PPD read back. The window closes
// only on a save that stored every setting; anything else is said in words
// the user can act on.
class OVWindowSave {
public:
    struct Outcome {
        // Not ok: a setting breaks its rule, or the job would not reach the
        // driver unless some lists are shortened; nothing was sent.
        OrvoSettingsVerdict verdict;
        // False: the queue is not set up, and nothing was sent.
        bool queueSetUp = true;
        // True: the queue's PPD is damaged, and nothing was sent.
        bool queueDamaged = false;
        OVSettingsSave::Outcome save;

        bool stored() const {
            return verdict.ok() && queueSetUp && save.result == OVSettingsSave::Result::Stored;
        }
    };

    // done runs on context's thread, and not at all once context is gone.
    static void save(QObject *context, const OVSettingsSnapshot &settings, const QString &printerID,
                     std::function<void(const Outcome &)> done);

    // What became of a save that did not store, in the user's language.
    static QString failureText(const Outcome &outcome, const QString &queue);
    // What is wrong with the settings, naming the field by its label.
    static QString verdictText(const OrvoSettingsVerdict &verdict);
    // The lists to shorten, one a line, for settings too large for one job.
    static QString listsToShortenText(const OrvoSettingsVerdict &verdict);

private:
    static QString jobFailureText(const OVSettingsSave::Outcome &save);
    static QString fieldLabel(std::string_view field);
};
