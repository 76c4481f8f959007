#include "OVBackgroundCall.h"

#include <QEventLoop>
#include <QMetaObject>

#include <thread>

void OVBackgroundCall::run(const std::function<void()> &work) {
    QEventLoop loop;
    // A quit posted before exec() starts is still delivered inside exec().
    std::thread worker([&] {
        work();
        QMetaObject::invokeMethod(&loop, &QEventLoop::quit, Qt::QueuedConnection);
    });
    loop.exec(QEventLoop::ExcludeUserInputEvents);
    worker.join();
}
