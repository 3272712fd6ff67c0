#include "Export/AVFoundationExporter.h"

#include <QtGlobal>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

namespace brisklet {

namespace {

using media::AffineTransform;
using media::Rect;
using media::Size;

constexpr float kFallbackFrameRate = 30;

/// The picture on its way to the canvas: the transform of the natural frame so far, and the size of
/// the transformed picture, whose corner is at the origin.
struct Placement {
    AffineTransform transform;
    Size size;

    void append(const AffineTransform& next, Size newSize) {
        transform = transform.concatenated(next);
        size = newSize;
    }
};

Placement upright(const media::AssetTrack& source) {
    const Rect frame = source.preferredTransform.apply(
        Rect{0, 0, source.naturalSize.width, source.naturalSize.height});
    const auto toOrigin = AffineTransform::translation(-frame.minX(), -frame.minY());
    return {source.preferredTransform.concatenated(toOrigin),
            {std::abs(frame.width), std::abs(frame.height)}};
}

void turn(Placement& picture, int rotation) {
    const auto [width, height] = picture.size;
    switch ((rotation % 360 + 360) % 360) {
    case 90:
        picture.append({0, 1, -1, 0, height, 0}, {height, width});
        break;
    case 180:
        picture.append({-1, 0, 0, -1, width, height}, {width, height});
        break;
    case 270:
        picture.append({0, -1, 1, 0, 0, width}, {height, width});
        break;
    default:
        break;
    }
}

void crop(Placement& picture, const Rect& normalized) {
    const auto [width, height] = picture.size;
    picture.append(AffineTransform::translation(-std::round(normalized.x * width),
                                                -std::round(normalized.y * height)),
                   {std::round(normalized.width * width), std::round(normalized.height * height)});
}

void cap(Placement& picture, int maxShortEdge) {
    const auto [width, height] = picture.size;
    const double scale = maxShortEdge / std::min(width, height);
    if (scale < 1)
        picture.append(AffineTransform::scale(scale, scale), {width * scale, height * scale});
}

/// Even, rounded down, at least 2. Cuts off at most one pixel.
int renderLength(double length) {
    constexpr double kLargest = std::numeric_limits<int>::max() - 1;
    return static_cast<int>(std::min(std::max(2.0, 2 * std::floor(length * 0.5)), kLargest));
}

media::Time frameDuration(float nominalFrameRate) {
    const float rate = std::round(nominalFrameRate > 0 ? nominalFrameRate : kFallbackFrameRate);
    constexpr auto kLimit = static_cast<float>(std::numeric_limits<std::int32_t>::max());
    if (!std::isfinite(rate) || rate >= kLimit)
        qFatal("A frame rate of %g cannot be exported", static_cast<double>(nominalFrameRate));
    // A rate below half a frame per second rounds to 0, which is no frame rate.
    return {1, std::max<std::int32_t>(1, static_cast<std::int32_t>(rate))};
}

} // namespace

media::VideoComposition
AVFoundationExporter::transformComposition(const media::AssetTrack& source, int rotation,
                                           const std::optional<Rect>& normalizedCrop,
                                           std::optional<int> maxShortEdge) {
    Placement picture = upright(source);
    turn(picture, rotation);
    if (normalizedCrop)
        crop(picture, *normalizedCrop);
    if (maxShortEdge)
        cap(picture, *maxShortEdge);
    return {.transform = picture.transform,
            .renderWidth = renderLength(picture.size.width),
            .renderHeight = renderLength(picture.size.height),
            .frameDuration = frameDuration(source.nominalFrameRate)};
}

} // namespace brisklet
