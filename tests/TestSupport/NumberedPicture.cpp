#include "TestSupport/NumberedPicture.h"

#include <cstddef>
#include <stdexcept>

namespace testsupport {
namespace {

constexpr int kColumns = 6;
constexpr int kRows = 4;
constexpr std::uint8_t kBlack = 20;
constexpr std::uint8_t kWhite = 235;

// Makes sure that small numbers have fields of both colours, and that a black picture is no number.
constexpr std::uint32_t kWhitening = 0xA5C396;

std::uint32_t checksum(std::uint32_t number) {
    std::uint32_t remainder = number << 8;
    for (int bit = 23; bit >= 8; --bit) {
        if ((remainder >> bit) & 1U)
            remainder ^= 0x107U << (bit - 8);
    }
    return remainder & 0xFFU;
}

std::uint32_t fieldsFor(int number) {
    const auto value = static_cast<std::uint32_t>(number);
    return ((value << 8) | checksum(value)) ^ kWhitening;
}

std::size_t indexOf(int x, int y, int width) {
    return static_cast<std::size_t>(y) * static_cast<std::size_t>(width) +
           static_cast<std::size_t>(x);
}

/// The mean of the middle of one field, away from what scaling and coding do to its edges.
double fieldMean(std::span<const std::uint8_t> pixels, int width, int height, int field) {
    const int column = field % kColumns;
    const int row = field / kColumns;
    const auto edge = [](int size, int count, int position, double part) {
        return static_cast<int>(size * (position + part) / count);
    };
    double sum = 0;
    int count = 0;
    for (int y = edge(height, kRows, row, 0.3); y <= edge(height, kRows, row, 0.7); ++y) {
        for (int x = edge(width, kColumns, column, 0.3); x <= edge(width, kColumns, column, 0.7);
             ++x) {
            sum += pixels[indexOf(x, y, width)];
            ++count;
        }
    }
    return sum / count;
}

GreyPicture turnedLeftOnce(const GreyPicture& picture) {
    GreyPicture turned{picture.height, picture.width, {}};
    turned.pixels.resize(picture.pixels.size());
    for (int y = 0; y < turned.height; ++y) {
        for (int x = 0; x < turned.width; ++x) {
            turned.pixels[indexOf(x, y, turned.width)] =
                picture.pixels[indexOf(picture.width - 1 - y, x, picture.width)];
        }
    }
    return turned;
}

} // namespace

GreyPicture drawNumber(int number, int width, int height) {
    if (number < 0 || number > kLargestPictureNumber)
        throw std::out_of_range("This number does not fit into a picture.");
    const std::uint32_t fields = fieldsFor(number);
    GreyPicture picture{width, height, {}};
    picture.pixels.reserve(indexOf(0, height, width));
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const int field = y * kRows / height * kColumns + x * kColumns / width;
            picture.pixels.push_back(((fields >> field) & 1U) != 0 ? kWhite : kBlack);
        }
    }
    return picture;
}

std::optional<int> readNumber(std::span<const std::uint8_t> pixels, int width, int height) {
    if (width < kColumns || height < kRows || pixels.size() < indexOf(0, height, width))
        return std::nullopt;
    std::uint32_t fields = 0;
    for (int field = 0; field < kColumns * kRows; ++field) {
        const double mean = fieldMean(pixels, width, height, field);
        if (mean > 90 && mean < 165)
            return std::nullopt;
        if (mean >= 165)
            fields |= 1U << field;
    }
    fields ^= kWhitening;
    const std::uint32_t number = fields >> 8;
    if (checksum(number) != (fields & 0xFFU))
        return std::nullopt;
    return static_cast<int>(number);
}

GreyPicture turnedLeft(const GreyPicture& picture, int degrees) {
    GreyPicture turned = picture;
    for (int turns = (degrees / 90 % 4 + 4) % 4; turns > 0; --turns)
        turned = turnedLeftOnce(turned);
    return turned;
}

} // namespace testsupport
