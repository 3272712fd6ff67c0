#pragma once

#include "Media/Error.h"

#include <condition_variable>
#include <cstddef>
#include <deque>
#include <mutex>
#include <optional>
#include <stop_token>

namespace media {

/// A first-in, first-out queue between threads. push() blocks while `capacity` values are waiting;
/// each thread that waits in pop() makes room for one more, so with a capacity of 0 push() blocks
/// until somebody wants the value. Both ends throw Cancelled as soon as `stop` is requested.
template<typename T>
class BoundedQueue {
public:
    BoundedQueue(std::size_t capacity, std::stop_token stop)
        : m_capacity(capacity), m_stop(std::move(stop)) {}

    void push(T value) {
        std::unique_lock lock(m_mutex);
        m_changed.wait(lock, m_stop, [this] { return m_values.size() < m_capacity + m_readers; });
        if (m_stop.stop_requested())
            throw Cancelled();
        m_values.push_back(std::move(value));
        m_changed.notify_all();
    }

    /// Nothing more will be pushed.
    void finish() {
        const std::lock_guard lock(m_mutex);
        m_isFinished = true;
        m_changed.notify_all();
    }

    /// The oldest value; none when the queue is finished and empty.
    std::optional<T> pop() {
        std::unique_lock lock(m_mutex);
        ++m_readers;
        m_changed.notify_all();
        m_changed.wait(lock, m_stop, [this] { return !m_values.empty() || m_isFinished; });
        --m_readers;
        if (m_stop.stop_requested())
            throw Cancelled();
        if (m_values.empty())
            return std::nullopt;
        std::optional<T> value(std::move(m_values.front()));
        m_values.pop_front();
        m_changed.notify_all();
        return value;
    }

private:
    std::mutex m_mutex;
    std::condition_variable_any m_changed;
    std::deque<T> m_values;
    std::size_t m_capacity;
    /// How many threads wait in pop().
    std::size_t m_readers = 0;
    bool m_isFinished = false;
    std::stop_token m_stop;
};

} // namespace media
