#include "Media/Pixels/PlanarReader.h"

#include "Media/Error.h"
#include "Media/Pixels/SampleUnpacking.h"

#include <algorithm>
#include <string>

namespace media::pixels {

namespace {

[[noreturn]] void failUnreadable(AVPixelFormat format) {
    const char* name = av_get_pix_fmt_name(format);
    throw Error(ErrorKind::unconvertiblePixelFormat, {name ? name : "unknown"});
}

bool isDeprecatedFullRange(AVPixelFormat format) {
    return format == AV_PIX_FMT_YUVJ420P || format == AV_PIX_FMT_YUVJ422P ||
           format == AV_PIX_FMT_YUVJ444P || format == AV_PIX_FMT_YUVJ440P ||
           format == AV_PIX_FMT_YUVJ411P;
}

/// Whether pictures of the format can be read, by themselves or through plainSubstitute(): not
/// those in the memory of a GPU, half floats, and 4:1:1 in groups of four pixels.
bool isReadable(AVPixelFormat format, const AVPixFmtDescriptor& descriptor) {
    const bool isHalfFloat =
        descriptor.flags & AV_PIX_FMT_FLAG_FLOAT && descriptor.comp[0].depth != 32;
    return !(descriptor.flags & AV_PIX_FMT_FLAG_HWACCEL) && !isHalfFloat &&
           format != AV_PIX_FMT_UYYVYY411;
}

/// The format that libswscale converts pictures to which unpackComponent() cannot read;
/// AV_PIX_FMT_NONE for all others.
AVPixelFormat plainSubstitute(AVPixelFormat format, const AVPixFmtDescriptor& descriptor) {
    if (descriptor.flags & AV_PIX_FMT_FLAG_BAYER)
        return AV_PIX_FMT_RGB24;
    switch (format) {
    case AV_PIX_FMT_XYZ12LE:
    case AV_PIX_FMT_XYZ12BE:
        return AV_PIX_FMT_RGB48;
    case AV_PIX_FMT_MONOWHITE:
    case AV_PIX_FMT_MONOBLACK:
        return AV_PIX_FMT_GRAY8;
    default:
        return AV_PIX_FMT_NONE;
    }
}

Family familyOf(const AVPixFmtDescriptor& descriptor) {
    if (descriptor.flags & (AV_PIX_FMT_FLAG_RGB | AV_PIX_FMT_FLAG_PAL))
        return Family::rgb;
    return descriptor.nb_components < 3 ? Family::grey : Family::yuv;
}

PlanarFormat formatOf(const AVFrame& frame, const AVPixFmtDescriptor& descriptor) {
    const auto pixelFormat = static_cast<AVPixelFormat>(frame.format);
    PlanarFormat format{.family = familyOf(descriptor),
                        .width = frame.width,
                        .height = frame.height,
                        .depth = unpackedDepth(descriptor, 0)};
    if (format.family == Family::yuv) {
        format.chromaShiftX = descriptor.log2_chroma_w;
        format.chromaShiftY = descriptor.log2_chroma_h;
    }
    format.isFullRange = format.family == Family::rgb || isDeprecatedFullRange(pixelFormat) ||
                         descriptor.flags & AV_PIX_FMT_FLAG_FLOAT ||
                         frame.color_range == AVCOL_RANGE_JPEG;
    if (frame.chroma_location != AVCHROMA_LOC_UNSPECIFIED)
        format.chromaLocation = frame.chroma_location;
    else if (isDeprecatedFullRange(pixelFormat))
        format.chromaLocation = AVCHROMA_LOC_CENTER;
    return format;
}

} // namespace

unsigned blackLevel(const PlanarFormat& format) {
    return format.isFullRange ? 0 : 16U << (format.depth - 8);
}

unsigned neutralChroma(int depth) {
    return 1U << (depth - 1);
}

PlanarPicture PlanarReader::read(const AVFrame& frame) {
    const auto format = static_cast<AVPixelFormat>(frame.format);
    const AVPixFmtDescriptor* descriptor = av_pix_fmt_desc_get(format);
    if (!descriptor || !isReadable(format, *descriptor) || frame.width < 1 || frame.height < 1)
        failUnreadable(format);
    const AVPixelFormat substitute = plainSubstitute(format, *descriptor);
    if (substitute == AV_PIX_FMT_NONE)
        return readNative(frame, *descriptor);
    return readNative(repacked(frame, substitute), *av_pix_fmt_desc_get(substitute));
}

PlanarPicture PlanarReader::readNative(const AVFrame& frame, const AVPixFmtDescriptor& descriptor) {
    PlanarPicture picture{.format = formatOf(frame, descriptor), .planes = {}};
    const PlanarFormat& format = picture.format;
    if (descriptor.flags & AV_PIX_FMT_FLAG_PAL)
        return readPalette(frame, format);
    const int count = format.family == Family::grey ? 1 : 3;
    for (int index = 0; index < count; ++index) {
        const bool isChroma = index > 0 && format.family == Family::yuv;
        const int width = isChroma ? AV_CEIL_RSHIFT(frame.width, format.chromaShiftX) : frame.width;
        const int height =
            isChroma ? AV_CEIL_RSHIFT(frame.height, format.chromaShiftY) : frame.height;
        picture.planes[static_cast<unsigned>(index)] =
            component(frame, descriptor, index, width, height);
    }
    if (descriptor.flags & AV_PIX_FMT_FLAG_ALPHA)
        composeOverBlack(picture, component(frame, descriptor, descriptor.nb_components - 1,
                                            frame.width, frame.height));
    return picture;
}

PlanarPicture PlanarReader::readPalette(const AVFrame& frame, PlanarFormat format) {
    const Plane red = m_components[0].reserve(frame.width, frame.height, 8);
    const Plane green = m_components[1].reserve(frame.width, frame.height, 8);
    const Plane blue = m_components[2].reserve(frame.width, frame.height, 8);
    unpackPalette(frame, red, green, blue);
    return {.format = format, .planes = {red, green, blue}};
}

ConstPlane PlanarReader::component(const AVFrame& frame, const AVPixFmtDescriptor& descriptor,
                                   int index, int width, int height) {
    const AVComponentDescriptor& layout = descriptor.comp[index];
    if (isPlane(descriptor, index))
        return {frame.data[layout.plane], frame.linesize[layout.plane], width, height};
    const Plane plane = m_components[static_cast<unsigned>(index)].reserve(
        width, height, unpackedDepth(descriptor, index));
    unpackComponent(frame, descriptor, index, plane);
    return plane;
}

void PlanarReader::composeOverBlack(PlanarPicture& picture, ConstPlane alpha) {
    const PlanarFormat& format = picture.format;
    if (isOpaque(alpha, format.depth))
        return;
    ConstPlane chromaAlpha = alpha;
    if (format.chromaShiftX > 0 || format.chromaShiftY > 0) {
        const Plane averaged =
            m_chromaAlpha.reserve(picture.planes[1].width, picture.planes[1].height, format.depth);
        averageAlpha(alpha, format.depth, format.chromaShiftX, format.chromaShiftY, averaged);
        chromaAlpha = averaged;
    }
    for (unsigned index = 0; index < 3; ++index) {
        ConstPlane& plane = picture.planes[index];
        if (!plane.data)
            continue;
        const bool isChroma = index > 0 && format.family == Family::yuv;
        const Plane out = m_composed[index].reserve(plane.width, plane.height, format.depth);
        composeOver(plane, isChroma ? chromaAlpha : alpha, format.depth,
                    isChroma ? neutralChroma(format.depth) : blackLevel(format), out);
        plane = out;
    }
}

const AVFrame& PlanarReader::repacked(const AVFrame& frame, AVPixelFormat to) {
    const auto from = static_cast<AVPixelFormat>(frame.format);
    m_repacker.reset(sws_getCachedContext(m_repacker.release(), frame.width, frame.height, from,
                                          frame.width, frame.height, to,
                                          SWS_POINT | SWS_ACCURATE_RND, nullptr, nullptr, nullptr));
    if (!m_repacker)
        failUnreadable(from);
    m_repacked = ffmpeg::makeFrame();
    m_repacked->format = to;
    m_repacked->width = frame.width;
    m_repacked->height = frame.height;
    m_repacked->chroma_location = frame.chroma_location;
    // Only formats of 1 bit become grey here, as 0 and 255.
    m_repacked->color_range = to == AV_PIX_FMT_GRAY8 ? AVCOL_RANGE_JPEG : frame.color_range;
    if (av_frame_get_buffer(m_repacked.get(), 0) < 0)
        throw std::bad_alloc();
    if (sws_scale(m_repacker.get(), frame.data, frame.linesize, 0, frame.height, m_repacked->data,
                  m_repacked->linesize) < 0)
        failUnreadable(from);
    return *m_repacked;
}

} // namespace media::pixels
