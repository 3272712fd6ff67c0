#include "Views/Timeline/TimelineGeometry.h"

#include <algorithm>
#include <cmath>

namespace brisklet {

namespace {

constexpr double kPlayheadWidth = 2;

} // namespace

double TimelineGeometry::x(double time, double stripWidth) const {
    if (!(duration > 0))
        return handleWidth;
    const double fraction = time / duration;
    if (!std::isfinite(fraction))
        return handleWidth;
    return handleWidth + (stripWidth - 2 * handleWidth) * fraction;
}

double TimelineGeometry::time(double position) const {
    const double usable = width - 2 * handleWidth;
    if (!(usable > 0) || !(duration > 0) || !std::isfinite(duration))
        return 0;
    return duration * std::clamp((position - handleWidth) / usable, 0.0, 1.0);
}

QRectF TimelineGeometry::filmstrip() const {
    return {handleWidth, 0, std::max(width - 2 * handleWidth, 0.0), stripHeight};
}

QRectF TimelineGeometry::tile(int index, int count) const {
    const QRectF all = filmstrip();
    const double left = all.x() + all.width() * index / count;
    const double right = all.x() + all.width() * (index + 1) / count;
    return {left, 0, right - left, stripHeight};
}

QRectF TimelineGeometry::leftShade() const {
    return {handleWidth, 0, std::max(x(trimStart) - handleWidth, 0.0), stripHeight};
}

QRectF TimelineGeometry::rightShade() const {
    const double left = x(trimEnd);
    return {left, 0, std::max(width - handleWidth - left, 0.0), stripHeight};
}

QRectF TimelineGeometry::rangeFrame() const {
    const double left = x(trimStart);
    return {left, 0, std::max(x(trimEnd) - left, 0.0), stripHeight};
}

QRectF TimelineGeometry::marker(EditMarker marker) const {
    switch (marker) {
    case EditMarker::trimStart:
        return {x(trimStart) - handleWidth, 0, handleWidth, stripHeight};
    case EditMarker::playhead:
        return {x(currentTime) - kPlayheadWidth / 2, 0, kPlayheadWidth, stripHeight};
    case EditMarker::trimEnd:
        return {x(trimEnd), 0, handleWidth, stripHeight};
    }
    return {};
}

std::optional<EditMarker> TimelineGeometry::markerAt(const QPointF& point) const {
    // The trailing handle is painted over the leading one, and both over the playhead.
    for (const EditMarker end : {EditMarker::trimEnd, EditMarker::trimStart}) {
        if (marker(end).contains(point))
            return end;
    }
    const double reach = handleWidth / 2;
    const QRectF around = marker(EditMarker::playhead).adjusted(-reach, 0, reach, 0);
    return around.contains(point) ? std::optional(EditMarker::playhead) : std::nullopt;
}

EditMarker TimelineGeometry::draggedAt(const QPointF& point) const {
    return markerAt(point).value_or(EditMarker::playhead);
}

} // namespace brisklet
