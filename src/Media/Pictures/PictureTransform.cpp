#include "Media/Pictures/PictureTransform.h"

#include "Media/FFmpeg/LibavReleases.h"
#include "Media/Pixels/CanvasPainter.h"
#include "Media/Pixels/FramePool.h"
#include "Media/Pixels/RecentlyUsed.h"
#include "Media/Pixels/RgbToYuv.h"

extern "C" {
#include <libavutil/pixdesc.h>
}

#include <optional>

namespace media {

using namespace pixels;

namespace {

/// The pixel format without the full-range meaning that the deprecated YUVJ formats have.
AVPixelFormat withoutRange(int format) {
    return format == AV_PIX_FMT_YUVJ420P ? AV_PIX_FMT_YUV420P : static_cast<AVPixelFormat>(format);
}

/// Removes the side data that refers to positions in the source picture.
void removePlacedSideData(AVFrame& frame) {
    for (const AVFrameSideDataType type :
         {AV_FRAME_DATA_PANSCAN, AV_FRAME_DATA_DISPLAYMATRIX, AV_FRAME_DATA_AFD,
          AV_FRAME_DATA_MOTION_VECTORS, AV_FRAME_DATA_REGIONS_OF_INTEREST,
          AV_FRAME_DATA_VIDEO_ENC_PARAMS, AV_FRAME_DATA_DETECTION_BBOXES})
        av_frame_remove_side_data(&frame, type);
}

/// Clears how the source was coded, which an encoder would take for a request.
void forgetCoding(AVFrame& frame) {
    frame.pict_type = AV_PICTURE_TYPE_NONE;
    ffmpeg::forgetKeyPicture(frame);
}

/// The first pixel shown, if the axis is neither scaled nor mirrored and begins at an even pixel.
std::optional<int> plainStart(const AxisMapping& mapping, int length, int canvasLength) {
    const AxisSampling pixels = sampling(mapping, {}, {}, {0, canvasLength});
    if (!pixels.isCopyOf(length) || pixels.mirrored || pixels.firstCopied() % 2 != 0)
        return std::nullopt;
    return pixels.firstCopied();
}

} // namespace

class PictureTransform::Private {
public:
    Private(const AffineTransform& toCanvas, Size naturalSize, Output output)
        : m_toCanvas(toCanvas),
          m_naturalSize(naturalSize),
          m_output(output),
          m_matrix(usableMatrix(output.matrixForRgb)),
          m_pool(output.width, output.height, output.format),
          m_rgbToYuv(m_matrix) {}

    ffmpeg::FramePtr apply(const AVFrame& frame) {
        const CanvasMapping mapping =
            CanvasMapping::nearest(m_toCanvas, m_naturalSize, frame.width, frame.height);
        ffmpeg::FramePtr result = window(frame, mapping);
        if (!result)
            result = painted(frame, mapping);
        forgetCoding(*result);
        return result;
    }

private:
    ffmpeg::FramePtr window(const AVFrame& frame, const CanvasMapping& mapping) const;
    ffmpeg::FramePtr painted(const AVFrame& frame, const CanvasMapping& mapping);
    CanvasFormat canvasFormat(const PlanarFormat& picture) const;

    AffineTransform m_toCanvas;
    Size m_naturalSize;
    Output m_output;
    AVColorSpace m_matrix;
    FramePool m_pool;
    PlanarReader m_reader;
    RgbToYuv m_rgbToYuv;
    RecentlyUsed<PlanarFormat, CanvasPainter> m_painters{4};
};

/// The canvas as a reference to the frame's own memory, where it is a plain crop of the frame.
ffmpeg::FramePtr PictureTransform::Private::window(const AVFrame& frame,
                                                   const CanvasMapping& mapping) const {
    if (withoutRange(frame.format) != m_output.format || mapping.transposed || !frame.buf[0])
        return nullptr;
    const auto left = plainStart(mapping.horizontal, frame.width, m_output.width);
    const auto top = plainStart(mapping.vertical, frame.height, m_output.height);
    if (!left || !top)
        return nullptr;
    ffmpeg::FramePtr window = ffmpeg::referenced(frame);
    const AVPixFmtDescriptor& descriptor = *av_pix_fmt_desc_get(m_output.format);
    for (unsigned plane = 0; plane < 3; ++plane) {
        const int shift = plane > 0 ? 1 : 0;
        window->data[plane] += std::ptrdiff_t{*top >> shift} * frame.linesize[plane] +
                               std::ptrdiff_t{*left >> shift} * descriptor.comp[plane].step;
    }
    if (frame.format != m_output.format)
        window->color_range = AVCOL_RANGE_JPEG;
    if (frame.width != m_output.width || frame.height != m_output.height)
        removePlacedSideData(*window);
    window->format = m_output.format;
    window->width = m_output.width;
    window->height = m_output.height;
    return window;
}

CanvasFormat PictureTransform::Private::canvasFormat(const PlanarFormat& picture) const {
    const int depth = av_pix_fmt_desc_get(m_output.format)->comp[0].depth;
    return {.width = m_output.width,
            .height = m_output.height,
            .depth = depth,
            .chromaShift = 1,
            .chromaLocation = locationIn420(picture.chromaLocation, picture.chromaShiftY),
            .filter = Filter::spline36,
            .dithers = depth == 8 && picture.depth > 8};
}

ffmpeg::FramePtr PictureTransform::Private::painted(const AVFrame& frame,
                                                    const CanvasMapping& mapping) {
    PlanarPicture picture = m_reader.read(frame);
    const bool isRgb = picture.format.family == Family::rgb;
    const CanvasFormat canvas = canvasFormat(picture.format);
    if (isRgb)
        picture = m_rgbToYuv.convert(picture);
    CanvasPainter& painter = m_painters.get(picture.format, [&] {
        return std::make_unique<CanvasPainter>(picture.format, mapping, canvas);
    });

    ffmpeg::FramePtr result = m_pool.frame();
    painter.paint(picture, planesOf(*result));
    if (av_frame_copy_props(result.get(), &frame) < 0)
        throw std::bad_alloc();
    removePlacedSideData(*result);
    if (isRgb)
        result->colorspace = m_matrix;
    if (isRgb || picture.format.isFullRange)
        result->color_range = isRgb ? AVCOL_RANGE_MPEG : AVCOL_RANGE_JPEG;
    if (frame.chroma_location != AVCHROMA_LOC_UNSPECIFIED)
        result->chroma_location = canvas.chromaLocation;
    return result;
}

PictureTransform::PictureTransform(const AffineTransform& toCanvas, Size naturalSize, Output output)
    : d(std::make_unique<Private>(toCanvas, naturalSize, output)) {}

PictureTransform::~PictureTransform() = default;

ffmpeg::FramePtr PictureTransform::apply(const AVFrame& frame) {
    return d->apply(frame);
}

} // namespace media
