#include "Media/Export/PictureMaker.h"

#include "Media/Export/Deinterlacer.h"
#include "Media/FFmpeg/LibavReleases.h"

namespace media {

PictureMaker::PictureMaker(const PictureMaking& making)
    : m_deinterlaces(making.deinterlaces),
      m_format(making.output.format),
      m_transform(making.toCanvas, making.naturalSize, making.output) {
    if (making.keepsFields)
        m_fieldTransform.emplace(making.naturalSize, making.output);
}

ffmpeg::FramePtr PictureMaker::made(const ScheduledFrame& source) {
    const AVFrame& frame = *source.frame;
    if (m_deinterlaces) {
        return m_transform.apply(
            *Deinterlacer::apply(frame, source.previous.get(), source.following.get()));
    }
    if (m_fieldTransform && ffmpeg::isInterlaced(frame) && frame.format != m_format)
        return m_fieldTransform->apply(frame);
    return m_transform.apply(frame);
}

} // namespace media
