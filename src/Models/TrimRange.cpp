#include "Models/TrimRange.h"

#include <algorithm>

namespace brisklet {

double TrimRange::latestStart() const {
    const double latest = end - kMinimumLength;
    return duration > 0 ? std::max(latest, 0.0) : latest;
}

double TrimRange::earliestEnd() const {
    const double earliest = start + kMinimumLength;
    return duration > 0 ? std::min(earliest, duration) : earliest;
}

double TrimRange::clampedStart(double time) const {
    // std::max gives its first argument where the second is NaN.
    return std::min(std::max(0.0, time), latestStart());
}

double TrimRange::clampedEnd(double time) const {
    return std::max(std::min(time, duration), earliestEnd());
}

} // namespace brisklet
