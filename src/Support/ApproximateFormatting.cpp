#include "Support/ApproximateFormatting.h"

#include <QCoreApplication>
#include <QLocale>

#include <algorithm>
#include <cmath>

namespace brisklet {

namespace {

constexpr double kMinute = 60;

/// `value` to the nearest multiple of `step`.
qlonglong inSteps(double value, double step) {
    return std::llround(value / step) * std::llround(step);
}

QString number(qlonglong value) {
    return QLocale().toString(value);
}

QString inSeconds(qlonglong count) {
    return QCoreApplication::translate("brisklet::approximateDuration", "%1 s").arg(number(count));
}

QString inMinutes(qlonglong count) {
    return QCoreApplication::translate("brisklet::approximateDuration", "%1 min")
        .arg(number(count));
}

QString inHours(qlonglong count) {
    return QCoreApplication::translate("brisklet::approximateDuration", "%1 h").arg(number(count));
}

QString inHoursAndMinutes(double seconds) {
    const qlonglong minutes = inSteps(seconds / kMinute, 10);
    const QString hours = inHours(minutes / 60);
    return minutes % 60 == 0 ? hours : hours + u' ' + inMinutes(minutes % 60);
}

} // namespace

QString approximateSize(std::int64_t bytes) {
    constexpr double kTen = 10;
    const double exact = static_cast<double>(std::max<std::int64_t>(bytes, 1));
    const double unit = std::pow(kTen, std::max(std::floor(std::log10(exact)) - 1, 0.0));
    const double rounded = std::round(exact / unit) * unit;
    // One digit before the decimal sign leaves room for one behind it; bytes have none.
    const auto digits = static_cast<int>(std::floor(std::log10(rounded) + 1e-9));
    const int decimals = digits >= 3 && digits % 3 == 0 ? 1 : 0;
    return QLocale().formattedDataSize(std::llround(rounded), decimals, QLocale::DataSizeSIFormat);
}

QString approximateDuration(double seconds) {
    constexpr double kLongest = 1e9;
    const double time = std::clamp(seconds, 1.0, kLongest);
    if (time < 10)
        return inSeconds(inSteps(time, 1));
    if (time < kMinute - 2)
        return inSeconds(inSteps(time, 5));
    if (time < 2 * kMinute - 5)
        return inSeconds(inSteps(time, 10));
    if (time < 100 * kMinute)
        return inMinutes(inSteps(time / kMinute, 1));
    return inHoursAndMinutes(time);
}

} // namespace brisklet
