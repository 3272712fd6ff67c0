#include "Media/Pixels/CanvasMapping.h"

#include <algorithm>
#include <cmath>

namespace media::pixels {

namespace {

/// Shifts below this are ignored; in samples. Even at an edge from black to white they change an
/// 8-bit value by a quarter only.
constexpr double kNegligible = 1.0 / 1024;

AxisMapping axisAround(double canvasCentre, double scale, int length) {
    return {canvasCentre - scale * length / 2, scale};
}

bool isLeft(AVChromaLocation location) {
    return location == AVCHROMA_LOC_LEFT || location == AVCHROMA_LOC_TOPLEFT ||
           location == AVCHROMA_LOC_BOTTOMLEFT;
}

} // namespace

CanvasMapping CanvasMapping::nearest(const AffineTransform& toCanvas, Size naturalSize, int width,
                                     int height) {
    const AffineTransform& t = toCanvas;
    const bool transposed = std::abs(t.b) + std::abs(t.c) > std::abs(t.a) + std::abs(t.d);
    const double stretchX = std::hypot(t.a, t.b) * naturalSize.width / width;
    const double stretchY = std::hypot(t.c, t.d) * naturalSize.height / height;
    const double alongX = std::copysign(stretchX, transposed ? t.b : t.a);
    const double alongY = std::copysign(stretchY, transposed ? t.c : t.d);
    const Point centre = t.apply(Point{naturalSize.width / 2, naturalSize.height / 2});
    if (transposed)
        return {true, axisAround(centre.x, alongY, height), axisAround(centre.y, alongX, width)};
    return {false, axisAround(centre.x, alongX, width), axisAround(centre.y, alongY, height)};
}

Span coverage(const AxisMapping& mapping, int length, int canvasLength) {
    const double end = mapping.origin + mapping.scale * length;
    const double low = std::ceil(std::min(mapping.origin, end) - 0.5);
    const double high = std::ceil(std::max(mapping.origin, end) - 0.5);
    if (!std::isfinite(low) || !std::isfinite(high))
        return {};
    const double limit = canvasLength;
    const Span span{static_cast<int>(std::clamp(low, 0.0, limit)),
                    static_cast<int>(std::clamp(high, 0.0, limit))};
    return span.end > span.first ? span : Span{};
}

SampleGrid chromaGridX(AVChromaLocation location, int shift) {
    const double spacing = 1 << shift;
    return {isLeft(location) ? 0.5 : spacing / 2, spacing};
}

SampleGrid chromaGridY(AVChromaLocation location, int shift) {
    const double spacing = 1 << shift;
    switch (location) {
    case AVCHROMA_LOC_TOPLEFT:
    case AVCHROMA_LOC_TOP:
        return {0.5, spacing};
    case AVCHROMA_LOC_BOTTOMLEFT:
    case AVCHROMA_LOC_BOTTOM:
        return {spacing - 0.5, spacing};
    default:
        return {spacing / 2, spacing};
    }
}

AVChromaLocation locationIn420(AVChromaLocation location, int sourceShiftY) {
    if (sourceShiftY > 0)
        return location;
    return isLeft(location) ? AVCHROMA_LOC_LEFT : AVCHROMA_LOC_CENTER;
}

bool AxisSampling::isCopy() const {
    return step == 1 && start == std::floor(start);
}

bool AxisSampling::isCopyOf(int length) const {
    return isCopy() && start >= 0 && start + count <= length;
}

int AxisSampling::firstCopied() const {
    return static_cast<int>(start);
}

AxisSampling sampling(const AxisMapping& mapping, SampleGrid pictureGrid, SampleGrid canvasGrid,
                      Span out) {
    const bool mirrored = mapping.scale < 0;
    const int lowest = mirrored ? out.end - 1 : out.first;
    const double canvasPosition = canvasGrid.site + canvasGrid.spacing * lowest;
    const double picturePosition = (canvasPosition - mapping.origin) / mapping.scale;
    const double samplePosition = (picturePosition - pictureGrid.site) / pictureGrid.spacing + 0.5;
    const double step = canvasGrid.spacing / (std::abs(mapping.scale) * pictureGrid.spacing);

    const double start = samplePosition - step / 2;
    const double nearestStart = std::round(start);
    const double drift = (step - 1) * out.count();
    if (std::abs(start - nearestStart) < kNegligible &&
        std::abs(start + drift - nearestStart) < kNegligible)
        return {nearestStart, 1, out.count(), mirrored};
    return {start, step, out.count(), mirrored};
}

} // namespace media::pixels
