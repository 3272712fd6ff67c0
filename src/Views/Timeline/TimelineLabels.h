#pragma once

#include <QString>

namespace brisklet {

/// A time in seconds as the timeline shows it. Times that a damaged file makes too long, infinity
/// among them, are shown as the longest one.
QString timelineLabel(double seconds);
/// The same time to the millisecond.
QString exactTimelineLabel(double seconds);

} // namespace brisklet
