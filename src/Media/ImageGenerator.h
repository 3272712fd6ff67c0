#pragma once

#include "Media/Asset.h"
#include "Media/Image.h"

#include <cstddef>
#include <exception>
#include <functional>
#include <memory>
#include <optional>
#include <stop_token>
#include <vector>

namespace media {

/// One of several stills: the picture, or why there is none.
struct Still {
    std::optional<TimedImage> picture;
    std::exception_ptr failure;
};

/// Makes upright stills of an asset's first video track. Use from one thread at a time; every
/// operation blocks for as long as decoding takes.
class ImageGenerator {
public:
    /// Throws Error if the asset has no video track, or if the engine can't be loaded.
    static std::unique_ptr<ImageGenerator> make(std::shared_ptr<const Asset> asset);

    ImageGenerator(const ImageGenerator&) = delete;
    ImageGenerator& operator=(const ImageGenerator&) = delete;
    virtual ~ImageGenerator() = default;

    /// Upper bounds of the images, in pixels; 0 leaves a side free. The aspect ratio is kept and
    /// nothing is enlarged. Default: full size.
    virtual void setMaximumSize(int width, int height) = 0;
    /// How far the frame may lie from the requested time; 0 (the default) asks for the frame at
    /// that exact time. With a tolerance the frame that costs least to decode is taken, and detail
    /// that a small picture cannot show is not computed.
    virtual void setTolerance(Time before, Time after) = 0;

    /// The still for `time`. Throws Error if no frame there can be decoded or the time is not
    /// numeric; Cancelled if `stop` is requested.
    [[nodiscard]] virtual TimedImage image(Time time, std::stop_token stop = {}) = 0;

    /// The stills for `times`, as image() makes them, in the order of `times`. Several are made at
    /// the same time where there are processors for it; ascending times cost least. `onStill` is
    /// called after each, on any thread, by one at a time. Throws Cancelled if `stop` is requested.
    [[nodiscard]] virtual std::vector<Still> images(const std::vector<Time>& times,
                                                    const std::function<void()>& onStill,
                                                    std::stop_token stop = {}) = 0;

protected:
    ImageGenerator() = default;
};

} // namespace media
