#pragma once

namespace brisklet {

/// Has assistive technology see each TimelineMarker as a slider. Once for the program; further
/// calls do nothing. Main thread.
void installTimelineMarkerAccessibility();

} // namespace brisklet
