#include "Media/Pixels/CanvasPainter.h"

#include <algorithm>

namespace media::pixels {

namespace {

/// The part of a plane with its corner at column x, line y.
template<typename P>
P part(P plane, int x, int y, int width, int height, int depth) {
    plane.data = plane.line(y) + std::ptrdiff_t{x} * bytesPerSample(depth);
    plane.width = width;
    plane.height = height;
    return plane;
}

void fill(Plane plane, int depth, unsigned value) {
    for (int y = 0; y < plane.height; ++y) {
        if (depth > 8)
            std::fill_n(reinterpret_cast<std::uint16_t*>(plane.line(y)), plane.width,
                        static_cast<std::uint16_t>(value));
        else
            std::fill_n(plane.line(y), plane.width, static_cast<std::uint8_t>(value));
    }
}

/// Fills everything outside the given columns and rows.
void fillAround(Plane plane, Span columns, Span rows, int depth, unsigned value) {
    fill(part(plane, 0, 0, plane.width, rows.first, depth), depth, value);
    fill(part(plane, 0, rows.end, plane.width, plane.height - rows.end, depth), depth, value);
    fill(part(plane, 0, rows.first, columns.first, rows.count(), depth), depth, value);
    fill(part(plane, columns.end, rows.first, plane.width - columns.end, rows.count(), depth),
         depth, value);
}

/// Replaces every sample by its mean with `value`.
template<typename T>
void halve(Plane plane, unsigned value) {
    for (int y = 0; y < plane.height; ++y) {
        auto* line = reinterpret_cast<T*>(plane.line(y));
        std::transform(line, line + plane.width, line,
                       [value](T sample) { return static_cast<T>((sample + value + 1) / 2); });
    }
}

/// The samples, of 2^shift pixels each, that overlap any of the pixels.
Span subsampled(Span pixels, int shift) {
    return {pixels.first >> shift, (pixels.end + (1 << shift) - 1) >> shift};
}

struct Grids {
    SampleGrid x;
    SampleGrid y;
};

Grids gridsOf(bool isChroma, AVChromaLocation location, int shiftX, int shiftY) {
    if (!isChroma)
        return {};
    return {chromaGridX(location, shiftX), chromaGridY(location, shiftY)};
}

} // namespace

CanvasPainter::CanvasPainter(const PlanarFormat& picture, const CanvasMapping& mapping,
                             const CanvasFormat& canvas)
    : m_picture(picture), m_canvas(canvas) {
    const bool transposed = mapping.transposed;
    m_columns =
        coverage(mapping.horizontal, transposed ? picture.height : picture.width, canvas.width);
    m_rows = coverage(mapping.vertical, transposed ? picture.width : picture.height, canvas.height);
    if (m_columns.count() == 0 || m_rows.count() == 0)
        m_columns = m_rows = {};
    for (unsigned plane = 0; plane < 3; ++plane)
        prepare(m_steps[plane], plane, mapping);
}

void CanvasPainter::prepare(Step& step, unsigned plane, const CanvasMapping& mapping) const {
    const bool isChroma = plane > 0 && m_picture.family != Family::rgb;
    PlanarFormat levels = m_picture;
    levels.depth = m_canvas.depth;
    step.background = isChroma ? neutralChroma(levels.depth) : blackLevel(levels);
    if (m_columns.count() == 0 || (plane > 0 && m_picture.family == Family::grey))
        return;

    const int shift = isChroma ? m_canvas.chromaShift : 0;
    step.isSubsampled = shift > 0;
    step.columns = subsampled(m_columns, shift);
    step.rows = subsampled(m_rows, shift);
    const int shiftX = isChroma ? m_picture.chromaShiftX : 0;
    const int shiftY = isChroma ? m_picture.chromaShiftY : 0;
    const Grids from = gridsOf(isChroma, m_picture.chromaLocation, shiftX, shiftY);
    const Grids to = gridsOf(isChroma, m_canvas.chromaLocation, shift, shift);
    const AxisSampling across =
        sampling(mapping.horizontal, mapping.transposed ? from.y : from.x, to.x, step.columns);
    const AxisSampling down =
        sampling(mapping.vertical, mapping.transposed ? from.x : from.y, to.y, step.rows);
    step.turn = {mapping.transposed, across.mirrored, down.mirrored};
    // Chroma is centred on its middle value: a change of depth multiplies it in both ranges.
    prepareSamples(step, {.width = (m_picture.width + (1 << shiftX) - 1) >> shiftX,
                          .height = (m_picture.height + (1 << shiftY) - 1) >> shiftY,
                          .depth = m_picture.depth,
                          .x = mapping.transposed ? down : across,
                          .y = mapping.transposed ? across : down,
                          .newDepth = m_canvas.depth,
                          .isFullRange = m_picture.isFullRange && !isChroma,
                          .filter = m_canvas.filter,
                          .dithers = m_canvas.dithers && m_canvas.depth < m_picture.depth});
}

void CanvasPainter::prepareSamples(Step& step, const Resampling& resampling) {
    const AxisSampling& x = resampling.x;
    const AxisSampling& y = resampling.y;
    step.width = x.count;
    step.height = y.count;
    if (resampling.depth == resampling.newDepth && x.isCopyOf(resampling.width) &&
        y.isCopyOf(resampling.height)) {
        step.copyX = x.firstCopied();
        step.copyY = y.firstCopied();
    } else {
        step.resampler.emplace(resampling);
    }
}

void CanvasPainter::paint(const PlanarPicture& picture, const std::array<Plane, 3>& canvas) {
    for (unsigned index = 0; index < 3; ++index)
        paintPlane(index, picture, canvas);
}

void CanvasPainter::paintPlane(unsigned index, const PlanarPicture& picture,
                               const std::array<Plane, 3>& canvas) {
    if (canvas[index].data)
        paintStep(m_steps[index], picture.planes[index], canvas[index]);
}

void CanvasPainter::paintStep(Step& step, ConstPlane in, Plane out) const {
    const int depth = m_canvas.depth;
    fillAround(out, step.columns, step.rows, depth, step.background);
    if (step.columns.count() == 0 || step.rows.count() == 0)
        return;
    const Plane target = part(out, step.columns.first, step.rows.first, step.columns.count(),
                              step.rows.count(), depth);
    const int bytes = bytesPerSample(depth);
    if (!step.resampler) {
        turnPlane(part(in, step.copyX, step.copyY, step.width, step.height, depth), target,
                  step.turn, bytes);
    } else if (step.turn.isNone()) {
        step.resampler->run(in, target);
    } else {
        const Plane resampled = step.resampled.reserve(step.width, step.height, depth);
        step.resampler->run(in, resampled);
        turnPlane(resampled, target, step.turn, bytes);
    }
    softenChromaEdges(step, target);
}

void CanvasPainter::softenChromaEdges(const Step& step, Plane out) const {
    // A chroma sample that covers a pixel of the picture and one of the black beside it is the mean
    // of both. The last one of a canvas of odd size covers one pixel only.
    if (!step.isSubsampled)
        return;
    const int depth = m_canvas.depth;
    const auto soften = [&](Plane edge) {
        if (depth > 8)
            halve<std::uint16_t>(edge, step.background);
        else
            halve<std::uint8_t>(edge, step.background);
    };
    if (m_columns.first % 2 != 0)
        soften(part(out, 0, 0, 1, out.height, depth));
    if (m_columns.end % 2 != 0 && m_columns.end < m_canvas.width)
        soften(part(out, out.width - 1, 0, 1, out.height, depth));
    if (m_rows.first % 2 != 0)
        soften(part(out, 0, 0, out.width, 1, depth));
    if (m_rows.end % 2 != 0 && m_rows.end < m_canvas.height)
        soften(part(out, 0, out.height - 1, out.width, 1, depth));
}

std::optional<ConstPlane> CanvasPainter::unchanged(const PlanarPicture& picture,
                                                   unsigned plane) const {
    const Step& step = m_steps[plane];
    if (step.resampler || !step.turn.isNone() || step.columns != Span{0, m_canvas.width} ||
        step.rows != Span{0, m_canvas.height} || !picture.planes[plane].data)
        return std::nullopt;
    return part(picture.planes[plane], step.copyX, step.copyY, step.width, step.height,
                m_canvas.depth);
}

} // namespace media::pixels
