#include "Media/Pixels/RgbToYuv.h"

#include "Media/Error.h"
#include "Media/Pixels/PlaneTurn.h"

#include <algorithm>
#include <cstdint>

namespace media::pixels {

namespace {

constexpr int kDepth = 16;

zimg_image_format imageFormat(const PlanarFormat& picture) {
    zimg_image_format format;
    zimg_image_format_default(&format, ZIMG_API_VERSION);
    format.width = static_cast<unsigned>(picture.width);
    format.height = static_cast<unsigned>(picture.height);
    format.pixel_type = picture.depth > 8 ? ZIMG_PIXEL_WORD : ZIMG_PIXEL_BYTE;
    format.depth = static_cast<unsigned>(picture.depth);
    return format;
}

bool isAligned(const ConstPlane& plane) {
    return reinterpret_cast<std::uintptr_t>(plane.data) % kPlaneAlignment == 0 &&
           plane.stride % static_cast<std::ptrdiff_t>(kPlaneAlignment) == 0;
}

} // namespace

AVColorSpace usableMatrix(AVColorSpace wanted) {
    switch (wanted) {
    case AVCOL_SPC_FCC:
    case AVCOL_SPC_BT470BG:
    case AVCOL_SPC_SMPTE170M:
    case AVCOL_SPC_SMPTE240M:
    case AVCOL_SPC_BT2020_NCL:
        return wanted;
    default:
        return AVCOL_SPC_BT709;
    }
}

RgbToYuv::RgbToYuv(AVColorSpace matrix) : m_matrix(matrix) {}

void RgbToYuv::buildGraph(const PlanarFormat& format) {
    zimg_image_format from = imageFormat(format);
    from.color_family = ZIMG_COLOR_RGB;
    from.pixel_range = ZIMG_RANGE_FULL;
    from.matrix_coefficients = ZIMG_MATRIX_RGB;
    zimg_image_format to = imageFormat(format);
    to.pixel_type = ZIMG_PIXEL_WORD;
    to.depth = kDepth;
    to.color_family = ZIMG_COLOR_YUV;
    to.pixel_range = ZIMG_RANGE_LIMITED;
    // The two enumerations carry the code points of ITU-T H.273.
    to.matrix_coefficients = static_cast<zimg_matrix_coefficients_e>(m_matrix);
    zimg_graph_builder_params parameters;
    zimg_graph_builder_params_default(&parameters, ZIMG_API_VERSION);
    m_graph.reset(zimg_filter_graph_build(&from, &to, &parameters));
    std::size_t memory = 0;
    if (!m_graph || zimg_filter_graph_get_tmp_size(m_graph.get(), &memory) != ZIMG_ERROR_SUCCESS)
        throw Error(ErrorKind::unconvertibleColors);
    m_graphMemory.ensure(memory);
    m_format = format;
}

PlanarPicture RgbToYuv::convert(const PlanarPicture& rgb) {
    if (!m_graph || rgb.format != m_format)
        buildGraph(rgb.format);
    PlanarPicture yuv{.format = rgb.format, .planes = {}};
    yuv.format.family = Family::yuv;
    yuv.format.depth = kDepth;
    yuv.format.isFullRange = false;
    zimg_image_buffer_const source{.version = ZIMG_API_VERSION, .plane = {}};
    zimg_image_buffer result{.version = ZIMG_API_VERSION, .plane = {}};
    for (unsigned i = 0; i < 3; ++i) {
        ConstPlane in = rgb.planes[i];
        if (!isAligned(in)) {
            const Plane copy = m_aligned[i].reserve(in.width, in.height, rgb.format.depth);
            turnPlane(in, copy, {}, bytesPerSample(rgb.format.depth));
            in = copy;
        }
        const Plane out = m_converted[i].reserve(in.width, in.height, kDepth);
        source.plane[i] = {in.data, in.stride, ZIMG_BUFFER_MAX};
        result.plane[i] = {out.data, out.stride, ZIMG_BUFFER_MAX};
        yuv.planes[i] = out;
    }
    zimg_filter_graph_process(m_graph.get(), &source, &result, m_graphMemory.ensure(0), nullptr,
                              nullptr, nullptr, nullptr);
    return yuv;
}

} // namespace media::pixels
