#pragma once

#include "Media/Playback/DecodeWork.h"
#include "Media/Playback/FrameCache.h"
#include "Media/Playback/FrameQueue.h"
#include "Media/Playback/PendingSeek.h"
#include "Media/Playback/PendingSteps.h"
#include "Media/Playback/PlaybackClock.h"
#include "Media/Playback/Presentation.h"
#include "Media/Playback/ReadAhead.h"
#include "Media/Playback/RenderedFrame.h"
#include "Media/Playback/SoundRun.h"
#include "Media/Playback/TimeObservers.h"
#include "Media/Player.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <stop_token>
#include <utility>
#include <vector>

namespace media::playback {

/// Who has something new to look at.
struct Wakes {
    bool decoding = false;
    bool presenting = false;
    bool sound = false;
    /// Whoever waits for the sink to be free.
    bool sinkIsFree = false;
};

/// What a transition leaves to be done without the lock: threads to wake, work to stop, and what
/// may take a while to destroy.
struct DeferredWork {
    Wakes wakes;
    std::vector<std::stop_source> staleWork;
    std::shared_ptr<const PlayerItem> oldItem;
    ImagePtr oldImage;
};

/// All the rules of playback, as one state machine.
///
/// The owner says what is wanted: an item, a position, whether to play. Three threads ask what to
/// do next, do it, and report what came of it: one decodes frames into the cache, one hands them to
/// the sink (at once after a jump, by the clock while playing), one sounds the samples and drives
/// the clock. A jump is a seek, a step or a new item; each seek and each new item begins a new
/// generation. Results for an older one complete nothing; the frames decoded for it stay in the
/// cache.
///
/// A plain value without a thread, a lock or a clock of its own: the caller locks, and says what
/// time it is. Moments never go back.
class PlaybackState {
public:
    /// The cache outlives the state.
    explicit PlaybackState(FrameCache& cache);
    PlaybackState(const PlaybackState&) = delete;
    PlaybackState& operator=(const PlaybackState&) = delete;
    ~PlaybackState() = default;

    // What the owner wants.

    /// null removes the item. The new one is shown from its start.
    void replaceItem(std::shared_ptr<const PlayerItem> item, SteadyTime now);
    /// Moves to `time`, clamped to the item, in place of a seek that has not arrived. Returns the
    /// generation that it begins; none without an item, or if `time` is invalid.
    std::optional<std::uint64_t> beginSeek(Time time, Time toleranceBefore, Time toleranceAfter,
                                           SteadyTime now);
    /// Moves by `count` frames from where the picture is by then; nothing without an item.
    void beginStep(int count, SteadyTime now);
    void setPlaying(bool isPlaying, SteadyTime now);
    void setPreviewSize(PreviewSize size);
    /// Not while isDelivering().
    void setSink(VideoSink* sink);
    void setPointsOfInterest(const std::vector<Time>& times);
    void addObserver(Player::Token token, Time interval, SteadyTime now);

    void removeObserver(Player::Token token) { m_observers.remove(token); }

    /// All work that was handed out is to stop.
    void stopWork();

    // What the owner asks.

    [[nodiscard]] const std::shared_ptr<const PlayerItem>& item() const { return m_item; }

    [[nodiscard]] bool isPlaying() const { return m_isPlaying; }

    /// The clock's time, not after the item's end; invalid without item.
    [[nodiscard]] Time time(SteadyTime now);

    [[nodiscard]] const Player::Statistics& statistics() const { return m_statistics; }

    [[nodiscard]] std::uint64_t generation() const { return m_generation; }

    /// The frame handed to the sink last.
    [[nodiscard]] const RenderedFrame& shown() const { return m_shown; }

    /// A delivery is under way: the sink may be being called.
    [[nodiscard]] bool isDelivering() const { return m_isDelivering; }

    // How the owner answers an event; one that is out of date changes nothing.

    /// The observers that are to be called.
    std::vector<Player::Token> acceptTick(const PlaybackEvent& event);
    /// Whether everybody is to be told.
    [[nodiscard]] bool acceptJump(const PlaybackEvent& event) const;

