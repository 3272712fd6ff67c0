#include "Support/TimeFormatting.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>

namespace brisklet {

namespace {

/// 0 to 60 with two digits before the decimal point and one after it, in every locale. Ties round
/// to even, as in C's own formatting but not in Qt's.
QString inTenths(double seconds) {
    std::array<char, 16> text{};
    const auto end =
        std::to_chars(text.data(), text.data() + text.size(), seconds, std::chars_format::fixed, 1);
    return QString::fromLatin1(text.data(), end.ptr - text.data()).rightJustified(4, u'0');
}

/// Not below 0 and small enough for a whole number of `perSecond`ths.
double formattable(double seconds, double perSecond) {
    constexpr double kTwoToThe63 = 9223372036854775808.0;
    const double time = seconds >= 0 ? seconds : 0;
    if (time * perSecond >= kTwoToThe63)
        qFatal("%g seconds cannot be shown", time);
    return time;
}

} // namespace

QString formatTime(double seconds) {
    const double time = formattable(seconds, 1);
    const auto whole = static_cast<std::int64_t>(time);
    const auto hours = static_cast<long long>(whole / 3600);
    const auto minutes = static_cast<int>(whole % 3600 / 60);
    const QString rest = inTenths(std::fmod(time, 60));
    if (whole < 3600)
        return QString::asprintf("%02d:", minutes) + rest;
    return QString::asprintf("%lld:%02d:", hours, minutes) + rest;
}

QString formatExactTime(double seconds) {
    constexpr long long kPerSecond = 1000;
    constexpr long long kPerMinute = 60 * kPerSecond;
    constexpr long long kPerHour = 60 * kPerMinute;
    const long long all = std::llround(formattable(seconds, kPerSecond) * kPerSecond);
    return QString::asprintf("%lld:%02lld:%02lld.%03lld", all / kPerHour,
                             all % kPerHour / kPerMinute, all % kPerMinute / kPerSecond,
                             all % kPerSecond);
}

} // namespace brisklet
