#pragma once

#include "Media/EncoderSettings.h"
#include "Media/FFmpeg/Handles.h"

#include <optional>

extern "C" {
#include <libavutil/mastering_display_metadata.h>
}

namespace media::ffmpeg {

/// HDR static metadata: the display that the pictures were mastered on, and their light levels.
struct HighDynamicRange {
    std::optional<AVMasteringDisplayMetadata> masteringDisplay;
    std::optional<AVContentLightMetadata> lightLevel;
};

/// The metadata in the container or, where that has none, in a decoded picture.
HighDynamicRange describeDynamicRange(const AVStream& stream, const AVFrame& picture);

/// The same as parameters of x265; empty without metadata.
EncoderParameters x265Parameters(const HighDynamicRange& range);

/// Adds the metadata to an output stream, for the muxer to write.
void attach(AVStream& stream, const HighDynamicRange& range);

} // namespace media::ffmpeg
