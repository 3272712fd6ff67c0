#pragma once

#include "Media/Playback/PlaybackClock.h"
#include "Media/Player.h"

#include <cstdint>
#include <memory>
#include <stop_token>

namespace media::playback {

/// What is to be heard from one stop or move of the clock to the next.
struct SoundRun {
    /// Counts the runs; 0 before the first.
    std::uint64_t number = 0;
    std::shared_ptr<const PlayerItem> item;
    /// The item's time at which it begins.
    Time start;
    /// Whether anything is to be heard at all.
    bool isWanted = false;
    /// When the item last played to its end; it may well be played again in a moment.
    SteadyTime lastEnd;
    /// Stops the work for it once it is over.
    std::stop_token stop;
};

/// Whether the sound of a run may set in.
enum class SoundStart {
    /// The run is over, or its picture is not there yet.
    notYet,
    /// The clock stands and waits for the sound.
    now,
    /// The clock runs already, since the device came late.
    late,
};

} // namespace media::playback
