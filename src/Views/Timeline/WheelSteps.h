#pragma once

#include "Models/EditMarker.h"

#include <QPointF>

class QWheelEvent;

namespace brisklet {

/// Turns the wheel into whole frames: one for each notch, or for each few points of a touchpad; ten
/// times as many with Shift. What is left of a frame is kept for the next event. Main thread.
///
/// Up and right are forward, as for Qt's sliders. Where the system scrolls naturally and says so,
/// it is the movement of the fingers that counts, not that of a content.
class WheelSteps final {
public:
    struct Step {
        EditMarker marker = EditMarker::playhead;
        /// Negative: backward.
        int frames = 0;
    };

    /// `under`: what the pointer is over. A marker that the wheel has moved away from under a
    /// pointer at rest goes on moving, unless the wheel has rested for a moment.
    Step take(const QWheelEvent& event, EditMarker under);

private:
    [[nodiscard]] bool continues(const QWheelEvent& event) const;

    EditMarker m_marker = EditMarker::playhead;
    /// Of the pointer at the first event for the marker; on the screen.
    QPointF m_origin;
    /// Of the last event, milliseconds.
    quint64 m_timestamp = 0;
    /// Of a frame, with the sign of the direction.
    double m_remainder = 0;
};

} // namespace brisklet
