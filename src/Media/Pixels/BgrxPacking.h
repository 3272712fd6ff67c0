#pragma once

#include "Media/Pixels/Plane.h"

#include <array>
#include <cstdint>

extern "C" {
#include <libavutil/pixfmt.h>
}

namespace media::pixels {

/// Y′CbCr of 8 bits to R′G′B′, in 16-bit fixed point; within 1 of the exact values.
class YuvToRgb {
public:
    /// Matrices other than those of BT.601, FCC, SMPTE 240M, BT.2020 and YCgCo are treated as
    /// BT.709.
    YuvToRgb(AVColorSpace matrix, bool isFullRange);

    /// Writes `count` opaque pixels, 4 bytes each: blue, green, red, 255.
    void convertLine(const std::uint8_t* y, const std::uint8_t* u, const std::uint8_t* v,
                     std::uint8_t* out, int count) const;

private:
    /// What one unit of Y, U and V adds to red, green and blue.
    std::int16_t m_yScale = 0;
    std::array<std::int16_t, 3> m_uScale{};
    std::array<std::int16_t, 3> m_vScale{};
    std::int16_t m_yOffset = 0;
};

/// Writes `count` opaque pixels, 4 bytes each: blue, green, red, 255.
void packLine(const std::uint8_t* red, const std::uint8_t* green, const std::uint8_t* blue,
              std::uint8_t* out, int count);

} // namespace media::pixels
