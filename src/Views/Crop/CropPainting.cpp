#include "Views/Crop/CropPainting.h"

#include "Views/Painting/RoundCorners.h"
#include "Views/Painting/Theme.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace brisklet {

namespace {

constexpr double kDimming = 0.5;
constexpr double kOutlineWidth = 2;
constexpr double kHandleOutlineWidth = 1;
constexpr double kHandleOutline = 0.4;
constexpr double kFocusWidth = 2;

QColor blackOf(double opacity) {
    return QColor::fromRgbF(0, 0, 0, static_cast<float>(opacity));
}

} // namespace

CropPainting::CropPainting(QPainter& painter, const CropGeometry& geometry,
                           const QRectF& cropViewRect, const QPalette& palette)
    : m_painter(painter),
      m_geometry(geometry),
      m_grid(painter),
      m_crop(m_grid.rect(cropViewRect)),
      m_palette(palette) {}

double CropPainting::reach(const CropGeometry& geometry) {
    // One point more, since edges may be moved to the nearest pixels of the screen.
    return std::max(geometry.handleSize / 2, kOutlineWidth) + kFocusWidth + 1;
}

void CropPainting::paint(Focus focus) {
    m_painter.setPen(Qt::NoPen);
    paintDimming();
    paintBorder(0, kOutlineWidth, Qt::white);
    if (m_geometry.cornerRadius > 0)
        paintRoundCorners(m_painter, m_geometry.area, m_geometry.cornerRadius,
                          m_palette.color(QPalette::Window));
    m_painter.setRenderHint(QPainter::Antialiasing);
    if (focus == Focus::shown)
        paintFocus();
    for (const CropHandle handle : kCropHandles)
        paintHandle(handle);
}

void CropPainting::paintDimming() {
    QPainterPath around;
    around.setFillRule(Qt::OddEvenFill);
    around.addRect(m_grid.rect(m_geometry.videoRect));
    around.addRect(m_crop);
    m_painter.fillPath(around, blackOf(kDimming));
}

void CropPainting::paintBorder(double inset, double width, const QColor& color) {
    const double distance = inset > 0 ? m_grid.thickness(inset) : 0;
    const double line = m_grid.thickness(width);
    const QRectF outer = m_crop.adjusted(distance, distance, -distance, -distance);
    const QRectF inner = outer.adjusted(line, line, -line, -line);
    if (outer.isEmpty())
        return;
    QPainterPath border;
    border.setFillRule(Qt::OddEvenFill);
    border.addRect(outer);
    if (!inner.isEmpty())
        border.addRect(inner);
    m_painter.fillPath(border, color);
}

void CropPainting::paintFocus() {
    const QColor color = theme::accentFill(m_palette);
    paintBorder(kOutlineWidth, kFocusWidth, color);
    const double radius = m_geometry.handleSize / 2 + kFocusWidth;
    m_painter.setBrush(color);
    for (const CropHandle handle : kCropHandles)
        m_painter.drawEllipse(middleOf(handle), radius, radius);
}

QPointF CropPainting::middleOf(CropHandle handle) const {
    return m_grid.point(CropGeometry::position(handle, m_crop));
}

void CropPainting::paintHandle(CropHandle handle) {
    const QPointF middle = middleOf(handle);
    const double radius = m_geometry.handleSize / 2;
    m_painter.setPen(Qt::NoPen);
    m_painter.setBrush(Qt::white);
    m_painter.drawEllipse(middle, radius, radius);
    m_painter.setBrush(Qt::NoBrush);
    m_painter.setPen(QPen(blackOf(kHandleOutline), kHandleOutlineWidth));
    m_painter.drawEllipse(middle, radius, radius);
    m_painter.setPen(Qt::NoPen);
}

} // namespace brisklet
