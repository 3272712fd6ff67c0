#pragma once

#include <compare>
#include <cstdint>
#include <limits>

namespace media {

/// A moment on an asset's time line, or a length of it, in whole ticks of 1/600 s: the unit in
/// which frames are chosen. A stream's own timestamps and exact times (Time) are other types, which
/// only named functions convert. A value type, usable on any thread.
///
/// beginning() and forever() are minus and plus infinity; the arithmetic saturates at them.
class Ticks {
public:
    constexpr Ticks() = default;

    explicit constexpr Ticks(std::int64_t count) : m_count(count) {}

    static constexpr std::int64_t kPerSecond = 600;

    /// Minus infinity.
    static constexpr Ticks beginning() { return Ticks(std::numeric_limits<std::int64_t>::min()); }

    /// Plus infinity.
    static constexpr Ticks forever() { return Ticks(std::numeric_limits<std::int64_t>::max()); }

    [[nodiscard]] constexpr std::int64_t count() const { return m_count; }

    [[nodiscard]] constexpr bool isEndless() const {
        return *this == beginning() || *this == forever();
    }

    friend constexpr auto operator<=>(Ticks, Ticks) = default;

    friend constexpr Ticks operator+(Ticks a, Ticks b) {
        if (a.isEndless())
            return a;
        std::int64_t sum = 0;
        if (!__builtin_add_overflow(a.m_count, b.m_count, &sum))
            return Ticks(sum);
        return b.m_count < 0 ? beginning() : forever();
    }

    friend constexpr Ticks operator-(Ticks a, Ticks b) {
        if (a.isEndless())
            return a;
        std::int64_t difference = 0;
        if (!__builtin_sub_overflow(a.m_count, b.m_count, &difference))
            return Ticks(difference);
        return b.m_count > 0 ? beginning() : forever();
    }

    /// For lengths, not for the infinities.
    friend constexpr Ticks operator*(std::int64_t factor, Ticks length) {
        std::int64_t product = 0;
        if (!__builtin_mul_overflow(factor, length.m_count, &product))
            return Ticks(product);
        return (factor < 0) == (length.m_count < 0) ? forever() : beginning();
    }

    /// Rounds toward zero; `divisor` is more than 0.
    friend constexpr Ticks operator/(Ticks length, std::int64_t divisor) {
        return Ticks(length.m_count / divisor);
    }

private:
    std::int64_t m_count = 0;
};

/// The last tick that is no farther from `earliest` than from `latest`, which is not before it.
constexpr Ticks midpoint(Ticks earliest, Ticks latest) {
    return earliest + (latest - earliest) / 2;
}

/// How far apart two moments are, in ticks. Endless moments are very far from all others.
constexpr double distance(Ticks a, Ticks b) {
    const double difference = static_cast<double>(a.count()) - static_cast<double>(b.count());
    return difference < 0 ? -difference : difference;
}

/// The half-open range of ticks [begin, end).
struct TickRange {
    Ticks begin;
    Ticks end;

    [[nodiscard]] constexpr bool isEmpty() const { return begin >= end; }

    [[nodiscard]] constexpr bool holds(Ticks ticks) const { return begin <= ticks && ticks < end; }

    [[nodiscard]] constexpr bool meets(const TickRange& other) const {
        return begin < other.end && other.begin < end;
    }

    friend constexpr bool operator==(const TickRange&, const TickRange&) = default;
};

} // namespace media
