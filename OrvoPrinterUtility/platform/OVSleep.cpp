#include "OVSleep.h"

#include <chrono>
#include <condition_variable>
#include <mutex>

namespace {
std::mutex sleeperMutex;
std::condition_variable interruption;
bool interrupted = false;
OVSleep::Sleeper &currentSleeper() {
    static OVSleep::Sleeper sleeper;
    return sleeper;
}
} // namespace

bool OVSleep::sleepSeconds(unsigned seconds) {
    std::unique_lock lock(sleeperMutex);
    const Sleeper sleeper = currentSleeper();
    if (!sleeper) {
        interruption.wait_for(lock, std::chrono::seconds(seconds), [] { return interrupted; });
        return !interrupted;
    }
    lock.unlock();
    sleeper(seconds);
    lock.lock();
    return !interrupted;
}

void OVSleep::setSleeper(Sleeper sleeper) {
    std::lock_guard lock(sleeperMutex);
    currentSleeper() = std::move(sleeper);
}

void OVSleep::setInterrupted(bool interrupt) {
    {
        std::lock_guard lock(sleeperMutex);
        interrupted = interrupt;
    }
    interruption.notify_all();
}
