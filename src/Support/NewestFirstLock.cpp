#include "Support/NewestFirstLock.h"

namespace brisklet {

NewestFirstLock::NewestFirstLock(Duration leaseDuration, std::function<SteadyTime()> clock)
    : m_leaseDuration(leaseDuration), m_clock(std::move(clock)) {}

NewestFirstLock::Lease::~Lease() {
    if (!m_lock)
        return;
    const std::lock_guard lock(m_lock->m_mutex);
    if (m_lock->m_holder != m_ticket)
        return;
    m_lock->m_holder.reset();
    m_lock->m_changed.notify_all();
}

void NewestFirstLock::Lease::renew() {
    const std::lock_guard lock(m_lock->m_mutex);
    if (m_lock->m_holder == m_ticket)
        m_lock->m_renewed = m_lock->m_clock();
}

std::optional<NewestFirstLock::Lease> NewestFirstLock::acquire(const std::stop_token& stop) {
    std::unique_lock lock(m_mutex);
    const std::uint64_t ticket = ++m_lastTicket;
    m_waiting.insert(ticket);
    const auto isNewest = [&] { return *m_waiting.rbegin() == ticket; };
    while (!stop.stop_requested() && !(isNewest() && isFree())) {
        // Only the newest waits for the lease to run out: nobody else could go next.
        if (isNewest())
            m_changed.wait_until(lock, stop, m_renewed + m_leaseDuration,
                                 [&] { return !isNewest() || isFree(); });
        else
            m_changed.wait(lock, stop, isNewest);
    }
    m_waiting.erase(ticket);
    // Another thread is the newest of those that wait now.
    m_changed.notify_all();
    if (stop.stop_requested())
        return std::nullopt;
    m_holder = ticket;
    m_renewed = m_clock();
    return Lease(*this, ticket);
}

std::size_t NewestFirstLock::waitingCount() {
    const std::lock_guard lock(m_mutex);
    return m_waiting.size();
}

bool NewestFirstLock::isFree() const {
    return !m_holder || m_clock() - m_renewed >= m_leaseDuration;
}

} // namespace brisklet
