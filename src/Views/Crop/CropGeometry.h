#pragma once

#include "Media/Geometry.h"

#include <QPointF>
#include <QRectF>

#include <array>
#include <optional>

namespace brisklet {

/// The grips of a crop rectangle.
enum class CropHandle { topLeft, top, topRight, right, bottomRight, bottom, bottomLeft, left };

/// All of them, in the order in which they are drawn.
inline constexpr std::array kCropHandles{
    CropHandle::topLeft,     CropHandle::top,    CropHandle::topRight,   CropHandle::right,
    CropHandle::bottomRight, CropHandle::bottom, CropHandle::bottomLeft, CropHandle::left};

/// Where the crop lies on the screen, and what drags make of it.
///
/// A crop is a rectangle in fractions of the picture as displayed, inside the unit square; view
/// coordinates are points.
struct CropGeometry {
    /// The least width and height that a handle makes, fractions of the picture.
    static constexpr double kMinimumSide = 0.05;

    /// Where the picture lies, view coordinates.
    QRectF videoRect;
    /// Diameter of a handle, points.
    double handleSize = 12;

    /// The crop in view coordinates.
    [[nodiscard]] QRectF toView(const media::Rect& crop) const;
    /// A way in view coordinates as fractions of the picture; none where the picture has no area.
    [[nodiscard]] std::optional<media::Point> toPicture(const QPointF& translation) const;

    /// The circle of a handle of the crop that lies at `cropViewRect`, view coordinates.
    [[nodiscard]] QRectF handleFrame(CropHandle handle, const QRectF& cropViewRect) const;
    /// The topmost handle whose circle holds a point of the view.
    [[nodiscard]] std::optional<CropHandle> handleAt(const QPointF& point,
                                                     const QRectF& cropViewRect) const;

    /// The middle of a handle on a rectangle.
    static QPointF position(CropHandle handle, const QRectF& rect);

    /// `start` moved by fractions of the picture and pushed back inside it on each axis by itself.
    static media::Rect moved(const media::Rect& start, media::Point by);
    /// `start` with the sides that the handle holds moved by fractions of the picture. The other
    /// sides stay; no side leaves the picture or comes nearer than kMinimumSide to the opposite.
    static media::Rect resized(const media::Rect& start, CropHandle handle, media::Point by);
};

} // namespace brisklet
