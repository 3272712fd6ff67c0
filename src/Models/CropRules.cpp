#include "Models/CropRules.h"

#include <algorithm>

namespace brisklet::crop {

namespace {

/// One axis of a crop.
struct Extent {
    double minimum = 0;
    double maximum = 0;
};

Extent resized(const Extent& start, CropSide side, double by) {
    switch (side) {
    case CropSide::minimum:
        return {std::min(std::max(start.minimum + by, 0.0), start.maximum - kMinimumSide),
                start.maximum};
    case CropSide::neither:
        return start;
    case CropSide::maximum:
        return {start.minimum,
                std::max(std::min(start.maximum + by, 1.0), start.minimum + kMinimumSide)};
    }
    return start;
}

} // namespace

CropSide horizontalSide(CropHandle handle) {
    switch (handle) {
    case CropHandle::topLeft:
    case CropHandle::left:
    case CropHandle::bottomLeft:
        return CropSide::minimum;
    case CropHandle::top:
    case CropHandle::bottom:
        return CropSide::neither;
    case CropHandle::topRight:
    case CropHandle::right:
    case CropHandle::bottomRight:
        return CropSide::maximum;
    }
    return CropSide::neither;
}

CropSide verticalSide(CropHandle handle) {
    switch (handle) {
    case CropHandle::topLeft:
    case CropHandle::top:
    case CropHandle::topRight:
        return CropSide::minimum;
    case CropHandle::left:
    case CropHandle::right:
        return CropSide::neither;
    case CropHandle::bottomLeft:
    case CropHandle::bottom:
    case CropHandle::bottomRight:
        return CropSide::maximum;
    }
    return CropSide::neither;
}

media::Rect moved(const media::Rect& start, media::Point by) {
    return {std::min(std::max(start.x + by.x, 0.0), 1 - start.width),
            std::min(std::max(start.y + by.y, 0.0), 1 - start.height), start.width, start.height};
}

media::Rect resized(const media::Rect& start, CropHandle handle, media::Point by) {
    const Extent x = resized({start.minX(), start.maxX()}, horizontalSide(handle), by.x);
    const Extent y = resized({start.minY(), start.maxY()}, verticalSide(handle), by.y);
    return {x.minimum, y.minimum, x.maximum - x.minimum, y.maximum - y.minimum};
}

media::Rect turnedLeft(const media::Rect& start) {
    return {start.minY(), 1 - start.maxX(), start.height, start.width};
}

} // namespace brisklet::crop
