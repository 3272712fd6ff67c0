#pragma once

#include "Views/Timeline/TimelineGeometry.h"

#include <QString>

#include <memory>

namespace media {
class PlayerItem;
}

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

/// What drags on the strip change, as it is before one begins.
struct DragStart {
    std::shared_ptr<const media::PlayerItem> item;
    double trimStart = 0;
    double trimEnd = 0;
    double currentTime = 0;
    bool isPlaying = false;
};

DragStart dragStart(EditState& state);

/// Whether a drag moves the playhead only, or an end of the range too.
enum class Dragged { playhead, edge };

/// Puts back what a drag has changed; nothing where another video has been loaded meanwhile.
void takeBack(EditState& state, const DragStart& start, Dragged dragged);

/// Seconds that a frame of the open video lasts, by its nominal rate; 1/30 where it has none.
double frameDuration(EditState& state);

/// A time as it is shown; a damaged file may claim any, infinity too.
QString shownTime(double seconds);

} // namespace timeline

} // namespace brisklet
