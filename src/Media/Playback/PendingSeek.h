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
    /// Until `substituteAt` the frame on show stays, then something nearer may stand in.
    PendingSeek(SeekTarget target, SteadyTime substituteAt)
        : m_target(target), m_substituteAt(substituteAt) {}

    [[nodiscard]] const SeekTarget& target() const { return m_target; }

    [[nodiscard]] SteadyTime substituteAt() const { return m_substituteAt; }

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
    /// such a frame.
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
    SteadyTime m_substituteAt;
    std::shared_ptr<const CachedFrame> m_passed;
};

} // namespace media::playback
