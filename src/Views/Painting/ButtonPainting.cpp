#include "Views/Painting/ButtonPainting.h"

#include "Views/Painting/Theme.h"

#include <QPainter>
#include <QPalette>

namespace brisklet::buttonpainting {

namespace {

constexpr float kHoverOpacity = 0.08F;
constexpr float kPressedOpacity = 0.18F;
constexpr qreal kRingWidth = 2;

} // namespace

void paintState(QPainter& painter, const QRectF& rect, const QPalette& palette, bool isHovered,
                bool isPressed) {
    if (!isHovered && !isPressed)
        return;
    QColor color = theme::primary(palette);
    color.setAlphaF(isPressed ? kPressedOpacity : kHoverOpacity);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawRoundedRect(rect, kRadius, kRadius);
}

void paintFocusRing(QPainter& painter, const QRectF& rect, const QColor& color) {
    constexpr qreal kInset = kRingWidth / 2;
    painter.setPen(QPen(color, kRingWidth));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(rect.adjusted(kInset, kInset, -kInset, -kInset), kRadius, kRadius);
}

} // namespace brisklet::buttonpainting
