#include "Media/Playback/PlayerPrivate.h"

#include <algorithm>
#include <chrono>

namespace media {

namespace {

using playback::PlaybackEvent;
using playback::SteadyTime;

/// Observers are not called more often than this.
constexpr std::chrono::milliseconds kShortestInterval{1};

SteadyTime now() {
    return std::chrono::steady_clock::now();
}

} // namespace

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
    callObservers(observerTokens());
    const auto rateChanged = rateHandler;
    if (m_isAlive && wasPlaying && rateChanged)
        rateChanged(0.0F);
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

} // namespace media
