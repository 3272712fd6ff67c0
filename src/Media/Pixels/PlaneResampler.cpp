#include "Media/Pixels/PlaneResampler.h"

#include "Media/Pixels/PlaneTurn.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace media::pixels {

namespace {

double filterRadius(Filter filter) {
    return filter == Filter::cubic ? 2 : 3;
}

double cubicWeight(double x) {
    if (x < 1)
        return 1 - x * x * (2.5 - 1.5 * x);
    return 2 - x * (4 - x * (2.5 - 0.5 * x));
}

/// The three pieces of the cardinal cubic spline through 6 samples.
double spline36Weight(double x) {
    if (x < 1)
        return 1 - x * (3.0 / 209 + x * (453.0 / 209 - x * 13 / 11));
    if (x < 2) {
        x -= 1;
        return x * (-156.0 / 209 + x * (270.0 / 209 - x * 6 / 11));
    }
    x -= 2;
    return x * (26.0 / 209 + x * (-45.0 / 209 + x / 11));
}

double filterWeight(Filter filter, double distance) {
    const double x = std::abs(distance);
    if (x >= filterRadius(filter))
        return 0;
    return filter == Filter::cubic ? cubicWeight(x) : spline36Weight(x);
}

/// Whether the filter reaches so little beyond the plane that zimg mirrors the border correctly.
bool suitsGraph(const AxisSampling& axis, int length, Filter filter) {
    if (axis.isCopyOf(length))
        return true;
    const double support = std::ceil(filterRadius(filter) * std::max(axis.step, 1.0));
    const double extent = axis.step * axis.count;
    const double overhang = std::max({-axis.start, axis.start + extent - length, 0.0});
    return extent > support && length > support + overhang + 2;
}

zimg_image_format imageFormat(int width, int height, int depth, bool isFullRange) {
    zimg_image_format format;
    zimg_image_format_default(&format, ZIMG_API_VERSION);
    format.width = static_cast<unsigned>(width);
    format.height = static_cast<unsigned>(height);
    format.pixel_type = depth > 8 ? ZIMG_PIXEL_WORD : ZIMG_PIXEL_BYTE;
    format.depth = static_cast<unsigned>(depth);
    format.color_family = ZIMG_COLOR_GREY;
    format.pixel_range = isFullRange ? ZIMG_RANGE_FULL : ZIMG_RANGE_LIMITED;
    return format;
}

zimg_graph_builder_params builderParameters(Filter filter, bool dithers) {
    zimg_graph_builder_params parameters;
    zimg_graph_builder_params_default(&parameters, ZIMG_API_VERSION);
    if (filter == Filter::cubic) {
        parameters.resample_filter = ZIMG_RESIZE_BICUBIC;
        parameters.filter_param_a = 0;
        parameters.filter_param_b = 0.5;
    } else {
        parameters.resample_filter = ZIMG_RESIZE_SPLINE36;
    }
    parameters.dither_type = dithers ? ZIMG_DITHER_ORDERED : ZIMG_DITHER_NONE;
    // Not AUTO_64B: the 512-bit code of zimg 3.0.4 gets every 16th or 32nd column wrong when it
    // shrinks a line to a little less than half.
    parameters.cpu_type = ZIMG_CPU_AUTO;
    return parameters;
}

template<typename P>
bool isAligned(const P& plane) {
    return reinterpret_cast<std::uintptr_t>(plane.data) % kPlaneAlignment == 0 &&
           plane.stride % static_cast<std::ptrdiff_t>(kPlaneAlignment) == 0;
}

float sampleAt(ConstPlane plane, int depth, int x, int y) {
    const std::uint8_t* line = plane.line(y);
    return static_cast<float>(depth > 8 ? reinterpret_cast<const std::uint16_t*>(line)[x]
                                        : line[x]);
}

void putSample(Plane plane, int depth, int x, int y, float value) {
    const auto most = static_cast<float>((1U << depth) - 1);
    const auto sample = static_cast<std::uint16_t>(std::clamp(value + 0.5F, 0.0F, most));
    if (depth > 8)
        reinterpret_cast<std::uint16_t*>(plane.line(y))[x] = sample;
    else
        plane.line(y)[x] = static_cast<std::uint8_t>(sample);
}

float depthFactor(const Resampling& resampling) {
    if (!resampling.isFullRange)
        return std::exp2(static_cast<float>(resampling.newDepth - resampling.depth));
    return static_cast<float>((1U << resampling.newDepth) - 1) /
           static_cast<float>((1U << resampling.depth) - 1);
}

} // namespace

PlaneResampler::PlaneResampler(const Resampling& resampling) : m_resampling(resampling) {
    const Resampling& r = m_resampling;
    if (suitsGraph(r.x, r.width, r.filter) && suitsGraph(r.y, r.height, r.filter))
        buildGraph();
    if (!m_graph) {
        m_kernelX = kernel(r.x, r.width, r.filter);
        m_kernelY = kernel(r.y, r.height, r.filter);
    }
}

