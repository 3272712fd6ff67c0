#pragma once

#include "Media/Asset.h"
#include "Media/Error.h"
#include "Media/Process/RandomValues.h"
#include "Media/Ticks.h"

namespace media::process {

// Random values of the media layer, such as a receiver takes.

Time randomTime(RandomValues& values);
Ticks randomTicks(RandomValues& values);
TickRange randomTickRange(RandomValues& values);
AffineTransform randomTransform(RandomValues& values);
AssetTrack randomTrack(RandomValues& values);
/// With so many causes, one of the other.
Failure randomFailure(RandomValues& values, int causes);

} // namespace media::process
