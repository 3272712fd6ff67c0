#pragma once

#include <QString>

#include <cstdint>

namespace brisklet {

/// A number of bytes as people say it, in the user's locale, to two digits: "46 MB", "1.2 GB", in
/// powers of 1000, as file managers show sizes.
QString approximateSize(std::int64_t bytes);

/// A duration as people say it, in the user's locale: whole seconds up to ten, then steps of five
/// and of ten seconds, minutes, hours. At least a second. Not for NaN.
QString approximateDuration(double seconds);

} // namespace brisklet
