#pragma once

#include "Media/FFmpeg/SourceInfo.h"

#include <memory>
#include <stop_token>

namespace media::ffmpeg {

class Demuxer;
class SourceFile;

/// Finds out all that an asset says about a file, with a demuxer just opened on it: tracks, where
/// time 0 lies, how long it is; and makes sure that the first video track's first picture decodes.
/// Blocks for the reading of headers, and of the tail where the container's own duration cannot be
/// relied on. Throws Error with a sentence for the user; Cancelled.
SourceInfo inspect(Demuxer& demuxer, const SourceFile& file, const std::stop_token& stop);

} // namespace media::ffmpeg
