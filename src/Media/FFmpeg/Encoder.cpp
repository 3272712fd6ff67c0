#include "Media/FFmpeg/Encoder.h"

#include "Media/EncoderSettings.h"
#include "Media/FFmpeg/Check.h"
#include "Media/FFmpeg/ClassicLocale.h"
#include "Media/FFmpeg/EncoderOptions.h"
#include "Media/FFmpeg/HevcLevel.h"
#include "Media/FFmpeg/SourceInfo.h"

#include <algorithm>
#include <array>
#include <memory>
#include <optional>

extern "C" {
#include <libavutil/channel_layout.h>
#include <libavutil/pixdesc.h>
}

namespace media::ffmpeg {

namespace {

/// The sampling frequencies of ISO/IEC 14496-3, table 1.18, in ascending order; Hz.
constexpr std::array kAacSampleRates = {7350,  8000,  11025, 12000, 16000, 22050, 24000,
                                        32000, 44100, 48000, 64000, 88200, 96000};
/// Listening tests find AAC-LC transparent well below this; bits per second and channel.
constexpr std::int64_t kAacBitRatePerChannel = 128'000;
/// AAC allows 6144 bits per channel in 1024 samples, and the encoder refuses more. Bits per sample.
constexpr std::int64_t kAacMostBitsPerSample = 5;
/// The size of coding tree units in x265's preset, and a smaller one, in pixels. x265 cannot encode
/// pictures with a side shorter than a coding tree unit.
constexpr int kHevcUsualUnit = 32;
constexpr int kHevcSmallUnit = 16;

/// How many pictures x265 encodes side by side; the rows of each share the processors all the same.
/// By itself it takes more on four processors and more, other bytes come of that, and with more
/// than one they are not even the same each time (x265 3.5).
constexpr int kHevcFrameThreads = 1;

void copyColor(AVCodecContext& context, const AVCodecParameters& source) {
    context.color_primaries = source.color_primaries;
    context.color_trc = source.color_trc;
    context.colorspace = source.color_space;
    context.color_range = source.color_range;
    context.chroma_sample_location = source.chroma_location;
    const AVPixFmtDescriptor* descriptor =
        av_pix_fmt_desc_get(static_cast<AVPixelFormat>(source.format));
    if (descriptor && (descriptor->flags & (AV_PIX_FMT_FLAG_RGB | AV_PIX_FMT_FLAG_PAL))) {
        // RGB has no matrix: the file is tagged with the one that it is converted with.
        context.colorspace = AVCOL_SPC_BT709;
        context.color_range = AVCOL_RANGE_MPEG;
    }
    if (source.format == AV_PIX_FMT_YUVJ420P || source.format == AV_PIX_FMT_YUVJ422P ||
        source.format == AV_PIX_FMT_YUVJ444P || source.format == AV_PIX_FMT_YUVJ440P)
        context.color_range = AVCOL_RANGE_JPEG;
}

/// The size of the coding tree units; none if the picture is too small for HEVC. The smaller size
/// wherever it is allowed: at this quality larger units are nearly always split, and trying them
/// takes a tenth to a quarter of the encoder's time.
std::optional<int> hevcUnit(const VideoEncoding& encoding, const std::optional<HevcLevel>& level) {
    const int unit = level && level->allowsSmallUnits ? kHevcSmallUnit : kHevcUsualUnit;
    return std::min(encoding.width, encoding.height) < unit ? std::nullopt : std::optional(unit);
}

CodecContextPtr makeContext(const char* encoderName) {
    silenceLog();
    const AVCodec* codec = avcodec_find_encoder_by_name(encoderName);
    if (!codec)
        check(AVERROR_ENCODER_NOT_FOUND);
    return CodecContextPtr(allocated(avcodec_alloc_context3(codec)));
}

/// Whether the top field is shown first.
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
    const std::optional<HevcLevel> level =
        hevcLevel(encoding.width, encoding.height, av_q2d(encoding.frameRate));
    const std::optional<int> unit = hevcUnit(encoding, level);
    // Pictures that are too small for x265 are encoded by x264, which has 10 bits too.
    const bool isHevc = isDeep && unit;
    auto tables = isHevc ? std::make_unique<EncoderTables>() : nullptr;
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
    if (encoding.threads > 0)
        context->thread_count = encoding.threads;
    EncoderOptions options(*context);
    if (isHevc) {
        context->codec_tag = MKTAG('h', 'v', 'c', '1');
        options.setPreset(settings.hevcPreset);
        options.setConstantRateFactor(settings.hevcCrf);
        options.set("forced-idr", 1);
        options.add({"log-level", "none"});
        options.addAll(settings.hevcParameters);
        options.add({"ctu", *unit});
        if (encoding.threads > 0)
            options.add({"pools", encoding.threads});
        options.add({"frame-threads", kHevcFrameThreads});
        options.addAll(x265Parameters(track.dynamicRange));
        options.open("x265-params");
        // Asked for one, x265 bounds the bit rate, and then the bytes depend on its threads’
        // timing.
        if (level)
            stateLevel({context->extradata, static_cast<std::size_t>(context->extradata_size)},
                       *level);
    } else {
        options.setPreset(settings.h264Preset);
        options.setConstantRateFactor(encoding.isReduced ? settings.h264ReducedCrf
                                                         : settings.h264Crf);
        options.addAll(settings.h264Parameters);
        // Interlaced coding (MBAFF) of 4:2:0 needs a height that is a multiple of 4: two fields,
        // each with chroma on every second line.
        if (encoding.fieldOrder != AV_FIELD_PROGRESSIVE && encoding.height % 4 == 0) {
            context->flags |= AV_CODEC_FLAG_INTERLACED_DCT;
            options.add({isTopFirst(encoding.fieldOrder) ? "tff" : "bff", 1});
        }
        options.open("x264-params");
    }
    return Encoder(std::move(context), std::move(tables));
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
    const ClassicLocale classic;
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
