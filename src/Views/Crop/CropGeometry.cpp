#include "Views/Crop/CropGeometry.h"

#include <QLineF>

#include <algorithm>
#include <cmath>

namespace brisklet {

namespace {

double along(CropSide side, double minimum, double middle, double maximum) {
    switch (side) {
    case CropSide::minimum:
        return minimum;
    case CropSide::neither:
        return middle;
    case CropSide::maximum:
        return maximum;
    }
    return middle;
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
    // The handle that is drawn last is on top.
    const auto hit =
        std::find_if(kCropHandles.rbegin(), kCropHandles.rend(), [&](CropHandle handle) {
            return QLineF(position(handle, cropViewRect), point).length() <= handleSize / 2;
        });
    return hit == kCropHandles.rend() ? std::nullopt : std::optional(*hit);
}

QPointF CropGeometry::position(CropHandle handle, const QRectF& rect) {
    const QPointF middle = rect.center();
    return {along(crop::horizontalSide(handle), rect.left(), middle.x(), rect.right()),
            along(crop::verticalSide(handle), rect.top(), middle.y(), rect.bottom())};
}

} // namespace brisklet
