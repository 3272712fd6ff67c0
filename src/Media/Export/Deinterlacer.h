#pragma once

#include "Media/FFmpeg/Handles.h"

namespace media {

/// Makes whole pictures of one moment out of pictures that weave two fields together. One picture
/// for each, that of its first field. Use from one thread at a time.
class Deinterlacer {
public:
    /// `frame` if it is not interlaced, or in a format whose samples are not plain planes;
    /// otherwise a new frame in the same format with its properties. The pictures before and after
    /// it show what moves; null, or of another size or format, where there is none.
    [[nodiscard]] static ffmpeg::FramePtr apply(const AVFrame& frame, const AVFrame* previous,
                                                const AVFrame* following);
};

} // namespace media
