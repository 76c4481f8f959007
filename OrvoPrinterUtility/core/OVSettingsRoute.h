#pragma once

#include "OrvoSavers.h"

#include <QByteArray>

// The line of a queue's PPD that lets the driver filter store settings in it,
// added to and taken out of the PPD's text. It is an attribute, not a filter
// line: the update job's route is on the server, so the PPD's filter lines,
// and with them everything cupsd's filters decide from them, stay as they
// are. Every other line stays as it is, byte for byte.
class OVSettingsRoute {
public:
    // Whether the PPD carries the set-up line.
    static bool isIn(const QByteArray &ppd);
    // The PPD with the set-up line and with the settings that have a stored
    // default where the PPD has none, and without what an earlier set-up put
    // in the filter lines. The same text when all of that holds already.
    static QByteArray added(const QByteArray &ppd);
    // The PPD without the set-up line and the lines added with it; the
    // settings stay, saved ones included.
    static QByteArray removed(const QByteArray &ppd);

    // Who may save, from the PPD's list line; everyone without one.
    static OrvoSavers savers(const QByteArray &ppd);
    // The PPD with the list's line, right after the set-up line, in place of
    // any it had; for everyone, without one.
    static QByteArray withSavers(const QByteArray &ppd, const OrvoSavers &savers);

    // Whether a PPD was cut short while it was written: it holds settings
    // but no page sizes (every PPD that prints has them; cupsd writes saved
    // settings first). One that merely lacks the set-up line is whole: that
    // is what setup --remove leaves.
    static bool looksCut(const QByteArray &ppd);
    // A fresh PPD with the settings lines another, damaged, PPD still holds
    // whole. When the damaged PPD was cut just after a part of a value
    // written in parts, that value is left out: its later parts may be lost.
    static QByteArray withSettingsOf(const QByteArray &fresh, const QByteArray &damaged);
};
