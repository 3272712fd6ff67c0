#pragma once

#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <mutex>
#include <optional>
#include <set>
#include <stop_token>
#include <utility>

namespace brisklet {

/// A lock for work that is slower in parallel than one job after the other. Of the threads that
/// wait, the newest gets the lock first. The holder has a lease, which it renews with each bit of
/// progress: a holder that makes none loses the lock when its lease runs out, and may then work
/// beside the next one. Usable from any thread.
class NewestFirstLock {
public:
    using Duration = std::chrono::steady_clock::duration;
    using SteadyTime = std::chrono::steady_clock::time_point;

    /// Holds the lock until it is destroyed or runs out. Must not outlive the lock.
    class Lease {
    public:
        Lease(Lease&& other) noexcept
            : m_lock(std::exchange(other.m_lock, nullptr)), m_ticket(other.m_ticket) {}

        Lease(const Lease&) = delete;
        Lease& operator=(const Lease&) = delete;
        Lease& operator=(Lease&&) = delete;
        ~Lease();

        /// Starts the lease again from now; does nothing once it has run out. Not to be called on
        /// a lease that was moved from.
        void renew();

    private:
        friend class NewestFirstLock;

        Lease(NewestFirstLock& lock, std::uint64_t ticket) : m_lock(&lock), m_ticket(ticket) {}

        NewestFirstLock* m_lock;
        std::uint64_t m_ticket;
    };

    /// `leaseDuration`: how long a holder keeps the lock without renewing its lease, by `clock`.
    explicit NewestFirstLock(Duration leaseDuration,
                             std::function<SteadyTime()> clock = &std::chrono::steady_clock::now);

    /// Blocks until the calling thread has the lock; none if a stop is requested before that.
    std::optional<Lease> acquire(const std::stop_token& stop);

    /// How many threads wait now.
    [[nodiscard]] std::size_t waitingCount();

private:
    [[nodiscard]] bool isFree() const;

    const Duration m_leaseDuration;
    const std::function<SteadyTime()> m_clock;
    std::mutex m_mutex;
    std::condition_variable_any m_changed;
    std::uint64_t m_lastTicket = 0;
    std::set<std::uint64_t> m_waiting;
    std::optional<std::uint64_t> m_holder;
    /// When the holder last renewed its lease.
    SteadyTime m_renewed;
};

} // namespace brisklet
