#include "Media/FFmpeg/StatedParameters.h"

#include "Media/Error.h"
#include "Media/FFmpeg/Check.h"
#include "Media/FFmpeg/ContainerTraits.h"
#include "Media/FFmpeg/TrackFacts.h"

#include <span>

namespace media::ffmpeg {

namespace {

/// How many packets of a sound may fail to decode before the container is believed.
constexpr int kMostPackets = 4;

std::span<AVStream* const> streamsOf(const AVFormatContext& context) {
    return {context.streams, context.nb_streams};
}

/// Whether the decoder begins with the first packet and what the container says.
bool canBeginAtOnce(const AVCodecParameters& parameters) {
    switch (parameters.codec_id) {
    case AV_CODEC_ID_H264:
    case AV_CODEC_ID_HEVC:
    case AV_CODEC_ID_AV1:
    case AV_CODEC_ID_MPEG4:
        return parameters.extradata_size > 0;
    case AV_CODEC_ID_VP9:
    case AV_CODEC_ID_MJPEG:
    case AV_CODEC_ID_PRORES:
    case AV_CODEC_ID_DNXHD:
        return true;
    default:
        return false;
    }
}

/// Whether the decoder corrects all that the container may have wrong. Those of FLAC and Vorbis
/// leave it to libav's reading to find out which channels there are.
bool isDecoderBelieved(AVCodecID sound) {
    switch (sound) {
    case AV_CODEC_ID_AAC:
    case AV_CODEC_ID_AC3:
    case AV_CODEC_ID_EAC3:
    case AV_CODEC_ID_MP3:
    case AV_CODEC_ID_OPUS:
        return true;
    default:
        return sound >= AV_CODEC_ID_FIRST_AUDIO && sound < AV_CODEC_ID_ADPCM_IMA_QT;
    }
}

bool isStated(const AVStream& stream) {
    const AVCodecParameters& parameters = *stream.codecpar;
    if (parameters.codec_type == AVMEDIA_TYPE_AUDIO)
        return parameters.sample_rate > 0 && parameters.ch_layout.nb_channels > 0 &&
               isDecoderBelieved(parameters.codec_id);
    const AVRational rate = stream.avg_frame_rate;
    return parameters.width > 0 && parameters.height > 0 && rate.num > 0 && rate.den > 0 &&
           av_q2d(rate) <= kHighestFrameRate && canBeginAtOnce(parameters);
}

} // namespace

bool statesParameters(const AVFormatContext& context) {
    if (!containerTraits(*context.iformat).statesParameters || context.duration <= 0)
        return false;
    int pictures = 0;
    for (const AVStream* stream : streamsOf(context)) {
        const AVMediaType type = stream->codecpar->codec_type;
        const bool isPicture = type == AVMEDIA_TYPE_VIDEO && isUsableStream(context, *stream);
        if ((isPicture || type == AVMEDIA_TYPE_AUDIO) && !isStated(*stream))
            return false;
        pictures += isPicture ? 1 : 0;
    }
    // Only the first is decoded when a file is opened.
    return pictures == 1;
}

void completeParameters(AVStream& stream, const AVCodecContext& decoder) {
    check(avcodec_parameters_from_context(stream.codecpar, &decoder));
}

FirstSounds::FirstSounds(AVFormatContext& context) : m_context(context) {
    for (const AVStream* stream : streamsOf(context)) {
        const AVCodecParameters& parameters = *stream->codecpar;
        if (parameters.codec_type != AVMEDIA_TYPE_AUDIO || !isUsableStream(context, *stream))
            continue;
        try {
            m_awaited.emplace(stream->index, Sound{Decoder(parameters, stream->time_base, 1)});
        } catch (const Error&) {
            // What needs it will tell of it.
            continue;
        }
    }
}

void FirstSounds::note(const AVPacket& packet) {
    const auto entry = m_awaited.find(packet.stream_index);
    if (entry == m_awaited.end())
        return;
    Sound& sound = entry->second;
    const FramePtr frame = makeFrame();
    sound.decoder.send(&packet);
    const bool hasDecoded = sound.decoder.receive(*frame) == Decoder::Status::frame;
    if (!hasDecoded && ++sound.packets < kMostPackets)
        return;
    completeParameters(*m_context.streams[packet.stream_index], sound.decoder.context());
    m_awaited.erase(entry);
}

} // namespace media::ffmpeg
