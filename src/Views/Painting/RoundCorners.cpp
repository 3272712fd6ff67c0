#include "Views/Painting/RoundCorners.h"

#include <QPainter>
#include <QPainterPath>

namespace brisklet {

void paintRoundCorners(QPainter& painter, const QRectF& area, double radius, const QColor& color) {
    const double side = 2 * radius;
    const double right = area.right() - side;
    const double bottom = area.bottom() - side;
    QPainterPath corners;
    // Each from the corner of the rectangle along the quarter of a circle, degrees.
    const auto add = [&](const QPointF& corner, const QPointF& circle, double from) {
        corners.moveTo(corner);
        corners.arcTo(QRectF(circle, QSizeF(side, side)), from, -90);
        corners.closeSubpath();
    };
    add(area.topLeft(), area.topLeft(), 180);
    add(area.topRight(), {right, area.top()}, 90);
    add(area.bottomRight(), {right, bottom}, 0);
    add(area.bottomLeft(), {area.left(), bottom}, 270);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(corners, color);
    painter.restore();
}

} // namespace brisklet
