#include "Media/Pictures/DecodingImageGenerator.h"

#include "Media/Error.h"
#include "Media/ExportFixture.h"
#include "TestSupport/Fixture.h"
#include "TestSupport/NumberedPicture.h"

#include <gmock/gmock.h>

#include <cmath>
#include <optional>

namespace media {
namespace {

using testsupport::Fixture;
using testsupport::makeFixture;

Time seconds(double value) {
    return Time::fromSeconds(value, kComparisonTimescale);
}

/// The number that the picture shows; none when it is not upright and whole.
std::optional<int> numberIn(const Image& image) {
    std::vector<std::uint8_t> green;
    for (int y = 0; y < image.height; ++y) {
        for (int x = 0; x < image.width; ++x)
            green.push_back(image.pixels.at(static_cast<std::size_t>(y) *
                                                static_cast<std::size_t>(image.stride) +
                                            static_cast<std::size_t>(x) * 4 + 1));
    }
    return testsupport::readNumber(green, image.width, image.height);
}

TEST(ImageGenerator, showsTheFrameAtExactlyTheTimeAskedFor) {
    const Fixture fixture = makeFixture({.groupOfPictures = 60, .startOffset = 1.3});
    DecodingImageGenerator generator(Asset::open(fixture.path));
    for (const std::size_t index : {70U, 3U, 110U, 0U, 71U}) {
        const double time = fixture.frames[index].seconds;
        const TimedImage still = generator.image(seconds(time + 0.01));
        EXPECT_EQ(numberIn(*still.image), fixture.frames[index].number);
        EXPECT_NEAR(still.time.seconds(), time, 0.001);
        EXPECT_EQ(still.image->width, 320);
        EXPECT_EQ(still.image->height, 240);
    }
}

TEST(ImageGenerator, showsTheFirstFrameBeforeAndTheLastAfterAll) {
    const Fixture fixture = makeFixture({});
    DecodingImageGenerator generator(Asset::open(fixture.path));
    EXPECT_EQ(numberIn(*generator.image(seconds(-5)).image), 0);
    EXPECT_EQ(numberIn(*generator.image(seconds(100)).image), fixture.frames.back().number);
}

TEST(ImageGenerator, staysWithinItsTolerance) {
    const Fixture fixture = makeFixture({.duration = 16, .groupOfPictures = 250});
    DecodingImageGenerator generator(Asset::open(fixture.path));
    generator.setMaximumSize(0, 120);
    generator.setTolerance(seconds(0.5), seconds(0.5));
    for (const double time : {1.0, 5.0, 8.2, 12.0, 15.9}) {
        const TimedImage still = generator.image(seconds(time));
        EXPECT_NEAR(still.time.seconds(), time, 0.5 + 0.001);
        ASSERT_TRUE(numberIn(*still.image));
        const auto number = static_cast<std::size_t>(*numberIn(*still.image));
        EXPECT_NEAR(fixture.frames.at(number).seconds, still.time.seconds(), 0.001);
    }
    // And is exact again when asked to.
    generator.setTolerance(seconds(0), seconds(0));
    EXPECT_NEAR(generator.image(seconds(8.2)).time.seconds(), 8.2, 0.034);
}

TEST(ImageGenerator, fitsIntoItsMaximumSizeAndNeverEnlarges) {
    const Fixture fixture = makeFixture({});
    DecodingImageGenerator generator(Asset::open(fixture.path));

    struct {
        int maximumWidth, maximumHeight, width, height;
    } const rows[] = {{0, 120, 160, 120}, {80, 0, 80, 60},        {160, 60, 80, 60},
                      {80, 80, 80, 60},   {4000, 3000, 320, 240}, {0, 0, 320, 240}};

    for (const auto& row : rows) {
        generator.setMaximumSize(row.maximumWidth, row.maximumHeight);
        const auto image = generator.image(seconds(1)).image;
        EXPECT_EQ(image->width, row.width);
        EXPECT_EQ(image->height, row.height);
        EXPECT_GE(image->stride, image->width * 4);
        EXPECT_TRUE(numberIn(*image));
    }
}

TEST(ImageGenerator, turnsThePictureUpright) {
    for (const int rotation : {0, 90, 180, 270}) {
        const Fixture fixture =
            makeFixture({.container = "mov", .duration = 1, .displayRotation = rotation});
        DecodingImageGenerator generator(Asset::open(fixture.path));
        const auto image = generator.image(seconds(0.5)).image;
        EXPECT_EQ(image->width, rotation % 180 == 0 ? 320 : 240) << rotation;
        EXPECT_EQ(image->height, rotation % 180 == 0 ? 240 : 320) << rotation;
        EXPECT_TRUE(numberIn(*image)) << rotation;
        generator.setMaximumSize(0, 120);
        EXPECT_TRUE(numberIn(*generator.image(seconds(0.5)).image)) << rotation;
    }
}

TEST(ImageGenerator, showsSquarePixels) {
    const Fixture fixture = makeFixture({.duration = 1, .pixelAspect = {4, 3}});
    DecodingImageGenerator generator(Asset::open(fixture.path));
    generator.setMaximumSize(0, 120);
    const auto image = generator.image(seconds(0.5)).image;
    EXPECT_EQ(image->height, 120);
    EXPECT_EQ(image->width, 213);
}

TEST(ImageGenerator, hasNothingToShowOfSoundOrAtNoTime) {
    const Fixture fixture = makeFixture({});
    DecodingImageGenerator generator(Asset::open(fixture.path));
    for (const Time time : {Time::invalid(), Time::positiveInfinity(), Time::negativeInfinity()})
        EXPECT_EQ(errorOf([&] { static_cast<void>(generator.image(time)); }),
                  "There is no picture at this time.");
    EXPECT_EQ(numberIn(*generator.image(seconds(0)).image), 0);
}

TEST(ImageGenerator, isUsableAfterItWasStopped) {
    const Fixture fixture = makeFixture({});
    DecodingImageGenerator generator(Asset::open(fixture.path));
    std::stop_source stop;
    stop.request_stop();
    EXPECT_THROW(static_cast<void>(generator.image(seconds(3), stop.get_token())), Cancelled);
    EXPECT_NEAR(generator.image(seconds(3)).time.seconds(), 3, 0.034);
}

} // namespace
} // namespace media
