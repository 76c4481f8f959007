#include "OVTaskToken.h"

#include <utility>

namespace {
thread_local std::shared_ptr<OVTaskToken> threadToken;
} // namespace

OVTaskToken::OVTaskToken(Clock::duration limit)
    : m_deadline(Clock::now() + limit) {}

void OVTaskToken::cancel() {
    {
        std::lock_guard lock(m_mutex);
        m_cancelled = true;
        std::atomic_ref<int>(m_cancelFlag).store(1);
    }
    m_wake.notify_all();
}

bool OVTaskToken::sleepFor(Clock::duration duration) {
    const Clock::time_point end = std::min(Clock::now() + duration, m_deadline);
    std::unique_lock lock(m_mutex);
    m_wake.wait_until(lock, end, [this] { return cancelled(); });
    return !stopped();
}

std::shared_ptr<OVTaskToken> OVTaskToken::current() {
    return threadToken;
}

OVTaskToken::Scope::Scope(std::shared_ptr<OVTaskToken> token)
    : m_previous(std::exchange(threadToken, std::move(token))) {}

OVTaskToken::Scope::~Scope() {
    threadToken = std::move(m_previous);
}
