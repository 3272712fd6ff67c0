#pragma once

#include "Support/HandOver.h"

#include <QCoroFuture>
#include <QCoroTask>
#include <QCoroTimer>
#include <QFuture>
#include <QPromise>

#include <chrono>
#include <exception>
#include <functional>
#include <memory>
#include <optional>
#include <type_traits>
#include <utility>

namespace brisklet {

/// Starts `work` on a thread of its own at once, so that a short job never waits for long ones. It
/// must not throw. Throws media::Error if the system starts no more threads. Any thread.
void startWorker(std::function<void()> work);

/// Blocks until every worker has ended; false if some still run at the limit. The program calls it
/// after its last window has closed, so that no worker outlives the application object.
bool waitForWorkers(std::optional<std::chrono::milliseconds> limit = std::nullopt);

/// Waits a few seconds for workers that have been told to stop, and returns `status` for main() to
/// return. If some still run by then, such as one that waits for a disk that does not answer, ends
/// the process here with that status. Exports must have ended or been cancelled; a cancelled one
/// has removed its file and at most frees its encoders.
int exitStatusAfterWorkers(int status);

namespace detail {

/// The result of a worker, for the coroutine that awaits it. Exceptions are stored beside the
/// future, since QFuture keeps the type only of those that derive from QException.
template<typename Result>
struct Outcome {
    std::conditional_t<std::is_void_v<Result>, std::optional<bool>, std::optional<Result>> value;
    std::exception_ptr error;
    QPromise<void> promise;
};

template<typename Result>
QCoro::Task<Result> await(std::shared_ptr<Outcome<Result>> outcome) {
    QFuture<void> finished = outcome->promise.future();
    // Work that is already done is awaited through the event loop too: no effect of an operation
    // comes before the call that starts it has returned.
    co_await QCoro::sleepFor(std::chrono::milliseconds(0));
    co_await finished;
    takeOver(outcome.get());
    if (outcome->error)
        std::rethrow_exception(std::exchange(outcome->error, nullptr));
    if constexpr (!std::is_void_v<Result>)
        co_return std::move(*outcome->value);
}

} // namespace detail

/// Runs blocking work on a worker thread; the coroutine that awaits it resumes on the thread it
/// came from, with the work's result or its exception, or that of startWorker(). The work must be
/// copyable, and should watch a stop token if it may take long.
///
/// Await it through a name (`auto task = runOnWorker(…); co_await task;`), here as with every task
/// whose arguments hold resources: g++ 12 destroys some temporaries of a co_await expression twice,
/// the captures of a lambda among them. For that reason this is no coroutine itself.
template<typename Work>
QCoro::Task<std::invoke_result_t<Work&>> runOnWorker(Work work) {
    using Result = std::invoke_result_t<Work&>;
    const auto outcome = std::make_shared<detail::Outcome<Result>>();
    outcome->promise.start();
    try {
        startWorker([outcome, work = std::move(work)]() mutable {
            try {
                if constexpr (std::is_void_v<Result>)
                    work();
                else
                    outcome->value.emplace(work());
            } catch (...) {
                outcome->error = std::current_exception();
            }
            handOver(outcome.get());
            outcome->promise.finish();
        });
    } catch (...) {
        outcome->error = std::current_exception();
        outcome->promise.finish();
    }
    return detail::await<Result>(outcome);
}

} // namespace brisklet
