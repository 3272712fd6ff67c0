#include "Media/Playback/Presenter.h"

#include <algorithm>

namespace media::playback {

namespace {

using std::chrono::milliseconds;

/// A frame handed over this much after its time counts as late.
constexpr nanoseconds kLate = milliseconds(20);
/// How long the clock waits for a sound device before the picture goes on without.
constexpr milliseconds kSoundPatience{1000};
/// Between two looks for something to show in place of the frame that a seek is on its way to.
constexpr milliseconds kShortestWait{1};
/// Nothing to wait for but a wake.
constexpr std::chrono::hours kIdle{1};

/// The moment on the item's time line at which the frame at `ticks` becomes "the frame at t":
/// half a tick earlier, since times are rounded to ticks.
nanoseconds dueTime(std::int64_t ticks) {
    constexpr std::int64_t kHalfTicks = 2 * std::int64_t{kComparisonTimescale};
    const std::int64_t halves = 2 * ticks - 1;
    const std::int64_t seconds = halves / kHalfTicks;
    return std::chrono::seconds(seconds) +
           nanoseconds(((halves % kHalfTicks) * kNanoTimescale + kHalfTicks - 1) / kHalfTicks);
}

void countShown(Transport& transport) {
    if (!transport.shown.image)
        return;
    ++transport.statistics.shown;
    if (transport.shown.isFromCache)
        ++transport.statistics.fromCache;
}

} // namespace

Presenter::Presenter(Playback& playback, Report report)
    : m_playback(playback), m_report(std::move(report)) {}

void Presenter::work(const std::stop_token& stop) {
    Access access = m_playback.transport.lock();
    while (!stop.stop_requested()) {
        const SteadyTime now = std::chrono::steady_clock::now();
        if (const std::optional<Find> found = find(*access, now)) {
            prepare(access, *found);
            continue;
        }
        const Round round = look(*access, now);
        if (round.isEmpty())
            access->presenterWake.wait(access, stop, nextLook(*access, now));
        else
            deliver(access, round);
    }
}

Presenter::Round Presenter::look(Transport& transport, SteadyTime now) {
    Round round;
    const bool mayRun = transport.isRunningWanted() && transport.isPictureReady;
    if (mayRun && !transport.clock.isRunning() && now - transport.readySince >= kSoundPatience)
        transport.clock.run(now);
    takeFrame(transport, now, round);
    if (!mayRun)
        return round;
    tick(transport, now, round);
    if (transport.time(now) >= transport.duration)
        finish(transport, now, round);
    return round;
}

void Presenter::takeFrame(Transport& transport, SteadyTime now, Round& round) {
    if (transport.immediate) {
        transport.shown = std::move(transport.immediate->frame);
        countShown(transport);
        if (transport.immediate->isJump)
            jump(transport, now, round);
        transport.immediate.reset();
        transport.videoWake.raise();
        round.picture = transport.shown.timedImage();
    } else {
        takeDueFrames(transport, now, round);
    }
    if (transport.isRedeliveryWanted)
        round.picture = transport.shown.timedImage();
    transport.isRedeliveryWanted = false;
}

void Presenter::jump(Transport& transport, SteadyTime now, Round& round) {
    round.events.push_back({PlaybackEvent::Kind::jump, transport.immediate->generation, 0});
    if (!transport.item)
        return;
    // The jump itself is reported to every observer: only the boundaries after it are news.
    const nanoseconds time = toNanoseconds(transport.time(now));
    for (TickObserver& observer : transport.observers)
        observer.lastInterval = time / observer.interval;
}

void Presenter::takeDueFrames(Transport& transport, SteadyTime now, Round& round) {
    if (transport.upcoming.empty() || !transport.isPictureReady)
        return;
    const nanoseconds time = toNanoseconds(transport.time(now));
    bool isAny = false;
    while (!transport.upcoming.empty() &&
           dueTime(transport.upcoming.front().time.ticks().count()) <= time) {
        if (isAny)
            ++transport.statistics.dropped;
        isAny = true;
        transport.shown = std::move(transport.upcoming.front());
        transport.upcoming.pop_front();
    }
    if (!isAny)
        return;
    if (time - dueTime(transport.shown.time.ticks().count()) > kLate)
        ++transport.statistics.late;
    countShown(transport);
    transport.videoWake.raise();
    round.picture = transport.shown.timedImage();
}

void Presenter::tick(Transport& transport, SteadyTime now, Round& round) {
    if (!transport.clock.isRunning())
        return;
    const nanoseconds time = toNanoseconds(transport.time(now));
    bool isNews = false;
    for (TickObserver& observer : transport.observers) {
        const std::int64_t interval = time / observer.interval;
        if (interval != observer.lastInterval && !observer.isDue)
            isNews = observer.isDue = true;
        observer.lastInterval = interval;
    }
    if (isNews)
        round.events.push_back({PlaybackEvent::Kind::tick, transport.generation, 0});
}

void Presenter::finish(Transport& transport, SteadyTime now, Round& round) {
    transport.hasEnded = true;
    transport.lastEnd = now;
    transport.holdClock(transport.duration);
    round.events.push_back({PlaybackEvent::Kind::end, transport.generation, ++transport.endCount});
}

SteadyTime Presenter::nextLook(const Transport& transport, SteadyTime now) {
    if (transport.seek)
        return std::max(transport.substituteAt, now + kShortestWait);
    if (!transport.isRunningWanted() || !transport.isPictureReady)
        return now + kIdle;
    const PlaybackClock& clock = transport.clock;
    if (!clock.isRunning())
        return transport.readySince + kSoundPatience;
    SteadyTime next = clock.whenReaches(toNanoseconds(transport.duration), now);
    if (!transport.upcoming.empty())
        next = std::min(
            next, clock.whenReaches(dueTime(transport.upcoming.front().time.ticks().count()), now));
    for (const TickObserver& observer : transport.observers)
        next =
            std::min(next, clock.whenReaches(observer.interval * (observer.lastInterval + 1), now));
    return next;
}

void Presenter::deliver(Access& access, const Round& round) {
    VideoSink* const sink = access->sink;
    access->isPresenting = sink != nullptr && round.picture;
    access.lock().unlock();
    if (sink && round.picture)
        sink->present(*round.picture);
    for (const PlaybackEvent& event : round.events)
        m_report(event);
    access.lock().lock();
    access->isPresenting = false;
    m_playback.sinkIsFree.notify_all();
}

} // namespace media::playback
