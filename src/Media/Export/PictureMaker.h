#pragma once

#include "Media/Export/FieldTransform.h"
#include "Media/Export/FrameSchedule.h"
#include "Media/Pictures/PictureTransform.h"

#include <optional>

namespace media {

/// How the encoder's pictures are made of the source's.
struct PictureMaking {
    /// As for PictureTransform.
    AffineTransform toCanvas;
    Size naturalSize;
    PictureTransform::Output output;
    /// Interlaced pictures become progressive first.
    bool deinterlaces = false;
    /// The fields of interlaced pictures are converted separately.
    bool keepsFields = false;
};

/// Makes the encoder's pictures. One thread at a time.
class PictureMaker {
public:
    explicit PictureMaker(const PictureMaking& making);

    /// Throws Error if the pixel format of the picture cannot be converted.
    ffmpeg::FramePtr made(const ScheduledFrame& source);

private:
    bool m_deinterlaces;
    AVPixelFormat m_format;
    PictureTransform m_transform;
    std::optional<FieldTransform> m_fieldTransform;
};

} // namespace media
