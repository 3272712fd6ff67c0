#include "Media/Player.h"

#include "Media/Playback/AudioPlayback.h"
#include "Media/Playback/CubebOutput.h"
#include "Media/Playback/Presenter.h"
#include "Media/Playback/Transport.h"
#include "Media/Playback/VideoPlayback.h"

#include <pthread.h>

#include <algorithm>
#include <cassert>
#include <map>
#include <thread>

namespace media {

namespace {

using playback::PlaybackEvent;
using playback::SteadyTime;
using playback::Transport;

/// Stands in for a duration that is not known: ten years.
constexpr Time kUnknownDuration{std::int64_t{315'360'000} * kComparisonTimescale,
                                kComparisonTimescale};
/// How long a seek may take before something else is shown meanwhile.
constexpr std::chrono::milliseconds kPatience{50};
/// Seeks that follow one another faster tell a direction.
constexpr std::chrono::milliseconds kLongestPauseInDrag{500};
/// Observers are not called more often than this.
constexpr std::chrono::milliseconds kShortestInterval{1};

SteadyTime now() {
    return std::chrono::steady_clock::now();
}

/// A time as a count of ticks from 0 to `last`.
std::int64_t clampedTicks(Time time, Time last) {
    return std::clamp<std::int64_t>(time.comparisonTicks(), 0, last.comparisonTicks());
}

/// The earliest and the latest frame time that a seek accepts.
playback::SeekRequest seekRequest(Time target, Time before, Time after, Time duration) {
    return {clampedTicks(target - before, duration), clampedTicks(target + after, duration)};
}

Size pictureSize(const PlayerItem* item) {
    const auto tracks = item ? item->asset()->tracks(MediaType::video) : std::vector<AssetTrack>();
    return tracks.empty() ? Size{1, 1} : orientedSize(tracks.front());
}

Time clamped(Time time, Time duration) {
    const Time start{0, kComparisonTimescale};
    if (time < start)
        return start;
    return time > duration ? duration : time;
}

bool isTime(Time time) {
    return time.isNumeric() || time.value != 0;
}

template<typename Work>
std::jthread namedThread(const char* name, Work work) {
    std::jthread thread(std::move(work));
    pthread_setname_np(thread.native_handle(), name);
    return thread;
}

} // namespace

/// The owner's side of a player, and its threads. All members belong to the owner's thread except
/// where they say otherwise.
class Player::Private : public std::enable_shared_from_this<Private> {
public:
    Private(Executor executor, std::unique_ptr<playback::AudioOutput> output);

    void start();
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

    [[nodiscard]] Guarded<Transport>::Access transport() { return m_playback.transport.lock(); }

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

    std::stop_source beginJump(Transport& transport, Time target, playback::SeekRequest request);
    static void noteDirection(Transport& transport, playback::SeekRequest request);
    void abandonSeek();
    void finishSeek(std::uint64_t generation);

    /// Any thread: runs `action` on the owner's thread, unless the player is gone by then.
    void post(std::function<void(Private&)> action);
    void handle(const PlaybackEvent& event);
    void handleTick(const PlaybackEvent& event);
    void handleJump(const PlaybackEvent& event);
    void handleEnd(const PlaybackEvent& event);
    void callObservers(const std::vector<Token>& tokens);
    [[nodiscard]] std::vector<Token> observerTokens() const;
    void reportRate(float rate);

