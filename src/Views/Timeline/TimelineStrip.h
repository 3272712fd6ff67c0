#pragma once

#include "Views/DragEscape.h"
#include "Views/Timeline/TimelineFilmstrip.h"
#include "Views/Timeline/TimelineGeometry.h"

#include <QWidget>

#include <array>
#include <memory>

namespace brisklet {

class DeviceGrid;
class EditState;
class TimelineMarker;

/// The filmstrip with the kept range, its two handles and the playhead. A drag on a handle moves
/// that end of the range, one anywhere else moves the playhead; both go by where the pointer is,
/// not by how far it came. Escape takes a drag back. Main thread.
class TimelineStrip final : public QWidget {
    Q_OBJECT

public:
    /// `stripHeight` and `handleWidth` in points.
    TimelineStrip(std::shared_ptr<EditState> state, int stripHeight, int handleWidth,
                  QWidget* parent = nullptr);

    [[nodiscard]] TimelineGeometry geometryNow() const;

    /// In the order of the tab key: trim start, playhead, trim end.
    [[nodiscard]] const std::array<TimelineMarker*, 3>& markers() const { return m_markers; }

    [[nodiscard]] TimelineMarker& playhead() const { return *m_markers[1]; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    enum class Drag { none, playhead, leading, trailing };

    void observe();
    void refresh();
    void repaintDifference(const TimelineGeometry& before, const TimelineGeometry& now);
    void placeMarkers(const TimelineGeometry& geometry);
    void beginDrag(Drag drag);
    void endDrag();
    void dragTo(double position);
    void moveFocusFromOthers();
    void showCursor(const QPointF& position);

    void paintShades(QPainter& painter, const DeviceGrid& grid) const;
    void paintRangeFrame(QPainter& painter, const DeviceGrid& grid) const;
    void paintPlayhead(QPainter& painter, const DeviceGrid& grid) const;
    void paintHandle(QPainter& painter, const DeviceGrid& grid, HandleEdge edge) const;
    void paintFocus(QPainter& painter, const DeviceGrid& grid) const;

    std::shared_ptr<EditState> m_state;
    int m_stripHeight;
    int m_handleWidth;
    std::array<TimelineMarker*, 3> m_markers{};
    TimelineFilmstrip m_filmstrip;
    /// What was asked to be painted last.
    TimelineGeometry m_shown;
    Drag m_drag = Drag::none;
    DragEscape m_escape{*this};
};

} // namespace brisklet
