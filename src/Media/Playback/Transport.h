#pragma once

#include "Media/Playback/FrameCache.h"
#include "Media/Playback/FrameSource.h"
#include "Media/Playback/PlaybackClock.h"
#include "Media/Player.h"
#include "Media/Threading/Guarded.h"

#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <stop_token>
#include <vector>

namespace media::playback {

/// A frame and its picture, ready to be shown.
struct ReadyFrame {
    /// null when there is nothing to show.
    ImagePtr image;
    Time time;
    /// The ticks that it stands for, as CachedFrame has them.
    std::int64_t begin = 0;
    std::int64_t end = 0;
    /// A seek or playing found it in the cache.
    bool isFromCache = false;

    [[nodiscard]] TimedImage timedImage() const { return {image, time}; }

    [[nodiscard]] bool holds(std::int64_t ticks) const { return begin <= ticks && ticks < end; }
};

/// The frame with its picture as the screen takes it; takes about a millisecond.
ReadyFrame readyFrame(const CachedFrame& frame);

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
    /// The clock is set to the time of the frame that was found.
    bool movesClock = false;
    /// The frame was not at hand.
    bool needsDecoding = false;

    [[nodiscard]] bool isExact() const { return earliest == latest; }

    [[nodiscard]] bool holds(std::int64_t ticks) const {
        return earliest <= ticks && ticks <= latest;
    }
};

/// A step that is under way.
struct StepProgress {
    /// Frames to go; negative: backward.
    int left = 0;
    /// The ticks of the frame reached so far.
    std::int64_t begin = 0;
    std::int64_t end = 0;
    /// That frame; none before the first.
    std::optional<CachedFrame> frame;

    /// The tick of the frame to go to next; none at either end of the track.
    [[nodiscard]] std::optional<std::int64_t> nextTicks() const;
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
/// frames for it into the cache, the presenter takes them from there, shows them at once after a
/// jump and by the clock while playing, and notices the end; the audio thread sounds the samples
/// and drives the clock. Each wakes the next.
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
    /// Not yet arrived.
    std::optional<SeekRequest> seek;
    std::deque<int> steps;
    /// The first of the steps, once begun.
    std::optional<StepProgress> step;
    PreviewSize previewSize;
    /// Of the item's picture, upright.
    Size pictureSize{1, 1};
    /// Stop what the video or the audio thread is at.
    std::stop_source videoWork;
    std::stop_source audioWork;

    /// Which way the picture was moved last (-1, 0, 1), and when.
    int direction = 0;
    SteadyTime lastJump;
    /// Changes with the points of interest.
    std::uint64_t interests = 0;

    // What has come of it.

    PlaybackClock clock;
    /// The frame for this generation has been handed on (or cannot be had): the clock may run.
    bool isPictureReady = false;
    /// When something near is to be shown while a seek is on its way.
    SteadyTime substituteAt;
    /// The frame that decoding passed lately on that way.
    std::shared_ptr<const CachedFrame> passing;
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
    /// The tick of the frame that is to follow on those; CachedFrame::kForever at the end.
    std::int64_t nextTicks = CachedFrame::kForever;
    std::optional<ImmediateFrame> immediate;
    /// The frame handed to the sink last.
    ReadyFrame shown;
    Player::Statistics statistics;

    std::vector<TickObserver> observers;

    [[nodiscard]] bool isRunningWanted() const { return item && isPlaying && !hasEnded; }

    /// The size that frames are to have.
    [[nodiscard]] ImageSize imageSize() const;
    /// The frame on show has that size, or there is none.
    [[nodiscard]] bool isShownInSize() const;

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
    /// May be asked while the transport is locked, not the other way round.
    FrameCache cache;
    /// The presenter has returned from the sink.
    std::condition_variable_any sinkIsFree;
};

} // namespace media::playback
