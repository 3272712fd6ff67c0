#pragma once

#include "Media/Geometry.h"

extern "C" {
#include <libavutil/pixfmt.h>
}

namespace media::pixels {

/// canvas coordinate = origin + scale × picture coordinate, both in pixels from the outer edge of
/// the first one; a negative scale mirrors.
struct AxisMapping {
    double origin = 0;
    double scale = 1;
};

/// Pixels [first, end).
struct Span {
    int first = 0;
    int end = 0;

    [[nodiscard]] int count() const { return end - first; }

    friend bool operator==(const Span&, const Span&) = default;
};

/// How a picture of a coded size lies on a canvas. The canvas' horizontal axis runs along the
/// picture's, or along its vertical one if the sides are exchanged.
struct CanvasMapping {
    bool transposed = false;
    AxisMapping horizontal;
    AxisMapping vertical;

    /// The quarter turn, mirroring and scale nearest to `toCanvas`, which applies to a picture of
    /// `width` × `height` pixels stretched to `naturalSize`. The picture's centre stays exact.
    static CanvasMapping nearest(const AffineTransform& toCanvas, Size naturalSize, int width,
                                 int height);
};

/// The pixels of a canvas axis whose centres lie inside the `length` pixels of the picture.
Span coverage(const AxisMapping& mapping, int length, int canvasLength);

/// Where the samples of a plane are sited along one axis: sample i at `site` + `spacing` × i
/// pixels.
struct SampleGrid {
    double site = 0.5;
    double spacing = 1;
};

/// The grid of a chroma plane of pictures with 2^shift pixels per sample.
SampleGrid chromaGridX(AVChromaLocation location, int shift);
SampleGrid chromaGridY(AVChromaLocation location, int shift);

/// The location that chroma takes in a 4:2:0 picture made of one with the location given: the same
/// one, but centred between the lines when the source has chroma on every line.
AVChromaLocation locationIn420(AVChromaLocation location, int sourceShiftY);

/// A run of samples taken along one axis of a plane: sample i is centred at start + step × (i + ½),
/// in plane samples from the outer edge of the first one, with step > 0; mirrored means that they
/// are wanted in reverse order.
struct AxisSampling {
    double start = 0;
    double step = 1;
    int count = 0;
    bool mirrored = false;

    /// The positions are exactly those of samples, so that none needs interpolation inside the
    /// plane.
    [[nodiscard]] bool isCopy() const;
    /// Every sample is one of the `length` that the plane has.
    [[nodiscard]] bool isCopyOf(int length) const;
    /// Where a copy begins.
    [[nodiscard]] int firstCopied() const;
};

/// The samples `out` of a canvas plane, in a plane of the picture. Positions within a thousandth
/// of a sample of a plain copy become one.
AxisSampling sampling(const AxisMapping& mapping, SampleGrid pictureGrid, SampleGrid canvasGrid,
                      Span out);

} // namespace media::pixels
