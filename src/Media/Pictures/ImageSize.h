#pragma once

#include "Media/Geometry.h"

namespace media {

/// Width and height in pixels.
struct ImageSize {
    int width = 1;
    int height = 1;
    friend bool operator==(const ImageSize&, const ImageSize&) = default;
};

/// The size of an upright picture of `natural` size that is scaled to fit into maxWidth × maxHeight
/// pixels (0 leaves a side free), never enlarged; at least 1 × 1.
ImageSize fittedSize(Size natural, int maxWidth, int maxHeight);

} // namespace media
