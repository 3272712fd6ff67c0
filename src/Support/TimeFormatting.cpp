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

} // namespace

QString formatTime(double seconds) {
    constexpr double kTwoToThe63 = 9223372036854775808.0;
    const double time = seconds >= 0 ? seconds : 0;
    if (time >= kTwoToThe63)
        qFatal("formatTime: %g seconds cannot be shown", time);

    const auto whole = static_cast<std::int64_t>(time);
    const auto hours = static_cast<long long>(whole / 3600);
    const auto minutes = static_cast<int>(whole % 3600 / 60);
    const QString rest = inTenths(std::fmod(time, 60));
    if (whole < 3600)
        return QString::asprintf("%02d:", minutes) + rest;
    return QString::asprintf("%lld:%02d:", hours, minutes) + rest;
}

} // namespace brisklet
