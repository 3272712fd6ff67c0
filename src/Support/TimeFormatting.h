#pragma once

#include <QString>

namespace brisklet {

/// A time in seconds as text: "01:23.4", from one hour on "1:02:05.5". Negative times and NaN count
/// as 0.
///
/// The seconds are rounded to a tenth without a carry into the minutes, so 59.96 gives "00:60.0".
/// Times of 2^63 seconds or more, infinity included, end the program.
QString formatTime(double seconds);

/// A time in seconds, as exact as a frame needs it: "0:01:23.456". Rounded to the millisecond, with
/// a carry, so that what is typed back is in the same 1/600 s. Otherwise as formatTime().
QString formatExactTime(double seconds);

} // namespace brisklet
