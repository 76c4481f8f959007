#include "OVBackgroundTask.h"

#include <QCoreApplication>
#include <QMetaObject>

#include <deque>
#include <mutex>
#include <semaphore>
#include <thread>

namespace {

// Results ready for the GUI thread. The worker adds under the mutex and
// posts a wake-up that carries no data; the GUI thread takes them under
// the same mutex.
class Mailbox : public QObject {
    Q_OBJECT
public:
    void add(std::function<void()> delivery) {
        {
            std::lock_guard lock(m_mutex);
            m_ready.push_back(std::move(delivery));
        }
        QMetaObject::invokeMethod(this, "deliver", Qt::QueuedConnection);
    }

    Q_INVOKABLE void deliver() {
        std::deque<std::function<void()>> ready;
        {
            std::lock_guard lock(m_mutex);
            ready.swap(m_ready);
        }
        for (std::function<void()> &delivery : ready)
            delivery();
    }

private:
    std::mutex m_mutex;
    std::deque<std::function<void()>> m_ready;
};

// The worker thread and its queue. It lives as long as the program: a new
// thread would set up its own per-thread libcups state again. The queue is
// guarded by a mutex and counted by a semaphore rather than a condition
// variable: libstdc++ waits on a condition variable inside its shared
// library, where ThreadSanitizer does not follow the mutex.
class Worker {
public:
    using Call = std::pair<OVBackgroundTask::Token, std::function<std::function<void()>()>>;

    Worker()
        : m_thread([this] { serve(); }) {}
    ~Worker() {
        post({}, nullptr);
        m_thread.join();
    }

    // A call without a mailbox ends the thread.
    void post(Call call, Mailbox *mailbox) {
        {
            std::lock_guard lock(m_mutex);
            m_calls.emplace_back(std::move(call), mailbox);
        }
        m_queued.release();
    }

private:
    void serve() {
        for (;;) {
            m_queued.acquire();
            std::pair<Call, Mailbox *> next;
            {
                std::lock_guard lock(m_mutex);
                next = std::move(m_calls.front());
                m_calls.pop_front();
            }
            if (!next.second)
                return;
            run(std::move(next.first), next.second);
        }
    }

    static void run(Call call, Mailbox *mailbox) {
        std::function<void()> delivery;
        {
            const OVTaskToken::Scope task(std::move(call.first));
            delivery = call.second();
        }
        mailbox->add(std::move(delivery));
    }

    std::mutex m_mutex;
    std::deque<std::pair<Call, Mailbox *>> m_calls;
    std::counting_semaphore<> m_queued{0};
    std::thread m_thread;
};

Worker &worker() {
    static Worker one;
    return one;
}

// Lives on the GUI thread, where the application object was made.
Mailbox *mailbox() {
    static Mailbox *one = [] {
        auto *made = new Mailbox;
        made->moveToThread(QCoreApplication::instance()->thread());
        return made;
    }();
    return one;
}

} // namespace

void OVBackgroundTask::post(Token token, std::function<Delivery()> call) {
    worker().post({std::move(token), std::move(call)}, mailbox());
}

#include "OVBackgroundTask.moc"
