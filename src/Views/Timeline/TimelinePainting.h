#pragma once

#include "Models/EditMarker.h"
#include "Views/Painting/DeviceGrid.h"
#include "Views/Timeline/TimelineGeometry.h"

#include <QPalette>
#include <QRectF>

#include <optional>

class QPainter;

namespace brisklet {

/// Paints the range and the markers over the filmstrip, on the pixels of the screen.
class TimelinePainting final {
public:
    TimelinePainting(QPainter& painter, const TimelineGeometry& geometry, QPalette palette);

    /// `focused`: the marker around which the focus ring is, if any.
    void paint(std::optional<EditMarker> focused);

    /// How far from a marker anything of it is painted, points.
    static double reach(EditMarker marker);

    /// The visible part and a little around it, so that painting need not cope with the huge
    /// numbers that a damaged file can state.
    static QRectF visible(const QRectF& rect, const TimelineGeometry& geometry);

private:
    void paintShades();
    void paintRangeFrame();
    void paintPlayhead();
    void paintHandle(EditMarker end);
    void paintFocus(EditMarker marker);

    QPainter& m_painter;
    const TimelineGeometry& m_geometry;
    DeviceGrid m_grid;
    QPalette m_palette;
};

} // namespace brisklet
