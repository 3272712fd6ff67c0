#include "Media/Reading/DecodingRun.h"

#include "Media/Error.h"
#include "Media/Threading/ThreadPriority.h"

namespace media {

namespace {

/// Whether the decoder gives out pictures although those they refer to are not there.
bool decodesWithoutReferences(AVCodecID codec) {
    return codec == AV_CODEC_ID_HEVC || codec == AV_CODEC_ID_VVC;
}

} // namespace

DecodingRun::DecodingRun(const ffmpeg::SourceInfo& info, const ffmpeg::SourceTrack& track,
                         ffmpeg::Demuxer& demuxer, const VideoReader::Options& options)
    : m_track(track),
      m_options(options),
      m_feed(track, {info, track}, demuxer),
      m_skipPolicy(track, {info, track}),
      m_times(info, track) {
    openDecoder();
}

void DecodingRun::openDecoder() {
    const auto open = [this] {
        m_decoder.emplace(*m_track.parameters, m_track.timeBase, m_options.threads);
    };
    if (m_options.niceness > 0)
        runStandingBack(m_options.niceness, open);
    else
        open();
    SkipPolicy::setDetail(m_decoder->context(), m_options.detail);
    m_skipPolicy.forgetNewParameters();
}

void DecodingRun::restartAfterSeek() {
    const bool mustAwait = decodesWithoutReferences(m_track.parameters->codec_id);
    restart(mustAwait ? State::awaitingKeyFrame : State::fresh);
}

void DecodingRun::restartAtBeginning() {
    if (m_skipPolicy.hasNewParameters())
        openDecoder();
    restart(State::fresh);
}

void DecodingRun::restart(State state) {
    m_decoder->flush();
    m_skipPolicy.restart();
    m_feed.restart();
    m_times.clear();
    m_frames.clear();
    m_state = state;
}

void DecodingRun::fill(std::size_t count, const std::stop_token& stop, Ticks until) {
    while ((m_frames.size() < count || m_state == State::alone) && m_state != State::drained) {
        if (stop.stop_requested())
            throw Cancelled();
        ffmpeg::FramePtr frame = ffmpeg::makeFrame();
        switch (m_decoder->receive(*frame)) {
        case ffmpeg::Decoder::Status::frame:
            enqueue(std::move(frame));
            break;
        case ffmpeg::Decoder::Status::needsInput:
            if (isDraining())
                endDraining();
            else if (m_feed.taken().areAllAfter(until))
                return;
            else
                feedDecoder(stop);
            break;
        case ffmpeg::Decoder::Status::endOfStream:
            endDraining();
            break;
        }
    }
}

std::optional<Ticks> DecodingRun::nextTicks() const {
    return m_frames.empty() ? m_feed.nextTicks() : std::optional(m_frames.front().ticks);
}

void DecodingRun::feedDecoder(const std::stop_token& stop) {
    const AVPacket* packet = m_feed.front(stop);
    if (!packet) {
        drain(State::draining);
        return;
    }
    if (m_state == State::awaitingKeyFrame && !(packet->flags & AV_PKT_FLAG_KEY)) {
        m_feed.pop();
        return;
    }
    const auto target = m_skipPolicy.target();
    const bool isFirst = m_state == State::awaitingKeyFrame || m_state == State::fresh;
    const auto alone =
        isFirst && target ? m_feed.rangeBetweenKeyFrames(*target, stop) : std::nullopt;
    m_state = State::running;
    send(*packet);
    m_feed.pop();
    if (alone) {
        m_alone = *alone;
        drain(State::alone);
    }
}

void DecodingRun::drain(State state) {
    m_state = state;
    m_decoder->send(nullptr);
}

/// The decoder has nothing more to give.
void DecodingRun::endDraining() {
    if (m_state != State::alone) {
        m_state = State::drained;
        return;
    }
    m_decoder->flush();
    if (m_frames.size() == 1 && m_frames.front().ticks == m_alone.begin)
        m_frames.front().knownEnd = m_alone.end;
    m_state = State::running;
}

void DecodingRun::send(const AVPacket& packet) {
    const SkipPolicy::Decision decision = m_skipPolicy.decide(packet);
    if (decision == SkipPolicy::Decision::drop)
        return;
    m_times.notePacket(packet);
    m_decoder->context().skip_frame =
        decision == SkipPolicy::Decision::skipInDecoder ? AVDISCARD_NONREF : AVDISCARD_DEFAULT;
    m_decoder->send(&packet);
}

void DecodingRun::enqueue(ffmpeg::FramePtr frame) {
    const Time time = m_times.next(*frame);
    m_frames.push_back({std::move(frame), time, time.ticks()});
}

} // namespace media
