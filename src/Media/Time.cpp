#include "Media/Time.h"

#include <cmath>
#include <numeric>

namespace media {

namespace {

__extension__ using Wide = __int128;

/// numerator / denominator to the nearest whole number, halves away from zero.
Wide dividedRounding(Wide numerator, Wide denominator) {
    const Wide half = denominator / 2;
    const Wide magnitude = ((numerator < 0 ? -numerator : numerator) + half) / denominator;
    return numerator < 0 ? -magnitude : magnitude;
}

std::int64_t saturated(Wide value) {
    constexpr Wide kMax = std::numeric_limits<std::int64_t>::max();
    constexpr Wide kMin = std::numeric_limits<std::int64_t>::min();
    return static_cast<std::int64_t>(value > kMax ? kMax : (value < kMin ? kMin : value));
}

/// The timescale in which sums and differences of the two are formed.
std::int32_t commonTimescale(std::int32_t a, std::int32_t b) {
    const std::int64_t multiple = std::lcm<std::int64_t>(a, b);
    return multiple <= std::numeric_limits<std::int32_t>::max()
               ? static_cast<std::int32_t>(multiple)
               : std::max(a, b);
}

/// The result of adding to or subtracting from a time when one operand is not numeric.
Time nonNumericSum(Time a, Time b) {
    if (a.isNumeric())
        return b;
    if (b.isNumeric() || a.value == b.value)
        return a;
    return Time::invalid();
}

} // namespace

Time Time::fromSeconds(double seconds, std::int32_t timescale) {
    if (std::isnan(seconds))
        return invalid();
    const double ticks = std::round(seconds * timescale);
    constexpr double kLimit = 9.2e18;
    if (ticks >= kLimit)
        return positiveInfinity();
    if (ticks <= -kLimit)
        return negativeInfinity();
    return {static_cast<std::int64_t>(ticks), timescale};
}

double Time::seconds() const {
    if (isNumeric())
        return static_cast<double>(value) / timescale;
    if (value == 0)
        return std::numeric_limits<double>::quiet_NaN();
    return value > 0 ? std::numeric_limits<double>::infinity()
                     : -std::numeric_limits<double>::infinity();
}

Time Time::rescaled(std::int32_t newTimescale) const {
    if (!isNumeric() || timescale == newTimescale)
        return *this;
    return {saturated(dividedRounding(Wide{value} * newTimescale, timescale)), newTimescale};
}

Ticks Time::ticks() const {
    if (isNumeric())
        return Ticks(rescaled(kComparisonTimescale).value);
    if (value == 0)
        return Ticks(0);
    return value > 0 ? Ticks::forever() : Ticks::beginning();
}

Time operator+(Time a, Time b) {
    if (!a.isNumeric() || !b.isNumeric())
        return nonNumericSum(a, b);
    const std::int32_t timescale = commonTimescale(a.timescale, b.timescale);
    return {saturated(Wide{a.rescaled(timescale).value} + b.rescaled(timescale).value), timescale};
}

Time operator-(Time a, Time b) {
    return a + Time{saturated(-Wide{b.value}), b.timescale};
}

std::partial_ordering operator<=>(Time a, Time b) {
    const bool aIsNumber = a.isNumeric() || a.value != 0;
    const bool bIsNumber = b.isNumeric() || b.value != 0;
    if (!aIsNumber || !bIsNumber)
        return std::partial_ordering::unordered;
    if (!a.isNumeric() || !b.isNumeric()) {
        const std::int64_t left = a.isNumeric() ? 0 : a.value;
        const std::int64_t right = b.isNumeric() ? 0 : b.value;
        return left <=> right;
    }
    const Wide left = Wide{a.value} * b.timescale;
    const Wide right = Wide{b.value} * a.timescale;
    if (left == right)
        return std::partial_ordering::equivalent;
    return left < right ? std::partial_ordering::less : std::partial_ordering::greater;
}

} // namespace media
