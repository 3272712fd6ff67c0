#pragma once

#include "Views/Crop/CropGeometry.h"
#include "Views/Painting/DeviceGrid.h"

#include <QPalette>
#include <QRectF>

class QPainter;

namespace brisklet {

/// Paints the crop over the picture, on the pixels of the screen.
class CropPainting final {
public:
    enum class Focus { hidden, shown };

    CropPainting(QPainter& painter, const CropGeometry& geometry, const QRectF& cropViewRect,
                 const QPalette& palette);

    void paint(Focus focus);

    /// How far from the border of the crop anything is painted, points.
    static double reach(const CropGeometry& geometry);

private:
    void paintDimming();
    /// A border of `width` points, `inset` points inside the crop.
    void paintBorder(double inset, double width, const QColor& color);
    void paintFocus();
    void paintHandle(CropHandle handle);
    [[nodiscard]] QPointF middleOf(CropHandle handle) const;

    QPainter& m_painter;
    const CropGeometry& m_geometry;
    DeviceGrid m_grid;
    QRectF m_crop;
    QPalette m_palette;
};

} // namespace brisklet
