#include "Media/Playback/Foresight.h"

#include <algorithm>

namespace media::playback {

namespace {

constexpr double kLongestReach = 2.0 * kComparisonTimescale;
/// Around the playhead one reach ahead and two behind are kept, around each of two points of
/// interest three quarters of one: no more than the cache can hold with room to spare.
constexpr double kReachesInCache = 6;

struct Need {
    const FrameCache& cache;
    const Outlook& outlook;
    std::int64_t reach;

    [[nodiscard]] std::optional<FillRange> between(std::int64_t first, std::int64_t last) const {
        first = std::max<std::int64_t>(first, 0);
        last = std::min(last, outlook.lastTicks);
        const std::int64_t missing = cache.coveredUntil(first, outlook.size);
        return missing < last ? std::optional(FillRange{missing, last}) : std::nullopt;
    }

    [[nodiscard]] std::optional<FillRange> ahead() const {
        return between(outlook.focus, outlook.focus + reach);
    }

    /// Getting there costs the way from a key frame: so it is done rarely, and then for more.
    [[nodiscard]] std::optional<FillRange> behind() const {
        const std::int64_t known = cache.coveredFrom(outlook.focus, outlook.size);
        if (known <= std::max<std::int64_t>(outlook.focus - reach, 0))
            return std::nullopt;
        return FillRange{std::max<std::int64_t>(outlook.focus - 2 * reach, 0), known - 1};
    }

    [[nodiscard]] std::optional<FillRange> around(std::int64_t point) const {
        return between(point - reach / 4, point + reach / 2);
    }
};

} // namespace

double framesInCache(const FrameCache& cache, ImageSize size) {
    // Most sources have chroma for every fourth pixel.
    const double bytes = 1.5 * size.width * size.height;
    return static_cast<double>(cache.capacityBytes()) / std::max(bytes, 1.0);
}

std::optional<FillRange> nextFill(const FrameCache& cache, const Outlook& outlook) {
    const double most = outlook.frameTicks * framesInCache(cache, outlook.size) / kReachesInCache;
    const Need need{cache, outlook, static_cast<std::int64_t>(std::min(most, kLongestReach))};
    if (static_cast<double>(need.reach) < 4 * outlook.frameTicks)
        return std::nullopt;
    const auto first = outlook.direction < 0 ? need.behind() : need.ahead();
    if (first)
        return first;
    if (const auto second = outlook.direction < 0 ? need.ahead() : need.behind())
        return second;
    for (const std::int64_t point : cache.pointsOfInterest()) {
        if (const auto range = need.around(point))
            return range;
    }
    return std::nullopt;
}

} // namespace media::playback
