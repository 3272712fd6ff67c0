#include "Media/Playback/ReadAhead.h"

#include <algorithm>

namespace media::playback {

namespace {

constexpr double kLongestReach = 2.0 * Ticks::kPerSecond;
/// Around the playhead one reach ahead and three behind are kept, around each of two points of
/// interest three quarters of one: no more than the cache can hold with room to spare. Where the
/// playhead was moved backward it is half a reach ahead and three and a half behind, and while it
/// moves there nothing else than what is behind, as far as there is room: the more each way from a
/// key frame does for, the fewer ways there are.
constexpr double kReachesInCache = 6;
/// A range so far away from where the playhead has gone is given up.
constexpr Ticks kFarAway{4 * Ticks::kPerSecond};
/// Frames that are decoded for one state of things, however many the cache can hold.
constexpr double kMostFrames = 1000;

/// The parts of the cache around one state of things, and what is missing in them.
struct Neighbourhood {
    const FrameCache& cache;
    const Surroundings& surroundings;
    Ticks reach;

    [[nodiscard]] bool isBackward() const { return surroundings.direction < 0; }

    [[nodiscard]] Ticks reaches(double count) const {
        return Ticks(static_cast<std::int64_t>(count * static_cast<double>(reach.count())));
    }

    [[nodiscard]] std::optional<TickRange> between(Ticks first, Ticks last) const {
        first = std::max(first, Ticks(0));
        last = std::min(last, surroundings.last);
        const Ticks missing = cache.coveredUntil(first, surroundings.size);
        return missing < last ? std::optional(TickRange{missing, last + Ticks(1)}) : std::nullopt;
    }

    [[nodiscard]] std::optional<TickRange> ahead() const {
        return between(surroundings.focus, surroundings.focus + reaches(isBackward() ? 0.5 : 1));
    }

    /// Getting there costs the way from a key frame: so it is done rarely, and then for more.
    [[nodiscard]] std::optional<TickRange> behind() const {
        const Ticks known = knownBehind();
        if (known <= std::max(surroundings.focus - reaches(isBackward() ? 2 : 1), Ticks(0)))
            return std::nullopt;
        const Ticks most = surroundings.focus - reaches(isBackward() ? 3.5 : 3);
        return TickRange{std::max(most, Ticks(0)), known};
    }

    /// The same where the playhead moves there: early, since the frames that it comes to first come
    /// last, and all that there will be room for by then.
    [[nodiscard]] std::optional<TickRange> farBehind() const {
        const Ticks known = knownBehind();
        if (known <= std::max(surroundings.focus - reaches(5), Ticks(0)))
            return std::nullopt;
        return TickRange{std::max(known - reaches(5), Ticks(0)), known};
    }

    [[nodiscard]] Ticks knownBehind() const {
        return cache.coveredFrom(surroundings.focus, surroundings.size);
    }

    [[nodiscard]] std::optional<TickRange> around(Ticks point) const {
        return between(point - reaches(0.25), point + reaches(0.5));
    }
};

} // namespace

std::optional<TickRange> framesToReadAhead(const FrameCache& cache,
                                           const Surroundings& surroundings) {
    const double most =
        surroundings.frameTicks * cache.capacityFrames(surroundings.size) / kReachesInCache;
    const auto reach = static_cast<std::int64_t>(std::min(most, kLongestReach));
    if (static_cast<double>(reach) < 4 * surroundings.frameTicks)
        return std::nullopt;
    const Neighbourhood neighbourhood{cache, surroundings, Ticks(reach)};
    const bool isBackward = neighbourhood.isBackward();
    if (surroundings.isMovingBack())
        return neighbourhood.farBehind();
    if (const auto first = isBackward ? neighbourhood.behind() : neighbourhood.ahead())
        return first;
    if (const auto second = isBackward ? neighbourhood.ahead() : neighbourhood.behind())
        return second;
    for (const Ticks point : cache.pointsOfInterest()) {
        if (const auto range = neighbourhood.around(point))
            return range;
    }
    return std::nullopt;
}

void ReadAhead::restart() {
    m_range.reset();
    m_framesLeft = 0;
    m_surroundings = {};
}

void ReadAhead::update(std::uint64_t version, const Surroundings& surroundings) {
    const bool isNew = version != m_version || surroundings.focus != m_surroundings.focus ||
                       surroundings.size != m_surroundings.size ||
                       surroundings.isMoving != m_surroundings.isMoving;
    m_version = version;
    m_surroundings = surroundings;
    if (!isNew)
        return;
    const double frames = m_cache.capacityFrames(surroundings.size);
    const Ticks focus = surroundings.focus;
    // What is read behind a playhead that moves there may be as far away as the cache reaches.
    const Ticks most(
        static_cast<std::int64_t>(std::min(frames, kMostFrames) * surroundings.frameTicks));
    const Ticks farBehind = surroundings.isMovingBack() ? std::max(most, kFarAway) : kFarAway;
    if (m_range && (focus < m_range->begin - kFarAway || focus > m_range->end + farBehind))
        m_range.reset();
    m_framesLeft = static_cast<int>(std::min(frames, kMostFrames));
}

bool ReadAhead::hasRoom(Ticks position) {
    const auto end = endBehind();
    const bool isThere = end && m_range->begin <= position && position < *end;
    if (!isThere || m_cache.hasRoomAt(position, m_surroundings.size))
        return true;
    if (m_surroundings.isMovingBack())
        return false;
    m_range.reset();
    return true;
}

std::optional<Ticks> ReadAhead::next() {
    if (isDone())
        return std::nullopt;
    if (!m_range)
        m_range = framesToReadAhead(m_cache, m_surroundings);
    if (!m_range) {
        m_framesLeft = 0;
        return std::nullopt;
    }
    return m_range->begin;
}

std::optional<Ticks> ReadAhead::endBehind() const {
    const bool isBehind = m_range && m_range->begin < m_surroundings.focus;
    return isBehind ? std::optional(m_range->end) : std::nullopt;
}

bool ReadAhead::leadsTo(Ticks ticks, Ticks position) const {
    return !isDone() && m_range && m_range->holds(ticks) && m_range->begin <= position &&
           position <= ticks;
}

void ReadAhead::arrive(Ticks end) {
    --m_framesLeft;
    if (!m_range)
        return;
    m_range->begin = m_cache.coveredUntil(end, m_surroundings.size);
    if (m_range->isEmpty())
        m_range.reset();
}

void ReadAhead::giveUp() {
    m_framesLeft = 0;
    m_range.reset();
}

} // namespace media::playback
