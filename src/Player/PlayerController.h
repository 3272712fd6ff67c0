#pragma once

#include "Media/Player.h"

#include <functional>
#include <memory>

namespace brisklet {

/// One window's player, with its events as plain callbacks. Main thread only; so are the
/// callbacks. None of them is called after the destructor has begun.
class PlayerController final {
public:
    PlayerController() = default;
    PlayerController(const PlayerController&) = delete;
    PlayerController& operator=(const PlayerController&) = delete;
    ~PlayerController();

    /// Constant and never null. Created by the first call, because that loads the media engine,
    /// which an empty window does not need. Views that show the player may keep it as long as they
    /// like. Throws media::Error if the engine cannot be loaded, or if the system has no memory or
    /// threads for it; it may be asked again then.
    [[nodiscard]] const std::shared_ptr<media::Player>& player();

    /// Pauses and moves by `count` frames (negative: backward), then calls onTick at once: the
    /// player itself reports the new time only a moment later.
    void step(int count);

    /// The current time in seconds: every 1/30 s of playback, and whenever the time jumps.
    std::function<void(double time)> onTick;
    /// Whether the player runs; after every change of its rate.
    std::function<void(bool playing)> onPlayingChange;
    /// The current item played to its end.
    std::function<void()> onPlayedToEnd;

private:
    void makePlayer();
    void tick(media::Time time) const;
    void rateChanged(float rate) const;
    void itemEnded(const std::shared_ptr<const media::PlayerItem>& item) const;

    std::shared_ptr<media::Player> m_player;
    media::Player::Token m_timeObserver = 0;
};

} // namespace brisklet
