#pragma once

#include <QCoroTask>
#include <QTest>

#include <chrono>
#include <exception>
#include <functional>
#include <optional>
#include <stdexcept>
#include <type_traits>
#include <utility>

namespace testsupport {

/// Runs the event loop until `condition` holds; false when it still does not at the deadline. The
/// deadline is there to end a hang: it is far longer than anything takes.
inline bool pumpUntil(const std::function<bool()>& condition,
                      std::chrono::milliseconds deadline = std::chrono::seconds(60)) {
    return QTest::qWaitFor(condition, static_cast<int>(deadline.count()));
}

/// Runs what is due in the event loop now, so that a test can say that something did not happen.
inline void pumpPending() {
    for (int turn = 0; turn < 5; ++turn) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
}

template<typename T>
struct Settled {
    bool isSettled = false;
    std::exception_ptr error;
    std::conditional_t<std::is_void_v<T>, std::optional<bool>, std::optional<T>> value;
};

template<typename T>
QCoro::Task<> settle(QCoro::Task<T>& task, Settled<T>& settled) {
    try {
        if constexpr (std::is_void_v<T>)
            co_await task;
        else
            settled.value.emplace(co_await task);
    } catch (...) {
        settled.error = std::current_exception();
    }
    settled.isSettled = true;
}

/// Runs the event loop until the task has ended; gives its result or throws its exception.
/// (QCoro::waitFor never returns from a task that throws.)
template<typename T>
T await(QCoro::Task<T> task) {
    Settled<T> settled;
    auto settling = settle(task, settled);
    if (!pumpUntil([&settled] { return settled.isSettled; }))
        throw std::logic_error("the task does not end");
    if (settled.error)
        std::rethrow_exception(settled.error);
    if constexpr (!std::is_void_v<T>)
        return std::move(*settled.value);
}

} // namespace testsupport
