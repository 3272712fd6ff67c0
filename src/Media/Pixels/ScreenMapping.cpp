#include "Media/Pixels/ScreenMapping.h"

#include "Media/Error.h"

#include <algorithm>

extern "C" {
#include <libavutil/mastering_display_metadata.h>
}

namespace media::pixels {

namespace {

/// The luminance of 1.0 in linear light, cd/m²: white on a standard-range screen.
constexpr double kScreenWhite = 100;
constexpr float kLeastSignal = 1e-6F;

bool isWideGamut(AVColorPrimaries primaries) {
    return primaries == AVCOL_PRI_BT2020 || primaries == AVCOL_PRI_SMPTE431 ||
           primaries == AVCOL_PRI_SMPTE432;
}

template<typename Tag>
Tag either(Tag tag, Tag unspecified, Tag fallback) {
    return tag == unspecified || static_cast<int>(tag) == 0 ? fallback : tag;
}

zimg_image_format imageFormat(int width, int height) {
    zimg_image_format format;
    zimg_image_format_default(&format, ZIMG_API_VERSION);
    format.width = static_cast<unsigned>(width);
    format.height = static_cast<unsigned>(height);
    return format;
}

zimg_image_format sourceFormat(const PlanarFormat& format, const ScreenColours& colours) {
    zimg_image_format source = imageFormat(format.width, format.height);
    const bool isRgb = format.family == Family::rgb;
    source.pixel_type = format.depth > 8 ? ZIMG_PIXEL_WORD : ZIMG_PIXEL_BYTE;
    source.depth = static_cast<unsigned>(format.depth);
    source.color_family = isRgb ? ZIMG_COLOR_RGB : ZIMG_COLOR_YUV;
    source.matrix_coefficients =
        isRgb ? ZIMG_MATRIX_RGB : static_cast<zimg_matrix_coefficients_e>(colours.matrix);
    source.transfer_characteristics =
        static_cast<zimg_transfer_characteristics_e>(colours.transfer);
    source.color_primaries = static_cast<zimg_color_primaries_e>(colours.primaries);
    source.pixel_range = format.isFullRange ? ZIMG_RANGE_FULL : ZIMG_RANGE_LIMITED;
    return source;
}

zimg_image_format linearFormat(const PlanarFormat& format) {
    zimg_image_format linear = imageFormat(format.width, format.height);
    linear.pixel_type = ZIMG_PIXEL_FLOAT;
    linear.depth = 32;
    linear.color_family = ZIMG_COLOR_RGB;
    linear.matrix_coefficients = ZIMG_MATRIX_RGB;
    linear.transfer_characteristics = ZIMG_TRANSFER_LINEAR;
    linear.color_primaries = ZIMG_PRIMARIES_709;
    linear.pixel_range = ZIMG_RANGE_FULL;
    return linear;
}

zimg_image_format screenFormat(const PlanarFormat& format, const ScreenColours& colours,
                               int chromaShift) {
    zimg_image_format screen = imageFormat(format.width, format.height);
    screen.subsample_w = screen.subsample_h = static_cast<unsigned>(chromaShift);
    screen.pixel_type = ZIMG_PIXEL_BYTE;
    screen.depth = 8;
    screen.color_family = ZIMG_COLOR_YUV;
    screen.matrix_coefficients = ZIMG_MATRIX_709;
    screen.transfer_characteristics =
        colours.isHighDynamicRange()
            ? ZIMG_TRANSFER_709
            : static_cast<zimg_transfer_characteristics_e>(colours.transfer);
    screen.color_primaries = ZIMG_PRIMARIES_709;
    screen.pixel_range = ZIMG_RANGE_FULL;
    screen.chroma_location = ZIMG_CHROMA_TOP_LEFT;
    return screen;
}

template<typename Graph>
Graph build(const zimg_image_format& from, const zimg_image_format& to) {
    zimg_graph_builder_params parameters;
    zimg_graph_builder_params_default(&parameters, ZIMG_API_VERSION);
    parameters.resample_filter_uv = ZIMG_RESIZE_BILINEAR;
    parameters.dither_type = ZIMG_DITHER_ORDERED;
    parameters.nominal_peak_luminance = kScreenWhite;
    // Much faster, and HLG looks as in other players: the system gamma is applied to each component
    // instead of to the luminance.
    parameters.allow_approximate_gamma = 1;
    parameters.cpu_type = ZIMG_CPU_AUTO;
    Graph graph(zimg_filter_graph_build(&from, &to, &parameters));
    if (!graph)
        throw Error(ErrorKind::unconvertibleScreenColors);
    return graph;
}

/// Hable's filmic curve.
float filmic(float x) {
    constexpr float a = 0.15F;
    constexpr float b = 0.50F;
    constexpr float c = 0.10F;
    constexpr float d = 0.20F;
    constexpr float e = 0.02F;
    constexpr float f = 0.30F;
    return (x * (a * x + c * b) + d * e) / (x * (a * x + b) + d * f) - e / f;
}

} // namespace

std::optional<ScreenColours> coloursToMap(const AVFrame& frame) {
    ScreenColours colours;
    colours.transfer = either(frame.color_trc, AVCOL_TRC_UNSPECIFIED, AVCOL_TRC_BT709);
    const bool isHigh = colours.isHighDynamicRange();
    colours.primaries = either(frame.color_primaries, AVCOL_PRI_UNSPECIFIED,
                               isHigh ? AVCOL_PRI_BT2020 : AVCOL_PRI_BT709);
    if (!isHigh && !isWideGamut(colours.primaries))
        return std::nullopt;
    colours.matrix =
        either(frame.colorspace, AVCOL_SPC_UNSPECIFIED,
               colours.primaries == AVCOL_PRI_BT2020 ? AVCOL_SPC_BT2020_NCL : AVCOL_SPC_BT709);
    return colours;
}

std::optional<float> statedPeak(const AVFrame& frame) {
    if (const AVFrameSideData* data =
            av_frame_get_side_data(&frame, AV_FRAME_DATA_CONTENT_LIGHT_LEVEL)) {
        const auto* level = reinterpret_cast<const AVContentLightMetadata*>(data->data);
        if (level->MaxCLL > 0)
            return static_cast<float>(level->MaxCLL) / static_cast<float>(kScreenWhite);
    }
    if (const AVFrameSideData* data =
            av_frame_get_side_data(&frame, AV_FRAME_DATA_MASTERING_DISPLAY_METADATA)) {
        const auto* display = reinterpret_cast<const AVMasteringDisplayMetadata*>(data->data);
        if (display->has_luminance && av_q2d(display->max_luminance) > 0)
            return static_cast<float>(av_q2d(display->max_luminance) / kScreenWhite);
    }
    return std::nullopt;
}

ScreenMapping::ScreenMapping(const PlanarFormat& format, const ScreenColours& colours,
                             int chromaShift)
    : m_width(format.width),
      m_height(format.height),
      m_isCompressed(colours.isHighDynamicRange()),
      m_toLinear(build<Graph>(sourceFormat(format, colours), linearFormat(format))),
      m_toScreen(build<Graph>(linearFormat(format), screenFormat(format, colours, chromaShift))),
      m_linearStride(static_cast<std::ptrdiff_t>(
          alignedUp(static_cast<std::size_t>(m_width) * sizeof(float)))) {
    for (std::size_t index = 0; index < 3; ++index) {
        auto* bytes = m_linear[index].ensure(static_cast<std::size_t>(m_linearStride) *
                                             static_cast<std::size_t>(m_height));
        m_linearPlanes[index] = static_cast<float*>(static_cast<void*>(bytes));
    }
}

void ScreenMapping::run(const std::array<ConstPlane, 3>& in, const std::array<Plane, 3>& out,
                        float peak) {
    zimg_image_buffer_const source = {ZIMG_API_VERSION, {}};
    zimg_image_buffer linear = {ZIMG_API_VERSION, {}};
    zimg_image_buffer_const linearIn = {ZIMG_API_VERSION, {}};
    zimg_image_buffer screen = {ZIMG_API_VERSION, {}};
    for (std::size_t index = 0; index < 3; ++index) {
        source.plane[index] = {in[index].data, in[index].stride, ZIMG_BUFFER_MAX};
        linear.plane[index] = {m_linearPlanes[index], m_linearStride, ZIMG_BUFFER_MAX};
        linearIn.plane[index] = {m_linearPlanes[index], m_linearStride, ZIMG_BUFFER_MAX};
        screen.plane[index] = {out[index].data, out[index].stride, ZIMG_BUFFER_MAX};
    }
    process(m_toLinear, source, linear);
    if (m_isCompressed)
        compress(std::max(peak, 1.0F));
    process(m_toScreen, linearIn, screen);
}

void ScreenMapping::process(const Graph& graph, const zimg_image_buffer_const& in,
                            const zimg_image_buffer& out) {
    std::size_t bytes = 0;
    zimg_filter_graph_get_tmp_size(graph.get(), &bytes);
    if (zimg_filter_graph_process(graph.get(), &in, &out, m_memory.ensure(bytes), nullptr, nullptr,
                                  nullptr, nullptr) != ZIMG_ERROR_SUCCESS)
        throw Error(ErrorKind::unconvertibleScreenColors);
}

/// Maps the brightest component through the curve and scales the others by the same factor, which
/// keeps the hue.
void ScreenMapping::compress(float peak) {
    const float white = 1 / filmic(peak);
    for (int y = 0; y < m_height; ++y) {
        const std::ptrdiff_t line =
            y * (m_linearStride / static_cast<std::ptrdiff_t>(sizeof(float)));
        float* red = m_linearPlanes[0] + line;
        float* green = m_linearPlanes[1] + line;
        float* blue = m_linearPlanes[2] + line;
        for (int x = 0; x < m_width; ++x) {
            const float signal =
                std::max(std::max(red[x], green[x]), std::max(blue[x], kLeastSignal));
            const float factor = filmic(signal) * white / signal;
            red[x] *= factor;
            green[x] *= factor;
            blue[x] *= factor;
        }
    }
}

} // namespace media::pixels
