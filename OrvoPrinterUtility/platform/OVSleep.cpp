#include "OVSleep.h"

#include <chrono>
#include <mutex>
#include <thread>

namespace {
std::mutex sleeperMutex;
OVSleep::Sleeper &currentSleeper() {
    static OVSleep::Sleeper sleeper;
    return sleeper;
}
} // namespace

void OVSleep::sleepSeconds(unsigned seconds) {
    Sleeper sleeper;
    {
        std::lock_guard lock(sleeperMutex);
        sleeper = currentSleeper();
    }
    if (sleeper)
        sleeper(seconds);
    else
        std::this_thread::sleep_for(std::chrono::seconds(seconds));
}

void OVSleep::setSleeper(Sleeper sleeper) {
    std::lock_guard lock(sleeperMutex);
    currentSleeper() = std::move(sleeper);
}
