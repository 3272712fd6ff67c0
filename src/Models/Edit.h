#pragma once

#include "Media/Geometry.h"

#include <optional>

namespace brisklet {

/// What a user decides about a video: all that an export depends on but the file and the export
/// settings. In the terms of EditState. The defaults are those of a file without a duration.
struct Edit {
    /// Seconds.
    double trimStart = 0;
    double trimEnd = 0;
    std::optional<media::Rect> cropRect;
    /// Degrees, clockwise.
    int rotation = 0;
    bool isMuted = false;

    friend bool operator==(const Edit&, const Edit&) = default;
};

} // namespace brisklet
