#include "OVBackgroundTask.h"

#include <QCoreApplication>
#include <QMetaObject>

#include <condition_variable>
#include <deque>
#include <mutex>
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
// thread would set up its own per-thread libcups state again.
class Worker {
public:
    using Call = std::pair<OVBackgroundTask::Token, std::function<std::function<void()>()>>;

    Worker()
        : m_thread([this] { serve(); }) {}
    ~Worker() {
        {
            std::lock_guard lock(m_mutex);
            m_stopping = true;
        }
        m_changed.notify_all();
        m_thread.join();
    }

    void post(Call call, Mailbox *mailbox) {
        {
            std::lock_guard lock(m_mutex);
            m_calls.emplace_back(std::move(call), mailbox);
        }
        m_changed.notify_all();
    }

    void drain() {
        std::unique_lock lock(m_mutex);
        m_changed.wait(lock, [this] { return m_calls.empty() && !m_busy; });
    }

private:
    void serve() {
        std::unique_lock lock(m_mutex);
        for (;;) {
            m_changed.wait(lock, [this] { return m_stopping || !m_calls.empty(); });
            if (m_calls.empty())
                return;
            auto [call, mailbox] = std::move(m_calls.front());
            m_calls.pop_front();
            m_busy = true;
            lock.unlock();
            run(std::move(call), mailbox);
            lock.lock();
            m_busy = false;
            m_changed.notify_all();
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
    std::condition_variable m_changed;
    std::deque<std::pair<Call, Mailbox *>> m_calls;
    bool m_busy = false;
    bool m_stopping = false;
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

void OVBackgroundTask::drain() {
    worker().drain();
}

#include "OVBackgroundTask.moc"
