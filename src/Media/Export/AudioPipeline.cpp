#include "Media/Export/AudioPipeline.h"

#include "Media/Error.h"
#include "Media/FFmpeg/Check.h"

#include <algorithm>

extern "C" {
#include <libavutil/channel_layout.h>
#include <libavutil/samplefmt.h>
}

namespace media {

namespace {

/// How far the sound may run ahead of the picture, in AAC packets: 22 s at 48 kHz, less than a
/// megabyte for two channels. Until the video decoder has reached the range it cannot keep every
/// processor busy, and the sound uses the idle ones.
constexpr std::size_t kPacketsWaiting = 1024;

/// The channel layout under which AAC writes these channels. 5.0 and 5.1 come with side or with
/// back speakers, which differ only in where they stand; AAC has a channel configuration for back
/// only.
AVChannelLayout aacLayout(const AVChannelLayout& source) {
    const AVChannelLayout side = AV_CHANNEL_LAYOUT_5POINT1;
    if (av_channel_layout_compare(&source, &side) == 0)
        return AV_CHANNEL_LAYOUT_5POINT1_BACK;
    const AVChannelLayout side50 = AV_CHANNEL_LAYOUT_5POINT0;
    if (av_channel_layout_compare(&source, &side50) == 0)
        return AV_CHANNEL_LAYOUT_5POINT0_BACK;
    return source;
}

} // namespace

AudioPipeline::AudioPipeline(const Composition& composition, const CompositionTrack& track,
                             const std::stop_token& stop)
    : m_track(track), m_stop(stop), m_output(kPacketsWaiting, stop) {
    open(composition);
    const int rate = m_encoder->context().sample_rate;
    m_output.timeBase = {1, rate};
    m_wantedSamples = std::max<std::int64_t>(track.range.duration().rescaled(rate).value, 1);
}

void AudioPipeline::open(const Composition& composition) {
    AudioReader::Format format;
    format.sampleRate = ffmpeg::aacSampleRate(m_track.source.sampleRate);
    m_reader.emplace(composition.asset, m_track.source, format);
    m_encoder = ffmpeg::Encoder::forAudio(format.sampleRate, aacLayout(m_reader->channelLayout()));
    if (m_encoder)
        return;
    // A channel layout that AAC cannot write is mixed down to stereo.
    format.channels = 2;
    m_reader.emplace(composition.asset, m_track.source, format);
    m_encoder = ffmpeg::Encoder::forAudio(format.sampleRate, m_reader->channelLayout());
    if (!m_encoder)
        ffmpeg::check(AVERROR_ENCODER_NOT_FOUND);
}

std::int64_t AudioPipeline::expectedPackets() const {
    constexpr std::int64_t kFrameSamples = 1024;
    return m_wantedSamples / kFrameSamples + 4;
}

void AudioPipeline::run() {
    m_reader->seek(m_track.range.start, m_stop);
    std::int64_t taken = 0;
    while (taken < m_wantedSamples) {
        ffmpeg::FramePtr block = m_reader->next(m_stop);
        if (!block)
            break;
        const auto wanted = std::min<std::int64_t>(block->nb_samples, m_wantedSamples - taken);
        block->nb_samples = static_cast<int>(wanted);
        taken += wanted;
        take(std::move(block));
    }
    if (m_partial && m_partial->nb_samples > 0)
        encode(std::move(m_partial));
    if (m_encodedSamples == 0)
        encodeSilence();
    m_encoder->send(nullptr);
    drainEncoder();
    m_output.packets.finish();
}

void AudioPipeline::take(ffmpeg::FramePtr block) {
    AVCodecContext& context = m_encoder->context();
    int offset = 0;
    while (offset < block->nb_samples) {
        if (!m_partial) {
            m_partial = ffmpeg::makeFrame();
            m_partial->format = context.sample_fmt;
            m_partial->nb_samples = context.frame_size;
            m_partial->sample_rate = context.sample_rate;
            ffmpeg::check(av_channel_layout_copy(&m_partial->ch_layout, &context.ch_layout));
            ffmpeg::check(av_frame_get_buffer(m_partial.get(), 0));
            m_partial->nb_samples = 0;
        }
        const int count =
            std::min(block->nb_samples - offset, context.frame_size - m_partial->nb_samples);
        ffmpeg::check(av_samples_copy(m_partial->extended_data, block->extended_data,
                                      m_partial->nb_samples, offset, count,
                                      context.ch_layout.nb_channels, context.sample_fmt));
        m_partial->nb_samples += count;
        offset += count;
        if (m_partial->nb_samples == context.frame_size)
            encode(std::move(m_partial));
    }
}

void AudioPipeline::encode(ffmpeg::FramePtr block) {
    block->pts = m_encodedSamples;
    m_encodedSamples += block->nb_samples;
    m_encoder->send(block.get());
    drainEncoder();
}

void AudioPipeline::encodeSilence() {
    // A track whose sound ends before the range begins is still a track of the export.
    AVCodecContext& context = m_encoder->context();
    ffmpeg::FramePtr silence = ffmpeg::makeFrame();
    silence->format = context.sample_fmt;
    silence->nb_samples =
        static_cast<int>(std::min<std::int64_t>(context.frame_size, m_wantedSamples));
    silence->sample_rate = context.sample_rate;
    ffmpeg::check(av_channel_layout_copy(&silence->ch_layout, &context.ch_layout));
    ffmpeg::check(av_frame_get_buffer(silence.get(), 0));
    ffmpeg::check(av_samples_set_silence(silence->extended_data, 0, silence->nb_samples,
                                         context.ch_layout.nb_channels, context.sample_fmt));
    encode(std::move(silence));
}

void AudioPipeline::drainEncoder() {
    for (;;) {
        ffmpeg::PacketPtr packet = ffmpeg::makePacket();
        if (!m_encoder->receive(*packet))
            return;
        ++m_packets;
        m_output.packets.push(std::move(packet));
    }
}

} // namespace media
