#include "Media/Playback/Presenter.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace media::playback {

namespace {

/// While a seek is on its way, something nearer is shown no more often than this.
constexpr std::chrono::milliseconds kSubstituteInterval{200};

double distance(std::int64_t a, std::int64_t b) {
    return std::abs(static_cast<double>(a) - static_cast<double>(b));
}

} // namespace

/// The frame of the cache that is to be shown at once, if there is one: that of a seek, or what
/// stands in for it, that of a step, or the one on show in another size.
std::optional<Presenter::Find> Presenter::find(Transport& transport, SteadyTime now) const {
    if (transport.immediate || !transport.item)
        return std::nullopt;
    const auto found = [&](Find::Purpose purpose, std::optional<CachedFrame> frame) {
        return frame ? std::optional(Find{purpose, transport.generation, std::move(*frame)})
                     : std::nullopt;
    };
    if (transport.seek) {
        if (auto sought = findSought(transport))
            return found(Find::Purpose::seek, std::move(sought));
        if (now < transport.substituteAt)
            return std::nullopt;
        auto substitute = findSubstitute(transport);
        transport.substituteAt = now + (substitute ? kSubstituteInterval : kSubstituteInterval / 4);
        return found(Find::Purpose::substitute, std::move(substitute));
    }
    if (!transport.steps.empty())
        return found(Find::Purpose::step, findStep(transport));
    if (!transport.isShownInSize())
        return found(
            Find::Purpose::redraw,
            m_playback.cache.find(transport.shown.time.ticks().count(), transport.imageSize()));
    return std::nullopt;
}

std::optional<CachedFrame> Presenter::findSought(Transport& transport) const {
    SeekRequest& seek = *transport.seek;
    const std::int64_t middle = seek.earliest + (seek.latest - seek.earliest) / 2;
    auto frame = m_playback.cache.find(middle, transport.imageSize());
    if (!frame || seek.isExact())
        return frame;
    if (!seek.holds(frame->time.ticks().count()))
        return std::nullopt;
    seek.movesClock = true;
    return frame;
}

/// What is nearer to the frame sought than the one on show.
std::optional<CachedFrame> Presenter::findSubstitute(const Transport& transport) const {
    const std::int64_t ticks = transport.seek->earliest;
    std::optional<CachedFrame> best = m_playback.cache.nearest(ticks);
    const auto distanceOf = [ticks](const CachedFrame& frame) {
        return distance(frame.time.ticks().count(), ticks);
    };
    if (transport.passing && (!best || distanceOf(*transport.passing) < distanceOf(*best)))
        best = *transport.passing;
    const bool isNearer =
        best && (!transport.shown.image ||
                 distanceOf(*best) < distance(transport.shown.time.ticks().count(), ticks));
    return isNearer ? best : std::nullopt;
}

/// Walks through the cache as far as the first of the steps goes. Where a frame is missing the
/// video thread is left to decode it.
std::optional<CachedFrame> Presenter::findStep(Transport& transport) const {
    while (!transport.steps.empty()) {
        if (!transport.step)
            transport.step = StepProgress{transport.steps.front(), transport.shown.begin,
                                          transport.shown.end, std::nullopt};
        StepProgress& step = *transport.step;
        while (step.left != 0 && transport.shown.image) {
            const std::optional<std::int64_t> ticks = step.nextTicks();
            if (!ticks)
                break;
            m_playback.cache.setFocus(*ticks);
            auto next = m_playback.cache.find(*ticks, transport.imageSize());
            if (!next) {
                transport.videoWake.raise();
                return std::nullopt;
            }
            step.end = next->end;
            // A frame whose end was known from the packets shows longer where the one after it
            // does not decode.
            if (std::exchange(step.begin, next->begin) == next->begin)
                continue;
            step.frame = std::move(next);
            step.left += step.left > 0 ? -1 : 1;
        }
        if (step.frame)
            return step.frame;
        // There is nowhere to go.
        transport.steps.pop_front();
        transport.step.reset();
    }
    return std::nullopt;
}

/// Makes the picture, without the lock, and lays it ready if it is still wanted then.
void Presenter::prepare(Access& access, const Find& find) {
    access.lock().unlock();
    ReadyFrame frame = readyFrame(find.frame);
    access.lock().lock();
    Transport& transport = *access;
    if (transport.generation != find.generation || transport.immediate)
        return;
    const bool isJump = find.purpose == Find::Purpose::seek || find.purpose == Find::Purpose::step;
    if (find.purpose == Find::Purpose::step && !transport.step)
        return;
    frame.isFromCache = find.purpose == Find::Purpose::seek && !transport.seek->needsDecoding;
    if (isJump)
        arrive(transport, find);
    transport.immediate = ImmediateFrame{std::move(frame), isJump, find.generation};
}

void Presenter::arrive(Transport& transport, const Find& find) {
    transport.lastJump = std::chrono::steady_clock::now();
    transport.nextTicks = find.frame.end;
    if (find.purpose == Find::Purpose::step) {
        transport.steps.pop_front();
        transport.step.reset();
        transport.upcoming.clear();
        transport.holdClock(find.frame.time);
        return;
    }
    if (transport.seek->movesClock)
        transport.holdClock(find.frame.time);
    transport.seek.reset();
    transport.passing.reset();
    transport.isPictureReady = true;
    transport.readySince = std::chrono::steady_clock::now();
    transport.audioWake.raise();
}

} // namespace media::playback
