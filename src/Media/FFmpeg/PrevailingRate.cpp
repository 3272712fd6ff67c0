#include "Media/FFmpeg/PrevailingRate.h"

#include "Media/FFmpeg/ContainerTraits.h"

#include <algorithm>
#include <cstdlib>

namespace media::ffmpeg {

namespace {

/// Distances that differ from the middle one by less than this part of it are the same one: clocks
/// of cameras are not even, and containers round.
constexpr std::int64_t kToleranceDivisor = 10;
/// How many of all distances have to be the same for the others to be gaps.
constexpr double kPrevailingPart = 0.75;
constexpr std::size_t kFewestDistances = 8;
/// Above this it is bursts that prevail, not a rate: a grid of it would be repetitions for the
/// most.
constexpr double kHighestRate = 240;

/// Stops at the end of the range: files can hold any timestamps.
std::int64_t between(Timestamp earlier, Timestamp later) {
    return av_sat_sub64(later.value(), earlier.value());
}

std::vector<std::int64_t> distances(std::vector<Timestamp> times) {
    std::ranges::sort(times);
    std::vector<std::int64_t> result;
    for (std::size_t i = 1; i < times.size(); ++i) {
        if (times[i] > times[i - 1])
            result.push_back(between(times[i - 1], times[i]));
    }
    return result;
}

} // namespace

std::optional<double> rateBetweenGaps(std::vector<Timestamp> times, AVRational timeBase) {
    std::vector<std::int64_t> all = distances(std::move(times));
    if (all.size() < kFewestDistances)
        return std::nullopt;
    const auto middle = all.begin() + static_cast<std::ptrdiff_t>(all.size() / 2);
    std::ranges::nth_element(all, middle);
    const std::int64_t usual = *middle;
    const std::int64_t tolerance = std::max<std::int64_t>(1, usual / kToleranceDivisor);
    std::size_t count = 0;
    double sum = 0;
    for (const std::int64_t distance : all) {
        if (std::abs(distance - usual) <= tolerance) {
            ++count;
            sum += static_cast<double>(distance);
        }
    }
    if (count == all.size() ||
        static_cast<double>(count) < kPrevailingPart * static_cast<double>(all.size()))
        return std::nullopt;
    const double rate = static_cast<double>(count) / (sum * av_q2d(timeBase));
    return rate <= kHighestRate ? std::optional(rate) : std::nullopt;
}

std::optional<std::int64_t> constantDistance(std::vector<Timestamp> times) {
    std::ranges::sort(times);
    const auto differs = [&](Timestamp a, Timestamp b) {
        return between(a, b) != between(times[0], times[1]);
    };
    if (times.size() < 2 || times[0] == times[1] ||
        std::ranges::adjacent_find(times, differs) != times.end())
        return std::nullopt;
    return between(times[0], times[1]);
}

std::vector<Timestamp> indexedTimes(const AVFormatContext& context, AVStream& stream) {
    std::vector<Timestamp> times;
    if (!containerTraits(*context.iformat).indexesEverySample)
        return times;
    const int count = avformat_index_get_entries_count(&stream);
    times.reserve(static_cast<std::size_t>(std::max(count, 0)));
    for (int i = 0; i < count; ++i) {
        const AVIndexEntry* entry = avformat_index_get_entry(&stream, i);
        if (!(entry->flags & AVINDEX_DISCARD_FRAME))
            times.emplace_back(entry->timestamp);
    }
    return times;
}

} // namespace media::ffmpeg
