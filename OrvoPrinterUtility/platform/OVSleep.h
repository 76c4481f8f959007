#pragma once

#include <functional>

// Whole-second sleeps of the wake flow (up to minutes). Tests replace the
// sleeper so those paths run in milliseconds; the product sleeps for real.
class OVSleep {
public:
    using Sleeper = std::function<void(unsigned seconds)>;

    static void sleepSeconds(unsigned seconds);
    // An empty sleeper restores the real one.
    static void setSleeper(Sleeper sleeper);
};
