#include "Media/Playback/PendingSeek.h"

#include <algorithm>

namespace media::playback {

namespace {

using std::chrono::milliseconds;

/// While a seek is on its way, something nearer is shown no more often than this; where there was
/// nothing, the next look comes sooner.
constexpr milliseconds kSubstituteInterval{200};
constexpr milliseconds kNextLook = kSubstituteInterval / 4;
/// A frame that decoding passes is rendered so long before it may be needed.
constexpr milliseconds kHeadStart{10};

} // namespace

SteadyTime PendingSeek::substituteAt() const {
    return m_isExpectedSoon ? std::max(m_substituteTimes.earliest, m_substituteTimes.latest)
                            : m_substituteTimes.earliest;
}

void PendingSeek::expectArrival(std::optional<SteadyTime> at) {
    m_isExpectedSoon = at && *at < m_substituteTimes.latest;
}

void PendingSeek::settleOn(Ticks ticks) {
    m_target = SeekTarget::exactly(ticks);
}

std::optional<CachedFrame> PendingSeek::find(const FrameCache& cache, ImageSize size) const {
    auto frame = cache.find(m_target.middle(), size);
    if (frame && !m_target.isExact() && !m_target.accepts(frame->time.ticks()))
        return std::nullopt;
    return frame;
}

std::optional<CachedFrame> PendingSeek::findSubstitute(const FrameCache& cache,
                                                       const RenderedFrame& shown, SteadyTime now) {
    if (now < substituteAt())
        return std::nullopt;
    const Ticks sought = m_target.earliest;
    const auto distanceOf = [sought](const CachedFrame& frame) {
        return distance(frame.time.ticks(), sought);
    };
    std::optional<CachedFrame> best = cache.nearest(sought);
    if (m_passed && (!best || distanceOf(*m_passed) < distanceOf(*best)))
        best = *m_passed;
    const bool isNearer =
        best && (!shown.image || distanceOf(*best) < distance(shown.time.ticks(), sought));
    m_substituteTimes.earliest = now + (isNearer ? kSubstituteInterval : kNextLook);
    return isNearer ? best : std::nullopt;
}

bool PendingSeek::isSubstituteDue(SteadyTime now) const {
    return now + kHeadStart >= substituteAt();
}

void PendingSeek::setPassedFrame(std::shared_ptr<const CachedFrame> frame, SteadyTime now) {
    m_passed = std::move(frame);
    m_substituteTimes.earliest = std::min(m_substituteTimes.earliest, now);
}

} // namespace media::playback
