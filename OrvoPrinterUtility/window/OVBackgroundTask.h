#pragma once

#include <QEventLoop>
#include <QFuture>
#include <QFutureWatcher>
#include <QObject>
#include <QThreadPool>
#include <QtConcurrent/QtConcurrentRun>

#include <type_traits>
#include <utility>

// The one path by which the window reaches the network: every call that may
// wait on a print server or a printer (CUPS requests, SNMP queries, the wake
// flow) runs here, off the GUI thread, so a slow peer never freezes a window.
//
// All of it runs on one worker thread, one call after another: Net-SNMP's
// traditional API is not thread-safe, and the SNMP result arrays it fills are
// shared, so two calls must never overlap.
class OVBackgroundTask {
public:
    // Runs work on the worker thread and hands its result to done on
    // context's thread. When context is gone before work ends, done is
    // dropped (work itself still runs to its end).
    template <typename Work, typename Done>
    static void run(QObject *context, Work &&work, Done &&done) {
        using Result = std::invoke_result_t<Work>;
        auto *watcher = new QFutureWatcher<Result>(context);
        QObject::connect(watcher, &QFutureWatcherBase::finished, context,
                         [watcher, done = std::forward<Done>(done)]() mutable {
                             watcher->deleteLater();
                             if constexpr (std::is_void_v<Result>)
                                 done();
                             else
                                 done(watcher->result());
                         });
        watcher->setFuture(QtConcurrent::run(&worker(), std::forward<Work>(work)));
    }

    // Runs work on the worker thread and returns its result. Meanwhile the
    // event loop keeps windows painting but holds back user input, so a
    // sequence of steps (the printer fetch with its alerts) keeps its fixed
    // order and sees the controls as they were when it began.
    template <typename Work> static std::invoke_result_t<Work> wait(Work &&work) {
        using Result = std::invoke_result_t<Work>;
        QFuture<Result> future = QtConcurrent::run(&worker(), std::forward<Work>(work));
        QFutureWatcher<Result> watcher;
        QEventLoop loop;
        QObject::connect(&watcher, &QFutureWatcherBase::finished, &loop, &QEventLoop::quit);
        watcher.setFuture(future);
        if (!future.isFinished())
            loop.exec(QEventLoop::ExcludeUserInputEvents);
        if constexpr (!std::is_void_v<Result>)
            return future.result();
    }

    // Waits until every call handed over so far has ended (tests, shutdown).
    static void drain() { worker().waitForDone(); }

private:
    static QThreadPool &worker();
};
