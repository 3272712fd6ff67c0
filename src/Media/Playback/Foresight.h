#pragma once

#include "Media/Playback/FrameCache.h"

#include <cstdint>
#include <optional>

namespace media::playback {

/// Frames that are worth decoding before anybody asks for them: those from `from` up to the one
/// at `until`, 1/600 s.
struct FillRange {
    std::int64_t from = 0;
    std::int64_t until = 0;
    friend bool operator==(const FillRange&, const FillRange&) = default;
};

/// Where the player stands and which way it was last moved.
struct Outlook {
    std::int64_t focus = 0;
    /// Less than 0 backward, more forward, 0 neither.
    int direction = 0;
    /// The item's last tick.
    std::int64_t lastTicks = 0;
    /// Of one frame, 1/600 s.
    double frameTicks = 20;
    ImageSize size;
};

/// How many frames of this size the cache can hold.
double framesInCache(const FrameCache& cache, ImageSize size);

/// What the cache lacks most: around the playhead, first in the direction of its movement, and
/// around the points of interest. Nothing when all is there, or as much as there is room for.
std::optional<FillRange> nextFill(const FrameCache& cache, const Outlook& outlook);

} // namespace media::playback