    struct End {
        std::shared_ptr<const PlayerItem> item;
        bool wasPlaying = false;
    };

    std::optional<End> acceptEnd(const PlaybackEvent& event);

    // The decoding thread.

    DecodeWork nextDecodeWork(const DecoderStatus& decoder, SteadyTime now);
    /// seek, step, redraw, readAhead: the frame at the target is in the cache, and the one after it
    /// begins at `end`.
    void frameArrived(const DecodeWork& work, Ticks end);
    /// seekNear: the frame at `ticks` was found, and is in the cache.
    void nearFrameArrived(const DecodeWork& work, Ticks ticks);
    /// queue, decodeAhead: the frame at the target, with its picture.
    void nextFrameArrived(const DecodeWork& work, RenderedFrame frame, SteadyTime now);
    /// decodeAhead: whether the frame at this tick, which is passed on the way, should be given to
    /// lateFrameArrived(), so that the picture does not stand still.
    [[nodiscard]] bool wantsLateFrame(const DecodeWork& work, Ticks frame, SteadyTime now) const;
    void lateFrameArrived(const DecodeWork& work, RenderedFrame frame, SteadyTime now);
    /// There is no frame at the target that decodes.
    void frameFailed(const DecodeWork& work, SteadyTime now);
    /// seek: when the frame at the target is likely to come, as far as is known.
    void expectArrival(const DecodeWork& work, std::optional<SteadyTime> at);
    /// Whether a frame that a seek passes should be given to substituteArrived().
    [[nodiscard]] bool wantsSubstitute(SteadyTime now) const;
    void substituteArrived(const DecodeWork& work, std::shared_ptr<const CachedFrame> frame,
                           SteadyTime now);

    void decoderReleased() { ++m_statistics.decodersGivenUp; }

    // The presenting thread.

    Presentation nextPresentation(SteadyTime now);
    /// The picture of `work` is made; what to do next.
    Presentation frameRendered(const FrameToShow& work, RenderedFrame frame, SteadyTime now);
    /// The last delivery is over; what to do next.
    Presentation delivered(SteadyTime now);

    // The sound thread.

    /// The run that is to be heard; none if that is still the one of this number.
    std::optional<SoundRun> nextSoundRun(std::uint64_t number, SteadyTime now);
    [[nodiscard]] SoundStart soundStart(std::uint64_t run) const;
    /// The sound of the item's time `heard` left the device at `when`. `isDriving` says that this
    /// run's sound has corrected the clock before; a clock that runs without it is left alone.
    /// Returns whether it was taken.
    bool soundHeard(std::uint64_t run, bool isDriving, Time heard, SteadyTime when);
    /// There is nothing to be heard of the run just now: the clock need not wait for it.
    void runWithoutSound(std::uint64_t run, SteadyTime now);

    [[nodiscard]] bool isClockRunning() const { return m_clock.isRunning(); }

    /// What the calls since the last of these leave to be done.
    DeferredWork takeDeferredWork() { return std::exchange(m_deferred, {}); }

private:
    /// A picture that is to be handed on at once.
    struct ImmediateFrame {
        RenderedFrame frame;
        /// Showing it completes a jump.
        bool isJump = false;
    };

    [[nodiscard]] bool isRunningWanted() const { return m_item && m_isPlaying && !m_hasEnded; }

    [[nodiscard]] ImageSize imageSize() const;
    [[nodiscard]] bool isShownInSize() const;
    void holdClock(Time at, SteadyTime now);
    void pictureIsReady(SteadyTime now);
    void stopSound();
    void beginGeneration(Time at, SeekTarget target, SteadyTime now);
    void noteDirection(SeekTarget target, SteadyTime now);
    void noteRest(SteadyTime now);

