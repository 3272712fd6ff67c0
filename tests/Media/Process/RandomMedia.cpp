#include "Media/Process/RandomMedia.h"

#include <cstdint>
#include <memory>

namespace media::process {

Time randomTime(RandomValues& values) {
    const auto value = values.number<std::int64_t>();
    return {value, values.number<std::int32_t>(0)};
}

Ticks randomTicks(RandomValues& values) {
    return Ticks(values.number<std::int64_t>());
}

TickRange randomTickRange(RandomValues& values) {
    const Ticks begin = randomTicks(values);
    return {begin, randomTicks(values)};
}

AffineTransform randomTransform(RandomValues& values) {
    AffineTransform transform;
    auto& [a, b, c, d, tx, ty] = transform;
    for (double* value : {&a, &b, &c, &d, &tx, &ty})
        *value = values.number<double>();
    return transform;
}

AssetTrack randomTrack(RandomValues& values) {
    constexpr double kMostSide = std::numeric_limits<int>::max();
    AssetTrack track;
    track.type = values.isHeads() ? MediaType::video : MediaType::audio;
    track.streamIndex = values.number<int>(0);
    track.codec = values.text();
    track.language = values.text();
    track.startTime = randomTime(values);
    const double leastSide = track.type == MediaType::video ? 1 : 0;
    track.naturalSize.width = values.number<double>(leastSide, kMostSide);
    track.naturalSize.height = values.number<double>(leastSide, kMostSide);
    track.codedWidth = values.number<int>(0);
    track.codedHeight = values.number<int>(0);
    track.preferredTransform = randomTransform(values);
    track.nominalFrameRate = values.number<float>(0);
    track.frameDistance = randomTime(values);
    track.frameCount = values.number<std::int64_t>(0);
    track.pixelFormat = values.text();
    track.bitsPerComponent = values.number<int>(0, 64);
    auto& [primaries, transfer, matrix, range, chromaLocation] = track.color;
    for (std::string* text : {&primaries, &transfer, &matrix, &range, &chromaLocation})
        *text = values.text();
    track.channels = values.number<int>(0);
    track.sampleRate = values.number<int>(0);
    return track;
}

Failure randomFailure(RandomValues& values, int causes) {
    constexpr std::size_t kMostArguments = 8;
    Failure failure{
        static_cast<ErrorKind>(values.below(static_cast<std::size_t>(ErrorKind::count)))};
    for (std::size_t count = values.below(kMostArguments + 1); count > 0; --count)
        failure.arguments.push_back(values.text());
    if (causes > 0)
        failure.cause = std::make_shared<const Failure>(randomFailure(values, causes - 1));
    return failure;
}

} // namespace media::process
