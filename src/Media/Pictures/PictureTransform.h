#pragma once

#include "Media/FFmpeg/Handles.h"
#include "Media/Geometry.h"

#include <memory>

namespace media {

/// Renders decoded frames into an encoder's format for an export, with zimg. Crop and scale are one
/// resample of exactly the source region, at the right chroma locations; quarter turns and
/// mirroring only move samples. YUV never passes through RGB: colour matrix, transfer, primaries
/// and range stay as they are (RGB sources become YUV with the given matrix). What lies outside the
/// source is black. Transparent sources are composed over black.
///
/// Frames may change size or format from one to the next. Use from one thread at a time.
class PictureTransform {
public:
    struct Output {
        /// Even, at least 2.
        int width = 2;
        int height = 2;
        /// AV_PIX_FMT_YUV420P or AV_PIX_FMT_YUV420P10.
        AVPixelFormat format = AV_PIX_FMT_YUV420P;
        /// Matrix for sources that are RGB; others keep theirs.
        AVColorSpace matrixForRgb = AVCOL_SPC_BT709;
    };

    /// `toCanvas` takes the *natural* frame (y down) to the canvas of output.width × output.height.
    /// `naturalSize` is the natural frame's size; a frame of any coded size is first stretched to
    /// it (which is how the pixel aspect ratio is resampled). The linear part of `toCanvas` must be
    /// a quarter turn, possibly mirrored, with a scale; anything else is taken as the nearest such.
    PictureTransform(const AffineTransform& toCanvas, Size naturalSize, Output output);
    PictureTransform(const PictureTransform&) = delete;
    PictureTransform& operator=(const PictureTransform&) = delete;
    ~PictureTransform();

    /// A frame in the output's format with the source frame's properties (colour tags, side data).
    /// Returns a new reference without copying where the source region is the whole canvas, or an
    /// even, unscaled, unturned part of it, in the output's own format.
    /// Throws Error if the pixel format cannot be converted.
    [[nodiscard]] ffmpeg::FramePtr apply(const AVFrame& frame);

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace media
