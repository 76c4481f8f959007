#pragma once

#include <functional>

// Whole-second sleeps of the wake flow (up to minutes). Tests replace the
// sleeper so those paths run in milliseconds; the product sleeps for real.
class OVSleep {
public:
    using Sleeper = std::function<void(unsigned seconds)>;

    // False when sleeps are interrupted: the caller should give up.
    static bool sleepSeconds(unsigned seconds);
    // An empty sleeper restores the real one.
    static void setSleeper(Sleeper sleeper);
    // While interrupted, a real sleep under way ends at once and later ones
    // do not sleep, so a closing window never waits for a wake flow.
    static void setInterrupted(bool interrupted);
};
