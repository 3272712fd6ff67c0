#include "Media/Geometry.h"

#include <algorithm>

namespace media {

Rect Rect::insetBy(double dx, double dy) const {
    return {x + dx, y + dy, width - 2 * dx, height - 2 * dy};
}

bool Rect::contains(const Rect& other) const {
    return other.minX() >= minX() && other.minY() >= minY() && other.maxX() <= maxX() &&
           other.maxY() <= maxY();
}

Rect Rect::intersected(const Rect& other) const {
    const double left = std::max(minX(), other.minX());
    const double top = std::max(minY(), other.minY());
    const double right = std::min(maxX(), other.maxX());
    const double bottom = std::min(maxY(), other.maxY());
    if (right <= left || bottom <= top)
        return {};
    return {left, top, right - left, bottom - top};
}

AffineTransform AffineTransform::concatenated(const AffineTransform& next) const {
    return {a * next.a + b * next.c,
            a * next.b + b * next.d,
            c * next.a + d * next.c,
            c * next.b + d * next.d,
            tx * next.a + ty * next.c + next.tx,
            tx * next.b + ty * next.d + next.ty};
}

AffineTransform AffineTransform::inverted() const {
    const double det = determinant();
    return {d / det, -b / det, -c / det, a / det, (c * ty - d * tx) / det, (b * tx - a * ty) / det};
}

Point AffineTransform::apply(Point point) const {
    return {a * point.x + c * point.y + tx, b * point.x + d * point.y + ty};
}

Rect AffineTransform::apply(const Rect& rect) const {
    const Point corners[] = {
        apply(Point{rect.minX(), rect.minY()}), apply(Point{rect.maxX(), rect.minY()}),
        apply(Point{rect.minX(), rect.maxY()}), apply(Point{rect.maxX(), rect.maxY()})};
    double left = corners[0].x;
    double right = left;
    double top = corners[0].y;
    double bottom = top;
    for (const Point& corner : corners) {
        left = std::min(left, corner.x);
        right = std::max(right, corner.x);
        top = std::min(top, corner.y);
        bottom = std::max(bottom, corner.y);
    }
    return {left, top, right - left, bottom - top};
}

Rect fitAspect(Size size, const Rect& bounds) {
    const double centreX = bounds.x + bounds.width / 2;
    const double centreY = bounds.y + bounds.height / 2;
    if (size.width <= 0 || size.height <= 0)
        return {centreX, centreY, 0, 0};
    const double scale = std::min(bounds.width / size.width, bounds.height / size.height);
    const double width = size.width * scale;
    const double height = size.height * scale;
    return {centreX - width / 2, centreY - height / 2, width, height};
}

} // namespace media
