#pragma once

#include "Media/Pixels/Plane.h"

namespace media::pixels {

/// One of the eight ways to lay a picture on a grid: rows and columns exchanged or not, then
/// mirrored along either axis of the result.
struct Turn {
    bool transposed = false;
    bool mirroredX = false;
    bool mirroredY = false;

    [[nodiscard]] bool isNone() const { return !transposed && !mirroredX && !mirroredY; }

    friend bool operator==(const Turn&, const Turn&) = default;
};

/// Copies every sample of `in` to its place in `out`, bit for bit. The planes must not overlap and
/// `out` has the size of `in`, with the sides exchanged if the turn transposes. Samples are 1, 2
/// or 4 bytes wide.
void turnPlane(ConstPlane in, Plane out, Turn turn, int sampleBytes);

} // namespace media::pixels
