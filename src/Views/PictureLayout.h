#pragma once

#include <QRect>
#include <QSize>
#include <QTransform>

namespace brisklet {

/// Where a picture of `image` pixels, turned clockwise by `rotation` degrees, lies inside `view`,
/// all in device pixels: as large as fits, centred, on whole pixels. A picture that fits already
/// to within the rounding of its own size keeps it, so that nothing is resampled for a fraction
/// of a pixel.
struct PictureLayout {
    QRect rect;
    /// From image pixels to device pixels.
    QTransform transform;
    bool isScaled = false;

    static PictureLayout fit(QSize image, int rotation, const QRect& view);
};

} // namespace brisklet