void PlaneResampler::buildGraph() {
    const Resampling& r = m_resampling;
    AxisSampling y = r.y;
    int height = r.height;
    // Lines that are only copied need no filter. zimg leaves it out only if it gets no other lines.
    if (y.isCopyOf(height)) {
        m_skippedLines = y.firstCopied();
        y.start = 0;
        height = y.count;
    }
    zimg_image_format from = imageFormat(r.width, height, r.depth, r.isFullRange);
    from.active_region.left = r.x.start;
    from.active_region.top = y.start;
    from.active_region.width = r.x.step * r.x.count;
    from.active_region.height = y.step * y.count;
    const zimg_image_format to = imageFormat(r.x.count, y.count, r.newDepth, r.isFullRange);
    const zimg_graph_builder_params parameters = builderParameters(r.filter, r.dithers);
    m_graph.reset(zimg_filter_graph_build(&from, &to, &parameters));
    std::size_t memory = 0;
    if (m_graph && zimg_filter_graph_get_tmp_size(m_graph.get(), &memory) == ZIMG_ERROR_SUCCESS)
        m_graphMemory.ensure(memory);
    else
        m_graph.reset();
}

void PlaneResampler::run(ConstPlane in, Plane out) {
    if (m_graph)
        runGraph(in, out);
    else
        runDirectly(in, out);
}

void PlaneResampler::runGraph(ConstPlane in, Plane out) {
    const Resampling& r = m_resampling;
    if (!isAligned(in)) {
        const Plane copy = m_alignedIn.reserve(in.width, in.height, r.depth);
        turnPlane(in, copy, {}, bytesPerSample(r.depth));
        in = copy;
    }
    const Plane target =
        isAligned(out) ? out : m_alignedOut.reserve(out.width, out.height, r.newDepth);
    zimg_image_buffer_const source{.version = ZIMG_API_VERSION, .plane = {}};
    source.plane[0] = {in.line(m_skippedLines), in.stride, ZIMG_BUFFER_MAX};
    zimg_image_buffer result{.version = ZIMG_API_VERSION, .plane = {}};
    result.plane[0] = {target.data, target.stride, ZIMG_BUFFER_MAX};
    // Cannot fail: only callbacks could, and there are none.
    zimg_filter_graph_process(m_graph.get(), &source, &result, m_graphMemory.ensure(0), nullptr,
                              nullptr, nullptr, nullptr);
    if (target.data != out.data)
        turnPlane(target, out, {}, bytesPerSample(r.newDepth));
}

PlaneResampler::Kernel PlaneResampler::kernel(const AxisSampling& sampling, int length,
                                              Filter filter) {
    // A file may state any size for its picture: farther out there is nothing but the border.
    const double widening = std::clamp<double>(sampling.step, 1, length);
    Kernel kernel;
    kernel.taps = 2 * static_cast<int>(std::ceil(filterRadius(filter) * widening));
    for (int i = 0; i < sampling.count; ++i) {
        const double position =
            std::clamp<double>(sampling.start + sampling.step * (i + 0.5), -length, 2.0 * length);
        const int first = static_cast<int>(std::floor(position + 0.5)) - kernel.taps / 2;
        double sum = 0;
        for (int tap = 0; tap < kernel.taps; ++tap)
            sum += filterWeight(filter, (first + tap + 0.5 - position) / widening);
        for (int tap = 0; tap < kernel.taps; ++tap) {
            const int at = first + tap;
            const int mirrored = at < 0 ? -at - 1 : (at >= length ? 2 * length - 1 - at : at);
            const double weight = filterWeight(filter, (at + 0.5 - position) / widening) / sum;
            kernel.indices.push_back(std::clamp(mirrored, 0, length - 1));
            kernel.weights.push_back(static_cast<float>(weight));
        }
    }
    return kernel;
}

void PlaneResampler::runDirectly(ConstPlane in, Plane out) {
    const Resampling& r = m_resampling;
    const auto width = static_cast<std::size_t>(out.width);
    const auto tapsX = static_cast<std::size_t>(m_kernelX.taps);
    const auto tapsY = static_cast<std::size_t>(m_kernelY.taps);
    std::vector<float> lines(width * static_cast<std::size_t>(in.height));
    for (int y = 0; y < in.height; ++y) {
        for (int x = 0; x < out.width; ++x) {
            float sum = 0;
            for (int tap = 0; tap < m_kernelX.taps; ++tap) {
                const auto at = static_cast<std::size_t>(x) * tapsX + static_cast<std::size_t>(tap);
                sum += m_kernelX.weights[at] * sampleAt(in, r.depth, m_kernelX.indices[at], y);
            }
            lines[static_cast<std::size_t>(y) * width + static_cast<std::size_t>(x)] = sum;
        }
    }
    const float factor = depthFactor(r);
    for (int y = 0; y < out.height; ++y) {
        for (int x = 0; x < out.width; ++x) {
            float sum = 0;
            for (int tap = 0; tap < m_kernelY.taps; ++tap) {
                const auto at = static_cast<std::size_t>(y) * tapsY + static_cast<std::size_t>(tap);
                const auto line = static_cast<std::size_t>(m_kernelY.indices[at]);
                sum += m_kernelY.weights[at] * lines[line * width + static_cast<std::size_t>(x)];
            }
            putSample(out, r.newDepth, x, y, sum * factor);
        }
    }
}

} // namespace media::pixels
