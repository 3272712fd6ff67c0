#include "Media/Playback/TimeObservers.h"

#include <algorithm>
#include <utility>

namespace media::playback {

namespace {

constexpr nanoseconds kShortestInterval = std::chrono::milliseconds(1);

} // namespace

void TimeObservers::add(Player::Token token, Time interval, Time time) {
    Observer observer;
    observer.token = token;
    observer.interval = std::max(toNanoseconds(interval), kShortestInterval);
    if (time.isNumeric())
        observer.lastInterval = toNanoseconds(time) / observer.interval;
    m_observers.push_back(observer);
}

void TimeObservers::remove(Player::Token token) {
    std::erase_if(m_observers, [token](const Observer& each) { return each.token == token; });
}

bool TimeObservers::advanceTo(Time time) {
    bool isNews = false;
    for (Observer& observer : m_observers) {
        const std::int64_t interval = toNanoseconds(time) / observer.interval;
        if (interval != observer.lastInterval && !observer.isPending)
            isNews = observer.isPending = true;
        observer.lastInterval = interval;
    }
    return isNews;
}

void TimeObservers::jumpTo(Time time) {
    for (Observer& observer : m_observers)
        observer.lastInterval = toNanoseconds(time) / observer.interval;
}

void TimeObservers::forgetPending() {
    for (Observer& observer : m_observers)
        observer.isPending = false;
}

std::vector<Player::Token> TimeObservers::takePending() {
    std::vector<Player::Token> tokens;
    for (Observer& observer : m_observers) {
        if (std::exchange(observer.isPending, false))
            tokens.push_back(observer.token);
    }
    return tokens;
}

std::optional<SteadyTime> TimeObservers::nextBoundary(const PlaybackClock& clock,
                                                      SteadyTime now) const {
    std::optional<SteadyTime> next;
    for (const Observer& observer : m_observers) {
        const SteadyTime boundary =
            clock.whenReaches(observer.interval * (observer.lastInterval + 1), now);
        next = next ? std::min(*next, boundary) : boundary;
    }
    return next;
}

} // namespace media::playback
