#include "Media/Export/Deinterlacer.h"

#include "Media/FFmpeg/LibavReleases.h"
#include "Media/Pixels/FieldInterpolation.h"

#include <bit>
#include <optional>
#include <vector>

extern "C" {
#include <libavutil/imgutils.h>
#include <libavutil/pixdesc.h>
}

namespace media {

namespace {

/// Bits per sample, if all components have the same and their samples are whole bytes or native
/// 16-bit words; none for any other pixel format. Components may be interleaved in a plane:
/// interpolation compares lines, never neighbours in a line.
std::optional<int> sampleDepth(const AVPixFmtDescriptor& format) {
    constexpr unsigned kOther = AV_PIX_FMT_FLAG_PAL | AV_PIX_FMT_FLAG_BITSTREAM |
                                AV_PIX_FMT_FLAG_FLOAT | AV_PIX_FMT_FLAG_HWACCEL;
    const int depth = format.comp[0].depth + format.comp[0].shift;
    const bool isForeign =
        ((format.flags & AV_PIX_FMT_FLAG_BE) != 0) != (std::endian::native == std::endian::big);
    if (format.flags & kOther || depth < 8 || depth > 16 || (depth > 8 && isForeign))
        return std::nullopt;
    for (int i = 0; i < format.nb_components; ++i) {
        const AVComponentDescriptor& component = format.comp[i];
        const int bytes = pixels::bytesPerSample(depth);
        if (component.depth + component.shift != depth || component.offset % bytes != 0 ||
            component.step % bytes != 0)
            return std::nullopt;
    }
    return depth;
}

std::vector<pixels::Plane> memoryOf(const AVFrame& frame, const AVPixFmtDescriptor& format,
                                    int depth) {
    const auto pixelFormat = static_cast<AVPixelFormat>(frame.format);
    std::vector<pixels::Plane> planes;
    for (int i = 0; i < av_pix_fmt_count_planes(pixelFormat); ++i) {
        const bool isChroma = i == 1 || i == 2;
        pixels::Plane plane;
        plane.data = frame.data[i];
        plane.stride = frame.linesize[i];
        plane.width =
            av_image_get_linesize(pixelFormat, frame.width, i) / pixels::bytesPerSample(depth);
        plane.height = isChroma ? AV_CEIL_RSHIFT(frame.height, format.log2_chroma_h) : frame.height;
        planes.push_back(plane);
    }
    return planes;
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
    ffmpeg::setProgressive(*result);
    return result;
}

} // namespace

ffmpeg::FramePtr Deinterlacer::apply(const AVFrame& frame, const AVFrame* previous,
                                     const AVFrame* following) {
    const AVPixFmtDescriptor* format =
        av_pix_fmt_desc_get(static_cast<AVPixelFormat>(frame.format));
    const auto depth = format ? sampleDepth(*format) : std::nullopt;
    if (!ffmpeg::isInterlaced(frame) || !depth)
        return ffmpeg::referenced(frame);
    if (!previous || !isSameKind(*previous, frame))
        previous = &frame;
    if (!following || !isSameKind(*following, frame))
        following = &frame;
    ffmpeg::FramePtr result = emptyLike(frame);
    const auto before = memoryOf(*previous, *format, *depth);
    const auto now = memoryOf(frame, *format, *depth);
    const auto after = memoryOf(*following, *format, *depth);
    const auto made = memoryOf(*result, *format, *depth);
    for (std::size_t i = 0; i < now.size(); ++i) {
        pixels::interpolateSecondField({before[i], now[i], after[i]}, *depth,
                                       ffmpeg::isTopFieldFirst(frame), made[i]);
    }
    return result;
}

} // namespace media
