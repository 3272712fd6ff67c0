#pragma once

#include "Views/TimelineGeometry.h"

#include <QString>

namespace brisklet {

class EditState;

/// What the mouse, the keys and assistive technology do to the model by way of the timeline. Main
/// thread.
namespace timeline {

/// The model's times, on a strip of the given measures (points).
TimelineGeometry geometryOf(const EditState& state, double width, double stripHeight,
                            double handleWidth);

/// Puts one end of the range to `time`, as near as it may go; pauses; shows the frame there.
void moveEdge(EditState& state, HandleEdge edge, double time);

/// Seconds that a frame of the open video lasts, by its nominal rate; 1/30 where it has none.
double frameDuration(EditState& state);

/// A time as it is shown; a damaged file may claim any, infinity too.
QString shownTime(double seconds);

} // namespace timeline

} // namespace brisklet
