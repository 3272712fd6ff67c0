#include "Media/Playback/DecodingPace.h"

#include <algorithm>

namespace media::playback {

void DecodingPace::begin(const Way& way, SteadyTime now) {
    m_way = way;
    m_begun = now;
    m_first.reset();
    m_last.reset();
}

void DecodingPace::pass(Ticks ticks, SteadyTime now) {
    m_last = Passed{ticks, now};
    if (!m_first) {
        m_first = m_last;
        if (!m_way.isContinued)
            m_delay = now - m_begun;
    } else if (ticks > m_first->ticks) {
        m_nanosecondsPerTick = std::chrono::duration<double, std::nano>(now - m_first->at).count() /
                               distance(ticks, m_first->ticks);
    }
}

std::optional<SteadyTime> DecodingPace::arrival() const {
    if (!m_nanosecondsPerTick)
        return std::nullopt;
    const auto after = [this](SteadyTime at, Ticks from) {
        const double ticks = m_way.target > from ? distance(m_way.target, from) : 0;
        // No more than an hour, so that any way can be told.
        const double taken = std::min(*m_nanosecondsPerTick * ticks, 3.6e12);
        return at + nanoseconds(static_cast<std::int64_t>(taken));
    };
    if (m_last)
        return after(m_last->at, m_last->ticks);
    if (!m_way.start || (!m_way.isContinued && !m_delay))
        return std::nullopt;
    return after(m_begun + (m_way.isContinued ? nanoseconds(0) : *m_delay), *m_way.start);
}

} // namespace media::playback
