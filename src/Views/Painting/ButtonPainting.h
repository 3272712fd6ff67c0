#pragma once

#include <QRectF>

class QColor;
class QPainter;
class QPalette;

/// What all controls have in common: their highlight and focus ring. Main thread.
namespace brisklet::buttonpainting {

/// Corner radius of buttons, points.
inline constexpr qreal kRadius = 6;

/// Highlights a control while the pointer is over it, more strongly while it is pressed.
void paintState(QPainter& painter, const QRectF& rect, const QPalette& palette, bool isHovered,
                bool isPressed);

/// Shows that a control has the focus, inside `rect`.
void paintFocusRing(QPainter& painter, const QRectF& rect, const QColor& color);

} // namespace brisklet::buttonpainting
