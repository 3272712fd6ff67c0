#pragma once

#include "Media/FFmpeg/Demuxer.h"
#include "Media/FFmpeg/LatestPackets.h"
#include "Media/Reading/TrackClock.h"

#include <cstddef>
#include <deque>
#include <optional>
#include <stop_token>

namespace media {

/// The packets of one track on their way from the demuxer to the decoder: looks ahead among them,
/// and knows what has been taken. Use from one thread.
class PacketFeed final {
public:
    /// `track` and `demuxer` outlive it; the demuxer has selected that track only.
    PacketFeed(const ffmpeg::SourceTrack& track, const TrackClock& clock, ffmpeg::Demuxer& demuxer);

    /// The demuxer has moved.
    void restart();

    /// The next packet; null at the end of the file. Throws Error; Cancelled.
    [[nodiscard]] const AVPacket* front(const std::stop_token& stop);
    /// Removes that packet, which has been taken; there has to be one.
    void pop();

    /// When the picture of the next packet is shown, if it is certain that this is the picture at
    /// `target` and that the packet after it is a key frame shown right behind it. None at the end
    /// of the file.
    [[nodiscard]] std::optional<TickRange> rangeBetweenKeyFrames(Ticks target,
                                                                 const std::stop_token& stop);

    /// Where the picture of the next packet begins, if that packet was read already.
    [[nodiscard]] std::optional<Ticks> nextTicks() const;

    /// The last decoding time that was read since the restart.
    [[nodiscard]] std::optional<ffmpeg::Timestamp> lastDts() const { return m_lastDts; }

    [[nodiscard]] const ffmpeg::LatestPackets& taken() const { return m_taken; }

private:
    [[nodiscard]] bool hasAhead(std::size_t count, const std::stop_token& stop);
    [[nodiscard]] std::optional<Ticks> shownOrDecodedAt(const AVPacket& packet) const;

    const ffmpeg::SourceTrack& m_track;
    TrackClock m_clock;
    ffmpeg::Demuxer& m_demuxer;
    /// Read, but not taken yet.
    std::deque<ffmpeg::PacketPtr> m_ahead;
    std::optional<ffmpeg::Timestamp> m_lastDts;
    ffmpeg::LatestPackets m_taken;
};

} // namespace media
