#include "Media/Playback/PlayerPrivate.h"

#include "Media/Playback/PlayableAsset.h"

#include <chrono>
#include <utility>

namespace media {

namespace {

using playback::PlaybackEvent;
using playback::SteadyTime;

SteadyTime now() {
    return std::chrono::steady_clock::now();
}

} // namespace

ThreadedPlayer::Private::Private(Executor executor, std::unique_ptr<playback::AudioOutput> output)
    : m_executor(std::move(executor)),
      m_decoding(m_shared),
      m_sound(m_shared, std::move(output)),
      m_presenting(m_shared, [this](const PlaybackEvent& event) {
          post([event](Private& self) { self.handle(event); });
      }) {}

void ThreadedPlayer::Private::start() {
    m_threads.start("player-video", [this](const std::stop_token& stop) { m_decoding.run(stop); });
    m_threads.start("player-audio", [this](const std::stop_token& stop) { m_sound.run(stop); });
    m_threads.start("player-present",
                    [this](const std::stop_token& stop) { m_presenting.run(stop); });
}

void ThreadedPlayer::Private::close() {
    m_isAlive = false;
    setVideoSink(nullptr);
    *m_executor.lock() = nullptr;
    m_threads.requestStop();
    state()->stopWork();
    const std::shared_ptr<const PlayerItem> item = state()->item();
    m_threads.finish(shared_from_this(), [&item] {
        if (item)
            playback::PlayableAsset::of(item->asset())->abandon();
    });
}

void ThreadedPlayer::Private::replaceCurrentItem(std::shared_ptr<const PlayerItem> item) {
    abandonSeek();
    state()->replaceItem(std::move(item), now());
}

void ThreadedPlayer::Private::setPlaying(bool isPlaying) {
    if (state()->isPlaying() == isPlaying)
        return;
    // Before any thread can act on it, so that an end that follows at once is reported after it.
    reportRate(isPlaying ? 1.0F : 0.0F);
    state()->setPlaying(isPlaying, now());
}

void ThreadedPlayer::Private::seek(Time time, Time before, Time after,
                                   std::function<void(bool)> done) {
    const auto generation = state()->beginSeek(time, before, after, now());
    if (!generation) {
        refuse(done);
        return;
    }
    abandonSeek();
    m_awaitedSeek = AwaitedSeek{*generation, std::move(done)};
}

/// Tells whoever waits for a seek that it does not arrive.
void ThreadedPlayer::Private::refuse(const std::function<void(bool)>& done) {
    if (done)
        post([done](Private&) { done(false); });
}

void ThreadedPlayer::Private::abandonSeek() {
    const std::optional<AwaitedSeek> seek = std::exchange(m_awaitedSeek, std::nullopt);
    if (seek)
        refuse(seek->done);
}

void ThreadedPlayer::Private::finishSeek(std::uint64_t generation) {
    if (!m_awaitedSeek || m_awaitedSeek->generation != generation)
        return;
    const std::optional<AwaitedSeek> seek = std::exchange(m_awaitedSeek, std::nullopt);
    if (seek->done)
        seek->done(true);
}

void ThreadedPlayer::Private::step(int count) {
    setPlaying(false);
    state()->beginStep(count, now());
}

void ThreadedPlayer::Private::setVideoSink(VideoSink* sink) {
    m_shared.lockBetweenDeliveries()->setSink(sink);
}

Player::Token ThreadedPlayer::Private::addObserver(Time interval,
                                                   std::function<void(Time)> handler) {
    const Token token = ++m_lastToken;
    m_timeHandlers[token] = std::make_shared<const std::function<void(Time)>>(std::move(handler));
    state()->addObserver(token, interval, now());
    return token;
}

void ThreadedPlayer::Private::removeObserver(Token token) {
    m_timeHandlers.erase(token);
    state()->removeObserver(token);
}

void ThreadedPlayer::Private::post(std::function<void(Private&)> action) {
    // Held while it posts, so that close() returns after the last call of it.
    const auto executor = m_executor.lock();
    if (!*executor)
        return;
    (*executor)([weak = weak_from_this(), action = std::move(action)] {
        const std::shared_ptr<Private> self = weak.lock();
        if (self && self->m_isAlive)
            action(*self);
    });
}

void ThreadedPlayer::Private::reportRate(float rate) {
    post([rate](Private& self) {
        if (const auto handler = self.rateHandler)
            handler(rate);
    });
}

void ThreadedPlayer::Private::handle(const PlaybackEvent& event) {
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

void ThreadedPlayer::Private::handleTick(const PlaybackEvent& event) {
    const std::vector<Token> due = state()->acceptTick(event);
    callObservers(due);
}

void ThreadedPlayer::Private::handleJump(const PlaybackEvent& event) {
    if (!state()->acceptJump(event))
        return;
    callObservers(observerTokens());
    if (m_isAlive)
        finishSeek(event.generation);
}

void ThreadedPlayer::Private::handleEnd(const PlaybackEvent& event) {
    const auto end = state()->acceptEnd(event);
    if (!end)
        return;
    callObservers(observerTokens());
    const auto rateChanged = rateHandler;
    if (m_isAlive && end->wasPlaying && rateChanged)
        rateChanged(0.0F);
    const auto ended = endHandler;
    if (m_isAlive && ended && state()->item() == end->item)
        ended(end->item);
}

std::vector<Player::Token> ThreadedPlayer::Private::observerTokens() const {
    std::vector<Token> tokens;
    for (const auto& [token, handler] : m_timeHandlers)
        tokens.push_back(token);
    return tokens;
}

/// Handlers may remove observers and do anything else to the player, its destruction included.
void ThreadedPlayer::Private::callObservers(const std::vector<Token>& tokens) {
    for (const Token token : tokens) {
        const auto found = m_timeHandlers.find(token);
        if (!m_isAlive || found == m_timeHandlers.end())
            continue;
        const TimeHandler handler = found->second;
        const Time time = state()->time(now());
        if (*handler)
            (*handler)(time);
    }
}

} // namespace media
