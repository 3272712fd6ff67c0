#pragma once

#include "Models/EditGesture.h"
#include "Views/DragEscape.h"
#include "Views/Timeline/TimelineFilmstrip.h"
#include "Views/Timeline/TimelineGeometry.h"

#include <QWidget>

#include <array>
#include <memory>
#include <optional>

namespace brisklet {

class DeviceGrid;
class EditState;
class TimelineMarker;

/// The filmstrip with the kept range, its two handles and the playhead. A drag on a handle moves
/// that end of the range, one anywhere else moves the playhead; both follow the absolute position
/// of the pointer. Escape takes a drag back. Main thread.
class TimelineStrip final : public QWidget {
    Q_OBJECT

public:
    /// `stripHeight` and `handleWidth` in points.
    TimelineStrip(std::shared_ptr<EditState> state, int stripHeight, int handleWidth,
                  QWidget* parent = nullptr);

    [[nodiscard]] TimelineGeometry geometryNow() const;

    /// In the order of kEditMarkers, which is that of the tab key.
    [[nodiscard]] const std::array<TimelineMarker*, kEditMarkers.size()>& markers() const {
        return m_markers;
    }

    [[nodiscard]] TimelineMarker& marker(EditMarker marker) const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    void observe();
    void refresh();
    void repaintDifference(const TimelineGeometry& before, const TimelineGeometry& now);
    void placeMarkers(const TimelineGeometry& geometry);
    void beginDrag(EditMarker marker);
    void endDrag();
    void dragTo(double position);
    void moveFocusFromOthers(EditMarker dragged);
    void showCursor(const QPointF& position);

    void paintShades(QPainter& painter, const DeviceGrid& grid) const;
    void paintRangeFrame(QPainter& painter, const DeviceGrid& grid) const;
    void paintPlayhead(QPainter& painter, const DeviceGrid& grid) const;
    void paintHandle(QPainter& painter, const DeviceGrid& grid, EditMarker end) const;
    void paintFocus(QPainter& painter, const DeviceGrid& grid) const;

    std::shared_ptr<EditState> m_state;
    int m_stripHeight;
    int m_handleWidth;
    std::array<TimelineMarker*, kEditMarkers.size()> m_markers{};
    TimelineFilmstrip m_filmstrip;
    /// The geometry for which a repaint was requested last.
    TimelineGeometry m_shown;
    /// What the mouse drags; none while it drags nothing.
    std::optional<EditMarker> m_dragged;
    /// Makes the drag one step to undo.
    std::unique_ptr<EditGesture> m_gesture;
    DragEscape m_escape{*this};
};

} // namespace brisklet
