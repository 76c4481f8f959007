#pragma once

#include "OVQueueSetup.h"
#include "OVSettingsSnapshot.h"

#include <QString>

#include <optional>

// The queue as the window finds it on the print server: its stored settings,
// and what, if anything, keeps the window from saving to it. The load and the
// set-up run on the background worker; the texts say each problem in the
// user's language, for the message bar above the tabs and for OK's alert.
class OVWindowQueue {
public:
    enum class Problem {
        None,
        ServerUnreachable,
        QueueUnknown,
        Damaged,
        NoPPD,
        UnreadablePPD,
        NotSetUp,
        NotASaver, // the queue names who may save, and not this user: shown read-only
    };

    struct Loaded {
        std::optional<OVSettingsSnapshot> settings; // nullopt: the defaults stay
        Problem problem = Problem::None;
        QString server; // as the user knows it
    };

    static Loaded load(const QString &queue);
    // Sets the queue up as the command line's setup does; a password the
    // server asks for is asked for the queue.
    static OVQueueSetup::Result setUp(const QString &queue);
    // Repairs a damaged queue the same way, as the command line's setup --repair.
    static OVQueueSetup::Result repair(const QString &queue);

    // Empty for Problem::None.
    static QString problemText(Problem problem, const QString &queue, const QString &server);
    // Why a set-up or repair that neither changed the queue nor found it set up failed.
    static QString setUpFailureText(const OVQueueSetup::Result &result, const QString &queue,
                                    const QString &server);
};
