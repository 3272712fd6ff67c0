#pragma once

#include "Media/Playback/PlaybackClock.h"
#include "Media/Ticks.h"

#include <optional>

namespace media::playback {

/// Estimates when a seek's target comes out of the decoder, from this seek and the last ones: from
/// the delay of the decoder's first frame, and from the time that decoding takes per tick of the
/// item. A plain value: the caller gives the moments.
class DecodingPace {
public:
    struct Way {
        Ticks target;
        /// The first frame to come begins there; none where that is not known.
        std::optional<Ticks> start;
        /// The decoder stands there already.
        bool isContinued = false;
    };

    void begin(const Way& way, SteadyTime now);
    /// The frame at this tick came out of the decoder.
    void pass(Ticks ticks, SteadyTime now);

    /// When the frame at the target is likely to come; none as long as too little is known.
    [[nodiscard]] std::optional<SteadyTime> arrival() const;

private:
    struct Passed {
        Ticks ticks;
        SteadyTime at;
    };

    Way m_way;
    SteadyTime m_begun;
    /// The first and the last on this way.
    std::optional<Passed> m_first;
    std::optional<Passed> m_last;

    /// On the last way that did not continue another.
    std::optional<nanoseconds> m_delay;
    /// On the last way with two frames.
    std::optional<double> m_nanosecondsPerTick;
};

} // namespace media::playback
