#pragma once

#include "Media/Reading/VideoReader.h"

namespace media {

/// The number that a decoded picture of 4:2:0 or 4:2:2, of 8 or 10 bits, shows; -1 without one.
int numberIn(const DecodedFrame& decoded);

} // namespace media
