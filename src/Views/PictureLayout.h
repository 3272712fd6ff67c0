#pragma once

#include <QRect>
#include <QSize>
#include <QTransform>

namespace brisklet {

/// Where a picture of `image` pixels, rotated clockwise by `rotation` degrees, is inside `view`,
/// all in device pixels: as large as fits, centred, on whole pixels. A picture whose size differs
/// from the fitted one only by rounding keeps its size, so that it is not resampled for a fraction
/// of a pixel.
struct PictureLayout {
    QRect rect;
    /// From image pixels to device pixels.
    QTransform transform;
    bool isScaled = false;

    static PictureLayout fit(QSize image, int rotation, const QRect& view);
};

} // namespace brisklet
