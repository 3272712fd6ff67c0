#pragma once

#include "Media/Process/Wire/Message.h"

#include <concepts>
#include <cstddef>
#include <limits>
#include <random>
#include <string>

namespace media::process {

/// Values to be sent in messages, the same ones for the same seed. Those at the ends of a range,
/// where mistakes are, come more often than by chance. One thread.
class RandomValues {
public:
    explicit RandomValues(unsigned seed) : m_engine(seed) {}

    template<PlainNumber T>
    T number(T least = std::numeric_limits<T>::lowest(), T most = std::numeric_limits<T>::max()) {
        switch (below(8)) {
        case 0:
            return least;
        case 1:
            return most;
        default:
            return between(least, most);
        }
    }

    bool isHeads() { return below(2) == 0; }

    /// Up to 40 bytes of any value.
    std::string text();

    /// 0 to `end` - 1.
    std::size_t below(std::size_t end) { return between<std::size_t>(0, end - 1); }

private:
    template<std::integral T>
    T between(T least, T most) {
        return std::uniform_int_distribution<T>(least, most)(m_engine);
    }

    /// Halves, so that the width of the widest range is a number too.
    template<std::floating_point T>
    T between(T least, T most) {
        return 2 * std::uniform_real_distribution<T>(least / 2, most / 2)(m_engine);
    }

    std::mt19937_64 m_engine;
};

} // namespace media::process
