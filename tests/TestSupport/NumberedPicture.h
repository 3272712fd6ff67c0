#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace testsupport {

/// A grey picture, one byte per pixel, rows without padding.
struct GreyPicture {
    int width = 0;
    int height = 0;
    std::vector<std::uint8_t> pixels;
};

/// A number that a picture shows can be as large as this.
inline constexpr int kLargestPictureNumber = 65535;

/// A picture that shows `number` (0 to kLargestPictureNumber) as a grid of six by four black and
/// white fields over its whole area: sixteen for the number, eight for a checksum. It can be read
/// after lossy coding and after scaling down to about 50 pixels; a turned, mirrored, cropped or
/// mixed picture does not pass the checksum.
GreyPicture drawNumber(int number, int width, int height);

/// The number that the picture shows; none when it shows no number clearly. The picture must be
/// upright and whole; `pixels` has width * height bytes.
std::optional<int> readNumber(std::span<const std::uint8_t> pixels, int width, int height);

/// The picture turned counter-clockwise by a multiple of 90 degrees.
GreyPicture turnedLeft(const GreyPicture& picture, int degrees);

} // namespace testsupport
