#pragma once

#include "Media/Geometry.h"
#include "SyntheticPicture.h"

namespace media::test {

/// The size of most pictures that are transformed.
inline constexpr int kWidth = 160;
inline constexpr int kHeight = 120;

struct Canvas {
    AffineTransform toCanvas;
    int width;
    int height;
};

/// The picture in one of its eight orientations, then a region of it, then a scale.
Canvas canvasOf(int turn, Size natural, Rect region, double scale);

struct Deviation {
    /// Largest difference from the value that the picture has at the sample's place; in levels of
    /// 8 bits.
    double luma = 0;
    double chroma = 0;
};

/// Compares with the function that the source was drawn with, at each sample's place. Samples whose
/// place is nearer than `margin` pixels to the source's border are left out: there the filter also
/// sees what is not part of the function.
Deviation deviationFrom(const ChannelFunction& value, const AVFrame& frame, const Canvas& canvas,
                        Size source, double margin);

AVPixFmtDescriptor descriptorOf(AVPixelFormat format);

} // namespace media::test
