#pragma once

#include "Media/Ticks.h"

#include <compare>
#include <cstdint>
#include <limits>

namespace media {

/// The timescale at which times are compared to choose frames, in ticks per second: a frame lasts a
/// whole number of ticks at 24, 25, 30, 50 and 60 frames a second.
inline constexpr std::int32_t kComparisonTimescale{Ticks::kPerSecond};

/// A rational time: `value` / `timescale` seconds. A value type, usable on any thread.
///
/// A timescale of 0 marks the times that are no number of seconds: invalid (not a number),
/// and positive or negative infinity.
struct Time {
    std::int64_t value = 0;
    std::int32_t timescale = kComparisonTimescale;

    static constexpr Time invalid() { return {0, 0}; }

    static constexpr Time positiveInfinity() { return {1, 0}; }

    static constexpr Time negativeInfinity() { return {-1, 0}; }

    /// The tick nearest to `seconds`, halves away from zero. NaN gives invalid(); an infinity, or a
    /// number of seconds that no tick count can hold, gives the infinity of its sign.
    static Time fromSeconds(double seconds, std::int32_t timescale);

    /// Exact. Endless ticks give numbers of seconds that lie beyond those of any file.
    static constexpr Time fromTicks(Ticks ticks) { return {ticks.count(), kComparisonTimescale}; }

    [[nodiscard]] constexpr bool isNumeric() const { return timescale > 0; }

    /// NaN for invalid(), an infinity for the infinite times.
    [[nodiscard]] double seconds() const;

    /// The nearest tick of another timescale, halves away from zero; a time that is not numeric
    /// stays what it is.
    [[nodiscard]] Time rescaled(std::int32_t newTimescale) const;

    /// The tick nearest to this time, halves away from zero. Infinite times give the endless ticks
    /// of their sign; invalid() gives 0.
    [[nodiscard]] Ticks ticks() const;

    /// Exact when one timescale is a multiple of the other or their least common multiple fits in
    /// 31 bits; otherwise rounded to the finer of the two.
    friend Time operator+(Time a, Time b);
    friend Time operator-(Time a, Time b);

    /// Compares the exact rationals; invalid() is unordered.
    friend std::partial_ordering operator<=>(Time a, Time b);

    friend bool operator==(Time a, Time b) { return (a <=> b) == 0; }
};

/// The half-open range [start, end).
struct TimeRange {
    Time start;
    Time end;

    [[nodiscard]] Time duration() const { return end - start; }

    friend bool operator==(const TimeRange&, const TimeRange&) = default;
};

} // namespace media
