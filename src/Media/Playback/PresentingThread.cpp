#include "Media/Playback/PresentingThread.h"

#include <chrono>
#include <exception>
#include <new>
#include <thread>
#include <utility>

namespace media::playback {

namespace {

SteadyTime now() {
    return std::chrono::steady_clock::now();
}

/// Where there is no memory for the picture, the last one stays on show.
RenderedFrame renderedOrNothing(const CachedFrame& frame) {
    try {
        return render(frame);
    } catch (const std::exception&) {
        return {nullptr, frame.time, frame.range, false};
    }
}

/// Calls again after a moment while the system refuses memory: a frame or an event that were
/// dropped would be missed for good. The call must be able to be made again after it has thrown.
template<typename Call>
void insist(const std::stop_token& stop, Call call) {
    constexpr std::chrono::milliseconds kPause{10};
    for (;;) {
        try {
            return call();
        } catch (const std::bad_alloc&) {
            if (stop.stop_requested())
                return;
            std::this_thread::sleep_for(kPause);
        }
    }
}

} // namespace

PresentingThread::PresentingThread(SharedPlayback& shared, Report report)
    : m_shared(shared), m_report(std::move(report)) {}

void PresentingThread::run(const std::stop_token& stop) {
    Presentation next = m_shared.lock()->nextPresentation(now());
    while (!stop.stop_requested())
        next = std::visit([&](const auto& what) { return perform(what, stop); }, next);
}

Presentation PresentingThread::perform(const SteadyTime& until, const std::stop_token& stop) {
    m_shared.wait(SharedPlayback::Waiter::presenting, stop, until);
    return m_shared.lock()->nextPresentation(now());
}

Presentation PresentingThread::perform(const FrameToShow& frame, const std::stop_token& /*stop*/) {
    RenderedFrame rendered = renderedOrNothing(frame.frame);
    return m_shared.lock()->frameRendered(frame, std::move(rendered), now());
}

Presentation PresentingThread::perform(const Delivery& delivery, const std::stop_token& stop) {
    if (delivery.sink && delivery.picture)
        insist(stop, [&] { delivery.sink->present(*delivery.picture); });
    for (const PlaybackEvent& event : delivery.events)
        insist(stop, [&] { m_report(event); });
    return m_shared.lock()->delivered(now());
}

} // namespace media::playback
