#pragma once

#include "Media/FFmpeg/Handles.h"
#include "Media/Time.h"

#include <string>

namespace media::ffmpeg {

/// The label of the picture shown at `start`, for a file whose first picture has the label `first`
/// ("hh:mm:ss:ff", a semicolon where frame numbers are dropped) and which shows `rate` pictures a
/// second, written so that it counts at `outputRate`. Empty where there is no such label.
std::string timecodeAt(const std::string& first, AVRational rate, Time start,
                       AVRational outputRate);

} // namespace media::ffmpeg
