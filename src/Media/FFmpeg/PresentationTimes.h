#pragma once

#include "Media/FFmpeg/SourceInfo.h"

#include <set>

namespace media::ffmpeg {

/// Gives the pictures that come out of a decoder their times on the asset's time line, each not
/// before the one before it. Both references outlive it.
class PresentationTimes {
public:
    PresentationTimes(const SourceInfo& info, const SourceTrack& track)
        : m_info(info), m_track(track) {}

    /// Forgets the pictures so far (after a move).
    void clear();
    /// A packet goes to the decoder.
    void notePacket(const AVPacket& packet);
    /// The time of the next picture that came out.
    [[nodiscard]] Time next(const AVFrame& frame);

private:
    [[nodiscard]] Time timeOf(const AVFrame& frame);

    const SourceInfo& m_info;
    const SourceTrack& m_track;
    /// Decoding times of pictures not yet given out, for tracks without presentation times.
    std::multiset<Timestamp> m_pendingDts;
    Time m_last = Time::negativeInfinity();
};

} // namespace media::ffmpeg
