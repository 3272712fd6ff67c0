#pragma once

#include "Media/Asset.h"
#include "Media/Image.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

namespace media {

/// Runs a callable later on the thread that owns a player, in the order given. The program posts
/// to its main loop; tests pump by hand. Called on any thread, until the player is gone; must not
/// run the callable before it returns. What was posted may run later than that.
using Executor = std::function<void(std::function<void()>)>;

/// Receives the frames of one player. Called on a media thread, with no lock held; must return
/// quickly (store the image, ask for a repaint) and not call back into the player.
class VideoSink {
public:
    virtual ~VideoSink() = default;
    /// Shows `frame`; an empty image means that there is nothing to show. May throw std::bad_alloc,
    /// and then gets the same frame again.
    virtual void present(const TimedImage& frame) = 0;
};

/// What a player plays: one asset. Compared by identity.
class PlayerItem {
public:
    explicit PlayerItem(std::shared_ptr<const Asset> asset) : m_asset(std::move(asset)) {}

    [[nodiscard]] const std::shared_ptr<const Asset>& asset() const { return m_asset; }

private:
    std::shared_ptr<const Asset> m_asset;
};

/// Plays one item at a time: picture to a video sink, sound to the default output, in step.
///
/// All operations are called on the owner's thread and return at once; decoding happens on the
/// player's own threads. Every handler runs on the owner's thread, through the executor. Nothing
/// is called after the destructor has returned.
class Player {
public:
    using Token = std::uint64_t;

    /// Sounds on the system's default device. Throws Error if the engine can't be loaded, or if
    /// the system has no memory or threads for it.
    static std::shared_ptr<Player> make(Executor executor);

    Player(const Player&) = delete;
    Player& operator=(const Player&) = delete;
    virtual ~Player() = default;

    /// null removes the item: the sink is told to show nothing. A running player plays the new
    /// item from its start; a paused one shows its first frame.
    virtual void replaceCurrentItem(std::shared_ptr<const PlayerItem> item) = 0;
    [[nodiscard]] virtual std::shared_ptr<const PlayerItem> currentItem() const = 0;

    /// Sets the rate to 1 or 0. play() at the end of the item ends at once (and reports it).
    virtual void play() = 0;
    virtual void pause() = 0;
    /// 1 while playing, else 0; becomes 0 when the item plays to its end.
    [[nodiscard]] virtual float rate() const = 0;

    /// Moves to `time`, clamped to the item; keeps the rate. A zero tolerance shows the frame at
    /// exactly that time; until it is decoded a nearer one than that on show may stand in for it,
    /// under its own time. A later seek replaces an earlier one that is still on its way. `done`
    /// (may be empty) runs when the frame has been handed to the sink (true) or the seek was
    /// replaced (false).
    virtual void seek(Time time, Time toleranceBefore, Time toleranceAfter,
                      std::function<void(bool finished)> done = {}) = 0;
    /// Moves by `count` frames (negative: backward) from the frame on screen, which is left where
    /// it is at either end, and pauses. The current time becomes that of the frame shown.
    virtual void step(int count) = 0;

    /// The current time on the item's time line; during a seek its target. invalid() without item.
    [[nodiscard]] virtual Time currentTime() const = 0;

    virtual void setMuted(bool muted) = 0;
    [[nodiscard]] virtual bool isMuted() const = 0;

    /// The sink must outlive the player or be taken away first; null for none. A paused player
    /// delivers its frame again.
    virtual void setVideoSink(VideoSink* sink) = 0;
    /// The size of the view in device pixels: frames are delivered scaled to fit into it, never
    /// enlarged; 0 × 0 asks for full size. A paused player delivers its frame again.
    virtual void setPreviewSize(int pixelWidth, int pixelHeight) = 0;

    /// Times of the current item that are likely to be gone to, such as the ends of a selection:
    /// frames around them are made ready when there is nothing else to do, and kept longer. A new
    /// item has none.
    virtual void setPointsOfInterest(const std::vector<Time>& times) = 0;

    /// Calls `handler` with the current time every `interval` of playback and whenever the time
    /// jumps. An owner that falls behind gets one call for several intervals.
    virtual Token addPeriodicTimeObserver(Time interval, std::function<void(Time)> handler) = 0;
    virtual void removeTimeObserver(Token token) = 0;
    /// Called after every change of rate(), with the new rate.
    virtual void setRateHandler(std::function<void(float rate)> handler) = 0;
    /// Called when an item has played to its end, with that item. The order is: the time observers
    /// with the end time, the rate handler with 0, then this one. So an observer that pauses at a
    /// time just before the end still finds a rate() of 1.
    virtual void
    setEndHandler(std::function<void(const std::shared_ptr<const PlayerItem>&)> handler) = 0;

    /// Counts of frames since creation.
    struct Statistics {
        /// Handed to the sink (or to none).
        std::uint64_t shown = 0;
        /// Among those, the ones that were handed over more than 20 ms after their time.
        std::uint64_t late = 0;
        /// Among those shown, the ones that a seek or playing found decoded already.
        std::uint64_t fromCache = 0;
        /// Given up for a later one.
        std::uint64_t dropped = 0;
        /// Given out by the decoder, for now or for later.
        std::uint64_t decoded = 0;
        /// How often this idle player gave its decoder up, since others needed the memory.
        std::uint64_t decodersGivenUp = 0;
    };

    [[nodiscard]] virtual Statistics statistics() const = 0;

protected:
    Player() = default;
};

} // namespace media
