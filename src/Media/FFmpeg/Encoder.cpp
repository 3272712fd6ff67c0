#include "Media/FFmpeg/Encoder.h"

#include "Media/ExportSession.h"
#include "Media/FFmpeg/Check.h"
#include "Media/FFmpeg/SourceInfo.h"

#include <algorithm>
#include <array>
#include <string>

extern "C" {
#include <libavutil/channel_layout.h>
#include <libavutil/opt.h>
#include <libavutil/pixdesc.h>
}

namespace media::ffmpeg {

namespace {

/// The sampling frequencies of ISO/IEC 14496-3, table 1.18, in ascending order; Hz.
constexpr std::array kAacSampleRates = {7350,  8000,  11025, 12000, 16000, 22050, 24000,
                                        32000, 44100, 48000, 64000, 88200, 96000};
/// Listening tests find AAC-LC transparent well below this; bits a second and channel.
constexpr std::int64_t kAacBitRatePerChannel = 128'000;
/// AAC allows 6144 bits a channel in 1024 samples; more is refused. Bits a sample.
constexpr std::int64_t kAacMostBitsPerSample = 5;
/// x265 codes no picture smaller than its smallest coding tree unit; pixels.
constexpr int kHevcSmallestSide = 16;
/// x265 takes coding tree units of 32 × 32 of this preset only where a side has two of them;
/// pixels.
constexpr int kHevcSmallestSideOfUsualUnits = 64;
/// From level 5 on HEVC has no coding tree units of 16 × 16 (ITU-T H.265, A.4.1). The limits of
/// level 4.1, table A.8 and A.4.1: pixels a picture, pixels a side and pixels a second.
constexpr double kHevcLevel41Pixels = 2'228'224;
constexpr int kHevcLevel41Side = 4222;
constexpr double kHevcLevel41PixelRate = 133'693'440;

void copyColor(AVCodecContext& context, const AVCodecParameters& source) {
    context.color_primaries = source.color_primaries;
    context.color_trc = source.color_trc;
    context.colorspace = source.color_space;
    context.color_range = source.color_range;
    context.chroma_sample_location = source.chroma_location;
    const AVPixFmtDescriptor* descriptor =
        av_pix_fmt_desc_get(static_cast<AVPixelFormat>(source.format));
    if (descriptor && (descriptor->flags & (AV_PIX_FMT_FLAG_RGB | AV_PIX_FMT_FLAG_PAL))) {
        // RGB has no matrix of its own: the one it is converted with is stated.
        context.colorspace = AVCOL_SPC_BT709;
        context.color_range = AVCOL_RANGE_MPEG;
    }
    if (source.format == AV_PIX_FMT_YUVJ420P || source.format == AV_PIX_FMT_YUVJ422P ||
        source.format == AV_PIX_FMT_YUVJ444P || source.format == AV_PIX_FMT_YUVJ440P)
        context.color_range = AVCOL_RANGE_JPEG;
}

void setOption(AVCodecContext& context, const char* name, const std::string& value) {
    check(av_opt_set(context.priv_data, name, value.c_str(), 0));
}

/// Whether coding tree units of 16 × 16 are allowed, or necessary. At this quality larger ones
/// would nearly always be divided: trying them takes a fifth of the encoder's time.
bool takesSmallUnits(const VideoEncoding& encoding) {
    const auto [shorter, longer] = std::minmax(encoding.width, encoding.height);
    if (shorter < kHevcSmallestSideOfUsualUnits)
        return true;
    const double pixels = static_cast<double>(encoding.width) * encoding.height;
    return pixels <= kHevcLevel41Pixels && longer <= kHevcLevel41Side &&
           pixels * av_q2d(encoding.frameRate) <= kHevcLevel41PixelRate;
}

CodecContextPtr makeContext(const char* encoderName) {
    silenceLog();
    const AVCodec* codec = avcodec_find_encoder_by_name(encoderName);
    if (!codec)
        check(AVERROR_ENCODER_NOT_FOUND);
    return CodecContextPtr(allocated(avcodec_alloc_context3(codec)));
}

/// Whether the field of the first line is shown first.
bool isTopFirst(AVFieldOrder order) {
    return order == AV_FIELD_TT || order == AV_FIELD_BT;
}

} // namespace

bool needsDeepColor(const SourceTrack& track) {
    const AVCodecParameters& parameters = *track.parameters;
    return track.facts.bitsPerComponent > 8 || parameters.color_trc == AVCOL_TRC_SMPTE2084 ||
           parameters.color_trc == AVCOL_TRC_ARIB_STD_B67;
}

int aacSampleRate(int sampleRate) {
    const auto* match = std::ranges::lower_bound(kAacSampleRates, sampleRate);
    if (match == kAacSampleRates.end())
        return 48000;
    return *match;
}

Encoder Encoder::forVideo(const SourceTrack& track, const VideoEncoding& encoding,
                          const EncoderSettings& settings) {
    const bool isDeep = needsDeepColor(track);
    // Too small for x265: x264 keeps the ten bits as well.
    const bool isTiny = std::min(encoding.width, encoding.height) < kHevcSmallestSide;
    const bool isHevc = isDeep && !isTiny;
    CodecContextPtr context = makeContext(isHevc ? "libx265" : "libx264");
    context->width = encoding.width;
    context->height = encoding.height;
    context->time_base = encoding.timeBase;
    context->framerate = encoding.frameRate;
    context->sample_aspect_ratio = encoding.sampleAspectRatio;
    context->pix_fmt = isDeep ? AV_PIX_FMT_YUV420P10 : AV_PIX_FMT_YUV420P;
    context->flags |= AV_CODEC_FLAG_GLOBAL_HEADER;
    copyColor(*context, *track.parameters);
    context->field_order = encoding.fieldOrder;
    if (isHevc) {
        context->codec_tag = MKTAG('h', 'v', 'c', '1');
        setOption(*context, "preset", settings.hevcPreset);
        setOption(*context, "crf", std::to_string(settings.hevcCrf));
        setOption(*context, "forced-idr", "1");
        std::string parameters = "log-level=none:" + settings.hevcParameters;
        if (takesSmallUnits(encoding))
            parameters += ":ctu=16";
        parameters += x265Parameters(track.dynamicRange);
        setOption(*context, "x265-params", parameters);
    } else {
        std::string parameters = settings.h264Parameters;
        // Pairs of lines of both fields are coded together, in pairs of macroblocks.
        if (encoding.fieldOrder != AV_FIELD_PROGRESSIVE && encoding.height % 4 == 0) {
            context->flags |= AV_CODEC_FLAG_INTERLACED_DCT;
            parameters += isTopFirst(encoding.fieldOrder) ? ":tff=1" : ":bff=1";
        }
        setOption(*context, "x264-params", parameters);
        setOption(*context, "preset", settings.h264Preset);
        setOption(*context, "crf",
                  std::to_string(encoding.isReduced ? settings.h264ReducedCrf : settings.h264Crf));
    }
    check(avcodec_open2(context.get(), context->codec, nullptr));
    return Encoder(std::move(context));
}

std::optional<Encoder> Encoder::forAudio(int sampleRate, const AVChannelLayout& layout) {
    CodecContextPtr context = makeContext("aac");
    context->sample_rate = sampleRate;
    context->time_base = {1, sampleRate};
    context->sample_fmt = AV_SAMPLE_FMT_FLTP;
    check(av_channel_layout_copy(&context->ch_layout, &layout));
    context->bit_rate =
        layout.nb_channels * std::min(kAacBitRatePerChannel, kAacMostBitsPerSample * sampleRate);
    context->flags |= AV_CODEC_FLAG_GLOBAL_HEADER;
    if (avcodec_open2(context.get(), context->codec, nullptr) < 0)
        return std::nullopt;
    return Encoder(std::move(context));
}

void Encoder::send(const AVFrame* frame) {
    check(avcodec_send_frame(m_context.get(), frame));
}

bool Encoder::receive(AVPacket& packet) {
    const int result = avcodec_receive_packet(m_context.get(), &packet);
    if (result == AVERROR(EAGAIN) || result == AVERROR_EOF)
        return false;
    check(result);
    return true;
}

} // namespace media::ffmpeg
