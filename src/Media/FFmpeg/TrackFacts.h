#pragma once

#include "Media/FFmpeg/SourceInfo.h"

namespace media::ffmpeg {

/// Whether a stream is a moving picture or sound that can be decoded here (no cover picture, no
/// timed thumbnails, no still picture, no data).
bool isUsableStream(const AVFormatContext& context, const AVStream& stream);

/// The facts of one usable stream; the start time is left for the inspection to fill in.
SourceTrack describeStream(AVFormatContext& context, AVStream& stream);

} // namespace media::ffmpeg
