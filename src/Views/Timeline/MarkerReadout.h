#pragma once

#include "Models/EditMarker.h"
#include "Views/Timeline/FineDrag.h"

#include <QObject>
#include <QPointer>
#include <QTimer>

#include <memory>
#include <optional>

namespace brisklet {

class EditState;
class MarkerTimeLabel;
class TimelineStrip;

/// Decides which marker of a strip has its exact time shown beside it, and shows it: the one that
/// is dragged, or else has been moved a moment ago, or else is under the pointer. Main thread.
class MarkerReadout final : public QObject {
    Q_OBJECT

public:
    /// A member of `strip`.
    MarkerReadout(std::shared_ptr<EditState> state, TimelineStrip& strip);
    ~MarkerReadout() override;

    /// None where nothing is dragged.
    void setDragged(std::optional<EditMarker> marker, DragSpeed speed = DragSpeed::full);
    /// None where the pointer is over no marker.
    void setHovered(std::optional<EditMarker> marker);
    /// To be called when a time or the size of the strip has changed.
    void refresh();

private:
    [[nodiscard]] std::optional<EditMarker> shownMarker() const;
    [[nodiscard]] QString text(EditMarker marker) const;
    void markerMoved(EditMarker marker);

    std::shared_ptr<EditState> m_state;
    TimelineStrip& m_strip;
    std::optional<EditMarker> m_dragged;
    DragSpeed m_speed = DragSpeed::full;
    std::optional<EditMarker> m_hovered;
    std::optional<EditMarker> m_moved;
    /// Ends the moment for which m_moved counts; runs only then.
    QTimer m_movedTimer;
    /// Made when it is first shown. A child of the window, since it may overlap other views.
    QPointer<MarkerTimeLabel> m_label;
};

} // namespace brisklet
