#include "Media/Pictures/PreviewPicture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <random>

namespace media {
namespace {

constexpr int kWidth = 2050;

void fillWithNoise(PreviewPicture& picture) {
    std::minstd_rand random;
    for (const pixels::Plane& plane : picture.planes()) {
        for (int y = 0; plane.data && y < plane.height; ++y)
            std::generate_n(plane.line(y), plane.width,
                            [&] { return static_cast<std::uint8_t>(random()); });
    }
}

/// `height` lines of the picture from an even one on.
PreviewPicture part(PreviewPicture& picture, int firstLine, int height) {
    PreviewPicture::Format format = picture.format();
    format.height = height;
    PreviewPicture result(format);
    const auto from = picture.planes();
    const auto to = result.planes();
    for (std::size_t i = 0; i < 3 && to[i].data; ++i) {
        const int first = i > 0 ? firstLine >> format.chromaShift : firstLine;
        for (int y = 0; y < to[i].height; ++y)
            std::memcpy(to[i].line(y), from[i].line(first + y),
                        static_cast<std::size_t>(to[i].width));
    }
    return result;
}

/// Several threads convert a large picture in strips, a small one is converted in one go.
TEST(PreviewPicture, becomesTheSameImageWholeAndInParts) {
    for (const auto kind :
         {PreviewPicture::Kind::yuv, PreviewPicture::Kind::rgb, PreviewPicture::Kind::grey}) {
        const int chromaShift = kind == PreviewPicture::Kind::yuv ? 1 : 0;
        PreviewPicture whole(
            {.width = kWidth, .height = 1100, .kind = kind, .chromaShift = chromaShift});
        fillWithNoise(whole);
        ASSERT_TRUE(PreviewPicture::isLarge(kWidth, 1100));
        const ImagePtr image = whole.image();
        constexpr int kPartHeight = 90;
        // The last line of a part lacks the chroma of the line below it.
        constexpr std::size_t kComparable = kPartHeight - 1;
        for (int first = 0; first + kPartHeight <= 1100; first += kPartHeight) {
            const ImagePtr small = part(whole, first, kPartHeight).image();
            ASSERT_EQ(small->stride, image->stride);
            const auto stride = static_cast<std::size_t>(image->stride);
            EXPECT_EQ(std::memcmp(image->pixels.data() + stride * static_cast<std::size_t>(first),
                                  small->pixels.data(), stride * kComparable),
                      0)
                << "from line " << first;
        }
    }
}

TEST(PreviewPicture, isLargeAbove1080p) {
    EXPECT_FALSE(PreviewPicture::isLarge(1920, 1080));
    EXPECT_FALSE(PreviewPicture::isLarge(1080, 1920));
    EXPECT_TRUE(PreviewPicture::isLarge(2560, 1440));
    EXPECT_TRUE(PreviewPicture::isLarge(3840, 2160));
}

} // namespace
} // namespace media
