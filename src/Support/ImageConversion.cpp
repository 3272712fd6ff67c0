#include "Support/ImageConversion.h"

#include <memory>
#include <utility>

namespace brisklet {

QImage toQImage(media::ImagePtr image) {
    if (!image)
        return {};
    auto owner = std::make_unique<media::ImagePtr>(std::move(image));
    const media::Image& shared = **owner;
    // A QImage over read-only memory detaches before it is written to.
    QImage wrapped(
        shared.pixels.data(), shared.width, shared.height, shared.stride, QImage::Format_RGB32,
        [](void* keptAlive) { delete static_cast<media::ImagePtr*>(keptAlive); }, owner.get());
    if (!wrapped.isNull())
        static_cast<void>(owner.release());
    return wrapped;
}

} // namespace brisklet
