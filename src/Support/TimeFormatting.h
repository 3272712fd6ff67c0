#pragma once

#include <QString>

namespace brisklet {

/// A time in seconds as people read it: "01:23.4", from an hour on "1:02:05.5". Negative times and
/// NaN read as 0.
///
/// The seconds are rounded to a tenth on their own, so 59.96 reads "00:60.0": the minutes never
/// run ahead of the time. Times of 2^63 seconds or more, infinity among them, end the program.
QString formatTime(double seconds);

} // namespace brisklet
