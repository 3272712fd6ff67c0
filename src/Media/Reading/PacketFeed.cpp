#include "Media/Reading/PacketFeed.h"

#include "Media/FFmpeg/Decoder.h"

namespace media {

namespace {

/// Whether the packet is shown in its turn: where times of decoding and showing are the same, no
/// later packet can be shown before this one.
bool isInTurn(const AVPacket& packet, AVCodecID codec) {
    return packet.dts == packet.pts ||
           (packet.dts == AV_NOPTS_VALUE && ffmpeg::hasOnlyKeyFrames(codec));
}

bool isWholeKeyFrame(const AVPacket& packet) {
    constexpr int kFlawed = AV_PKT_FLAG_CORRUPT | AV_PKT_FLAG_DISCARD;
    return packet.flags & AV_PKT_FLAG_KEY && !(packet.flags & kFlawed) &&
           packet.pts != AV_NOPTS_VALUE;
}

/// Whether two packets that follow one another in a stream are both key frames, and no picture of
/// any other packet can be shown between them.
bool areNeighbouringKeyFrames(const AVPacket& first, const AVPacket& second, AVCodecID codec) {
    return isWholeKeyFrame(first) && isWholeKeyFrame(second) && first.pts < second.pts &&
           isInTurn(first, codec) && isInTurn(second, codec);
}

} // namespace

PacketFeed::PacketFeed(const ffmpeg::SourceTrack& track, const TrackClock& clock,
                       ffmpeg::Demuxer& demuxer)
    : m_track(track), m_clock(clock), m_demuxer(demuxer) {}

void PacketFeed::restart() {
    m_ahead.clear();
    m_taken.clear();
    m_lastDts.reset();
}

const AVPacket* PacketFeed::front(const std::stop_token& stop) {
    return hasAhead(1, stop) ? m_ahead.front().get() : nullptr;
}

void PacketFeed::pop() {
    // One without a time may belong anywhere.
    m_taken.note(shownOrDecodedAt(*m_ahead.front()).value_or(Ticks::beginning()));
    m_ahead.pop_front();
}

/// Reads until `count` packets wait for the decoder; false where the file ends before.
bool PacketFeed::hasAhead(std::size_t count, const std::stop_token& stop) {
    while (m_ahead.size() < count) {
        ffmpeg::PacketPtr packet = ffmpeg::makePacket();
        if (m_demuxer.read(*packet, stop) == ffmpeg::Demuxer::Status::endOfFile)
            return false;
        if (const auto dts = ffmpeg::dtsOf(*packet))
            m_lastDts = dts;
        m_ahead.push_back(std::move(packet));
    }
    return true;
}

std::optional<TickRange> PacketFeed::rangeBetweenKeyFrames(Ticks target,
                                                           const std::stop_token& stop) {
    if (m_track.lacksPresentationTimes || m_track.needsGeneratedTimes || m_track.isInterlaced() ||
        !hasAhead(2, stop))
        return std::nullopt;
    const AVPacket& first = *m_ahead[0];
    const AVPacket& second = *m_ahead[1];
    if (!areNeighbouringKeyFrames(first, second, m_track.parameters->codec_id))
        return std::nullopt;
    const TickRange range{m_clock.ticksAt(ffmpeg::Timestamp(first.pts)),
                          m_clock.ticksAt(ffmpeg::Timestamp(second.pts))};
    return range.holds(target) ? std::optional(range) : std::nullopt;
}

std::optional<Ticks> PacketFeed::nextTicks() const {
    const auto pts = m_ahead.empty() ? std::nullopt : ffmpeg::ptsOf(*m_ahead.front());
    return pts ? std::optional(m_clock.ticksAt(*pts)) : std::nullopt;
}

std::optional<Ticks> PacketFeed::shownOrDecodedAt(const AVPacket& packet) const {
    const auto pts = m_track.lacksPresentationTimes ? std::nullopt : ffmpeg::ptsOf(packet);
    const auto timestamp = pts ? pts : ffmpeg::dtsOf(packet);
    return timestamp ? std::optional(m_clock.ticksAt(*timestamp)) : std::nullopt;
}

} // namespace media
