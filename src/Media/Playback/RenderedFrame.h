#pragma once

#include "Media/Image.h"
#include "Media/Playback/FrameCache.h"
#include "Media/Ticks.h"
#include "Media/Time.h"

namespace media::playback {

/// A frame with its picture as the screen takes it.
struct RenderedFrame {
    /// null when there is nothing to show.
    ImagePtr image;
    Time time;
    /// The ticks that it stands for.
    TickRange range;
    /// A seek or playing found it in the cache.
    bool isFromCache = false;

    [[nodiscard]] TimedImage timedImage() const { return {image, time}; }
};

/// Makes the picture of a frame; takes about a millisecond.
inline RenderedFrame render(const CachedFrame& frame) {
    return {frame.picture->image(), frame.time, frame.range, false};
}

} // namespace media::playback
