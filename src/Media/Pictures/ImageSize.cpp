#include "Media/Pictures/ImageSize.h"

#include <algorithm>
#include <cmath>

namespace media {

ImageSize fittedSize(Size natural, int maxWidth, int maxHeight) {
    double scale = 1;
    if (maxWidth > 0)
        scale = std::min(scale, maxWidth / natural.width);
    if (maxHeight > 0)
        scale = std::min(scale, maxHeight / natural.height);
    const auto side = [scale](double length, int limit) {
        const int pixels = std::max(1, static_cast<int>(std::lround(length * scale)));
        return limit > 0 ? std::min(pixels, limit) : pixels;
    };
    return {side(natural.width, maxWidth), side(natural.height, maxHeight)};
}

} // namespace media
