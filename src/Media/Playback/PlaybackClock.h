#pragma once

#include "Media/Time.h"

#include <chrono>

namespace media::playback {

using SteadyTime = std::chrono::steady_clock::time_point;
using std::chrono::nanoseconds;

/// The timescale of nanoseconds, in which a running clock counts.
inline constexpr std::int32_t kNanoTimescale = 1'000'000'000;

/// `time` in nanoseconds. It must be numeric.
nanoseconds toNanoseconds(Time time);

/// The time of a playing item.
///
/// Stands at a time or runs with the steady clock. Where sound is heard its position corrects the
/// clock: since each correction is an absolute position nothing adds up, however long it plays;
/// where corrections stop (no device, or none any more) the clock runs on as it did.
///
///     hold ──▶ standing ──run, first correct──▶ running ──hold, pause──▶ standing
///
/// A plain value: the caller gives the moments, and locks.
class PlaybackClock {
public:
    /// Stands at `time`, which is returned exactly as given until the clock runs.
    void hold(Time time);
    /// Runs from where it stands; nothing if it runs already.
    void run(SteadyTime now);
    /// Stands where it is now; nothing if it stands already.
    void pause(SteadyTime now);

    /// The sound of the item's time `heard` left the device at `when`. Starts a standing clock
    /// once that is past the time it stands at. A running one that is off by more than
    /// kSnapThreshold is set at once; smaller errors are corrected gradually.
    void correct(Time heard, SteadyTime when);

    [[nodiscard]] bool isRunning() const { return m_isRunning; }

    /// Never less than at an earlier call since hold(), except with an earlier `now`.
    [[nodiscard]] Time time(SteadyTime now);
    /// When a running clock comes to `time`, uncorrected; not before `now`.
    [[nodiscard]] SteadyTime whenReaches(nanoseconds time, SteadyTime now) const;

    static constexpr nanoseconds kSnapThreshold = std::chrono::milliseconds(20);

private:
    /// A correction takes away this part of the error: with one in 10 ms the jitter of a
    /// device's reported position is smoothed over a tenth of a second.
    static constexpr int kSmoothing = 10;

    Time m_base = Time::invalid();
    nanoseconds m_baseNs{0};
    bool m_isRunning = false;
    /// Running: the moment at which the time was m_base.
    SteadyTime m_origin;
    /// The greatest time since m_base that was given out.
    nanoseconds m_reported{0};
};

} // namespace media::playback
