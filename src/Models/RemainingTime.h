#pragma once

#include <deque>
#include <optional>

namespace brisklet {

/// Estimates how much longer an operation takes, from its progress over time. The estimate is
/// smoothed: it counts down with the clock, and is corrected downward only if it is clearly too
/// high, upward only if it is far too low. Has no clock; one thread at a time.
class RemainingTime final {
public:
    /// The fraction done, 0 to 1, so many seconds after the beginning. Neither decreases.
    void report(double fraction, double seconds);

    /// What is left at that time, in seconds; none in the first 3 s and before there is progress,
    /// and when all is done.
    std::optional<double> at(double seconds);

private:
    struct Report {
        double fraction = 0;
        double seconds = 0;
    };

    [[nodiscard]] std::optional<double> estimate(double seconds) const;

    /// The latest ones that told of progress, oldest first.
    std::deque<Report> m_reports;

    /// What was told last, and when; seconds.
    struct Told {
        double left = 0;
        double seconds = 0;
    };

    std::optional<Told> m_told;
};

} // namespace brisklet
