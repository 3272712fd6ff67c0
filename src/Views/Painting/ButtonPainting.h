#pragma once

#include <QRectF>

class QPainter;
class QPalette;

/// What is painted on and around a control, alike for all of them. Main thread.
namespace brisklet::buttonpainting {

/// Corner radius of buttons, points.
inline constexpr qreal kRadius = 6;

/// Lights a control up while the pointer is on it, more so while it is held down.
void paintState(QPainter& painter, const QRectF& rect, const QPalette& palette, bool isHovered,
                bool isPressed);

/// Shows that a control has the keyboard.
void paintFocusRing(QPainter& painter, const QRectF& rect, const QPalette& palette);

} // namespace brisklet::buttonpainting
