#pragma once

#include "Media/PictureMemory.h"
#include "Media/Time.h"

#include <cstddef>
#include <cstdint>
#include <memory>

namespace media {

/// A picture ready for the screen: opaque 32-bit BGRx in memory order (0xffRRGGBB as a
/// native-endian word on little-endian machines), top line first, upright. Immutable once made and
/// shared between threads.
struct Image {
    int width = 0;
    int height = 0;
    /// Bytes from one line to the next.
    int stride = 0;
    PictureBytes pixels;

    [[nodiscard]] std::size_t byteCount() const { return pixels.size(); }
};

using ImagePtr = std::shared_ptr<const Image>;

/// A picture together with the presentation time of the source frame it shows.
struct TimedImage {
    ImagePtr image;
    Time time;
};

} // namespace media
