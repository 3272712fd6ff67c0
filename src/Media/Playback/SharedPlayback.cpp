#include "Media/Playback/SharedPlayback.h"

#include <utility>

namespace media::playback {

SharedPlayback::Access::Access(SharedPlayback& shared, std::unique_lock<std::mutex> lock)
    : m_shared(shared), m_lock(std::move(lock)) {}

SharedPlayback::Access::~Access() {
    DeferredWork deferred = m_shared.m_state.takeDeferredWork();
    m_shared.wakeWhom(deferred.wakes);
    m_lock.unlock();
    for (std::stop_source& work : deferred.staleWork)
        work.request_stop();
}

SharedPlayback::Access SharedPlayback::lockBetweenDeliveries() {
    std::unique_lock lock(m_mutex);
    m_sinkIsFree.wait(lock, [this] { return !m_state.isDelivering(); });
    return {*this, std::move(lock)};
}

void SharedPlayback::wait(Waiter waiter, const std::stop_token& stop, SteadyTime deadline) {
    std::unique_lock lock(m_mutex);
    WakeEvent& its = wakeEvent(waiter);
    its.condition.wait_until(lock, stop, deadline, [&its] { return its.isSet; });
    its.isSet = false;
}

void SharedPlayback::wake(Waiter waiter) {
    const std::lock_guard lock(m_mutex);
    wakeEvent(waiter).set();
}

void SharedPlayback::wakeWhom(const Wakes& wakes) {
    if (wakes.decoding)
        wakeEvent(Waiter::decoding).set();
    if (wakes.presenting)
        wakeEvent(Waiter::presenting).set();
    if (wakes.sound)
        wakeEvent(Waiter::sound).set();
    if (wakes.sinkIsFree)
        m_sinkIsFree.notify_all();
}

void SharedPlayback::WakeEvent::set() {
    isSet = true;
    condition.notify_all();
}

} // namespace media::playback
