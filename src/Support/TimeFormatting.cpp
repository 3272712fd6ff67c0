#include "Support/TimeFormatting.h"

#include <cmath>
#include <cstdint>

namespace brisklet {

QString formatTime(double seconds) {
    constexpr double kTwoToThe63 = 9223372036854775808.0;
    const double time = seconds >= 0 ? seconds : 0;
    if (time >= kTwoToThe63)
        qFatal("formatTime: %g seconds cannot be shown", time);

    const auto whole = static_cast<std::int64_t>(time);
    const auto hours = static_cast<long long>(whole / 3600);
    const auto minutes = static_cast<int>(whole % 3600 / 60);
    const double rest = std::fmod(time, 60);
    // QString's own formatting knows no locale: the decimal separator is always a full stop.
    if (whole < 3600)
        return QString::asprintf("%02d:%04.1f", minutes, rest);
    return QString::asprintf("%lld:%02d:%04.1f", hours, minutes, rest);
}

} // namespace brisklet
