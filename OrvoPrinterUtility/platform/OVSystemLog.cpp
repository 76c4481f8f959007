#include "OVSystemLog.h"

#include <mutex>
#include <syslog.h>

namespace {
std::mutex sinkMutex;
OVSystemLog::Sink &currentSink() {
    static OVSystemLog::Sink sink;
    return sink;
}
} // namespace

void OVSystemLog::write(int priority, const QString &line) {
    std::lock_guard lock(sinkMutex);
    if (currentSink()) {
        currentSink()(priority, line);
        return;
    }
    syslog(priority, "%s", line.toUtf8().constData());
}

void OVSystemLog::setSink(Sink sink) {
    std::lock_guard lock(sinkMutex);
    currentSink() = std::move(sink);
}
