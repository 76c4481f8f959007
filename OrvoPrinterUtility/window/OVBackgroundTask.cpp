#include "OVBackgroundTask.h"

namespace {
QThreadPool &configured(QThreadPool &pool) {
    pool.setMaxThreadCount(1);
    // The thread stays for the program's life: a new one would set up its
    // own per-thread libcups state again.
    pool.setExpiryTimeout(-1);
    return pool;
}
} // namespace

QThreadPool &OVBackgroundTask::worker() {
    static QThreadPool pool;
    static QThreadPool &one = configured(pool);
    return one;
}
