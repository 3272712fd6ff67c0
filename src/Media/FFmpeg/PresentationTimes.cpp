#include "Media/FFmpeg/PresentationTimes.h"

namespace media::ffmpeg {

void PresentationTimes::clear() {
    m_pendingDts.clear();
    m_last = Time::negativeInfinity();
}

void PresentationTimes::notePacket(const AVPacket& packet) {
    const auto dts = dtsOf(packet);
    if (dts && m_track.lacksPresentationTimes)
        m_pendingDts.insert(*dts);
}

Time PresentationTimes::next(const AVFrame& frame) {
    Time time = timeOf(frame);
    if (m_last.isNumeric() && time < m_last)
        time = m_last;
    m_last = time;
    return time;
}

Time PresentationTimes::timeOf(const AVFrame& frame) {
    std::optional<Timestamp> timestamp = ptsOf(frame);
    if (m_track.lacksPresentationTimes) {
        timestamp.reset();
        if (!m_pendingDts.empty()) {
            timestamp = *m_pendingDts.begin();
            m_pendingDts.erase(m_pendingDts.begin());
        }
    }
    if (timestamp)
        return assetTime(m_info, m_track, *timestamp);
    if (!m_last.isNumeric())
        return m_track.facts.startTime;
    const float rate = m_track.facts.nominalFrameRate;
    const double fps = rate > 0 ? static_cast<double>(rate) : 25;
    return m_last + Time::fromSeconds(1 / fps, m_last.timescale);
}

} // namespace media::ffmpeg
