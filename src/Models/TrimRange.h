#pragma once

namespace brisklet {

/// The kept range of a video, and how far its ends may move. Seconds from the start of the file.
///
/// The ends stay in the file and kMinimumLength apart; of the two rules the first wins, so a file
/// that is shorter than the minimum stays whole. An end never moves the other one.
struct TrimRange {
    /// The shortest range that moving an end makes, seconds.
    static constexpr double kMinimumLength = 0.1;

    /// Of the file; not above 0 while there is none, and then the ends are only kept apart.
    double duration = 0;
    double start = 0;
    double end = 0;

    [[nodiscard]] double latestStart() const;
    [[nodiscard]] double earliestEnd() const;

    /// The start nearest to `time` that the rules allow. NaN counts as 0.
    [[nodiscard]] double clampedStart(double time) const;
    /// The end nearest to `time` that the rules allow; NaN for NaN.
    [[nodiscard]] double clampedEnd(double time) const;
};

} // namespace brisklet
