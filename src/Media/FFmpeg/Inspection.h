#pragma once

#include "Media/FFmpeg/FirstPictures.h"
#include "Media/FFmpeg/SourceInfo.h"

#include <memory>
#include <optional>
#include <stop_token>

namespace media::ffmpeg {

class Demuxer;
class SourceFile;

struct Inspected {
    SourceInfo info;
    /// Of the first video track, as far as it is certain.
    std::optional<FirstFrame> firstFrame;
};

/// Finds out what an asset tells about a file, with a demuxer just opened on it: the tracks, where
/// time 0 is, the duration; and makes sure that the first picture of the first video track decodes.
/// Blocks while it reads the headers, and the end of the file where the container's duration is not
/// reliable. Throws Error with a sentence for the user; Cancelled.
Inspected inspect(Demuxer& demuxer, const SourceFile& file, const std::stop_token& stop);

} // namespace media::ffmpeg
