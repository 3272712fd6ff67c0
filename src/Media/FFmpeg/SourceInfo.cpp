#include "Media/FFmpeg/SourceInfo.h"

#include <algorithm>
#include <cstdlib>
#include <limits>

namespace media::ffmpeg {

const SourceTrack& SourceInfo::track(int streamIndex) const {
    for (const SourceTrack& track : tracks) {
        if (track.facts.streamIndex == streamIndex)
            return track;
    }
    std::abort();
}

Time timeOf(std::int64_t timestamp, AVRational timeBase) {
    // A quarter of the range leaves room for the sums of a few such times.
    constexpr std::int64_t kMost = std::numeric_limits<std::int64_t>::max() / 4;
    const std::int64_t most = kMost / std::max(1, timeBase.num);
    return {std::clamp(timestamp, -most, most) * timeBase.num, timeBase.den};
}

Time assetTime(const SourceInfo& info, const SourceTrack& track, std::int64_t timestamp) {
    return timeOf(timestamp, track.timeBase) - info.origin;
}

std::int64_t streamTimestamp(const SourceInfo& info, const SourceTrack& track, Time time) {
    const Time container = time + info.origin;
    return av_rescale_q_rnd(container.value, {1, container.timescale}, track.timeBase,
                            AV_ROUND_NEAR_INF);
}

} // namespace media::ffmpeg
