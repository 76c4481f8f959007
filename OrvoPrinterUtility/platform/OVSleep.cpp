#include "OVSleep.h"

#include "OVTaskToken.h"

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

bool OVSleep::sleepSeconds(unsigned seconds) {
    Sleeper sleeper;
    {
        std::lock_guard lock(sleeperMutex);
        sleeper = currentSleeper();
    }
    const std::shared_ptr<OVTaskToken> token = OVTaskToken::current();
    if (sleeper)
        sleeper(seconds);
    else if (token)
        return token->sleepFor(std::chrono::seconds(seconds));
    else
        std::this_thread::sleep_for(std::chrono::seconds(seconds));
    return !token || !token->stopped();
}

void OVSleep::setSleeper(Sleeper sleeper) {
    std::lock_guard lock(sleeperMutex);
    currentSleeper() = std::move(sleeper);
}
