#pragma once

#include "Media/Playback/DecodingThread.h"
#include "Media/Playback/PlayerThreads.h"
#include "Media/Playback/PresentingThread.h"
#include "Media/Playback/SharedPlayback.h"
#include "Media/Playback/SoundThread.h"
#include "Media/Playback/ThreadedPlayer.h"
#include "Media/Threading/Guarded.h"
#include "Media/Threading/ThreadAffinity.h"

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <vector>

namespace media {

/// The owner's side of a player, and its threads. All members belong to the owner's thread except
/// where they say otherwise.
class ThreadedPlayer::Private : public std::enable_shared_from_this<Private> {
public:
    Private(Executor executor, std::unique_ptr<playback::AudioOutput> output);

    void start();
    /// Nothing is reported any more and the sink is let go. Threads that a disk keeps waiting are
    /// left behind, with all that they use, and end when it answers.
    void close();

    void replaceCurrentItem(std::shared_ptr<const PlayerItem> item);
    void setPlaying(bool isPlaying);
    void seek(Time time, Time before, Time after, std::function<void(bool)> done);
    void step(int count);
    void setVideoSink(VideoSink* sink);
    Token addObserver(Time interval, std::function<void(Time)> handler);
    void removeObserver(Token token);

    void assertOwner() const { m_affinity.check(); }

    [[nodiscard]] playback::SharedPlayback::Access state() { return m_shared.lock(); }

    playback::SoundThread& sound() { return m_sound; }

    std::function<void(float)> rateHandler;
    std::function<void(const std::shared_ptr<const PlayerItem>&)> endHandler;
    bool isMuted = false;

private:
    using TimeHandler = std::shared_ptr<const std::function<void(Time)>>;

    struct AwaitedSeek {
        std::uint64_t generation = 0;
        std::function<void(bool)> done;
    };

    void refuse(const std::function<void(bool)>& done);
    void abandonSeek();
    void finishSeek(std::uint64_t generation);

    /// Any thread: runs `action` on the owner's thread, unless the player is gone by then.
    void post(std::function<void(Private&)> action);
    void handle(const playback::PlaybackEvent& event);
    void handleTick(const playback::PlaybackEvent& event);
    void handleJump(const playback::PlaybackEvent& event);
    void handleEnd(const playback::PlaybackEvent& event);
    void callObservers(const std::vector<Token>& tokens);
    [[nodiscard]] std::vector<Token> observerTokens() const;
    void reportRate(float rate);

    /// Any thread. None once the player is closed: whom it posts to may be gone.
    Guarded<Executor> m_executor;
    ThreadAffinity m_affinity;
    bool m_isAlive = true;

    /// The seek that the owner has not been told the outcome of.
    std::optional<AwaitedSeek> m_awaitedSeek;
    std::map<Token, TimeHandler> m_timeHandlers;
    Token m_lastToken = 0;

    /// Any thread.
    playback::SharedPlayback m_shared;

    // Each is used by its own thread.
    playback::DecodingThread m_decoding;
    playback::SoundThread m_sound;
    playback::PresentingThread m_presenting;

    // The last, so that whatever they use outlives them.
    playback::PlayerThreads m_threads;
};

} // namespace media
