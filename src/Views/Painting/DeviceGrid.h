#pragma once

#include <QPainter>
#include <QRectF>
#include <QTransform>

#include <algorithm>
#include <cmath>

namespace brisklet {

/// The pixels of the screen under a painter. Aligns edges with them, so that lines of one or two
/// points stay sharp at every scale. For painters that are shifted or scaled, not rotated.
class DeviceGrid final {
public:
    explicit DeviceGrid(const QPainter& painter) : m_toDevice(painter.deviceTransform()) {}

    [[nodiscard]] double x(double position) const {
        return (std::round(position * m_toDevice.m11() + m_toDevice.dx()) - m_toDevice.dx()) /
               m_toDevice.m11();
    }

    [[nodiscard]] double y(double position) const {
        return (std::round(position * m_toDevice.m22() + m_toDevice.dy()) - m_toDevice.dy()) /
               m_toDevice.m22();
    }

    [[nodiscard]] QPointF point(const QPointF& position) const {
        return {x(position.x()), y(position.y())};
    }

    /// Aligns each edge by itself, so rectangles that touch still do.
    [[nodiscard]] QRectF rect(const QRectF& rect) const {
        return {point(rect.topLeft()), point(rect.bottomRight())};
    }

    /// The width of a line in whole pixels of the screen, at least one.
    [[nodiscard]] double thickness(double points) const {
        return std::max(1.0, std::round(points * m_toDevice.m11())) / m_toDevice.m11();
    }

    /// The width of one pixel of the screen.
    [[nodiscard]] double pixel() const { return 1 / m_toDevice.m11(); }

private:
    QTransform m_toDevice;
};

} // namespace brisklet
