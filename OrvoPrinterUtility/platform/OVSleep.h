#pragma once

#include <functional>

// Whole-second sleeps of the wake flow (up to minutes). Tests replace the
// sleeper so those paths run in milliseconds; the product sleeps for real.
class OVSleep {
public:
    using Sleeper = std::function<void(unsigned seconds)>;

    // False when the calling thread's task (OVTaskToken) was cancelled or ran
    // out of time: the caller should give up. A real sleep ends at once then,
    // so a closing window never waits for a wake flow.
    static bool sleepSeconds(unsigned seconds);
    // An empty sleeper restores the real one.
    static void setSleeper(Sleeper sleeper);
};
