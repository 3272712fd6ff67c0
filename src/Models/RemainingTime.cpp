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
/// Without progress for that long, it stalls; seconds.
constexpr double kStall = 3;
/// Against a division by zero, seconds.
constexpr double kLeast = 1e-3;
/// How far the estimate may lie below and above what is told: as a share of that, and in seconds.
constexpr double kTooHigh = 0.15;
constexpr double kTooLow = 0.35;
constexpr double kSlack = 2;

} // namespace

void RemainingTime::report(double fraction, double seconds) {
    if (!m_reports.empty() && fraction <= m_reports.back().fraction)
        return;
    m_reports.push_back({fraction, seconds});
    const double look = std::max(kShortestLook, kLookShare * seconds);
    while (m_reports.size() > 2 && m_reports[1].seconds <= seconds - look)
        m_reports.pop_front();
}

std::optional<double> RemainingTime::estimate(double seconds) const {
    if (m_reports.empty() || m_reports.back().fraction <= 0)
        return std::nullopt;
    const Report& latest = m_reports.back();
    // Progress that comes in jolts is as fast between them as it was up to the last one. In a stall
    // the speeds sink as the clock goes on.
    const double still = seconds - latest.seconds;
    const double now = still < kStall ? latest.seconds : seconds;
    const double overall = latest.fraction / std::max(now, kLeast);
    const double recent = m_reports.size() < 2
                              ? overall
                              : (latest.fraction - m_reports.front().fraction) /
                                    std::max(now - m_reports.front().seconds, kLeast);
    const double left = (1 - latest.fraction) / ((recent + overall) / 2);
    return std::max(left - (seconds - now), 0.0);
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
