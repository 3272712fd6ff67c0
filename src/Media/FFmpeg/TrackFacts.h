#pragma once

#include "Media/FFmpeg/SourceInfo.h"

namespace media::ffmpeg {

/// A higher frame rate is taken for the container's tick rate.
inline constexpr double kHighestFrameRate = 1000;

/// Whether a stream is video or audio that can be decoded: not a cover picture, a track of
/// thumbnails, a still picture or data.
bool isUsableStream(const AVFormatContext& context, const AVStream& stream);

/// The facts of one usable stream, except its start time, which inspect() fills in.
SourceTrack describeStream(AVFormatContext& context, AVStream& stream);

} // namespace media::ffmpeg
