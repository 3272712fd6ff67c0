#pragma once

#include "Media/Playback/FrameCache.h"
#include "Media/Playback/PlaybackClock.h"
#include "Media/Player.h"

#include <cstdint>
#include <optional>
#include <variant>
#include <vector>

namespace media::playback {

/// What a player's threads report to its owner.
struct PlaybackEvent {
    enum class Kind {
        /// An observer's boundary was reached.
        tick,
        /// A seek, step or new item has arrived at its frame.
        jump,
        /// The item played to its end.
        end,
    };
    Kind kind = Kind::tick;
    std::uint64_t generation = 0;
    /// end: its number.
    std::uint64_t endCount = 0;
};

/// A frame of the cache that is to be shown at once; its picture has to be made first.
struct FrameToShow {
    enum class Purpose {
        /// It is where a seek goes.
        seek,
        /// It is where a step goes.
        step,
        /// It is on show already, in another size than is wanted.
        redraw,
        /// It stands in for the frame that a seek is on its way to.
        substitute,
    };
    Purpose purpose = Purpose::seek;
    std::uint64_t generation = 0;
    CachedFrame frame;
};

/// What goes out of the player: a picture to the sink, events to the owner.
struct Delivery {
    VideoSink* sink = nullptr;
    std::optional<TimedImage> picture;
    std::vector<PlaybackEvent> events;

    [[nodiscard]] bool isEmpty() const { return !picture && events.empty(); }
};

/// What the presenting thread is to do next; a time is when to ask again if nothing wakes it.
using Presentation = std::variant<SteadyTime, FrameToShow, Delivery>;

} // namespace media::playback
