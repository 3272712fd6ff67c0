#include "Media/Reading/KeyFrameSearch.h"

#include <algorithm>

namespace media {

namespace {

/// Without an index to say where the key frames are, decoding on is taken to be cheaper than
/// moving for targets this close.
constexpr Ticks kNear(2 * Ticks::kPerSecond);
/// The first step back when a container lands behind the frame that was asked for; each further
/// step is four times as long.
constexpr Ticks kFirstStepBack(Ticks::kPerSecond / 2);
/// How much more than needed is decoded rather than looked for a shorter way.
constexpr Ticks kLongestDetour(2 * Ticks::kPerSecond);

} // namespace

KeyFrameSearch::KeyFrameSearch(int streamIndex, const TrackClock& clock, ffmpeg::Demuxer& demuxer,
                               DecodingRun& run)
    : m_streamIndex(streamIndex), m_clock(clock), m_demuxer(demuxer), m_run(run) {}

std::optional<Ticks> KeyFrameSearch::keyFrameBefore(Ticks ticks) const {
    const auto dts = m_demuxer.keyFrameBefore(m_streamIndex, m_clock.timestampAt(ticks));
    return dts ? std::optional(m_clock.ticksAt(*dts)) : std::nullopt;
}

bool KeyFrameSearch::hasKeyFrameWithin(Ticks earliest, Ticks latest) const {
    const auto key = keyFrameBefore(latest);
    return key && *key >= earliest;
}

bool KeyFrameSearch::isReachedByDecodingOn(Ticks ticks, Ticks shortestLeap) const {
    const std::optional<Ticks> next = m_run.nextTicks();
    if (!next || ticks < *next || !m_run.skipPolicy().isCompleteFrom(ticks))
        return false;
    const Ticks last = m_run.frames().empty() ? *next : m_run.frames().back().ticks;
    if (m_run.isDrained() || last > ticks)
        return true;
    // Among packets of which no picture comes, the search goes on where it stands.
    const ffmpeg::LatestPackets& taken = m_run.feed().taken();
    if (taken.areAllAfter(last) && ticks - taken.latest() <= kNear)
        return true;
    const auto key = m_demuxer.statesPresentationTimes() ? keyFrameBefore(ticks) : std::nullopt;
    const auto lastDts = m_run.feed().lastDts();
    if (key && lastDts)
        return *key <= m_clock.ticksAt(*lastDts) + shortestLeap;
    return ticks - last <= kNear;
}

void KeyFrameSearch::beginAt(Ticks ticks, Ticks latest, const std::stop_token& stop) {
    if (!m_demuxer.canOnlyReadOn() &&
        landBySteppingBack(ticks, std::max(latest, m_clock.first()), stop))
        return;
    m_demuxer.reopen(stop);
    m_run.restartAtBeginning();
}

bool KeyFrameSearch::landBySteppingBack(Ticks ticks, Ticks latest, const std::stop_token& stop) {
    Ticks vainFrom = ticks;
    for (Ticks back;; back = back == Ticks() ? kFirstStepBack : 4 * back) {
        const Ticks from = ticks - back;
        const bool isFirst = back == Ticks();
        const Landing landing =
            land({.from = from, .latest = latest, .vainFrom = isFirst ? latest : vainFrom}, stop);
        if (landing == Landing::refused)
            return false;
        if (landing == Landing::inTime) {
            landAsLateAsPossible({.from = from, .latest = latest, .vainFrom = vainFrom}, stop);
            return true;
        }
        vainFrom = from;
        // No step leads back from an endless moment.
        if (vainFrom <= m_clock.first() || vainFrom.isEndless())
            return false;
    }
}

KeyFrameSearch::Landing KeyFrameSearch::land(const Attempt& attempt, const std::stop_token& stop) {
    if (!m_demuxer.seek(m_streamIndex, m_clock.timestampAt(attempt.from), stop))
        return Landing::refused;
    m_run.restartAfterSeek();
    m_run.fill(1, stop, attempt.vainFrom);
    const bool isInTime = !m_run.frames().empty() && m_run.frames().front().ticks <= attempt.latest;
    return isInTime ? Landing::inTime : Landing::tooLate;
}

/// Having landed in time from `inTime.from`, but too late from `inTime.vainFrom`: where a long part
/// does not decode, the steps back may have gone far beyond its beginning, and all that lies
/// between would be decoded. Any later place from which the landing is in time will do.
void KeyFrameSearch::landAsLateAsPossible(Attempt inTime, const std::stop_token& stop) {
    bool isThere = true;
    while (inTime.vainFrom - inTime.from > kLongestDetour) {
        Attempt middle = inTime;
        middle.from = midpoint(inTime.from, inTime.vainFrom);
        isThere = land(middle, stop) == Landing::inTime;
        (isThere ? inTime.from : inTime.vainFrom) = middle.from;
    }
    if (!isThere)
        land(inTime, stop);
}

} // namespace media
