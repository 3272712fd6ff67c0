#pragma once

#include "Media/Image.h"
#include "Media/Playback/FrameCache.h"
#include "Media/Ticks.h"

#include <cstdint>
#include <optional>

namespace media::playback {

/// Where a player stands and which way it was last moved.
struct Surroundings {
    /// The tick of the frame on show.
    Ticks focus;
    /// Less than 0 backward, more forward, 0 neither.
    int direction = 0;
    /// It is being moved that way, or was a moment ago.
    bool isMoving = false;
    /// The item's last tick.
    Ticks last;
    /// Length of one frame in ticks.
    double frameTicks = 20;
    ImageSize size;

    [[nodiscard]] bool isMovingBack() const { return isMoving && direction < 0; }
};

/// The frames that the cache lacks most: around the playhead, first in the direction of its
/// movement, then around the points of interest. None when all is there, or as much as there is
/// room for.
std::optional<TickRange> framesToReadAhead(const FrameCache& cache,
                                           const Surroundings& surroundings);

/// Chooses the frames that are worth decoding before anybody asks for them, one after the other.
/// For the same surroundings and version it chooses a bounded number of frames, then stops. A plain
/// value: the caller locks.
class ReadAhead {
public:
    explicit ReadAhead(const FrameCache& cache) : m_cache(cache) {}

    /// Forgets all for a new item.
    void restart();

    /// Begins anew if the surroundings or the version have changed.
    void update(std::uint64_t version, const Surroundings& surroundings);

    /// Whether the frame that a decoder at `position` gives next may be kept. While the playhead
    /// moves backward what is read there waits for it to come nearer; where the playhead rests that
    /// is given up.
    [[nodiscard]] bool hasRoom(Ticks position);

    /// The tick of the frame to decode next; none when there is nothing left to do.
    std::optional<Ticks> next();

    /// After next(): where the frames end that are to be decoded from there on, if they lie before
    /// the playhead. Then those at the end are wanted first.
    [[nodiscard]] std::optional<Ticks> endBehind() const;

    /// A decoder that stands at `position` is among the frames that next() chooses one after the
    /// other, and will come to the one at `ticks`.
    [[nodiscard]] bool leadsTo(Ticks ticks, Ticks position) const;

    /// Nothing is left to do for the present surroundings, as far as is known.
    [[nodiscard]] bool isDone() const { return m_framesLeft <= 0; }

    /// The frame at next() is in the cache; the one after it begins at `end`.
    void arrive(Ticks end);

    /// Frames were decoded for somebody else: what is missing now is another range.
    void chooseAnew() { m_range.reset(); }

    /// Nothing there decodes.
    void giveUp();

private:
    const FrameCache& m_cache;
    std::uint64_t m_version = 0;
    Surroundings m_surroundings;
    /// What is being filled.
    std::optional<TickRange> m_range;
    int m_framesLeft = 0;
};

} // namespace media::playback
