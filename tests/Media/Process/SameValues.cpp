#include "Media/Process/SameValues.h"

#include <algorithm>
#include <tuple>

namespace media::process {

namespace {

bool isSameColor(const ColorDescription& a, const ColorDescription& b) {
    const auto parts = [](const ColorDescription& color) {
        const auto& [primaries, transfer, matrix, range, chromaLocation] = color;
        return std::tie(primaries, transfer, matrix, range, chromaLocation);
    };
    return parts(a) == parts(b);
}

bool isSamePart(const CompositionTrack& a, const CompositionTrack& b) {
    const auto& [source, range, transform] = a;
    return isSame(source, b.source) && isSame(range, b.range) && transform == b.preferredTransform;
}

bool areSame(const EncoderParameters& a, const EncoderParameters& b) {
    return std::ranges::equal(a, b, [](const EncoderParameter& one, const EncoderParameter& other) {
        const auto& [name, value] = one;
        return name == other.name && value == other.value;
    });
}

} // namespace

bool isSame(Time a, Time b) {
    const auto [value, timescale] = a;
    return value == b.value && timescale == b.timescale;
}

bool isSame(const TimeRange& a, const TimeRange& b) {
    const auto& [start, end] = a;
    return isSame(start, b.start) && isSame(end, b.end);
}

bool isSame(const AssetTrack& a, const AssetTrack& b) {
    const auto& [type, streamIndex, codec, language, startTime, naturalSize, codedWidth,
                 codedHeight, transform, frameRate, frameDistance, frameCount, pixelFormat, bits,
                 color, channels, sampleRate] = a;
    return type == b.type && streamIndex == b.streamIndex && codec == b.codec &&
           language == b.language && isSame(startTime, b.startTime) &&
           naturalSize == b.naturalSize && codedWidth == b.codedWidth &&
           codedHeight == b.codedHeight && transform == b.preferredTransform &&
           frameRate == b.nominalFrameRate && isSame(frameDistance, b.frameDistance) &&
           frameCount == b.frameCount && pixelFormat == b.pixelFormat &&
           bits == b.bitsPerComponent && isSameColor(color, b.color) && channels == b.channels &&
           sampleRate == b.sampleRate;
}

bool isSame(const Failure& a, const Failure& b) {
    const auto& [kind, arguments, cause] = a;
    if (kind != b.kind || arguments != b.arguments || (cause == nullptr) != (b.cause == nullptr))
        return false;
    return !cause || isSame(*cause, *b.cause);
}

bool isSame(const playback::FrameSource::Goal& a, const playback::FrameSource::Goal& b) {
    const auto parts = [](const playback::FrameSource::Goal& goal) {
        const auto& [ticks, completeFrom, isUrgent, isBackward, shortestLeap, skipUntil] = goal;
        return std::tie(ticks, completeFrom, isUrgent, isBackward, shortestLeap, skipUntil);
    };
    return parts(a) == parts(b);
}

bool isSame(const playback::CachedFrame& a, const playback::CachedFrame& b) {
    const auto& [range, time, picture] = a;
    const auto parts = [](const PreviewPicture::Format& format) {
        const auto& [width, height, kind, chromaShift, matrix, isFullRange] = format;
        return std::tie(width, height, kind, chromaShift, matrix, isFullRange);
    };
    return range == b.range && isSame(time, b.time) &&
           parts(picture->format()) == parts(b.picture->format()) &&
           std::ranges::equal(picture->bytes(), b.picture->bytes());
}

bool isSame(const TimedImage& a, const TimedImage& b) {
    const auto parts = [](const Image& image) {
        const auto& [width, height, stride, pixels] = image;
        return std::tie(width, height, stride, pixels);
    };
    const auto& [image, time] = a;
    return isSame(time, b.time) && parts(*image) == parts(*b.image);
}

bool isSame(const Composition& a, const Composition& b) {
    const auto& [asset, videoTrack, audioTracks] = a;
    if (videoTrack.has_value() != b.videoTrack.has_value())
        return false;
    return (!videoTrack || isSamePart(*videoTrack, *b.videoTrack)) &&
           std::ranges::equal(audioTracks, b.audioTracks, isSamePart);
}

bool isSame(const VideoComposition& a, const VideoComposition& b) {
    const auto& [transform, width, height, frameDuration] = a;
    return transform == b.transform && width == b.renderWidth && height == b.renderHeight &&
           isSame(frameDuration, b.frameDuration);
}

bool isSame(const EncoderSettings& a, const EncoderSettings& b) {
    const auto& [h264Preset, h264Parameters, h264Crf, h264ReducedCrf, hevcPreset, hevcParameters,
                 hevcCrf] = a;
    return h264Preset == b.h264Preset && areSame(h264Parameters, b.h264Parameters) &&
           h264Crf == b.h264Crf && h264ReducedCrf == b.h264ReducedCrf &&
           hevcPreset == b.hevcPreset && areSame(hevcParameters, b.hevcParameters) &&
           hevcCrf == b.hevcCrf;
}

} // namespace media::process
