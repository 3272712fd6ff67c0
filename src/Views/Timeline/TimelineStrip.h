#pragma once

#include "Models/EditGesture.h"
#include "Views/DragEscape.h"
#include "Views/Shortcuts/ShortcutSource.h"
#include "Views/Timeline/FineDrag.h"
#include "Views/Timeline/MarkerReadout.h"
#include "Views/Timeline/TimelineFilmstrip.h"
#include "Views/Timeline/TimelineGeometry.h"
#include "Views/Timeline/WheelSteps.h"

#include <QTimer>
#include <QWidget>

#include <array>
#include <memory>
#include <optional>

namespace brisklet {

class EditState;
class TimelineMarker;

/// The filmstrip with the kept range, its two handles and the playhead. A drag on a handle moves
/// that end of the range, one anywhere else moves the playhead; both follow the absolute position
/// of the pointer, or with Shift a part of its movement (FineDrag). Escape takes a drag back. The
/// wheel moves the playhead, or the handle under the pointer, by frames (WheelSteps). Main thread.
class TimelineStrip final : public QWidget, public ShortcutSource {
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

    [[nodiscard]] QList<ShortcutGroup> shortcutGroups() const override;

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    /// What the mouse drags.
    struct Drag {
        EditMarker marker = EditMarker::playhead;
        FineDrag path;
        DragSpeed speed = DragSpeed::full;
        /// Where the pointer was last.
        QPointF pointer;
    };

    void observe();
    void refresh();
    void repaintDifference(const TimelineGeometry& before, const TimelineGeometry& now);
    void placeMarkers(const TimelineGeometry& geometry);
    void beginDrag(const QPointF& pointer, Qt::KeyboardModifiers modifiers);
    void endDrag();
    void dragTo(const QPointF& pointer, Qt::KeyboardModifiers modifiers);
    void showSpeed(DragSpeed speed);
    void moveFocusFromOthers(EditMarker dragged);
    void pointAt(const QPointF& position);
    void showHover();

    void followThumbnails();
    void paintNotice(QPainter& painter) const;
    [[nodiscard]] std::optional<EditMarker> focusedMarker() const;

    std::shared_ptr<EditState> m_state;
    int m_stripHeight;
    int m_handleWidth;
    std::array<TimelineMarker*, kEditMarkers.size()> m_markers{};
    TimelineFilmstrip m_filmstrip;
    /// Runs while a filmstrip is being made, until it is time to say so.
    QTimer m_untilNotice;
    /// The filmstrip has been coming for so long that the strip says so.
    bool m_showsNotice = false;
    /// The geometry for which a repaint was requested last.
    TimelineGeometry m_shown;
    /// None while the mouse drags nothing.
    std::optional<Drag> m_drag;
    /// Makes the drag one step to undo.
    std::unique_ptr<EditGesture> m_gesture;
    DragEscape m_escape{*this};
    WheelSteps m_wheel;
    /// Where the pointer is while it drags nothing; none outside the strip.
    std::optional<QPointF> m_pointer;
    MarkerReadout m_readout{m_state, *this};
};

} // namespace brisklet
