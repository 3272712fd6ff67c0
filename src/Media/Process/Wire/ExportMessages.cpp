#include "Media/Process/Wire/ExportMessages.h"

#include "Media/Process/Wire/MediaMessages.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <utility>
#include <variant>

namespace media::process {

namespace {

constexpr double kMostNumber = std::numeric_limits<double>::max();
/// More than a file has tracks, and than an encoder has parameters.
constexpr std::uint32_t kMostTracks = 1024;
constexpr std::uint32_t kMostParameters = 1024;

void putTrack(MessageWriter& writer, const CompositionTrack& track) {
    writer.put(track.source.streamIndex);
    put(writer, track.range);
    put(writer, track.preferredTransform);
}

CompositionTrack getTrack(MessageReader& reader, const Asset& asset, MediaType type) {
    const auto index = reader.get<int>();
    const std::vector<AssetTrack> tracks = asset.tracks(type);
    const auto source = std::ranges::find(tracks, index, &AssetTrack::streamIndex);
    if (source == tracks.end())
        throw BadMessage();
    CompositionTrack track;
    track.source = *source;
    track.range = getTimeRange(reader);
    track.preferredTransform = getTransform(reader);
    return track;
}

struct PutValue {
    MessageWriter& writer;

    void operator()(int value) const { writer.put(value); }

    void operator()(double value) const { writer.put(value); }

    void operator()(const std::pair<int, int>& value) const {
        writer.put(value.first);
        writer.put(value.second);
    }

    void operator()(const std::string& value) const { writer.put(std::string_view(value)); }
};

EncoderParameter::Value getValue(MessageReader& reader) {
    constexpr std::uint32_t kLast = std::variant_size_v<EncoderParameter::Value> - 1;
    switch (reader.getWithin<std::uint32_t>(0, kLast)) {
    case 0:
        return reader.get<int>();
    case 1:
        return reader.getWithin<double>(-kMostNumber, kMostNumber);
    case 2: {
        const int first = reader.get<int>();
        return std::pair(first, reader.get<int>());
    }
    default:
        return reader.getText();
    }
}

void putParameters(MessageWriter& writer, const EncoderParameters& parameters) {
    writer.put(static_cast<std::uint32_t>(parameters.size()));
    for (const EncoderParameter& parameter : parameters) {
        writer.put(std::string_view(parameter.name));
        writer.put(static_cast<std::uint32_t>(parameter.value.index()));
        std::visit(PutValue{writer}, parameter.value);
    }
}

EncoderParameters getParameters(MessageReader& reader) {
    EncoderParameters parameters;
    const auto count = reader.getWithin<std::uint32_t>(0, kMostParameters);
    for (std::uint32_t i = 0; i < count; ++i) {
        std::string name = reader.getText();
        parameters.push_back({std::move(name), getValue(reader)});
    }
    return parameters;
}

EncoderPreset getPreset(MessageReader& reader) {
    constexpr auto kLast = static_cast<std::int32_t>(EncoderPreset::placebo);
    return static_cast<EncoderPreset>(reader.getWithin<std::int32_t>(0, kLast));
}

int getEvenSide(MessageReader& reader) {
    constexpr int kMostSide = 1 << 16;
    const int side = reader.getWithin<int>(2, kMostSide);
    if (side != evenAtLeastTwo(side))
        throw BadMessage();
    return side;
}

void putBool(MessageWriter& writer, bool value) {
    writer.put(static_cast<std::uint8_t>(value ? 1 : 0));
}

} // namespace

void put(MessageWriter& writer, const Composition& composition) {
    putBool(writer, composition.videoTrack.has_value());
    if (composition.videoTrack)
        putTrack(writer, *composition.videoTrack);
    writer.put(static_cast<std::uint32_t>(composition.audioTracks.size()));
    for (const CompositionTrack& track : composition.audioTracks)
        putTrack(writer, track);
}

Composition getComposition(MessageReader& reader, std::shared_ptr<const Asset> asset) {
    Composition composition;
    if (reader.getBool())
        composition.videoTrack = getTrack(reader, *asset, MediaType::video);
    const auto count = reader.getWithin<std::uint32_t>(0, kMostTracks);
    for (std::uint32_t i = 0; i < count; ++i)
        composition.audioTracks.push_back(getTrack(reader, *asset, MediaType::audio));
    composition.asset = std::move(asset);
    return composition;
}

void put(MessageWriter& writer, const std::optional<VideoComposition>& videoComposition) {
    putBool(writer, videoComposition.has_value());
    if (!videoComposition)
        return;
    put(writer, videoComposition->transform);
    writer.put(videoComposition->renderWidth);
    writer.put(videoComposition->renderHeight);
    put(writer, videoComposition->frameDuration);
}

std::optional<VideoComposition> getVideoComposition(MessageReader& reader) {
    if (!reader.getBool())
        return std::nullopt;
    VideoComposition composition;
    composition.transform = getTransform(reader);
    composition.renderWidth = getEvenSide(reader);
    composition.renderHeight = getEvenSide(reader);
    composition.frameDuration = getTime(reader);
    return composition;
}

void put(MessageWriter& writer, const EncoderSettings& settings) {
    writer.put(settings.h264Preset);
    putParameters(writer, settings.h264Parameters);
    writer.put(settings.h264Crf);
    writer.put(settings.h264ReducedCrf);
    writer.put(settings.hevcPreset);
    putParameters(writer, settings.hevcParameters);
    writer.put(settings.hevcCrf);
}

EncoderSettings getSettings(MessageReader& reader) {
    EncoderSettings settings;
    settings.h264Preset = getPreset(reader);
    settings.h264Parameters = getParameters(reader);
    settings.h264Crf = reader.getWithin<double>(-kMostNumber, kMostNumber);
    settings.h264ReducedCrf = reader.getWithin<double>(-kMostNumber, kMostNumber);
    settings.hevcPreset = getPreset(reader);
    settings.hevcParameters = getParameters(reader);
    settings.hevcCrf = reader.getWithin<double>(-kMostNumber, kMostNumber);
    return settings;
}

void put(MessageWriter& writer, const std::optional<ExportForecast>& forecast) {
    putBool(writer, forecast.has_value());
    if (!forecast)
        return;
    writer.put(forecast->bytes);
    writer.put(forecast->seconds);
}

std::optional<ExportForecast> getForecast(MessageReader& reader) {
    if (!reader.getBool())
        return std::nullopt;
    ExportForecast forecast;
    forecast.bytes = reader.getWithin<std::int64_t>(0, std::numeric_limits<std::int64_t>::max());
    forecast.seconds = reader.getWithin<double>(0, kMostNumber);
    return forecast;
}

} // namespace media::process
