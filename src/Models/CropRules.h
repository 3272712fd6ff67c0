#pragma once

#include "Media/Geometry.h"

#include <array>

namespace brisklet {

/// The handles by which a crop rectangle is resized.
enum class CropHandle { topLeft, top, topRight, right, bottomRight, bottom, bottomLeft, left };

/// All of them, in the order in which they are drawn.
inline constexpr std::array kCropHandles{
    CropHandle::topLeft,     CropHandle::top,    CropHandle::topRight,   CropHandle::right,
    CropHandle::bottomRight, CropHandle::bottom, CropHandle::bottomLeft, CropHandle::left};

/// Which side of a crop a handle holds in each direction.
enum class CropSide { minimum, neither, maximum };

/// What edits make of a crop: a rectangle inside the unit square, in fractions of the picture as
/// displayed, origin top left, y downward.
namespace crop {

/// The least width and height that resizing makes.
inline constexpr double kMinimumSide = 0.05;
/// The crop of a picture that had none: 80 % of it in each direction, centred.
inline constexpr media::Rect kInitial{0.1, 0.1, 0.8, 0.8};

CropSide horizontalSide(CropHandle handle);
CropSide verticalSide(CropHandle handle);

/// `start` moved by `by` and pushed back inside the picture, on each axis separately.
media::Rect moved(const media::Rect& start, media::Point by);
/// `start` with the sides that the handle holds moved by `by`. The other sides stay; no side leaves
/// the picture or comes nearer than kMinimumSide to the opposite one.
media::Rect resized(const media::Rect& start, CropHandle handle, media::Point by);
/// `start` after a quarter turn of the picture counter-clockwise: covers the same part of it.
media::Rect turnedLeft(const media::Rect& start);

} // namespace crop

} // namespace brisklet
