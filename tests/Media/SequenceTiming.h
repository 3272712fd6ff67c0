#pragma once

#include <string>

namespace media {

/// An H.264 stream with start codes whose sequence parameters say nothing of time any more, as
/// small cameras write it. Throws std::runtime_error if the stream has none that did.
std::string withoutTiming(const std::string& stream);

} // namespace media
