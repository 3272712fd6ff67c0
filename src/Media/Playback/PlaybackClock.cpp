#include "Media/Playback/PlaybackClock.h"

#include <algorithm>

namespace media::playback {

nanoseconds toNanoseconds(Time time) {
    return nanoseconds(time.rescaled(kNanoTimescale).value);
}

void PlaybackClock::hold(Time time) {
    m_base = time;
    m_baseNs = time.isNumeric() ? toNanoseconds(time) : nanoseconds{0};
    m_isRunning = false;
    m_reported = nanoseconds{0};
}

void PlaybackClock::run(SteadyTime now) {
    if (m_isRunning || !m_base.isNumeric())
        return;
    m_isRunning = true;
    m_origin = now;
}

void PlaybackClock::pause(SteadyTime now) {
    if (m_isRunning)
        hold(time(now));
}

void PlaybackClock::correct(Time heard, SteadyTime when) {
    if (!m_base.isNumeric() || !heard.isNumeric())
        return;
    const nanoseconds elapsed = toNanoseconds(heard) - m_baseNs;
    if (!m_isRunning) {
        if (elapsed <= nanoseconds{0})
            return;
        m_isRunning = true;
        m_origin = when - elapsed;
        return;
    }
    const nanoseconds error = elapsed - (when - m_origin);
    const bool isFar = error > kSnapThreshold || error < -kSnapThreshold;
    m_origin -= isFar ? error : error / kSmoothing;
}

Time PlaybackClock::time(SteadyTime now) {
    if (!m_isRunning)
        return m_base;
    m_reported = std::max<nanoseconds>(m_reported, now - m_origin);
    return Time{(m_baseNs + m_reported).count(), kNanoTimescale};
}

SteadyTime PlaybackClock::whenReaches(nanoseconds time, SteadyTime now) const {
    return std::max(now, m_origin + (time - m_baseNs));
}

} // namespace media::playback
