#pragma once

#include "Media/Playback/PlaybackClock.h"
#include "Media/Player.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace media::playback {

/// The periodic time observers of a player: which of them have come to a boundary of their
/// interval since they were called last. A plain value: the caller gives the times, and locks.
class TimeObservers {
public:
    /// An observer of this interval (no shorter than a millisecond), which is told of boundaries
    /// after `time`.
    void add(Player::Token token, Time interval, Time time);
    void remove(Player::Token token);

    /// The clock has come to `time` by playing. Returns whether an observer without a pending call
    /// gets one, for a boundary that was crossed.
    bool advanceTo(Time time);
    /// The clock was moved to `time`. The caller tells all observers; boundaries count from there.
    void jumpTo(Time time);
    /// Drops the pending calls.
    void forgetPending();

    /// The observers with a pending call, which they no longer have then.
    std::vector<Player::Token> takePending();

    /// When a running clock comes to the next boundary of any; none without observers.
    [[nodiscard]] std::optional<SteadyTime> nextBoundary(const PlaybackClock& clock,
                                                         SteadyTime now) const;

private:
    struct Observer {
        Player::Token token = 0;
        nanoseconds interval{0};
        /// The number of the interval that the clock was last seen in.
        std::int64_t lastInterval = 0;
        bool isPending = false;
    };

    std::vector<Observer> m_observers;
};

} // namespace media::playback
