#pragma once

#include "Media/Playback/FrameCache.h"
#include "Media/Playback/PlaybackClock.h"
#include "Media/Playback/RenderedFrame.h"
#include "Media/Playback/SeekTarget.h"

#include <memory>
#include <optional>

namespace media::playback {

/// A seek that has not arrived at its frame yet, and what may be shown until it has. A plain value:
/// the caller gives the moments, and locks.
class PendingSeek {
public:
    /// When a substitute, a frame nearer to the one sought than the one on show, may be shown.
    struct SubstituteTimes {
        /// From then on, unless the frame sought is expected before `latest`.
        SteadyTime earliest;
        /// From then on in any case.
        SteadyTime latest;
    };

    PendingSeek(SeekTarget target, const SubstituteTimes& substituteTimes)
        : m_target(target), m_substituteTimes(substituteTimes) {}

    [[nodiscard]] const SeekTarget& target() const { return m_target; }

    /// For the seek that replaces this one: they count from the first seek that is not answered.
    [[nodiscard]] const SubstituteTimes& substituteTimes() const { return m_substituteTimes; }

    /// When the next substitute may be shown.
    [[nodiscard]] SteadyTime substituteAt() const;
    /// When the frame sought is likely to come; none where that is not known.
    void expectArrival(std::optional<SteadyTime> at);

    /// The frame was not in the cache when decoding looked.
    [[nodiscard]] bool needsDecoding() const { return m_needsDecoding; }

    void setNeedsDecoding() { m_needsDecoding = true; }

    /// The frame at `ticks` was found for a seek with a tolerance; it goes there now.
    void settleOn(Ticks ticks);

    /// The clock is to be set to the time of the frame that was found.
    [[nodiscard]] bool movesClock() const { return !m_isExactRequest; }

    /// The frame sought, where the cache has it.
    [[nodiscard]] std::optional<CachedFrame> find(const FrameCache& cache, ImageSize size) const;

    /// The best substitute in the cache; none before its time, or where no frame is nearer than the
    /// one on show. Where scenes are cut is not known: a frame further away than the one on show is
    /// never a substitute.
    std::optional<CachedFrame> findSubstitute(const FrameCache& cache, const RenderedFrame& shown,
                                              SteadyTime now);

    /// A substitute may be shown soon: a frame that decoding passes is worth rendering.
    [[nodiscard]] bool isSubstituteDue(SteadyTime now) const;
    /// Decoding has passed this frame on the way: a substitute that may be shown at once.
    void setPassedFrame(std::shared_ptr<const CachedFrame> frame, SteadyTime now);

private:
    SeekTarget m_target;
    bool m_isExactRequest = m_target.isExact();
    bool m_needsDecoding = false;
    SubstituteTimes m_substituteTimes;
    bool m_isExpectedSoon = false;
    std::shared_ptr<const CachedFrame> m_passed;
};

} // namespace media::playback
