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

/// Lets threads that would only slow each other down work one after the other: of those that wait,
/// the one that came last goes first. One that makes no progress holds up nobody for long.
/// Usable from any thread.
class Turns {
public:
    using Duration = std::chrono::steady_clock::duration;
    using SteadyTime = std::chrono::steady_clock::time_point;

    /// Ends when it is destroyed; must not outlive the turns.
    class Turn {
    public:
        Turn(Turn&& other) noexcept
            : m_turns(std::exchange(other.m_turns, nullptr)), m_ticket(other.m_ticket) {}

        Turn(const Turn&) = delete;
        Turn& operator=(const Turn&) = delete;
        Turn& operator=(Turn&&) = delete;
        ~Turn();

        /// To be called with every bit of progress; not once it is moved from.
        void renew();

    private:
        friend class Turns;

        Turn(Turns& turns, std::uint64_t ticket) : m_turns(&turns), m_ticket(ticket) {}

        Turns* m_turns;
        std::uint64_t m_ticket;
    };

    /// `patience`: after so long without progress, by `clock`, others need not wait any more.
    explicit Turns(Duration patience,
                   std::function<SteadyTime()> clock = &std::chrono::steady_clock::now);

    /// Blocks until it is the calling thread's turn; none when stopped before.
    std::optional<Turn> take(const std::stop_token& stop);

    /// How many wait now.
    [[nodiscard]] std::size_t waitingCount();

private:
    [[nodiscard]] bool isFree() const;

    const Duration m_patience;
    const std::function<SteadyTime()> m_clock;
    std::mutex m_mutex;
    std::condition_variable_any m_changed;
    std::uint64_t m_lastTicket = 0;
    std::set<std::uint64_t> m_waiting;
    std::optional<std::uint64_t> m_holder;
    /// When the holder made progress last.
    SteadyTime m_renewed;
};

} // namespace brisklet
