#pragma once

#include "Media/EncoderSettings.h"
#include "Media/FFmpeg/Handles.h"

#include <optional>

extern "C" {
#include <libavutil/mastering_display_metadata.h>
}

namespace media::ffmpeg {

/// What a file says about the screen its pictures were graded on and how bright they become.
struct HighDynamicRange {
    std::optional<AVMasteringDisplayMetadata> masteringDisplay;
    std::optional<AVContentLightMetadata> lightLevel;
};

/// From the container and, where it does not say, from a decoded picture.
HighDynamicRange describeDynamicRange(const AVStream& stream, const AVFrame& picture);

/// The same as parameters of x265; none where there is nothing to say.
EncoderParameters x265Parameters(const HighDynamicRange& range);

/// Has a muxer write it for an output stream.
void attach(AVStream& stream, const HighDynamicRange& range);

} // namespace media::ffmpeg
