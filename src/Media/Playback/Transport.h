#pragma once

#include "Media/Guarded.h"
#include "Media/Playback/PlaybackClock.h"
#include "Media/Player.h"
#include "Media/VideoReader.h"

#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <stop_token>
#include <vector>

namespace media::playback {

/// Largest size of the delivered frames in pixels; 0 leaves a side free.
struct PreviewSize {
    int width = 0;
    int height = 0;
    friend bool operator==(const PreviewSize&, const PreviewSize&) = default;
};

/// A frame and its picture, ready to be shown.
struct ReadyFrame {
    /// Kept so that it can be rendered in another size; null when there is nothing to show.
    std::shared_ptr<const DecodedFrame> source;
    ImagePtr image;
    PreviewSize previewSize;

    [[nodiscard]] TimedImage timedImage() const { return {image, source ? source->time : Time{}}; }
};

/// A frame that is to be shown at once, whatever the clock says.
struct ImmediateFrame {
    ReadyFrame frame;
    /// Whether showing it completes a jump in time (a seek, a step, a new item).
    bool isJump = false;
    std::uint64_t generation = 0;
};

/// Where a seek goes, in 1/600 s: to the frame at `earliest` if that is `latest` too, otherwise to
/// one between them that is cheap to decode.
struct SeekRequest {
    std::int64_t earliest = 0;
    std::int64_t latest = 0;
};

/// A periodic time observer as the presenter sees it.
struct TickObserver {
    Player::Token token = 0;
    nanoseconds interval{0};
    /// The number of the interval that the clock was last seen in.
    std::int64_t lastInterval = 0;
    /// Reached a boundary since its handler was last called.
    bool isDue = false;
};

/// What the owner of a player and the player's threads tell each other.
///
/// The owner says what is wanted: an item, a position, whether to play. The video thread decodes
/// frames for it, the presenter shows them by the clock and notices the end, the audio thread
/// sounds the samples and drives the clock. Each wakes the next.
struct Transport {
    Wake videoWake;
    Wake audioWake;
    Wake presenterWake;

    // What is wanted.

    std::shared_ptr<const PlayerItem> item;
    /// Of the item; 0 without one.
    Time duration;
    bool isPlaying = false;
    /// Changes with each seek and each new item: results for an older one are stale.
    std::uint64_t generation = 0;
    /// Changes whenever the clock is stopped or moved: sound for an older run is stale.
    std::uint64_t run = 0;
    /// Not yet begun by the video thread.
    std::optional<SeekRequest> seek;
    std::deque<int> steps;
    PreviewSize previewSize;
    /// Stop what the video or the audio thread is at.
    std::stop_source videoWork;
    std::stop_source audioWork;

    // What has come of it.

    PlaybackClock clock;
    /// The frame for this generation has been handed on (or cannot be had): the clock may run.
    bool isPictureReady = false;
    /// When playing became possible: how long the clock has waited for the sound.
    SteadyTime readySince;
    /// The item played to its end, which the owner has not yet been told of.
    bool hasEnded = false;
    std::uint64_t endCount = 0;
    /// When the item last played to its end: it may well be played again in a moment.
    SteadyTime lastEnd;

    // Frames.

    VideoSink* sink = nullptr;
    /// The presenter is calling the sink just now.
    bool isPresenting = false;
    /// The sink wants the frame on show again.
    bool isRedeliveryWanted = false;
    /// Decoded ahead while playing, in order.
    std::deque<ReadyFrame> upcoming;
    std::optional<ImmediateFrame> immediate;
    /// The frame handed to the sink last.
    ReadyFrame shown;
    Player::Statistics statistics;

    std::vector<TickObserver> observers;

    [[nodiscard]] bool isRunningWanted() const { return item && isPlaying && !hasEnded; }

    /// The clock's time, not after the item's end; invalid without item.
    [[nodiscard]] Time time(SteadyTime now);
    /// Stops the clock at `at`; what sounds is stale.
    void holdClock(Time at);
    /// Lets the clock wait for the sound from now on.
    void beginRun();
};

/// The transport of one player and what goes with it.
struct Playback {
    Guarded<Transport> transport;
    /// The presenter has returned from the sink.
    std::condition_variable_any sinkIsFree;
};

} // namespace media::playback
