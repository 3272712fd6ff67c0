#include "Media/FFmpeg/TrackFacts.h"

#include "Media/FFmpeg/Check.h"
#include "Media/FFmpeg/ContainerTraits.h"
#include "Media/FFmpeg/LibavReleases.h"

#include <array>
#include <cstring>
#include <type_traits>

extern "C" {
#include <libavutil/display.h>
#include <libavutil/pixdesc.h>
}

namespace media::ffmpeg {

namespace {

/// The highest rate that is accepted if only the shortest distance between two frames is known.
constexpr double kHighestGuessedFrameRate = 240;

std::string nameOrNothing(const char* name) {
    return name ? name : "";
}

/// Whether the pixel format implies full range.
bool isFullRange(int format) {
    return format == AV_PIX_FMT_YUVJ420P || format == AV_PIX_FMT_YUVJ422P ||
           format == AV_PIX_FMT_YUVJ444P || format == AV_PIX_FMT_YUVJ440P ||
           format == AV_PIX_FMT_YUVJ411P;
}

/// Matroska's numbers come through libav as they stand in the file: those that no enumerator has
/// must not be read as one.
template<typename Enum>
void dropUnknown(Enum& value, Enum count, Enum unspecified) {
    std::underlying_type_t<Enum> number = 0;
    std::memcpy(&number, &value, sizeof number);
    if (number >= static_cast<std::underlying_type_t<Enum>>(count))
        value = unspecified;
}

void dropUnknownColors(AVCodecParameters& parameters) {
    dropUnknown(parameters.color_primaries, AVCOL_PRI_NB, AVCOL_PRI_UNSPECIFIED);
    dropUnknown(parameters.color_trc, AVCOL_TRC_NB, AVCOL_TRC_UNSPECIFIED);
    dropUnknown(parameters.color_space, AVCOL_SPC_NB, AVCOL_SPC_UNSPECIFIED);
    dropUnknown(parameters.color_range, AVCOL_RANGE_NB, AVCOL_RANGE_UNSPECIFIED);
    dropUnknown(parameters.chroma_location, AVCHROMA_LOC_NB, AVCHROMA_LOC_UNSPECIFIED);
}

ColorDescription describeColor(const AVCodecParameters& parameters) {
    ColorDescription color;
    if (parameters.color_primaries != AVCOL_PRI_UNSPECIFIED)
        color.primaries = nameOrNothing(av_color_primaries_name(parameters.color_primaries));
    if (parameters.color_trc != AVCOL_TRC_UNSPECIFIED)
        color.transfer = nameOrNothing(av_color_transfer_name(parameters.color_trc));
    if (parameters.color_space != AVCOL_SPC_UNSPECIFIED)
        color.matrix = nameOrNothing(av_color_space_name(parameters.color_space));
    // The pixel format comes from the bitstream, but since FFmpeg 9.0 the range tag comes from the
    // container first. The decoder goes by the bitstream.
    if (isFullRange(parameters.format))
        color.range = nameOrNothing(av_color_range_name(AVCOL_RANGE_JPEG));
    else if (parameters.color_range != AVCOL_RANGE_UNSPECIFIED)
        color.range = nameOrNothing(av_color_range_name(parameters.color_range));
    if (parameters.chroma_location != AVCHROMA_LOC_UNSPECIFIED)
        color.chromaLocation = nameOrNothing(av_chroma_location_name(parameters.chroma_location));
    return color;
}

AffineTransform displayTransform(const AVStream& stream) {
    const auto data = sideData(stream, AV_PKT_DATA_DISPLAYMATRIX);
    std::array<std::int32_t, 9> matrix = {};
    if (data.size() < sizeof matrix)
        return {};
    std::memcpy(matrix.data(), data.data(), sizeof matrix);
    constexpr double kOne = 65536;
    const AffineTransform transform{matrix[0] / kOne, matrix[1] / kOne, matrix[3] / kOne,
                                    matrix[4] / kOne, matrix[6] / kOne, matrix[7] / kOne};
    // A singular matrix would collapse the picture to a line: it is ignored.
    return transform.determinant() == 0 ? AffineTransform{} : transform;
}

float nominalFrameRate(const AVStream& stream) {
    const auto rate = [](AVRational fps) { return fps.num > 0 && fps.den > 0 ? av_q2d(fps) : 0.0; };
    const double average = rate(stream.avg_frame_rate);
    if (average > 0 && average <= kHighestFrameRate)
        return static_cast<float>(average);
    const double guessed = rate(stream.r_frame_rate);
    return guessed <= kHighestGuessedFrameRate ? static_cast<float>(guessed) : 0.0F;
}

void describeVideo(SourceTrack& track, AVFormatContext& context, AVStream& stream) {
    const AVCodecParameters& parameters = *stream.codecpar;
    AssetTrack& facts = track.facts;
    facts.codedWidth = parameters.width;
    facts.codedHeight = parameters.height;
    track.sampleAspectRatio = av_guess_sample_aspect_ratio(&context, &stream, nullptr);
    const bool hasAspect = track.sampleAspectRatio.num > 0 && track.sampleAspectRatio.den > 0;
    const double aspect = hasAspect ? av_q2d(track.sampleAspectRatio) : 1.0;
    facts.naturalSize = {parameters.width * aspect, static_cast<double>(parameters.height)};
    facts.preferredTransform = displayTransform(stream);
    facts.nominalFrameRate = nominalFrameRate(stream);
    track.averageFrameRate = stream.avg_frame_rate;
    facts.color = describeColor(parameters);
    const auto format = static_cast<AVPixelFormat>(parameters.format);
    if (const AVPixFmtDescriptor* descriptor = av_pix_fmt_desc_get(format)) {
        facts.pixelFormat = descriptor->name;
        facts.bitsPerComponent = descriptor->comp[0].depth;
    }
}

void describeAudio(SourceTrack& track, const AVStream& stream) {
    track.facts.channels = stream.codecpar->ch_layout.nb_channels;
    track.facts.sampleRate = stream.codecpar->sample_rate;
}

} // namespace

bool isUsableStream(const AVFormatContext& context, const AVStream& stream) {
    const AVCodecParameters& parameters = *stream.codecpar;
    if (parameters.codec_type == AVMEDIA_TYPE_VIDEO) {
        constexpr int kPictures = AV_DISPOSITION_ATTACHED_PIC | AV_DISPOSITION_TIMED_THUMBNAILS |
                                  AV_DISPOSITION_STILL_IMAGE;
        return !(stream.disposition & kPictures) &&
               !containerTraits(*context.iformat).isStillPicture;
    }
    return parameters.codec_type == AVMEDIA_TYPE_AUDIO && parameters.sample_rate > 0 &&
           parameters.ch_layout.nb_channels > 0 && avcodec_find_decoder(parameters.codec_id);
}

SourceTrack describeStream(AVFormatContext& context, AVStream& stream) {
    dropUnknownColors(*stream.codecpar);
    SourceTrack track;
    track.timeBase = stream.time_base;
    track.disposition = stream.disposition;
    track.parameters.reset(allocated(avcodec_parameters_alloc()));
    check(avcodec_parameters_copy(track.parameters.get(), stream.codecpar));
    AVDictionary* metadata = nullptr;
    check(av_dict_copy(&metadata, stream.metadata, 0));
    track.metadata.reset(metadata);
    track.facts.streamIndex = stream.index;
    track.facts.codec = avcodec_get_name(stream.codecpar->codec_id);
    if (const AVDictionaryEntry* entry = av_dict_get(metadata, "language", nullptr, 0))
        track.facts.language = entry->value;
    const bool isVideo = stream.codecpar->codec_type == AVMEDIA_TYPE_VIDEO;
    track.facts.type = isVideo ? MediaType::video : MediaType::audio;
    if (isVideo)
        describeVideo(track, context, stream);
    else
        describeAudio(track, stream);
    return track;
}

} // namespace media::ffmpeg
