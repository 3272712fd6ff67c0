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

// Long groups of pictures, so that a still is far behind its key frame; and one of a few pictures.
TEST(ImageGenerator, makesSeveralStillsAsItMakesEach) {
    for (const Fixture& fixture :
         {makeFixture({.duration = 16, .groupOfPictures = 250}), makeFixture({.duration = 1}),
          makeFixture({.container = "ts", .duration = 4})}) {
        const double duration = fixture.frames.back().seconds;
        std::vector<Time> times;
        for (int i = 0; i < 12; ++i)
            times.push_back(seconds((i + 0.5) * duration / 12));
        DecodingImageGenerator generator(Asset::open(fixture.path));
        generator.setMaximumSize(0, 120);
        for (const double tolerance : {0.0, std::min(0.5, duration / 24)}) {
            generator.setTolerance(seconds(tolerance), seconds(tolerance));
            int calls = 0;
            const std::vector<Still> stills = generator.images(times, [&] { ++calls; });
            EXPECT_EQ(calls, 12);
            ASSERT_EQ(stills.size(), times.size());
            for (std::size_t i = 0; i < times.size(); ++i) {
                ASSERT_TRUE(stills[i].picture);
                const TimedImage& still = *stills[i].picture;
                EXPECT_NEAR(still.time.seconds(), times[i].seconds(),
                            std::max(tolerance + 0.001, 0.034));
                EXPECT_EQ(still.image->height, 120);
                ASSERT_TRUE(numberIn(*still.image));
                const auto number = static_cast<std::size_t>(*numberIn(*still.image));
                EXPECT_NEAR(fixture.frames.at(number).seconds, still.time.seconds(), 0.001);
            }
        }
    }
}

TEST(ImageGenerator, saysOfEachStillWhyThereIsNone) {
    DecodingImageGenerator generator(Asset::open(makeFixture({}).path));
    const std::vector<Still> stills =
        generator.images({seconds(1), Time::invalid(), seconds(2)}, {});
    ASSERT_EQ(stills.size(), 3U);
    EXPECT_TRUE(stills[0].picture);
    EXPECT_TRUE(stills[2].picture);
    EXPECT_FALSE(stills[1].picture);
    EXPECT_EQ(errorOf([&] { std::rethrow_exception(stills[1].failure); }),
              "There is no picture at this time.");
    EXPECT_TRUE(generator.images({}, {}).empty());
    std::stop_source stop;
    stop.request_stop();
    EXPECT_THROW(static_cast<void>(generator.images({seconds(1)}, {}, stop.get_token())),
                 Cancelled);
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
