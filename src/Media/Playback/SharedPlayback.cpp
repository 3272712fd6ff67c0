#include "Media/Playback/SharedPlayback.h"

#include <utility>

namespace media::playback {

SharedPlayback::Access::Access(SharedPlayback& shared, std::unique_lock<std::mutex> lock)
    : m_shared(shared), m_lock(std::move(lock)) {}

SharedPlayback::Access::~Access() {
    Aftermath aftermath = m_shared.m_state.takeAftermath();
    m_shared.wakeWhom(aftermath.wakes);
    m_lock.unlock();
    for (std::stop_source& work : aftermath.staleWork)
        work.request_stop();
}

SharedPlayback::Access SharedPlayback::lockBetweenDeliveries() {
    std::unique_lock lock(m_mutex);
    m_sinkIsFree.wait(lock, [this] { return !m_state.isDelivering(); });
    return {*this, std::move(lock)};
}

void SharedPlayback::wait(Waiter waiter, const std::stop_token& stop, SteadyTime deadline) {
    std::unique_lock lock(m_mutex);
    Bell& its = bell(waiter);
    its.condition.wait_until(lock, stop, deadline, [&its] { return its.isRung; });
    its.isRung = false;
}

void SharedPlayback::wake(Waiter waiter) {
    const std::lock_guard lock(m_mutex);
    bell(waiter).ring();
}

void SharedPlayback::wakeWhom(const Wakes& wakes) {
    if (wakes.decoding)
        bell(Waiter::decoding).ring();
    if (wakes.presenting)
        bell(Waiter::presenting).ring();
    if (wakes.sound)
        bell(Waiter::sound).ring();
    if (wakes.sinkIsFree)
        m_sinkIsFree.notify_all();
}

void SharedPlayback::Bell::ring() {
    isRung = true;
    condition.notify_all();
}

} // namespace media::playback
