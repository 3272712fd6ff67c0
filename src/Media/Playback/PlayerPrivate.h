#pragma once

#include "Media/Playback/AudioPlayback.h"
#include "Media/Playback/Presenter.h"
#include "Media/Playback/Transport.h"
#include "Media/Playback/VideoPlayback.h"
#include "Media/Player.h"
#include "Media/Threading/Guarded.h"

#include <cassert>
#include <condition_variable>
#include <cstddef>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <stop_token>
#include <thread>
#include <vector>

namespace media {

/// The owner's side of a player, and its threads. All members belong to the owner's thread except
/// where they say otherwise.
class Player::Private : public std::enable_shared_from_this<Private> {
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
    void setPointsOfInterest(const std::vector<Time>& times);
    Token addObserver(Time interval, std::function<void(Time)> handler);
    void removeObserver(Token token);

    void assertOwner() const { assert(std::this_thread::get_id() == m_owner); }

    [[nodiscard]] Guarded<playback::Transport>::Access transport() {
        return m_playback.transport.lock();
    }

    playback::AudioPlayback& audio() { return m_audio; }

    std::function<void(float)> rateHandler;
    std::function<void(const std::shared_ptr<const PlayerItem>&)> endHandler;
    bool isMuted = false;

private:
    using TimeHandler = std::shared_ptr<const std::function<void(Time)>>;

    struct PendingSeek {
        std::uint64_t generation = 0;
        std::function<void(bool)> done;
    };

    /// The work that is pointless from now on.
    struct StaleWork {
        std::stop_source video;
        std::stop_source audio;

        void stop() const {
            video.request_stop();
            audio.request_stop();
        }
    };

    std::stop_source beginJump(playback::Transport& transport, Time target,
                               playback::SeekRequest request);
    static void noteDirection(playback::Transport& transport, playback::SeekRequest request);
    void abandonSeek();
    void finishSeek(std::uint64_t generation);

    void startThread(const char* name, std::function<void(const std::stop_token&)> work);
    /// Whether all threads have come to their end soon.
    bool waitForThreads();
    void joinThreads();
    void leaveThreadsBehind();

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
    const std::thread::id m_owner = std::this_thread::get_id();
    bool m_isAlive = true;

    std::optional<PendingSeek> m_pendingSeek;
    std::map<Token, TimeHandler> m_timeHandlers;
    Token m_lastToken = 0;

    /// Any thread.
    playback::Playback m_playback;

    // Each is used by its own thread.
    playback::VideoPlayback m_video;
    playback::AudioPlayback m_audio;
    playback::Presenter m_presenter;

    Guarded<std::size_t> m_runningThreads{0};
    std::condition_variable m_threadEnded;
    // The last, so that whatever they use outlives them.
    std::vector<std::jthread> m_threads;
};

} // namespace media
