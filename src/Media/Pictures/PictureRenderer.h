#pragma once

#include "Media/Asset.h"
#include "Media/FFmpeg/Handles.h"
#include "Media/Image.h"
#include "Media/Pictures/ImageSize.h"
#include "Media/Pictures/PreviewPicture.h"

#include <memory>

namespace media {

/// Turns decoded frames of one track into upright screen pictures: applies the colour matrix and
/// range, maps PQ, HLG and wide gamuts to a standard screen, resamples to square pixels and
/// composes transparent pixels over black. Keeps its conversion tables between calls. Use from one
/// thread at a time.
class PictureRenderer {
public:
    explicit PictureRenderer(const AssetTrack& track);
    PictureRenderer(const PictureRenderer&) = delete;
    PictureRenderer& operator=(const PictureRenderer&) = delete;
    ~PictureRenderer();

    /// The picture scaled to fit into maxWidth × maxHeight pixels (0 leaves a side free), never
    /// enlarged; at least 1 × 1. Throws Error if the frame's pixel format cannot be converted.
    [[nodiscard]] ImagePtr render(const AVFrame& frame, int maxWidth, int maxHeight);

    /// The same in the smaller form that caches keep: chroma is subsampled if the source's is.
    [[nodiscard]] PreviewPicturePtr preview(const AVFrame& frame, int maxWidth, int maxHeight);

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace media
