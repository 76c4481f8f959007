#pragma once

#include "OVTaskToken.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QObject>
#include <QPointer>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <type_traits>
#include <utility>

// The one path by which the window reaches the network: every call that may
// wait on a print server or a printer (CUPS requests, SNMP queries, the wake
// flow) runs here, off the GUI thread, so a slow peer never freezes a window.
//
// All of it runs on one worker thread of our own, one call after another:
// Net-SNMP's traditional API is not thread-safe, the SNMP result arrays it
// fills are shared, and libcups keeps its server and password callback per
// thread. Calls and their results pass between the threads under a standard
// mutex, which ThreadSanitizer sees.
//
// Each call is a task (OVTaskToken): one limit for all its requests and
// waits, and a cancel that ends them at once.
class OVBackgroundTask {
public:
    using Token = std::shared_ptr<OVTaskToken>;
    using Limit = OVTaskToken::Clock::duration;
    // A task on the print server, its requests all together.
    static constexpr std::chrono::seconds cupsLimit{30};

    // Runs work on the worker thread and hands its result to done on the GUI
    // thread. When context is gone before work ends, done is dropped; cancel
    // the returned token to end work's waits at once.
    template <typename Work, typename Done>
    static Token run(QObject *context, Work &&work, Done &&done, Limit limit = cupsLimit) {
        using Result = std::invoke_result_t<Work>;
        auto token = std::make_shared<OVTaskToken>(limit);
        auto finish = [guard = QPointer<QObject>(context),
                       done = std::forward<Done>(done)](auto &&...result) mutable {
            if (guard)
                done(result...);
        };
        post(token,
             [work = std::forward<Work>(work), finish = std::move(finish)]() mutable -> Delivery {
                 if constexpr (std::is_void_v<Result>) {
                     work();
                     return finish;
                 } else {
                     return [finish, result = work()]() mutable { finish(result); };
                 }
             });
        return token;
    }

    // How wait() runs a task.
    struct Waiting {
        Limit limit = cupsLimit;
        // What the event loop handles meanwhile. With user input, only the
        // controls that the window's state leaves on can take it.
        QEventLoop::ProcessEventsFlags events = QEventLoop::ExcludeUserInputEvents;
        // Set at once to the task's token, so that it can be cancelled.
        Token *running = nullptr;
    };

    // Runs work on the worker thread and returns its result; meanwhile the
    // event loop keeps windows painting.
    template <typename Work> static std::invoke_result_t<Work> wait(Work &&work) {
        return wait(std::forward<Work>(work), Waiting());
    }
    template <typename Work>
    static std::invoke_result_t<Work> wait(Work &&work, const Waiting &how) {
        using Result = std::invoke_result_t<Work>;
        QObject waiting;
        bool ended = false;
        std::conditional_t<std::is_void_v<Result>, bool, std::optional<Result>> result{};
        const auto end = [&](auto &&...value) {
            if constexpr (!std::is_void_v<Result>)
                result.emplace(value...);
            ended = true;
        };
        const Token token = run(&waiting, std::forward<Work>(work), end, how.limit);
        if (how.running)
            *how.running = token;
        // Not an event loop of its own, which quitting the application would
        // end before the work does.
        while (!ended)
            QCoreApplication::processEvents(how.events | QEventLoop::WaitForMoreEvents);
        if constexpr (!std::is_void_v<Result>)
            return std::move(*result);
    }

private:
    // What runs on the GUI thread once a call ended.
    using Delivery = std::function<void()>;
    static void post(Token token, std::function<Delivery()> call);
};
