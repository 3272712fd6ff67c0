#include "Media/Reading/SkipPolicy.h"

#include <algorithm>

namespace media {

SkipPolicy::SkipPolicy(const ffmpeg::SourceTrack& track, const TrackClock& clock)
    : m_track(track), m_clock(clock), m_detector(*track.parameters) {}

void SkipPolicy::setDetail(AVCodecContext& decoder, VideoReader::Detail detail) {
    if (detail != VideoReader::Detail::thumbnail)
        return;
    decoder.skip_loop_filter = AVDISCARD_ALL;
    decoder.flags2 |= AV_CODEC_FLAG2_FAST;
}

void SkipPolicy::aimAt(Ticks target, Ticks completeFrom) {
    m_target = target;
    m_completeFrom = completeFrom;
    m_latestUpToTarget = Ticks::beginning();
}

void SkipPolicy::restart() {
    m_detector.restart();
    m_latestUpToTarget = Ticks::beginning();
    m_completeSince = Ticks::beginning();
}

SkipPolicy::Decision SkipPolicy::decide(const AVPacket& packet) {
    using ffmpeg::Discardable;
    const bool bringsParameters =
        av_packet_get_side_data(&packet, AV_PKT_DATA_NEW_EXTRADATA, nullptr) != nullptr;
    m_hasNewParameters = m_hasNewParameters || bringsParameters;
    // Both have to see every packet.
    const Discardable discardable = m_detector.inspect(packet);
    const bool isOnTheWay = isPassed(packet);
    if (!isOnTheWay || discardable == Discardable::no || m_hasNewParameters)
        return Decision::decode;
    m_completeSince = std::max(m_completeSince, m_latestUpToTarget);
    // One that the decoder skips takes the turn of one of its threads all the same; and with two
    // threads H.264's has been seen to hold back the last pictures of a stream after it.
    return discardable == Discardable::entirely ? Decision::drop : Decision::skipInDecoder;
}

/// Whether a later picture, already seen, will be shown at or before the target, so that this one
/// is not the picture there.
bool SkipPolicy::isPassed(const AVPacket& packet) {
    const auto pts = ffmpeg::ptsOf(packet);
    if (!m_target || !pts || m_track.lacksPresentationTimes)
        return false;
    const Ticks ticks = m_clock.ticksAt(*pts);
    if (ticks <= *m_target)
        m_latestUpToTarget = std::max(m_latestUpToTarget, ticks);
    return ticks < m_latestUpToTarget && ticks < m_completeFrom;
}

} // namespace media
