#pragma once

#include "Models/CropRules.h"

#include <QPointF>
#include <QRectF>

#include <optional>

namespace brisklet {

/// Where a crop and its handles are on the screen. The crop is in fractions of the picture as
/// displayed, view coordinates are points.
struct CropGeometry {
    /// Where the picture is, view coordinates.
    QRectF videoRect;
    /// Diameter of a handle, points.
    double handleSize = 12;
    /// The area around the picture, view coordinates; only handles are painted beyond its round
    /// corners, of `cornerRadius` points.
    QRectF area;
    double cornerRadius = 0;

    /// The crop in view coordinates.
    [[nodiscard]] QRectF toView(const media::Rect& crop) const;
    /// A distance in view coordinates as fractions of the picture; none if the picture has no area.
    [[nodiscard]] std::optional<media::Point> toPicture(const QPointF& translation) const;

    /// The bounds of a handle of the crop at `cropViewRect`, view coordinates.
    [[nodiscard]] QRectF handleFrame(CropHandle handle, const QRectF& cropViewRect) const;
    /// The topmost handle whose circle holds a point of the view.
    [[nodiscard]] std::optional<CropHandle> handleAt(const QPointF& point,
                                                     const QRectF& cropViewRect) const;

    /// The middle of a handle on a rectangle.
    static QPointF position(CropHandle handle, const QRectF& rect);
};

} // namespace brisklet
