#pragma once

#include "Media/FFmpeg/Handles.h"

namespace media {

/// Turns interlaced frames into progressive ones, one for one: keeps the lines of the first field
/// and interpolates those of the second. Use from one thread at a time.
class Deinterlacer {
public:
    /// `frame` itself if it is not interlaced, or if its pixel format is packed into bits, big
    /// endian on this machine or otherwise not made of whole samples; else a new frame with the
    /// same format and properties. The frames before and after it tell what moves; one that is
    /// null, or has another size or format, is not used.
    [[nodiscard]] static ffmpeg::FramePtr apply(const AVFrame& frame, const AVFrame* previous,
                                                const AVFrame* following);
};

} // namespace media
