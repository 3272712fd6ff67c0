#include "Media/Composition.h"

#include <algorithm>

namespace media {

Time Composition::duration() const {
    Time longest{0, kComparisonTimescale};
    if (videoTrack)
        longest = videoTrack->range.duration();
    for (const CompositionTrack& track : audioTracks)
        longest = std::max(longest, track.range.duration(), [](Time a, Time b) { return a < b; });
    return longest;
}

} // namespace media
