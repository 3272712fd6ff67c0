#include "Models/FrameNumbers.h"

#include <algorithm>
#include <cmath>

namespace brisklet {

FrameNumbers::FrameNumbers(const media::AssetTrack& track)
    : m_first(track.startTime), m_distance(track.frameDistance) {
    const bool isUsable = m_first.isNumeric() && m_distance.isNumeric() && m_distance.value > 0;
    m_count = isUsable ? track.frameCount : 0;
}

media::Ticks FrameNumbers::ticksOf(std::int64_t number) const {
    return (m_first + media::Time{m_distance.value * number, m_distance.timescale}).ticks();
}

std::optional<std::int64_t> FrameNumbers::at(double seconds) const {
    const media::Time time = media::Time::fromSeconds(seconds, media::kComparisonTimescale);
    if (!areKnown() || std::isnan(seconds))
        return std::nullopt;
    const media::Ticks shown = time.ticks();
    const double estimate = (seconds - m_first.seconds()) / m_distance.seconds();
    const auto last = static_cast<double>(m_count - 1);
    auto number = static_cast<std::int64_t>(std::clamp(estimate, 0.0, last));
    // The times are rounded to ticks, so the estimate may be one off.
    while (number > 0 && ticksOf(number) > shown)
        --number;
    while (number + 1 < m_count && ticksOf(number + 1) <= shown)
        ++number;
    return number;
}

std::optional<double> FrameNumbers::timeOf(std::int64_t number) const {
    if (number < 0 || number >= m_count)
        return std::nullopt;
    return media::Time::fromTicks(ticksOf(number)).seconds();
}

} // namespace brisklet
