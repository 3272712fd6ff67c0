#include "Media/Pixels/ScreenMapping.h"

#include "Media/Error.h"

#include <zimg.h>

#include <algorithm>
#include <cstring>
#include <utility>

extern "C" {
#include <libavutil/mastering_display_metadata.h>
}

namespace media::pixels {

namespace {

/// The luminance of 1.0 in linear light, cd/m²: white on a standard-range screen.
constexpr double kScreenWhite = 100;
constexpr float kLeastSignal = 1e-6F;

/// The lines of a strip. Fewer would cost time for the lines that are mapped twice, more would
/// leave threads without work and its linear light would not stay in a processor's cache.
constexpr int kStripLines = 64;
/// What a chroma sample is made of reaches so many lines beyond those that it is for. Even, so that
/// chroma samples lie on the same lines in every strip.
constexpr int kMarginLines = 2;

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

struct GraphDeleter {
    void operator()(zimg_filter_graph* graph) const noexcept { zimg_filter_graph_free(graph); }
};

using Graph = std::unique_ptr<zimg_filter_graph, GraphDeleter>;

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

/// The height of the pictures that strips are cut out of: a strip's lines and the margins on both
/// sides.
int stripHeight(int pictureHeight) {
    return std::min(kStripLines + 2 * kMarginLines, pictureHeight);
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

/// Maps a few lines of a picture. Use from one thread at a time.
class ScreenMapping::Strip {
public:
    /// `format`: of those lines alone.
    Strip(const PlanarFormat& format, const ScreenColours& colours, int chromaShift);

    /// Maps the lines from `firstLine` of the picture on.
    void map(const std::array<ConstPlane, 3>& picture, int firstLine, float peak);
    /// Copies the mapped lines from line `from` of the strip on into those of the picture; `count`
    /// and both positions are multiples of 2^chromaShift.
    void copyTo(const std::array<Plane, 3>& picture, int from, int firstLine, int count) const;

private:
    void process(const Graph& graph, const zimg_image_buffer_const& in,
                 const zimg_image_buffer& out);
    void compress(float peak);

    int m_width;
    int m_height;
    int m_chromaShift;
    bool m_isCompressed;
    Graph m_toLinear;
    Graph m_toScreen;
    AlignedBuffer m_memory;
    /// Red, green and blue in linear light, 32-bit floats.
    std::array<AlignedBuffer, 3> m_linear;
    std::array<float*, 3> m_linearPlanes{};
    std::ptrdiff_t m_linearStride;
    std::array<PlaneBuffer, 3> m_screenMemory;
    std::array<Plane, 3> m_screen;
};

ScreenMapping::Strip::Strip(const PlanarFormat& format, const ScreenColours& colours,
                            int chromaShift)
    : m_width(format.width),
      m_height(format.height),
      m_chromaShift(chromaShift),
      m_isCompressed(colours.isHighDynamicRange()),
      m_toLinear(build(sourceFormat(format, colours), linearFormat(format))),
      m_toScreen(build(linearFormat(format), screenFormat(format, colours, chromaShift))),
      m_linearStride(static_cast<std::ptrdiff_t>(
          alignedUp(static_cast<std::size_t>(m_width) * sizeof(float)))) {
    for (std::size_t index = 0; index < 3; ++index) {
        auto* bytes = m_linear[index].ensure(static_cast<std::size_t>(m_linearStride) *
                                             static_cast<std::size_t>(m_height));
        m_linearPlanes[index] = static_cast<float*>(static_cast<void*>(bytes));
        const int shift = index > 0 ? chromaShift : 0;
        m_screen[index] = m_screenMemory[index].reserve(m_width >> shift, m_height >> shift, 8);
    }
}

void ScreenMapping::Strip::map(const std::array<ConstPlane, 3>& picture, int firstLine,
                               float peak) {
    zimg_image_buffer_const source = {ZIMG_API_VERSION, {}};
    zimg_image_buffer linear = {ZIMG_API_VERSION, {}};
    zimg_image_buffer_const linearIn = {ZIMG_API_VERSION, {}};
    zimg_image_buffer screen = {ZIMG_API_VERSION, {}};
    for (std::size_t index = 0; index < 3; ++index) {
        source.plane[index] = {picture[index].line(firstLine), picture[index].stride,
                               ZIMG_BUFFER_MAX};
        linear.plane[index] = {m_linearPlanes[index], m_linearStride, ZIMG_BUFFER_MAX};
        linearIn.plane[index] = {m_linearPlanes[index], m_linearStride, ZIMG_BUFFER_MAX};
        screen.plane[index] = {m_screen[index].data, m_screen[index].stride, ZIMG_BUFFER_MAX};
    }
    process(m_toLinear, source, linear);
    if (m_isCompressed)
        compress(std::max(peak, 1.0F));
    process(m_toScreen, linearIn, screen);
}

void ScreenMapping::Strip::copyTo(const std::array<Plane, 3>& picture, int from, int firstLine,
                                  int count) const {
    for (std::size_t index = 0; index < 3; ++index) {
        const int shift = index > 0 ? m_chromaShift : 0;
        for (int y = 0; y < count >> shift; ++y) {
            std::memcpy(picture[index].line((firstLine >> shift) + y),
                        m_screen[index].line((from >> shift) + y),
                        static_cast<std::size_t>(m_screen[index].width));
        }
    }
}

void ScreenMapping::Strip::process(const Graph& graph, const zimg_image_buffer_const& in,
                                   const zimg_image_buffer& out) {
    std::size_t bytes = 0;
    zimg_filter_graph_get_tmp_size(graph.get(), &bytes);
    if (zimg_filter_graph_process(graph.get(), &in, &out, m_memory.ensure(bytes), nullptr, nullptr,
                                  nullptr, nullptr) != ZIMG_ERROR_SUCCESS)
        throw Error(ErrorKind::unconvertibleScreenColors);
}

/// Maps the brightest component through the curve and scales the others by the same factor, which
/// keeps the hue.
void ScreenMapping::Strip::compress(float peak) {
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

ScreenMapping::ScreenMapping(const PlanarFormat& format, const ScreenColours& colours,
                             int chromaShift, std::shared_ptr<Helpers> helpers)
    : m_format(format),
      m_colours(colours),
      m_chromaShift(chromaShift),
      m_helpers(std::move(helpers)),
      m_stripCount(std::max((format.height - 2 * kMarginLines + kStripLines - 1) / kStripLines, 1)),
      m_strips(static_cast<std::size_t>(m_helpers->workers())) {
    m_strips.front() = makeStrip();
}

ScreenMapping::~ScreenMapping() = default;

std::unique_ptr<ScreenMapping::Strip> ScreenMapping::makeStrip() const {
    PlanarFormat format = m_format;
    format.height = stripHeight(m_format.height);
    return std::make_unique<Strip>(format, m_colours, m_chromaShift);
}

void ScreenMapping::run(const std::array<ConstPlane, 3>& in, const std::array<Plane, 3>& out,
                        float peak) {
    const int height = stripHeight(m_format.height);
    const auto mapStrip = [&](int index, int worker) {
        const auto place = static_cast<std::size_t>(worker);
        if (!m_strips[place])
            m_strips[place] = makeStrip();
        Strip& strip = *m_strips[place];
        // The first and the last strip have no margin at the picture's edge; the last one reaches
        // back as far as its height demands.
        const bool isLast = index == m_stripCount - 1;
        const int first = isLast ? m_format.height - height : index * kStripLines;
        const int begin = index == 0 ? 0 : index * kStripLines + kMarginLines;
        const int end = isLast ? m_format.height : (index + 1) * kStripLines + kMarginLines;
        strip.map(in, first, peak);
        strip.copyTo(out, begin - first, begin, end - begin);
    };
    m_helpers->run(m_stripCount, mapStrip);
}

} // namespace media::pixels
