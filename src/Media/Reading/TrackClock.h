#pragma once

#include "Media/FFmpeg/SourceInfo.h"

namespace media {

/// Converts between a track's own timestamps and ticks on the asset's time line. A value type that
/// refers to both, which outlive it; any thread.
class TrackClock final {
public:
    TrackClock(const ffmpeg::SourceInfo& info, const ffmpeg::SourceTrack& track)
        : m_info(info), m_track(track) {}

    [[nodiscard]] Ticks ticksAt(ffmpeg::Timestamp timestamp) const {
        return ffmpeg::assetTime(m_info, m_track, timestamp).ticks();
    }

    /// The nearest.
    [[nodiscard]] ffmpeg::Timestamp timestampAt(Ticks ticks) const {
        return ffmpeg::streamTimestamp(m_info, m_track, Time::fromTicks(ticks));
    }

    /// Where the track's first frame begins.
    [[nodiscard]] Ticks first() const { return m_track.facts.startTime.ticks(); }

private:
    const ffmpeg::SourceInfo& m_info;
    const ffmpeg::SourceTrack& m_track;
};

} // namespace media
