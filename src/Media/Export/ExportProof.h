#pragma once

#include "Media/Asset.h"

#include <cstdint>
#include <memory>
#include <stop_token>
#include <vector>

namespace media {

namespace ffmpeg {
class SourceFile;
} // namespace ffmpeg

/// What a complete export has to hold.
struct ExportPlan {
    struct Track {
        MediaType type = MediaType::video;
        /// Pictures, or packets of sound.
        std::int64_t samples = 0;
    };

    /// Pictures first, then sound, in file order.
    std::vector<Track> tracks;
    /// How long the picture is shown.
    Time duration;
};

/// Opens a file just written, as any player would, and compares it with its plan: the tracks, the
/// samples of each and that all of them lie in the file, when the picture begins and ends, and that
/// its first and last pictures decode. Takes far less time than writing it did: what no check needs
/// is not decoded. Throws Error if the file is not what was planned; Cancelled.
void proveExport(const std::shared_ptr<const ffmpeg::SourceFile>& file, const ExportPlan& plan,
                 const std::stop_token& stop = {});

} // namespace media
