#pragma once

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <memory>
#include <mutex>

// One run of a use case (loading a queue, Get Printer Info, a save, a
// set-up): one deadline for all of its requests and waits, and a cancel that
// any thread may give. Every wait of the run asks the token of its thread
// (current()): a CUPS request, an SNMP request and a sleep of the wake flow
// end as soon as the token is stopped, so a frozen peer costs the whole task
// its limit once rather than once per request, and a closing window is never
// kept waiting.
class OVTaskToken {
public:
    using Clock = std::chrono::steady_clock;

    explicit OVTaskToken(Clock::duration limit);

    // Any thread; waits under way end at once.
    void cancel();
    bool cancelled() const { return m_cancelled.load(); }
    bool expired() const { return Clock::now() >= m_deadline; }
    bool stopped() const { return cancelled() || expired(); }
    Clock::time_point deadline() const { return m_deadline; }
    // Waits for the given time; false when the token stopped meanwhile.
    bool sleepFor(Clock::duration duration);
    // An int that turns non-zero on cancel, for libcups' connect.
    int *cancelFlag() { return &m_cancelFlag; }

    // The token of the task the calling thread runs; null outside a task.
    static std::shared_ptr<OVTaskToken> current();

    // Makes a token the calling thread's for the life of the scope.
    class Scope {
    public:
        explicit Scope(std::shared_ptr<OVTaskToken> token);
        ~Scope();
        Scope(const Scope &) = delete;
        Scope &operator=(const Scope &) = delete;

    private:
        std::shared_ptr<OVTaskToken> m_previous;
    };

private:
    Clock::time_point m_deadline;
    std::atomic<bool> m_cancelled{false};
    // Read by libcups while it connects, written once by cancel().
    int m_cancelFlag = 0;
    std::mutex m_mutex;
    std::condition_variable m_wake;
};
