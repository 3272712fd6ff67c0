#include "Media/Reading/AudioFrames.h"

#include "Media/Error.h"
#include "Media/FFmpeg/ContainerTraits.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace media {

namespace {

/// Decoding starts this much before the time asked for: an Opus decoder needs 80 ms to converge,
/// MP3 the bytes of earlier frames, AAC one or two frames.
constexpr double kPrerollSeconds = 0.2;
/// Frames decoded ahead. Their timestamps vote on where the first of them lies, so that neither a
/// container's rounding nor one false timestamp moves the sound.
constexpr std::size_t kFramesAhead = 8;
/// Steps back for containers that land behind the time they were asked for.
constexpr std::array<double, 3> kStepsBackSeconds = {0, 2, 10};

} // namespace

AudioFrames::AudioFrames(std::shared_ptr<const Asset> asset, const AssetTrack& facts)
    : m_asset(OpenedAsset::of(std::move(asset))),
      m_track(m_asset->info().track(facts.streamIndex)),
      m_demuxer(m_asset->file(), m_asset->info().format),
      m_decoder(*m_track.parameters, m_track.timeBase, 1),
      m_skipBefore(-kPrerollSeconds) {
    if (!m_demuxer.statesPresentationTimes())
        m_demuxer.findStreamInfo();
    m_demuxer.selectOnly({m_track.facts.streamIndex});
}

void AudioFrames::forgetBuffered() {
    m_decoder.flush();
    m_ahead.clear();
    m_isDraining = false;
    m_isDrained = false;
    m_hasPacket = false;
    av_packet_unref(m_packet.get());
}

void AudioFrames::seek(double target, const std::stop_token& stop) {
    forgetBuffered();
    const double audible = std::max(target, m_track.facts.startTime.seconds());
    m_skipBefore = audible - kPrerollSeconds;
    const bool wantsStart = m_skipBefore <= 0;
    if ((wantsStart && m_isAtStart) || !seekContainer(audible, stop))
        moveToStart(stop);
}

void AudioFrames::restart(const std::stop_token& stop) {
    forgetBuffered();
    moveToStart(stop);
}

void AudioFrames::moveToStart(const std::stop_token& stop) {
    m_hasPacket = false;
    av_packet_unref(m_packet.get());
    if (!m_isAtStart)
        m_demuxer.reopen(stop);
    m_isAtStart = true;
    m_startedAtStart = true;
}

bool AudioFrames::seekContainer(double audible, const std::stop_token& stop) {
    const ffmpeg::SourceInfo& info = m_asset->info();
    if (info.format->flags & AVFMT_NOTIMESTAMPS)
        return false;
    const ffmpeg::SourceTrack& guide = guideTrack();
    std::optional<double> earlier;
    for (const double back : kStepsBackSeconds) {
        const Time time = Time::fromSeconds(m_skipBefore - back, AV_TIME_BASE);
        m_isAtStart = false;
        m_startedAtStart = false;
        const bool isBeforeStart = back > 0 && time.value <= 0;
        if (isBeforeStart || !m_demuxer.seek(guide.facts.streamIndex,
                                             ffmpeg::streamTimestamp(info, guide, time), stop))
            return false;
        const auto landing = readLanding(stop);
        if (landing && (*landing <= audible || landing == earlier))
            return true;
        earlier = landing;
    }
    return earlier.has_value();
}

const ffmpeg::SourceTrack& AudioFrames::guideTrack() const {
    const ffmpeg::SourceInfo& info = m_asset->info();
    if (ffmpeg::containerTraits(*info.format).isIndexedByPictures) {
        for (const ffmpeg::SourceTrack& track : info.tracks) {
            if (track.facts.type == MediaType::video)
                return track;
        }
    }
    return m_track;
}

/// The time of the first packet after a seek, which stays to be decoded.
std::optional<double> AudioFrames::readLanding(const std::stop_token& stop) {
    av_packet_unref(m_packet.get());
    m_hasPacket = readPacket(stop);
    return m_hasPacket ? timeOf(ffmpeg::ptsOf(*m_packet)) : std::nullopt;
}

std::optional<double> AudioFrames::timeOf(std::optional<ffmpeg::Timestamp> timestamp) const {
    if (!timestamp)
        return std::nullopt;
    return ffmpeg::assetTime(m_asset->info(), m_track, *timestamp).seconds();
}

std::optional<double> AudioFrames::timeOf(const AVFrame& frame) const {
    return timeOf(ffmpeg::ptsOf(frame));
}

/// The next packet of our track into m_packet.
bool AudioFrames::readPacket(const std::stop_token& stop) {
    m_isAtStart = false;
    while (m_demuxer.read(*m_packet, stop) == ffmpeg::Demuxer::Status::packet) {
        if (m_packet->stream_index == m_track.facts.streamIndex)
            return true;
        av_packet_unref(m_packet.get());
    }
    return false;
}

bool AudioFrames::isBeforePreroll() const {
    const auto time = timeOf(ffmpeg::ptsOf(*m_packet));
    return time && *time + static_cast<double>(m_packet->duration) * av_q2d(m_track.timeBase) <
                       m_skipBefore;
}

void AudioFrames::feed(const std::stop_token& stop) {
    while (m_hasPacket || readPacket(stop)) {
        m_hasPacket = false;
        const bool isNeeded = !isBeforePreroll();
        if (isNeeded)
            m_decoder.send(m_packet.get());
        av_packet_unref(m_packet.get());
        if (isNeeded)
            return;
    }
    m_isDrained = m_isDraining;
    m_isDraining = true;
    if (!m_isDrained)
        m_decoder.send(nullptr);
}

void AudioFrames::fillAhead(const std::stop_token& stop) {
    while (m_ahead.size() < kFramesAhead && !m_isDrained) {
        if (stop.stop_requested())
            throw Cancelled();
        auto frame = ffmpeg::makeFrame();
        switch (m_decoder.receive(*frame)) {
        case ffmpeg::Decoder::Status::frame:
            if (frame->nb_samples > 0 && frame->sample_rate > 0)
                m_ahead.push_back(std::move(frame));
            break;
        case ffmpeg::Decoder::Status::needsInput:
            feed(stop);
            break;
        case ffmpeg::Decoder::Status::endOfStream:
            m_isDrained = true;
            break;
        }
    }
}

} // namespace media
