#include "Media/Export/Deinterlacer.h"

#include "Media/Pixels/FieldInterpolation.h"
#include "Media/Pixels/SampleUnpacking.h"

extern "C" {
#include <libavutil/pixdesc.h>
}

namespace media {

namespace {

/// Whether every component is a plane of its own.
bool isPlanar(const AVPixFmtDescriptor& format) {
    if (format.flags & AV_PIX_FMT_FLAG_PAL)
        return false;
    for (int i = 0; i < format.nb_components; ++i) {
        if (!pixels::isPlane(format, i))
            return false;
    }
    return true;
}

pixels::Plane planeOf(const AVFrame& frame, const AVPixFmtDescriptor& format, int component) {
    const bool isChroma = format.nb_components > 2 && (component == 1 || component == 2);
    const int plane = format.comp[component].plane;
    pixels::Plane result;
    result.data = frame.data[plane];
    result.stride = frame.linesize[plane];
    result.width = isChroma ? AV_CEIL_RSHIFT(frame.width, format.log2_chroma_w) : frame.width;
    result.height = isChroma ? AV_CEIL_RSHIFT(frame.height, format.log2_chroma_h) : frame.height;
    return result;
}

bool isSameKind(const AVFrame& a, const AVFrame& b) {
    return a.format == b.format && a.width == b.width && a.height == b.height;
}

ffmpeg::FramePtr emptyLike(const AVFrame& frame) {
    ffmpeg::FramePtr result = ffmpeg::makeFrame();
    result->format = frame.format;
    result->width = frame.width;
    result->height = frame.height;
    if (av_frame_get_buffer(result.get(), 0) < 0 || av_frame_copy_props(result.get(), &frame) < 0)
        throw std::bad_alloc();
    result->interlaced_frame = 0;
    result->top_field_first = 0;
    return result;
}

} // namespace

ffmpeg::FramePtr Deinterlacer::apply(const AVFrame& frame, const AVFrame* previous,
                                     const AVFrame* following) {
    const AVPixFmtDescriptor* format =
        av_pix_fmt_desc_get(static_cast<AVPixelFormat>(frame.format));
    if (!frame.interlaced_frame || !format || !isPlanar(*format))
        return ffmpeg::referenced(frame);
    if (!previous || !isSameKind(*previous, frame))
        previous = &frame;
    if (!following || !isSameKind(*following, frame))
        following = &frame;
    ffmpeg::FramePtr result = emptyLike(frame);
    for (int i = 0; i < format->nb_components; ++i) {
        const pixels::FieldPlanes planes{planeOf(*previous, *format, i), planeOf(frame, *format, i),
                                         planeOf(*following, *format, i)};
        pixels::interpolateSecondField(planes, format->comp[i].depth, frame.top_field_first != 0,
                                       planeOf(*result, *format, i));
    }
    return result;
}

} // namespace media
