#include "Views/Crop/CropGeometry.h"

#include <QLineF>

#include <algorithm>
#include <cmath>

namespace brisklet {

namespace {

bool isOnLeft(CropHandle handle) {
    return handle == CropHandle::topLeft || handle == CropHandle::left ||
           handle == CropHandle::bottomLeft;
}

bool isOnRight(CropHandle handle) {
    return handle == CropHandle::topRight || handle == CropHandle::right ||
           handle == CropHandle::bottomRight;
}

bool isOnTop(CropHandle handle) {
    return handle == CropHandle::topLeft || handle == CropHandle::top ||
           handle == CropHandle::topRight;
}

bool isOnBottom(CropHandle handle) {
    return handle == CropHandle::bottomLeft || handle == CropHandle::bottom ||
           handle == CropHandle::bottomRight;
}

} // namespace

QRectF CropGeometry::toView(const media::Rect& crop) const {
    return {videoRect.x() + crop.x * videoRect.width(), videoRect.y() + crop.y * videoRect.height(),
            crop.width * videoRect.width(), crop.height * videoRect.height()};
}

std::optional<media::Point> CropGeometry::toPicture(const QPointF& translation) const {
    const media::Point by{translation.x() / videoRect.width(),
                          translation.y() / videoRect.height()};
    if (!std::isfinite(by.x) || !std::isfinite(by.y))
        return std::nullopt;
    return by;
}

QRectF CropGeometry::handleFrame(CropHandle handle, const QRectF& cropViewRect) const {
    const QPointF middle = position(handle, cropViewRect);
    return {middle.x() - handleSize / 2, middle.y() - handleSize / 2, handleSize, handleSize};
}

std::optional<CropHandle> CropGeometry::handleAt(const QPointF& point,
                                                 const QRectF& cropViewRect) const {
    // What is drawn last lies on top.
    const auto hit =
        std::find_if(kCropHandles.rbegin(), kCropHandles.rend(), [&](CropHandle handle) {
            return QLineF(position(handle, cropViewRect), point).length() <= handleSize / 2;
        });
    return hit == kCropHandles.rend() ? std::nullopt : std::optional(*hit);
}

QPointF CropGeometry::position(CropHandle handle, const QRectF& rect) {
    const QPointF middle = rect.center();
    const double x = isOnLeft(handle) ? rect.left() : isOnRight(handle) ? rect.right() : middle.x();
    const double y = isOnTop(handle) ? rect.top() : isOnBottom(handle) ? rect.bottom() : middle.y();
    return {x, y};
}

media::Rect CropGeometry::moved(const media::Rect& start, media::Point by) {
    return {std::min(std::max(start.x + by.x, 0.0), 1 - start.width),
            std::min(std::max(start.y + by.y, 0.0), 1 - start.height), start.width, start.height};
}

media::Rect CropGeometry::resized(const media::Rect& start, CropHandle handle, media::Point by) {
    double minX = start.minX();
    double maxX = start.maxX();
    double minY = start.minY();
    double maxY = start.maxY();
    if (isOnLeft(handle))
        minX = std::min(std::max(start.minX() + by.x, 0.0), maxX - kMinimumSide);
    if (isOnRight(handle))
        maxX = std::max(std::min(start.maxX() + by.x, 1.0), minX + kMinimumSide);
    if (isOnTop(handle))
        minY = std::min(std::max(start.minY() + by.y, 0.0), maxY - kMinimumSide);
    if (isOnBottom(handle))
        maxY = std::max(std::min(start.maxY() + by.y, 1.0), minY + kMinimumSide);
    return {minX, minY, maxX - minX, maxY - minY};
}

} // namespace brisklet
