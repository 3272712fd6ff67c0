#pragma once

#include <QRectF>

class QColor;
class QPainter;

namespace brisklet {

/// Covers what lies in `area` outside its round corners, `radius` in points, with the colour of
/// what is around it. Cheaper than clipping what is painted in the area.
void paintRoundCorners(QPainter& painter, const QRectF& area, double radius, const QColor& color);

} // namespace brisklet
