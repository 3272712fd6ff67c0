// What the presenting thread is to do next, and what comes of it.
#include "Media/Playback/PlaybackState.h"

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

} // namespace

Presentation PlaybackState::nextPresentation(SteadyTime now) {
    if (std::optional<FrameToShow> frame = frameToShow(now))
        return std::move(*frame);
    Delivery delivery = look(now);
    if (delivery.isEmpty())
        return nextPresentingLook(now);
    delivery.sink = m_sink;
    m_isDelivering = m_sink != nullptr && delivery.picture;
    return delivery;
}

/// The frame of the cache that is to be shown at once, if there is one: that of a seek, or what
/// stands in for it, that of a step, or the one on show in another size.
std::optional<FrameToShow> PlaybackState::frameToShow(SteadyTime now) {
    using Purpose = FrameToShow::Purpose;
    if (m_immediate || !m_item)
        return std::nullopt;
    const auto found = [this](Purpose purpose, std::optional<CachedFrame> frame) {
        return frame ? std::optional(FrameToShow{purpose, m_generation, std::move(*frame)})
                     : std::nullopt;
    };
    const ImageSize size = imageSize();
    if (m_seek) {
        if (auto sought = m_seek->find(m_cache, size))
            return found(Purpose::seek, std::move(sought));
        return found(Purpose::substitute, m_seek->findSubstitute(m_cache, m_shown, now));
    }
    if (!m_steps.isEmpty()) {
        auto frame = m_steps.advance(m_cache, size, m_shown);
        // It may wait for a frame that has to be decoded.
        m_deferred.wakes.decoding = m_deferred.wakes.decoding || !frame;
        return found(Purpose::step, std::move(frame));
    }
    if (!isShownInSize())
        return found(Purpose::redraw, m_cache.find(m_shown.time.ticks(), size));
    return std::nullopt;
}

Presentation PlaybackState::frameRendered(const FrameToShow& work, RenderedFrame frame,
                                          SteadyTime now) {
    using Purpose = FrameToShow::Purpose;
    const bool isStep = work.purpose == Purpose::step;
    const bool isSeek = work.purpose == Purpose::seek;
    const bool isVoid = work.generation != m_generation || m_immediate ||
                        (isStep && m_steps.isEmpty()) || (isSeek && !m_seek);
    if (!isVoid) {
        frame.isFromCache = isSeek && !m_seek->needsDecoding();
        if (isStep || isSeek)
            arrive(work, now);
        m_immediate = ImmediateFrame{std::move(frame), isStep || isSeek};
    }
    return nextPresentation(now);
}

/// A seek or step has come to its frame.
void PlaybackState::arrive(const FrameToShow& work, SteadyTime now) {
    m_lastJump = now;
    if (work.purpose == FrameToShow::Purpose::step) {
        m_steps.arrive();
        m_queue.restartAt(work.frame.range.end);
        holdClock(work.frame.time, now);
        return;
    }
    m_queue.restartAt(work.frame.range.end);
    if (m_seek->movesClock())
        holdClock(work.frame.time, now);
    m_seek.reset();
    pictureIsReady(now);
}

Presentation PlaybackState::delivered(SteadyTime now) {
    m_isDelivering = false;
    m_deferred.wakes.sinkIsFree = true;
    return nextPresentation(now);
}

Delivery PlaybackState::look(SteadyTime now) {
    Delivery delivery;
    const bool mayRun = isRunningWanted() && m_isPictureReady;
    if (mayRun && !m_clock.isRunning() && now - m_readySince >= kSoundPatience)
        m_clock.run(now);
    takeFrame(now, delivery);
    if (!mayRun)
        return delivery;
    tick(now, delivery);
    if (time(now) >= m_duration)
        finish(now, delivery);
    return delivery;
}

void PlaybackState::takeFrame(SteadyTime now, Delivery& delivery) {
    if (m_immediate) {
        const ImmediateFrame immediate = std::move(*m_immediate);
        m_immediate.reset();
        show(immediate.frame);
        delivery.picture = m_shown.timedImage();
        if (immediate.isJump) {
            delivery.events.push_back({PlaybackEvent::Kind::jump, m_generation, 0});
            // Everybody is told of the jump itself.
            if (m_item)
                m_observers.jumpTo(time(now));
        }
    } else {
        takeDueFrame(now, delivery);
    }
    if (m_isRedeliveryWanted)
        delivery.picture = m_shown.timedImage();
    m_isRedeliveryWanted = false;
}

void PlaybackState::takeDueFrame(SteadyTime now, Delivery& delivery) {
    if (!m_isPictureReady || m_queue.isEmpty())
        return;
    std::optional<FrameQueue::DueFrame> due = m_queue.takeDue(toNanoseconds(time(now)));
    if (!due)
        return;
    m_statistics.dropped += due->overtaken;
    if (due->lateness > kLate)
        ++m_statistics.late;
    show(std::move(due->frame));
    delivery.picture = m_shown.timedImage();
}

void PlaybackState::show(RenderedFrame frame) {
    m_shown = std::move(frame);
    m_deferred.wakes.decoding = true;
    if (!m_shown.image)
        return;
    ++m_statistics.shown;
    if (m_shown.isFromCache)
        ++m_statistics.fromCache;
}

void PlaybackState::tick(SteadyTime now, Delivery& delivery) {
    if (m_clock.isRunning() && m_observers.advanceTo(time(now)))
        delivery.events.push_back({PlaybackEvent::Kind::tick, m_generation, 0});
}

void PlaybackState::finish(SteadyTime now, Delivery& delivery) {
    m_hasEnded = true;
    m_lastEnd = now;
    holdClock(m_duration, now);
    delivery.events.push_back({PlaybackEvent::Kind::end, m_generation, ++m_endCount});
}

SteadyTime PlaybackState::nextPresentingLook(SteadyTime now) const {
    if (m_seek)
        return std::max(m_seek->substituteAt(), now + kShortestWait);
    if (!isRunningWanted() || !m_isPictureReady)
        return now + kIdle;
    if (!m_clock.isRunning())
        return m_readySince + kSoundPatience;
    SteadyTime next = m_clock.whenReaches(toNanoseconds(m_duration), now);
    if (const auto due = m_queue.firstDueTime())
        next = std::min(next, m_clock.whenReaches(*due, now));
    if (const auto boundary = m_observers.nextBoundary(m_clock, now))
        next = std::min(next, *boundary);
    return next;
}

} // namespace media::playback
