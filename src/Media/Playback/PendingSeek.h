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
    /// How long the frame on show stays.
    struct Patience {
        /// From then on something nearer may stand in, unless the frame sought is expected before
        /// `latest`.
        SteadyTime usual;
        SteadyTime latest;
    };

    PendingSeek(SeekTarget target, const Patience& patience)
        : m_target(target), m_patience(patience) {}

    [[nodiscard]] const SeekTarget& target() const { return m_target; }

    /// What is left of it, for a seek that takes the place of this one.
    [[nodiscard]] const Patience& patience() const { return m_patience; }

    /// When something nearer may stand in next.
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

    /// What is nearer to the frame sought than the one on show; none before its time, or without
    /// such a frame. Whether a cut lies between the two is not known, so what lies further away
    /// than the frame on show never stands in.
    std::optional<CachedFrame> findSubstitute(const FrameCache& cache, const RenderedFrame& shown,
                                              SteadyTime now);

    /// A frame that decoding passes may soon stand in: it is worth rendering.
    [[nodiscard]] bool isSubstituteDue(SteadyTime now) const;
    /// Decoding has passed this frame on the way; it may stand in at once.
    void setPassedFrame(std::shared_ptr<const CachedFrame> frame, SteadyTime now);

private:
    SeekTarget m_target;
    bool m_isExactRequest = m_target.isExact();
    bool m_needsDecoding = false;
    Patience m_patience;
    bool m_isExpectedSoon = false;
    std::shared_ptr<const CachedFrame> m_passed;
};

} // namespace media::playback
