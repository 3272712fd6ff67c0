#pragma once

#include "Media/Pictures/PictureTransform.h"

namespace media {

/// Converts interlaced pictures to an encoder's pixel format without mixing their fields: each
/// field is converted as a picture of half the height. Use from one thread at a time.
class FieldTransform {
public:
    /// `output.height` is a multiple of 4. The pictures keep their size, cut to the output's.
    FieldTransform(Size codedSize, PictureTransform::Output output);

    /// A frame in the output's format with the source frame's properties. Throws Error if the pixel
    /// format cannot be converted.
    [[nodiscard]] ffmpeg::FramePtr apply(const AVFrame& frame);

private:
    PictureTransform::Output m_output;
    PictureTransform m_ofOneField;
};

} // namespace media
