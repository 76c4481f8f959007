#pragma once

#include <QString>

#include <functional>

// The system log (syslog, kept by journald). Tests install a sink to see the
// lines a flow writes, since syslog itself cannot be read back portably.
class OVSystemLog {
public:
    using Sink = std::function<void(int priority, const QString &line)>;

    static void write(int priority, const QString &line);
    // An empty sink restores syslog.
    static void setSink(Sink sink);
};
