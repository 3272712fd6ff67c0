#pragma once

#include "Models/EditMarker.h"

#include <QPointF>
#include <QRectF>

#include <optional>

namespace brisklet {

/// Where everything on the strip of a timeline is. Positions are points from the strip's left edge,
/// times are seconds. The time axis runs from `handleWidth` to `width - handleWidth`; each handle
/// is just outside the end of the range that it moves.
///
/// The times may be any numbers, NaN and infinities included, since damaged files state such ones:
/// the results are always finite.
struct TimelineGeometry {
    double duration = 0;
    double trimStart = 0;
    double trimEnd = 0;
    double currentTime = 0;
    double width = 0;
    double stripHeight = 0;
    double handleWidth = 0;

    /// The position of `time` on a strip of `stripWidth`; the start of the axis while there is no
    /// duration.
    [[nodiscard]] double x(double time, double stripWidth) const;

    [[nodiscard]] double x(double time) const { return x(time, width); }

    /// The time at a position, from 0 to the duration.
    [[nodiscard]] double time(double position) const;

    [[nodiscard]] QRectF strip() const { return {0, 0, width, stripHeight}; }

    [[nodiscard]] QRectF filmstrip() const;
    /// Tile `index` of `count` equal ones, which span exactly the filmstrip.
    [[nodiscard]] QRectF tile(int index, int count) const;
    [[nodiscard]] QRectF leftShade() const;
    [[nodiscard]] QRectF rightShade() const;
    [[nodiscard]] QRectF rangeFrame() const;
    /// The bar of the playhead, or the handle of an end of the range.
    [[nodiscard]] QRectF marker(EditMarker marker) const;

    /// The marker at a point: an end of the range, or the playhead within the width of a handle.
    [[nodiscard]] std::optional<EditMarker> markerAt(const QPointF& point) const;

    /// What a press on that point of the strip drags: the end of the range whose handle is there,
    /// anywhere else the playhead.
    [[nodiscard]] EditMarker draggedAt(const QPointF& point) const;

    friend bool operator==(const TimelineGeometry&, const TimelineGeometry&) = default;
};

} // namespace brisklet
