#pragma once

#include <functional>

// Runs one blocking step (an SNMP query, the wake flow) on a worker thread
// while a local event loop keeps the window painting and its progress turning.
// User input waits until the step is over, so the controller's logic stays
// sequential: no click or key can change the controls between two steps.
class OVBackgroundCall {
public:
    static void run(const std::function<void()> &work);

    template <typename Result> static Result value(const std::function<Result()> &work) {
        Result result{};
        run([&] { result = work(); });
        return result;
    }
};
