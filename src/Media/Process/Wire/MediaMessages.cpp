#include "Media/Process/Wire/MediaMessages.h"

#include "Media/FFmpeg/Bounds.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <memory>
#include <utility>

namespace media::process {

namespace {

/// More than sentences have.
constexpr std::uint32_t kMostArguments = 8;
constexpr int kDeepestCause = 4;

/// Pictures and their parts may be as large as a video’s; pixels.
constexpr int kMostSide = 1 << 16;
/// More than lines are filled up with; pixels.
constexpr int kMostPadding = 64;

double getFinite(MessageReader& reader) {
    constexpr double kMost = std::numeric_limits<double>::max();
    return reader.getWithin<double>(-kMost, kMost);
}

void putArea(MessageWriter& writer, SharedArea& area) {
    auto memory = area.takeNew();
    writer.put(static_cast<std::uint8_t>(memory ? 1 : 0));
    if (memory)
        writer.put(std::move(*memory));
}

void getArea(MessageReader& reader, SharedArea& area) {
    if (reader.getBool())
        area = SharedArea(reader.getDescriptor());
}

void putBool(MessageWriter& writer, bool value) {
    writer.put(static_cast<std::uint8_t>(value ? 1 : 0));
}

Failure getFailure(MessageReader& reader, int depth) {
    Failure failure{reader.getEnum(ErrorKind::count)};
    const auto count = reader.getWithin<std::uint32_t>(0, kMostArguments);
    for (std::uint32_t i = 0; i < count; ++i)
        failure.arguments.push_back(reader.getText());
    if (reader.getBool()) {
        if (depth == 0)
            throw BadMessage();
        failure.cause = std::make_shared<const Failure>(getFailure(reader, depth - 1));
    }
    return failure;
}

void checkSides(int width, int height) {
    if (std::int64_t{width} * height > ffmpeg::kMostPixels)
        throw BadMessage();
}

} // namespace

void put(MessageWriter& writer, Time time) {
    writer.put(time.value);
    writer.put(time.timescale);
}

Time getTime(MessageReader& reader) {
    const auto value = reader.get<std::int64_t>();
    return {value, reader.getWithin<std::int32_t>(0, std::numeric_limits<std::int32_t>::max())};
}

void put(MessageWriter& writer, Ticks ticks) {
    writer.put(ticks.count());
}

Ticks getTicks(MessageReader& reader) {
    return Ticks(reader.get<std::int64_t>());
}

void put(MessageWriter& writer, const TimeRange& range) {
    put(writer, range.start);
    put(writer, range.end);
}

TimeRange getTimeRange(MessageReader& reader) {
    const Time start = getTime(reader);
    return {start, getTime(reader)};
}

void put(MessageWriter& writer, const TickRange& range) {
    put(writer, range.begin);
    put(writer, range.end);
}

TickRange getTickRange(MessageReader& reader) {
    const Ticks begin = getTicks(reader);
    return {begin, getTicks(reader)};
}

void put(MessageWriter& writer, const AffineTransform& transform) {
    for (const double value :
         {transform.a, transform.b, transform.c, transform.d, transform.tx, transform.ty})
        writer.put(value);
}

AffineTransform getTransform(MessageReader& reader) {
    AffineTransform transform;
    for (double* value :
         {&transform.a, &transform.b, &transform.c, &transform.d, &transform.tx, &transform.ty})
        *value = getFinite(reader);
    return transform;
}

void put(MessageWriter& writer, const AssetTrack& track) {
    putBool(writer, track.type == MediaType::video);
    writer.put(track.streamIndex);
    writer.put(std::string_view(track.codec));
    writer.put(std::string_view(track.language));
    put(writer, track.startTime);
    writer.put(track.naturalSize.width);
    writer.put(track.naturalSize.height);
    writer.put(track.codedWidth);
    writer.put(track.codedHeight);
    put(writer, track.preferredTransform);
    writer.put(track.nominalFrameRate);
    put(writer, track.frameDistance);
    writer.put(track.frameCount);
    writer.put(std::string_view(track.pixelFormat));
    writer.put(track.bitsPerComponent);
    for (const std::string* text :
         {&track.color.primaries, &track.color.transfer, &track.color.matrix, &track.color.range,
          &track.color.chromaLocation})
        writer.put(std::string_view(*text));
    writer.put(track.channels);
    writer.put(track.sampleRate);
}

AssetTrack getTrack(MessageReader& reader) {
    constexpr int kMostInt = std::numeric_limits<int>::max();
    AssetTrack track;
    track.type = reader.getBool() ? MediaType::video : MediaType::audio;
    track.streamIndex = reader.getWithin<int>(0, kMostInt);
    track.codec = reader.getText();
    track.language = reader.getText();
    track.startTime = getTime(reader);
    const bool isVideo = track.type == MediaType::video;
    track.naturalSize.width = reader.getWithin<double>(isVideo ? 1 : 0, kMostInt);
    track.naturalSize.height = reader.getWithin<double>(isVideo ? 1 : 0, kMostInt);
    track.codedWidth = reader.getWithin<int>(0, kMostInt);
    track.codedHeight = reader.getWithin<int>(0, kMostInt);
    track.preferredTransform = getTransform(reader);
    track.nominalFrameRate = reader.getWithin<float>(0, std::numeric_limits<float>::max());
    track.frameDistance = getTime(reader);
    track.frameCount = reader.getWithin<std::int64_t>(0, std::numeric_limits<std::int64_t>::max());
    track.pixelFormat = reader.getText();
    track.bitsPerComponent = reader.getWithin<int>(0, 64);
    for (std::string* text : {&track.color.primaries, &track.color.transfer, &track.color.matrix,
                              &track.color.range, &track.color.chromaLocation})
        *text = reader.getText();
    track.channels = reader.getWithin<int>(0, kMostInt);
    track.sampleRate = reader.getWithin<int>(0, kMostInt);
    return track;
}

void put(MessageWriter& writer, const Failure& failure) {
    writer.put(failure.kind);
    writer.put(static_cast<std::uint32_t>(failure.arguments.size()));
    for (const std::string& argument : failure.arguments)
        writer.put(std::string_view(argument));
    putBool(writer, failure.cause != nullptr);
    if (failure.cause)
        put(writer, *failure.cause);
}

Failure getFailure(MessageReader& reader) {
    return getFailure(reader, kDeepestCause);
}

void put(MessageWriter& writer, const playback::FrameSource::Goal& goal) {
    put(writer, goal.ticks);
    put(writer, goal.completeFrom);
    putBool(writer, goal.isUrgent);
    putBool(writer, goal.isBackward);
    put(writer, goal.shortestLeap);
    put(writer, goal.skipRenderingUntil);
}

playback::FrameSource::Goal getGoal(MessageReader& reader) {
    playback::FrameSource::Goal goal;
    goal.ticks = getTicks(reader);
    goal.completeFrom = getTicks(reader);
    goal.isUrgent = reader.getBool();
    goal.isBackward = reader.getBool();
    goal.shortestLeap = getTicks(reader);
    goal.skipRenderingUntil = getTicks(reader);
    return goal;
}

void put(MessageWriter& writer, playback::PreviewSize size) {
    writer.put(size.width);
    writer.put(size.height);
}

playback::PreviewSize getPreviewSize(MessageReader& reader) {
    constexpr int kMost = std::numeric_limits<int>::max();
    const int width = reader.getWithin<int>(0, kMost);
    return {width, reader.getWithin<int>(0, kMost)};
}

void put(MessageWriter& writer, SharedArea& area, const playback::CachedFrame& frame) {
    const std::span<const std::uint8_t> bytes = frame.picture->bytes();
    std::ranges::copy(bytes, area.ensure(bytes.size()).begin());
    putArea(writer, area);
    put(writer, frame.range);
    put(writer, frame.time);
    const PreviewPicture::Format& format = frame.picture->format();
    writer.put(format.width);
    writer.put(format.height);
    writer.put(format.kind);
    writer.put(format.chromaShift);
    writer.put(static_cast<std::int32_t>(format.matrix));
    putBool(writer, format.isFullRange);
}

playback::CachedFrame getFrame(MessageReader& reader, SharedArea& area) {
    getArea(reader, area);
    playback::CachedFrame frame;
    frame.range = getTickRange(reader);
    frame.time = getTime(reader);
    PreviewPicture::Format format;
    format.width = reader.getWithin<int>(1, kMostSide);
    format.height = reader.getWithin<int>(1, kMostSide);
    checkSides(format.width, format.height);
    format.kind = static_cast<PreviewPicture::Kind>(
        reader.getWithin<std::int32_t>(0, static_cast<std::int32_t>(PreviewPicture::Kind::rgb)));
    // Whoever shows the others reads all planes at full size.
    const bool hasChroma = format.kind == PreviewPicture::Kind::yuv;
    format.chromaShift = reader.getWithin<int>(0, hasChroma ? 1 : 0);
    format.matrix = static_cast<AVColorSpace>(reader.getWithin<std::int32_t>(0, AVCOL_SPC_NB - 1));
    format.isFullRange = reader.getBool();
    // A pixel has a byte at least: nothing is allocated for a picture that is not there.
    static_cast<void>(area.read(static_cast<std::size_t>(format.width) *
                                static_cast<std::size_t>(format.height)));
    auto picture = std::make_shared<PreviewPicture>(format);
    const std::span<std::uint8_t> bytes = picture->bytesToFill();
    std::ranges::copy(area.read(bytes.size()), bytes.begin());
    frame.picture = std::move(picture);
    return frame;
}

void put(MessageWriter& writer, SharedArea& area, const TimedImage& image) {
    const Image& picture = *image.image;
    std::ranges::copy(picture.pixels, area.ensure(picture.pixels.size()).begin());
    putArea(writer, area);
    put(writer, image.time);
    writer.put(picture.width);
    writer.put(picture.height);
    writer.put(picture.stride);
}

TimedImage getImage(MessageReader& reader, SharedArea& area) {
    constexpr int kBytesPerPixel = 4;
    getArea(reader, area);
    const Time time = getTime(reader);
    auto image = std::make_shared<Image>();
    image->width = reader.getWithin<int>(1, kMostSide);
    image->height = reader.getWithin<int>(1, kMostSide);
    checkSides(image->width, image->height);
    image->stride = reader.getWithin<int>(kBytesPerPixel * image->width,
                                          kBytesPerPixel * (image->width + kMostPadding));
    if (image->stride % kBytesPerPixel != 0)
        throw BadMessage();
    const std::size_t count =
        static_cast<std::size_t>(image->stride) * static_cast<std::size_t>(image->height);
    const std::span<const std::uint8_t> bytes = area.read(count);
    image->pixels.assign(bytes.begin(), bytes.end());
    return {std::move(image), time};
}

void put(MessageWriter& writer, SharedArea& area, std::span<const float> samples) {
    const std::span<std::uint8_t> room = area.ensure(samples.size_bytes());
    if (!room.empty())
        std::memcpy(room.data(), samples.data(), samples.size_bytes());
    putArea(writer, area);
    writer.put(std::uint64_t{samples.size()});
}

std::span<const float> getSamples(MessageReader& reader, SharedArea& area) {
    getArea(reader, area);
    // A second of the fastest sound in the most channels that there are.
    constexpr std::uint64_t kMostSamples = std::uint64_t{768'000} * 64;
    const auto count = reader.getWithin<std::uint64_t>(0, kMostSamples);
    if (count == 0)
        return {};
    const std::span<const std::uint8_t> bytes = area.read(count * sizeof(float));
    return {static_cast<const float*>(static_cast<const void*>(bytes.data())), count};
}

} // namespace media::process
