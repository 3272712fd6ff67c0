#pragma once

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <stop_token>
#include <utility>

namespace media {

/// A value that can only be reached while its lock is held. Usable from any thread.
template<typename T>
class Guarded {
public:
    /// Holds the lock for as long as it lives. Belongs to one thread.
    class Access {
    public:
        explicit Access(Guarded& guarded) : m_value(guarded.m_value), m_lock(guarded.m_mutex) {}

        T* operator->() const { return &m_value; }

        T& operator*() const { return m_value; }

        /// For conditions to wait with; the value must not be touched while unlocked.
        [[nodiscard]] std::unique_lock<std::mutex>& lock() { return m_lock; }

    private:
        T& m_value;
        std::unique_lock<std::mutex> m_lock;
    };

    Guarded() = default;

    explicit Guarded(T value) : m_value(std::move(value)) {}

    Guarded(const Guarded&) = delete;
    Guarded& operator=(const Guarded&) = delete;

    [[nodiscard]] Access lock() { return Access(*this); }

private:
    std::mutex m_mutex;
    T m_value{};
};

/// Rouses one thread that waits for a change of the guarded value which this wake is part of.
/// Every member is called with that value's lock held.
class Wake {
public:
    using Time = std::chrono::steady_clock::time_point;

    /// Is remembered until the thread waits next, so that no call is lost.
    void raise() {
        m_isRaised = true;
        m_condition.notify_all();
    }

    /// Returns when raised, when `stop` is requested or at `deadline`.
    template<typename Access>
    void wait(Access& access, const std::stop_token& stop, Time deadline) {
        m_condition.wait_until(access.lock(), stop, deadline, [this] { return m_isRaised; });
        m_isRaised = false;
    }

    /// Returns when raised or when `stop` is requested.
    template<typename Access>
    void wait(Access& access, const std::stop_token& stop) {
        m_condition.wait(access.lock(), stop, [this] { return m_isRaised; });
        m_isRaised = false;
    }

private:
    std::condition_variable_any m_condition;
    bool m_isRaised = false;
};

} // namespace media
