#include "Views/Timeline/TimelineLabels.h"

#include "Support/TimeFormatting.h"

#include <algorithm>

namespace brisklet {

namespace {

/// The longest time that is shown, seconds.
constexpr double kLongestShown = 1e9;

} // namespace

QString timelineLabel(double seconds) {
    return formatTime(std::min(seconds, kLongestShown));
}

QString exactTimelineLabel(double seconds) {
    return formatExactTime(std::min(seconds, kLongestShown));
}

} // namespace brisklet
