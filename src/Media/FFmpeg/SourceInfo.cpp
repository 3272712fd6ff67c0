#include "Media/FFmpeg/SourceInfo.h"

#include <algorithm>
#include <cstdlib>
#include <string_view>

namespace media::ffmpeg {

namespace {

/// A timestamp in seconds as a Time; the timescale is the time base's denominator.
Time timeOf(std::int64_t timestamp, AVRational timeBase) {
    return {timestamp * timeBase.num, timeBase.den};
}

} // namespace

const SourceTrack& SourceInfo::track(int streamIndex) const {
    for (const SourceTrack& track : tracks) {
        if (track.facts.streamIndex == streamIndex)
            return track;
    }
    std::abort();
}

bool statesPresentationTimes(const AVInputFormat& format) {
    const std::string_view name(format.name);
    return name.starts_with("mov") || name.starts_with("matroska");
}

bool isBareBitstream(const AVInputFormat& format) {
    constexpr std::string_view kBitstreams[] = {"mpegvideo", "h264", "hevc", "m4v",   "h263",
                                                "h261",      "obu",  "vc1",  "dirac", "cavsvideo"};
    return std::ranges::find(kBitstreams, std::string_view(format.name)) != std::end(kBitstreams);
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
