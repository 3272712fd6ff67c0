#include "Media/Export/FieldTransform.h"

#include "Media/Pixels/FramePool.h"

extern "C" {
#include <libavutil/imgutils.h>
#include <libavutil/pixdesc.h>
}

namespace media {

namespace {

PictureTransform::Output halved(PictureTransform::Output output) {
    output.height /= 2;
    return output;
}

/// The lines of one field as a picture of its own, in the same memory. Formats with a palette have
/// it where a second plane would be.
ffmpeg::FramePtr fieldOf(const AVFrame& frame, int firstLine) {
    ffmpeg::FramePtr field = ffmpeg::referenced(frame);
    const AVPixFmtDescriptor& format =
        *av_pix_fmt_desc_get(static_cast<AVPixelFormat>(frame.format));
    const int planes = format.flags & AV_PIX_FMT_FLAG_PAL
                           ? 1
                           : av_pix_fmt_count_planes(static_cast<AVPixelFormat>(frame.format));
    for (int plane = 0; plane < planes; ++plane) {
        field->data[plane] += std::ptrdiff_t{firstLine} * frame.linesize[plane];
        field->linesize[plane] *= 2;
    }
    field->height = (frame.height + 1 - firstLine) / 2;
    return field;
}

void copyLines(const AVFrame& field, int firstLine, AVFrame& picture) {
    const auto from = pixels::planesOf(field);
    const auto to = pixels::planesOf(picture);
    const AVPixFmtDescriptor& format =
        *av_pix_fmt_desc_get(static_cast<AVPixelFormat>(field.format));
    for (std::size_t i = 0; i < from.size(); ++i) {
        const int bytes = from[i].width * pixels::bytesPerSample(format.comp[0].depth);
        av_image_copy_plane(to[i].line(firstLine), static_cast<int>(2 * to[i].stride), from[i].data,
                            static_cast<int>(from[i].stride), bytes, from[i].height);
    }
}

} // namespace

FieldTransform::FieldTransform(Size codedSize, PictureTransform::Output output)
    : m_output(output), m_ofOneField({}, {codedSize.width, codedSize.height / 2}, halved(output)) {}

ffmpeg::FramePtr FieldTransform::apply(const AVFrame& frame) {
    ffmpeg::FramePtr result = ffmpeg::makeFrame();
    result->format = m_output.format;
    result->width = m_output.width;
    result->height = m_output.height;
    if (av_frame_get_buffer(result.get(), 0) < 0)
        throw std::bad_alloc();
    for (const int firstLine : {0, 1}) {
        const ffmpeg::FramePtr field = m_ofOneField.apply(*fieldOf(frame, firstLine));
        copyLines(*field, firstLine, *result);
        if (firstLine == 0 && av_frame_copy_props(result.get(), field.get()) < 0)
            throw std::bad_alloc();
    }
    return result;
}

} // namespace media
