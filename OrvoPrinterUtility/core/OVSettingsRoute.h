#pragma once

#include <QByteArray>

// The lines of a queue's PPD that route the update job's document format to
// the driver filter, added to and taken out of the PPD's text. Every other line
// stays as it is, byte for byte, so the queue prints exactly as before.
class OVSettingsRoute {
public:
    // Whether a filter line of the PPD accepts the update job's format.
    static bool isIn(const QByteArray &ppd);
    // The PPD with the route, in the PPD's own filter style, and with the
    // settings that have a stored default where the PPD has none. The same
    // text when both are there already.
    static QByteArray added(const QByteArray &ppd);
    // The PPD without the route and the lines added with it; the settings
    // stay, saved ones included.
    static QByteArray removed(const QByteArray &ppd);
};
