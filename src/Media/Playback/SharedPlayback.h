#pragma once

#include "Media/Playback/FrameCache.h"
#include "Media/Playback/PlaybackState.h"

#include <array>
#include <condition_variable>
#include <cstddef>
#include <mutex>
#include <stop_token>

namespace media::playback {

/// The state of one player, reached by its owner and its threads, one at a time; and how they wait
/// for one another. Any thread.
class SharedPlayback {
public:
    /// The threads that wait for the state to change.
    enum class Waiter { decoding, presenting, sound };

    /// Holds the lock for as long as it lives. Belongs to one thread. Its destructor wakes the
    /// threads that the transitions concern, unlocks, then stops work that has become void and
    /// frees old objects.
    class Access {
    public:
        Access(SharedPlayback& shared, std::unique_lock<std::mutex> lock);
        Access(const Access&) = delete;
        Access& operator=(const Access&) = delete;
        ~Access();

        PlaybackState* operator->() const { return &m_shared.m_state; }

        PlaybackState& operator*() const { return m_shared.m_state; }

    private:
        SharedPlayback& m_shared;
        std::unique_lock<std::mutex> m_lock;
    };

    SharedPlayback() = default;
    SharedPlayback(const SharedPlayback&) = delete;
    SharedPlayback& operator=(const SharedPlayback&) = delete;
    ~SharedPlayback() = default;

    [[nodiscard]] Access lock() { return {*this, std::unique_lock(m_mutex)}; }

    /// Waits until no delivery is under way.
    [[nodiscard]] Access lockBetweenDeliveries();

    /// Returns when `waiter` was woken since its last wait, when `stop` is requested or at
    /// `deadline`.
    void wait(Waiter waiter, const std::stop_token& stop, SteadyTime deadline);

    void wake(Waiter waiter);

    /// Has a lock of its own, which is taken after the state's, never before it.
    [[nodiscard]] FrameCache& cache() { return m_cache; }

private:
    struct WakeEvent {
        std::condition_variable_any condition;
        /// Remembered until the thread waits next, so that no wake is lost.
        bool isSet = false;

        void set();
    };

    [[nodiscard]] WakeEvent& wakeEvent(Waiter waiter) {
        return m_wakeEvents[static_cast<std::size_t>(waiter)];
    }

    void wakeWhom(const Wakes& wakes);

    FrameCache m_cache;
    std::mutex m_mutex;
    PlaybackState m_state{m_cache};
    std::array<WakeEvent, 3> m_wakeEvents;
    std::condition_variable m_sinkIsFree;
};

} // namespace media::playback
