#pragma once

#include "OVSettingsSave.h"
#include "OVSettingsSnapshot.h"
#include "OrvoSettingsVerdict.h"

#include <QString>

#include <string_view>

// What became of OK's save (OVSettingsSave), in words the user can act on. The
// window closes only on a save that stored every setting.
class OVWindowSave {
public:
    using Outcome = OVSettingsSave::Outcome;

    // What became of a save that did not store, in the user's language.
    // Nothing was sent unless the queue was found set up.
    static QString failureText(const Outcome &outcome, const QString &queue, const QString &server);
    // What is wrong with the settings, naming the field by its label.
    static QString verdictText(const OrvoSettingsVerdict &verdict);
    // The lists to shorten, one a line, for settings too large for one job.
    static QString listsToShortenText(const OrvoSettingsVerdict &verdict);

private:
    static QString jobFailureText(const OVSettingsSave::Outcome &save);
    static QString fieldLabel(std::string_view field);
};
