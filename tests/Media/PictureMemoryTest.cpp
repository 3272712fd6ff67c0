#include "Media/PictureMemory.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <thread>
#include <vector>

namespace media {

namespace {

constexpr std::size_t kPicture = std::size_t{4} * 1280 * 720;

TEST(PictureMemory, aPictureServesTheNextOfItsSize) {
    void* const first = takePictureMemory(kPicture);
    returnPictureMemory(first, kPicture);
    void* const other = takePictureMemory(kPicture / 2);
    void* const second = takePictureMemory(kPicture);
    EXPECT_EQ(second, first);
    EXPECT_NE(other, first);
    returnPictureMemory(other, kPicture / 2);
    returnPictureMemory(second, kPicture);
}

TEST(PictureMemory, isAlignedForVectorInstructions) {
    for (const std::size_t bytes : {std::size_t{1}, std::size_t{63}, kPicture + 1}) {
        void* const memory = takePictureMemory(bytes);
        EXPECT_EQ(reinterpret_cast<std::uintptr_t>(memory) % 64, 0U);
        returnPictureMemory(memory, bytes);
    }
}

TEST(PictureMemory, noTwoPicturesInUseShareIt) {
    const auto work = [](std::uint8_t value) {
        for (int round = 0; round < 200; ++round) {
            std::vector<PictureBytes> pictures;
            for (std::size_t i = 0; i < 6; ++i)
                pictures.emplace_back(10'000 + 1'000 * (i % 3), value);
            for (const PictureBytes& picture : pictures) {
                ASSERT_TRUE(std::ranges::all_of(
                    picture, [value](std::uint8_t byte) { return byte == value; }));
            }
        }
    };
    const std::jthread other(work, std::uint8_t{2});
    work(1);
}

TEST(PictureMemory, givesBackPicturesThatAreTooLargeToKeep) {
    constexpr std::size_t kLarge = std::size_t{64} << 20;
    for (int i = 0; i < 100; ++i) {
        PictureBytes picture(kLarge);
        picture.front() = 1;
        EXPECT_EQ(picture.front(), 1);
    }
}

} // namespace

} // namespace media
