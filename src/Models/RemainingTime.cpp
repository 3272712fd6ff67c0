#include "Models/RemainingTime.h"

#include <algorithm>

namespace brisklet {

namespace {

/// Before that nothing is told, seconds.
constexpr double kSilence = 3;
/// The speed is taken over that much time before now, in seconds or as a share of all so far,
/// whichever is more.
constexpr double kShortestLook = 5;
constexpr double kLookShare = 0.4;
/// How far the estimate may lie below and above what is told: as a share of that, and in seconds.
constexpr double kTooHigh = 0.15;
constexpr double kTooLow = 0.35;
constexpr double kSlack = 2;

} // namespace

void RemainingTime::report(double fraction, double seconds) {
    m_reports.push_back({fraction, seconds});
    const double look = std::max(kShortestLook, kLookShare * seconds);
    while (m_reports.size() > 2 && m_reports[1].seconds <= seconds - look)
        m_reports.pop_front();
}

std::optional<double> RemainingTime::estimate(double seconds) const {
    if (m_reports.empty() || m_reports.back().fraction <= 0)
        return std::nullopt;
    const double fraction = m_reports.back().fraction;
    // Without progress meanwhile both speeds sink as the clock goes on.
    const double recent = (fraction - m_reports.front().fraction) /
                          std::max(seconds - m_reports.front().seconds, 1e-3);
    const double speed = (recent + fraction / seconds) / 2;
    return (1 - fraction) / speed;
}

std::optional<double> RemainingTime::at(double seconds) {
    if (seconds < kSilence || (!m_reports.empty() && m_reports.back().fraction >= 1))
        return std::nullopt;
    const std::optional<double> now = estimate(seconds);
    if (!now)
        return std::nullopt;
    if (!m_told) {
        m_told = Told{*now, seconds};
        return now;
    }
    const double course = std::max(m_told->left - (seconds - m_told->seconds), 0.0);
    const bool isTooHigh = *now < course * (1 - kTooHigh);
    const bool isTooLow = *now > course * (1 + kTooLow) + kSlack;
    const double told = isTooHigh || isTooLow ? *now : course;
    m_told = Told{told, seconds};
    return told;
}

} // namespace brisklet
