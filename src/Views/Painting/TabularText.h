#pragma once

#include <QFont>
#include <QPointF>
#include <QString>

class QPainter;

/// Text whose digits all take the width of the widest one, so that nothing moves while a number
/// counts up, also with a font of proportional figures.
namespace brisklet::tabular {

/// Width of `text` in points.
qreal width(const QString& text, const QFont& font);

/// Draws `text` in the painter's pen from `origin`, the left end of its base line.
void paint(QPainter& painter, const QPointF& origin, const QString& text, const QFont& font);

} // namespace brisklet::tabular
