#include "Media/FFmpeg/Timestamp.h"

#include <algorithm>
#include <limits>

namespace media::ffmpeg {

Time timeOf(Timestamp timestamp, AVRational timeBase) {
    // A quarter of the range leaves room for the sums of a few such times.
    constexpr std::int64_t kMost = std::numeric_limits<std::int64_t>::max() / 4;
    const std::int64_t most = kMost / std::max(1, timeBase.num);
    return {std::clamp(timestamp.value(), -most, most) * timeBase.num, timeBase.den};
}

Timestamp nearestTimestamp(Time time, AVRational timeBase) {
    return Timestamp(
        av_rescale_q_rnd(time.value, {1, time.timescale}, timeBase, AV_ROUND_NEAR_INF));
}

} // namespace media::ffmpeg
