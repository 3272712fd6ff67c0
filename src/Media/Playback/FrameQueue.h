#pragma once

#include "Media/Playback/PlaybackClock.h"
#include "Media/Playback/RenderedFrame.h"
#include "Media/Ticks.h"

#include <cstddef>
#include <deque>
#include <optional>
#include <utility>

namespace media::playback {

/// The frames that follow the one on show while playing, ready ahead of the clock and in order; and
/// the tick of the frame that is to be made ready next. A plain value: the caller gives the times,
/// and locks.
class FrameQueue {
public:
    /// The picture stands at a new place: the frame at `next` is to follow on it.
    void restartAt(Ticks next);

    /// Nothing follows any more: at the end, or where nothing decodes.
    void end() { m_next = Ticks::forever(); }

    /// Drops the frames; what is to follow on them stays.
    void dropFrames() { m_frames.clear(); }

    /// The frame at next().
    void push(RenderedFrame frame);

    /// A frame before the one at next(), which is due already.
    void pushLate(RenderedFrame frame) { m_frames.push_back(std::move(frame)); }

    /// The frames before `next` are left out.
    void skipTo(Ticks next) { m_next = next; }

    /// The tick of the frame to make ready next; forever() where nothing follows.
    [[nodiscard]] Ticks next() const { return m_next; }

    [[nodiscard]] bool hasEnded() const { return m_next == Ticks::forever(); }

    [[nodiscard]] bool isEmpty() const { return m_frames.empty(); }

    /// Whether another frame is wanted: fewer are ready than bridge the differences in the time
    /// that frames take to decode.
    [[nodiscard]] bool hasRoom() const;

    struct DueFrame {
        RenderedFrame frame;
        /// How long ago it was due.
        nanoseconds lateness{0};
        /// Frames that were due as well, before it.
        std::size_t overtaken = 0;
    };

    /// Takes the last frame that is due at `time` of the item; none if none is.
    std::optional<DueFrame> takeDue(nanoseconds time);

    /// The item's time at which the first frame is due.
    [[nodiscard]] std::optional<nanoseconds> firstDueTime() const;

private:
    std::deque<RenderedFrame> m_frames;
    Ticks m_next = Ticks::forever();
};

} // namespace media::playback