    bool chooseSeek(DecodeWork& work, const DecoderStatus& decoder);
    bool chooseStep(DecodeWork& work, const DecoderStatus& decoder);
    bool chooseRedraw(DecodeWork& work);
    bool choosePlaying(DecodeWork& work, const DecoderStatus& decoder, SteadyTime now);
    bool chooseIdle(DecodeWork& work, const DecoderStatus& decoder, SteadyTime now);
    bool chooseReadAhead(DecodeWork& work);
    [[nodiscard]] bool isMoving(SteadyTime now) const;
    [[nodiscard]] bool isReadAheadDue(const DecoderStatus& decoder, SteadyTime now) const;
    [[nodiscard]] SteadyTime nextDecodeLook(const DecoderStatus& decoder, SteadyTime now) const;
    [[nodiscard]] Ticks completeFrom(Ticks target) const;
    void skipLateFrames(Ticks clock);
    void endJumpWithoutPicture(SteadyTime now);
    [[nodiscard]] bool isCurrent(const DecodeWork& work) const;

    std::optional<FrameToShow> frameToShow(SteadyTime now);
    Delivery look(SteadyTime now);
    void takeFrame(SteadyTime now, Delivery& delivery);
    void takeDueFrame(SteadyTime now, Delivery& delivery);
    void show(RenderedFrame frame);
    void arrive(const FrameToShow& work, SteadyTime now);
    void tick(SteadyTime now, Delivery& delivery);
    void finish(SteadyTime now, Delivery& delivery);
    [[nodiscard]] SteadyTime nextPresentingLook(SteadyTime now) const;

    FrameCache& m_cache;

    // What is wanted.
    std::shared_ptr<const PlayerItem> m_item;
    /// Of the item; 0 without one.
    Time m_duration;
    /// Of the item's picture, upright, pixels.
    Size m_pictureSize{1, 1};
    /// Length of one of the item's frames in ticks.
    double m_frameTicks = 0;
    bool m_isPlaying = false;
    PreviewSize m_previewSize;
    std::uint64_t m_generation = 0;
    std::optional<PendingSeek> m_seek;
    PendingSteps m_steps;
    /// Which way the picture was moved last (-1, 0, 1), and when a jump arrived last.
    int m_direction = 0;
    SteadyTime m_lastJump;
    std::stop_source m_decoding;
    std::stop_source m_sound;

    // The clock, the sound and the end.
    PlaybackClock m_clock;
    /// Changes whenever the clock is stopped or moved.
    std::uint64_t m_run = 0;
    /// When the clock began to wait for the sound, or its picture to rest.
    SteadyTime m_readySince;
    /// The item played to its end, which the owner has not been told of yet.
    bool m_hasEnded = false;
    std::uint64_t m_endCount = 0;
    SteadyTime m_lastEnd;
    TimeObservers m_observers;

    // Frames.
    VideoSink* m_sink = nullptr;
    bool m_isDelivering = false;
    /// The sink wants the frame on show again.
    bool m_isRedeliveryWanted = false;
    /// The frame handed to the sink last.
    RenderedFrame m_shown;
    std::optional<ImmediateFrame> m_immediate;
    /// The frame of this generation has been handed on (or can't be had): the clock may run.
    bool m_isPictureReady = false;
    /// The last frame that was made ready while playing was no less late than the one before, as
    /// far as is known.
    bool m_isFallingBehind = true;
    /// Reading ahead was what the decoding thread was given last.
    bool m_isReadingAhead = false;
    /// Those that follow while playing.
    FrameQueue m_queue;
    /// The tick to which decoding could not be brought.
    std::optional<Ticks> m_unreachable;
    SteadyTime m_lastFrameReady;
    /// How far the last frame that was made ready while playing was behind the clock; none since
    /// frames were left out.
    std::optional<Ticks> m_lateness;
    /// The tick of a frame that can't be had in the size wanted now.
    std::optional<Ticks> m_notRedrawn;
    /// Changes with what is worth reading ahead for.
    std::uint64_t m_readAheadVersion = 0;
    ReadAhead m_readAhead{m_cache};
    Player::Statistics m_statistics;

    DeferredWork m_deferred;
};

} // namespace media::playback
