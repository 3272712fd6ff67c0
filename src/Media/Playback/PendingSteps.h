#pragma once

#include "Media/Playback/FrameCache.h"
#include "Media/Playback/RenderedFrame.h"
#include "Media/Ticks.h"

#include <cstddef>
#include <deque>
#include <optional>

namespace media::playback {

/// Steps by frames that were asked for and have not arrived yet, one after the other. They walk
/// through the cache; where it lacks a frame, they wait for decoding. A plain value: the caller
/// locks.
class PendingSteps {
public:
    /// Frames to go; negative: backward. Not 0.
    void push(int count);

    void clear();

    [[nodiscard]] bool isEmpty() const { return m_counts.empty(); }

    /// More of them than somebody presses one after the other: they wait behind a held key.
    [[nodiscard]] bool areMany() const { return m_counts.size() > kFew; }

    /// Goes on from `shown` as far as the cache reaches: the frame that the first step leads to, or
    /// none while it waits for one that is missing, or when no step is left. Steps that lead
    /// nowhere, past either end, are dropped.
    std::optional<CachedFrame> advance(FrameCache& cache, ImageSize size,
                                       const RenderedFrame& shown);

    /// The tick of the frame that the first step goes to next; none before it has begun, and where
    /// it is over.
    [[nodiscard]] std::optional<Ticks> nextTicks() const;

    /// The first step is done: the frame that it led to is shown.
    void arrive();
    /// The frame that the first step goes to next does not decode: it ends where it has come to.
    void giveUpRest();

private:
    static constexpr std::size_t kFew = 8;

    /// The first step, once begun.
    struct Walk {
        int framesLeft = 0;
        /// Of the frame that it has come to.
        TickRange range;
        Time time;
        /// That frame; none before the first.
        std::optional<CachedFrame> frame;
    };

    static std::optional<Ticks> next(const Walk& walk);
    [[nodiscard]] Heading heading(const Walk& walk) const;

    std::deque<int> m_counts;
    /// How many led backward since one did not.
    std::size_t m_backwardCount = 0;
    std::optional<Walk> m_walk;
};

} // namespace media::playback
