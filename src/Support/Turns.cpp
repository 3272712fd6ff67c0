#include "Support/Turns.h"

namespace brisklet {

Turns::Turns(Duration patience, std::function<SteadyTime()> clock)
    : m_patience(patience), m_clock(std::move(clock)) {}

Turns::Turn::~Turn() {
    if (!m_turns)
        return;
    const std::lock_guard lock(m_turns->m_mutex);
    if (m_turns->m_holder != m_ticket)
        return;
    m_turns->m_holder.reset();
    m_turns->m_changed.notify_all();
}

void Turns::Turn::renew() {
    const std::lock_guard lock(m_turns->m_mutex);
    if (m_turns->m_holder == m_ticket)
        m_turns->m_renewed = m_turns->m_clock();
}

std::optional<Turns::Turn> Turns::take(const std::stop_token& stop) {
    std::unique_lock lock(m_mutex);
    const std::uint64_t ticket = ++m_lastTicket;
    m_waiting.insert(ticket);
    const auto isLast = [&] { return *m_waiting.rbegin() == ticket; };
    while (!stop.stop_requested() && !(isLast() && isFree())) {
        // Only the one whose turn is next looks at the time.
        if (isLast())
            m_changed.wait_until(lock, stop, m_renewed + m_patience,
                                 [&] { return !isLast() || isFree(); });
        else
            m_changed.wait(lock, stop, isLast);
    }
    m_waiting.erase(ticket);
    // Whoever is the next to go is another one now.
    m_changed.notify_all();
    if (stop.stop_requested())
        return std::nullopt;
    m_holder = ticket;
    m_renewed = m_clock();
    return Turn(*this, ticket);
}

std::size_t Turns::waitingCount() {
    const std::lock_guard lock(m_mutex);
    return m_waiting.size();
}

bool Turns::isFree() const {
    return !m_holder || m_clock() - m_renewed >= m_patience;
}

} // namespace brisklet