    /// Any thread.
    const Executor m_executor;
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
    std::vector<std::jthread> m_threads;
};

Player::Private::Private(Executor executor, std::unique_ptr<playback::AudioOutput> output)
    : m_executor(std::move(executor)),
      m_video(m_playback),
      m_audio(m_playback, std::move(output)),
      m_presenter(m_playback, [this](const PlaybackEvent& event) {
          post([event](Private& self) { self.handle(event); });
      }) {
    transport()->clock.hold(Time::invalid());
}

void Player::Private::start() {
    m_threads.push_back(
        namedThread("player-video", [this](const std::stop_token& stop) { m_video.work(stop); }));
    m_threads.push_back(
        namedThread("player-audio", [this](const std::stop_token& stop) { m_audio.work(stop); }));
    m_threads.push_back(namedThread(
        "player-present", [this](const std::stop_token& stop) { m_presenter.work(stop); }));
}

void Player::Private::close() {
    m_isAlive = false;
    for (std::jthread& thread : m_threads)
        thread.request_stop();
    StaleWork work;
    {
        auto access = transport();
        work = {access->videoWork, access->audioWork};
    }
    work.stop();
    for (std::jthread& thread : m_threads)
        thread.join();
}

void Player::Private::replaceCurrentItem(std::shared_ptr<const PlayerItem> item) {
    abandonSeek();
    StaleWork stale;
    playback::ReadyFrame shown;
    {
        auto access = transport();
        const Time duration = item ? item->asset()->duration() : Time{};
        access->duration = duration.isNumeric() ? duration : kUnknownDuration;
        access->pictureSize = pictureSize(item.get());
        access->item.swap(item);
        access->immediate.reset();
        access->seek.reset();
        access->direction = 0;
        std::swap(access->shown, shown);
        m_playback.cache.begin(access->item.get());
        stale.audio = beginJump(*access, access->item ? Time{} : Time::invalid(), {});
        stale.video = std::exchange(access->videoWork, std::stop_source());
        access->direction = 0;
    }
    stale.stop();
}

/// Everything that holds for the time before is void; the threads turn to the new one. Gives what
/// stops the sound of before; the video thread looks after each frame what is wanted.
std::stop_source Player::Private::beginJump(Transport& transport, Time target,
                                            playback::SeekRequest request) {
    noteDirection(transport, request);
    ++transport.generation;
    if (!transport.seek)
        transport.substituteAt = now() + kPatience;
    transport.seek = request;
    transport.steps.clear();
    transport.step.reset();
    transport.upcoming.clear();
    transport.isPictureReady = false;
    transport.passing.reset();
    m_playback.cache.setFocus(request.earliest);
    transport.hasEnded = false;
    for (playback::TickObserver& observer : transport.observers)
        observer.isDue = false;
    transport.holdClock(target);
    transport.videoWake.raise();
    return std::exchange(transport.audioWork, std::stop_source());
}

void Player::Private::noteDirection(Transport& transport, playback::SeekRequest request) {
    const std::int64_t from = transport.seek ? transport.seek->earliest : transport.shown.begin;
    const bool isDrag = now() - transport.lastJump < kLongestPauseInDrag;
    transport.direction = !isDrag ? 0 : request.earliest < from ? -1 : 1;
}

void Player::Private::setPlaying(bool isPlaying) {
    if (transport()->isPlaying == isPlaying)
        return;
    // Before any thread can act on it, so that an end that follows at once is reported after it.
    reportRate(isPlaying ? 1.0F : 0.0F);
    StaleWork stale;
    {
        auto access = transport();
        const Time time = access->time(now());
        access->isPlaying = isPlaying;
        access->hasEnded = false;
        if (!isPlaying)
            access->lastEnd = {};
        access->holdClock(time);
        access->videoWake.raise();
        stale.audio = std::exchange(access->audioWork, std::stop_source());
    }
    stale.stop();
}

void Player::Private::seek(Time time, Time before, Time after, std::function<void(bool)> done) {
    StaleWork stale;
    PendingSeek seek{0, std::move(done)};
    {
        auto access = transport();
        if (access->item && isTime(time)) {
            const Time target = clamped(time, access->duration);
            stale.audio =
                beginJump(*access, target, seekRequest(target, before, after, access->duration));
            seek.generation = access->generation;
        }
    }
    stale.stop();
    if (seek.generation != 0)
        abandonSeek();
    m_pendingSeek = std::move(seek);
    if (m_pendingSeek->generation == 0)
        abandonSeek();
}

void Player::Private::abandonSeek() {
    const std::optional<PendingSeek> seek = std::exchange(m_pendingSeek, std::nullopt);
    if (seek && seek->done)
        post([done = seek->done](Private&) { done(false); });
}

void Player::Private::finishSeek(std::uint64_t generation) {
    if (!m_pendingSeek || m_pendingSeek->generation != generation)
        return;
    const std::optional<PendingSeek> seek = std::exchange(m_pendingSeek, std::nullopt);
    if (seek->done)
        seek->done(true);
}

void Player::Private::step(int count) {
    setPlaying(false);
    auto access = transport();
    if (count == 0 || !access->item)
        return;
    access->hasEnded = false;
    access->steps.push_back(count);
    access->direction = count < 0 ? -1 : 1;
    access->presenterWake.raise();
    access->videoWake.raise();
}

void Player::Private::setVideoSink(VideoSink* sink) {
    auto access = transport();
    m_playback.sinkIsFree.wait(access.lock(), [&] { return !access->isPresenting; });
    access->sink = sink;
    access->isRedeliveryWanted = sink != nullptr;
    access->presenterWake.raise();
}

void Player::Private::setPointsOfInterest(const std::vector<Time>& times) {
    std::vector<std::int64_t> ticks;
    auto access = transport();
    for (const Time time : times) {
        if (access->item && isTime(time))
            ticks.push_back(clampedTicks(time, access->duration));
    }
    if (ticks == m_playback.cache.pointsOfInterest())
        return;
    m_playback.cache.setPointsOfInterest(std::move(ticks));
    ++access->interests;
    access->videoWake.raise();
}

Player::Token Player::Private::addObserver(Time interval, std::function<void(Time)> handler) {
    const Token token = ++m_lastToken;
    m_timeHandlers[token] = std::make_shared<const std::function<void(Time)>>(std::move(handler));
    playback::TickObserver observer;
    observer.token = token;
    observer.interval =
        std::max<playback::nanoseconds>(playback::toNanoseconds(interval), kShortestInterval);
    auto access = transport();
    const Time time = access->time(now());
    if (time.isNumeric())
        observer.lastInterval = playback::toNanoseconds(time) / observer.interval;
    access->observers.push_back(observer);
    access->presenterWake.raise();
    return token;
}

void Player::Private::removeObserver(Token token) {
    m_timeHandlers.erase(token);
    std::erase_if(transport()->observers,
                  [token](const playback::TickObserver& each) { return each.token == token; });
}

void Player::Private::post(std::function<void(Private&)> action) {
    m_executor([weak = weak_from_this(), action = std::move(action)] {
        const std::shared_ptr<Private> self = weak.lock();
        if (self && self->m_isAlive)
            action(*self);
    });
}

void Player::Private::reportRate(float rate) {
    post([rate](Private& self) {
        if (const auto handler = self.rateHandler)
            handler(rate);
    });
}

void Player::Private::handle(const PlaybackEvent& event) {
    switch (event.kind) {
    case PlaybackEvent::Kind::tick:
        handleTick(event);
        break;
    case PlaybackEvent::Kind::jump:
        handleJump(event);
        break;
    case PlaybackEvent::Kind::end:
        handleEnd(event);
        break;
    }
}

void Player::Private::handleTick(const PlaybackEvent& event) {
    std::vector<Token> due;
    {
        auto access = transport();
        if (access->generation != event.generation)
            return;
        for (playback::TickObserver& observer : access->observers) {
            if (std::exchange(observer.isDue, false))
                due.push_back(observer.token);
        }
    }
    callObservers(due);
}

void Player::Private::handleJump(const PlaybackEvent& event) {
    {
        auto access = transport();
        if (access->generation != event.generation || !access->item)
            return;
    }
    callObservers(observerTokens());
    if (m_isAlive)
        finishSeek(event.generation);
}

void Player::Private::handleEnd(const PlaybackEvent& event) {
    std::shared_ptr<const PlayerItem> item;
    bool wasPlaying = false;
    {
        auto access = transport();
        if (access->generation != event.generation || access->endCount != event.endCount ||
            !access->hasEnded)
            return;
        access->hasEnded = false;
        wasPlaying = std::exchange(access->isPlaying, false);
        item = access->item;
    }
    const auto rateChanged = rateHandler;
    if (wasPlaying && rateChanged)
        rateChanged(0.0F);
    if (m_isAlive && transport()->generation == event.generation)
        callObservers(observerTokens());
    const auto ended = endHandler;
    if (m_isAlive && ended && transport()->item == item)
        ended(item);
}

std::vector<Player::Token> Player::Private::observerTokens() const {
    std::vector<Token> tokens;
    for (const auto& [token, handler] : m_timeHandlers)
        tokens.push_back(token);
    return tokens;
}

/// Handlers may remove observers and do anything else to the player, its destruction included.
void Player::Private::callObservers(const std::vector<Token>& tokens) {
    for (const Token token : tokens) {
        const auto found = m_timeHandlers.find(token);
        if (!m_isAlive || found == m_timeHandlers.end())
            continue;
        const TimeHandler handler = found->second;
        const Time time = transport()->time(now());
        if (*handler)
            (*handler)(time);
    }
}

Player::Player(Executor executor)
    : Player(std::move(executor), std::make_unique<playback::CubebOutput>()) {}

Player::Player(Executor executor, std::unique_ptr<playback::AudioOutput> output)
    : d(std::make_shared<Private>(std::move(executor), std::move(output))) {
    d->start();
}

Player::~Player() {
    d->assertOwner();
    d->close();
}

void Player::replaceCurrentItem(std::shared_ptr<const PlayerItem> item) {
    d->assertOwner();
    d->replaceCurrentItem(std::move(item));
}

std::shared_ptr<const PlayerItem> Player::currentItem() const {
    d->assertOwner();
    return d->transport()->item;
}

void Player::play() {
    d->assertOwner();
    d->setPlaying(true);
}

void Player::pause() {
    d->assertOwner();
    d->setPlaying(false);
}

float Player::rate() const {
    d->assertOwner();
    return d->transport()->isPlaying ? 1.0F : 0.0F;
}

void Player::seek(Time time, Time toleranceBefore, Time toleranceAfter,
                  std::function<void(bool finished)> done) {
    d->assertOwner();
    d->seek(time, toleranceBefore, toleranceAfter, std::move(done));
}

void Player::step(int count) {
    d->assertOwner();
    d->step(count);
}

Time Player::currentTime() const {
    d->assertOwner();
    return d->transport()->time(now());
}

void Player::setMuted(bool muted) {
    d->assertOwner();
    d->isMuted = muted;
    d->audio().setMuted(muted);
}

bool Player::isMuted() const {
    d->assertOwner();
    return d->isMuted;
}

void Player::setVideoSink(VideoSink* sink) {
    d->assertOwner();
    d->setVideoSink(sink);
}

void Player::setPreviewSize(int pixelWidth, int pixelHeight) {
    d->assertOwner();
    auto access = d->transport();
    access->previewSize = {std::max(pixelWidth, 0), std::max(pixelHeight, 0)};
    access->presenterWake.raise();
    access->videoWake.raise();
}

void Player::setPointsOfInterest(const std::vector<Time>& times) {
    d->assertOwner();
    d->setPointsOfInterest(times);
}

Player::Token Player::addPeriodicTimeObserver(Time interval, std::function<void(Time)> handler) {
    d->assertOwner();
    return d->addObserver(interval, std::move(handler));
}

void Player::removeTimeObserver(Token token) {
    d->assertOwner();
    d->removeObserver(token);
}

void Player::setRateHandler(std::function<void(float rate)> handler) {
    d->assertOwner();
    d->rateHandler = std::move(handler);
}

void Player::setEndHandler(std::function<void(const std::shared_ptr<const PlayerItem>&)> handler) {
    d->assertOwner();
    d->endHandler = std::move(handler);
}

Player::Statistics Player::statistics() const {
    d->assertOwner();
    return d->transport()->statistics;
}

} // namespace media
