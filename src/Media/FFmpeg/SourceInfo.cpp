#include "Media/FFmpeg/SourceInfo.h"

#include <cstdlib>

namespace media::ffmpeg {

const SourceTrack& SourceInfo::track(int streamIndex) const {
    for (const SourceTrack& track : tracks) {
        if (track.facts.streamIndex == streamIndex)
            return track;
    }
    std::abort();
}

Time assetTime(const SourceInfo& info, const SourceTrack& track, Timestamp timestamp) {
    return timeOf(timestamp, track.timeBase) - info.origin;
}

Timestamp streamTimestamp(const SourceInfo& info, const SourceTrack& track, Time time) {
    return nearestTimestamp(time + info.origin, track.timeBase);
}

} // namespace media::ffmpeg
