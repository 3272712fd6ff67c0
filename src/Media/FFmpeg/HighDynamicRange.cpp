#include "Media/FFmpeg/HighDynamicRange.h"

#include "Media/FFmpeg/EncoderOptions.h"
#include "Media/FFmpeg/LibavReleases.h"

#include <cmath>
#include <cstring>
#include <string>
#include <utility>

namespace media::ffmpeg {

namespace {

/// One kind of metadata, from the container or else from the picture.
template<typename Data>
std::optional<Data> described(const AVStream& stream, AVPacketSideDataType packetType,
                              const AVFrame& picture, AVFrameSideDataType frameType) {
    std::span<const std::uint8_t> bytes = sideData(stream, packetType);
    if (bytes.empty()) {
        if (const AVFrameSideData* data = av_frame_get_side_data(&picture, frameType))
            bytes = {data->data, data->size};
    }
    if (bytes.size() < sizeof(Data))
        return std::nullopt;
    Data result;
    std::memcpy(&result, bytes.data(), sizeof result);
    return result;
}

/// In the units of SMPTE ST 2086 metadata: chromaticities in 1/50000, luminances in 1/10000 cd/m².
std::string counted(AVRational value, int unit) {
    return textOf(static_cast<int>(std::lround(av_q2d(value) * unit)));
}

std::string pair(const char* name, AVRational first, AVRational second, int unit) {
    return std::string(name) + "(" + counted(first, unit) + "," + counted(second, unit) + ")";
}

template<typename Data>
void attachOne(AVStream& stream, AVPacketSideDataType type, const std::optional<Data>& data) {
    if (!data)
        return;
    std::memcpy(addSideData(stream, type, sizeof(Data)), &*data, sizeof(Data));
}

} // namespace

HighDynamicRange describeDynamicRange(const AVStream& stream, const AVFrame& picture) {
    return {described<AVMasteringDisplayMetadata>(stream, AV_PKT_DATA_MASTERING_DISPLAY_METADATA,
                                                  picture,
                                                  AV_FRAME_DATA_MASTERING_DISPLAY_METADATA),
            described<AVContentLightMetadata>(stream, AV_PKT_DATA_CONTENT_LIGHT_LEVEL, picture,
                                              AV_FRAME_DATA_CONTENT_LIGHT_LEVEL)};
}

EncoderParameters x265Parameters(const HighDynamicRange& range) {
    EncoderParameters parameters;
    if (const auto& display = range.masteringDisplay;
        display && display->has_primaries && display->has_luminance) {
        constexpr int kChromaticity = 50'000;
        constexpr int kLuminance = 10'000;
        const auto& [red, green, blue] = display->display_primaries;
        parameters.push_back(
            {"master-display",
             pair("G", green[0], green[1], kChromaticity) +
                 pair("B", blue[0], blue[1], kChromaticity) +
                 pair("R", red[0], red[1], kChromaticity) +
                 pair("WP", display->white_point[0], display->white_point[1], kChromaticity) +
                 pair("L", display->max_luminance, display->min_luminance, kLuminance)});
    }
    if (range.lightLevel) {
        parameters.push_back({"max-cll", std::pair(static_cast<int>(range.lightLevel->MaxCLL),
                                                   static_cast<int>(range.lightLevel->MaxFALL))});
    }
    if (!parameters.empty())
        parameters.insert(parameters.begin(), {"hdr10", 1});
    return parameters;
}

void attach(AVStream& stream, const HighDynamicRange& range) {
    attachOne(stream, AV_PKT_DATA_MASTERING_DISPLAY_METADATA, range.masteringDisplay);
    attachOne(stream, AV_PKT_DATA_CONTENT_LIGHT_LEVEL, range.lightLevel);
}

} // namespace media::ffmpeg
