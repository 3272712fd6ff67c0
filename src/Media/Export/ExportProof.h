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
/// number of samples in each, that all of them lie inside the file, when the picture begins and
/// ends, and that its first and last pictures decode. Nothing else is decoded, so it takes far less
/// time than writing did. Throws Error if the file is not what was planned; Cancelled.
void proveExport(const std::shared_ptr<const ffmpeg::SourceFile>& file, const ExportPlan& plan,
                 const std::stop_token& stop = {});

} // namespace media
