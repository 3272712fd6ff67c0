#include "Models/FrameNumbers.h"

#include "Media/Asset.h"
#include "TestSupport/Fixture.h"
#include "TestSupport/MediaCache.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <cmath>
#include <limits>
#include <ostream>
#include <string>

namespace brisklet {
namespace {

using testsupport::Fixture;
using testsupport::makeFixture;
using testsupport::Recipe;
using testsupport::VideoCodec;

FrameNumbers numbersOf(const std::filesystem::path& path) {
    return FrameNumbers(media::Asset::open(path)->tracks(media::MediaType::video).at(0));
}

/// The first tick of a frame, by the rounding that chooses frames.
double tickOf(double seconds) {
    return std::round(seconds * 600);
}

class ConstantRate : public testing::TestWithParam<Recipe> {};

// The pictures show their numbers: ffmpeg decodes them, and says when each is shown.
TEST_P(ConstantRate, numbersEachFrameAsItIsShown) {
    const Fixture fixture = makeFixture(GetParam());
    const FrameNumbers numbers = numbersOf(fixture.path);
    ASSERT_EQ(numbers.count(), static_cast<std::int64_t>(fixture.frames.size()));
    for (std::size_t i = 0; i < fixture.frames.size(); ++i) {
        const auto& frame = fixture.frames[i];
        const double first = tickOf(frame.seconds);
        const bool isLast = i + 1 == fixture.frames.size();
        const double next = isLast ? first + 1 : tickOf(fixture.frames[i + 1].seconds);
        EXPECT_EQ(numbers.at(first / 600), frame.number);
        EXPECT_EQ(numbers.at((next - 1) / 600), frame.number);
        ASSERT_TRUE(numbers.timeOf(frame.number));
        EXPECT_EQ(tickOf(*numbers.timeOf(frame.number)), first);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, ConstantRate,
    testing::Values(Recipe{}, Recipe{.frameRate = {30000, 1001}},
                    Recipe{.frameRate = {24000, 1001}, .bFrames = 0},
                    Recipe{.container = "mov", .frameRate = {60, 1}},
                    Recipe{.codec = VideoCodec::hevc, .frameRate = {25, 1}},
                    Recipe{.codec = VideoCodec::mjpeg, .container = "mov", .frameRate = {50, 1}}),
    [](const testing::TestParamInfo<Recipe>& tested) {
        std::string name = tested.param.fileName();
        std::ranges::replace_if(
            name, [](unsigned char c) { return std::isalnum(c) == 0; }, '_');
        return name;
    });

TEST(FrameNumbers, staysWithTheFirstAndTheLastFrameBeyondThem) {
    const FrameNumbers numbers = numbersOf(makeFixture({.duration = 1}).path);
    EXPECT_EQ(numbers.at(-3), 0);
    EXPECT_EQ(numbers.at(1000), 29);
    EXPECT_EQ(numbers.at(std::numeric_limits<double>::infinity()), 29);
    EXPECT_EQ(numbers.at(std::nan("")), std::nullopt);
    EXPECT_EQ(numbers.timeOf(-1), std::nullopt);
    EXPECT_EQ(numbers.timeOf(30), std::nullopt);
    EXPECT_EQ(numbers.timeOf(std::numeric_limits<std::int64_t>::max()), std::nullopt);
}

// Two hours of 29.97 frames a second are 215,784: a rate of single precision would be off by then.
TEST(FrameNumbers, staysExactInALongVideo) {
    media::AssetTrack track;
    track.startTime = {0, 30000};
    track.frameDistance = {1001, 30000};
    track.frameCount = 1'000'000;
    const FrameNumbers numbers(track);
    for (std::int64_t number = 999'000; number < 1'000'000; ++number) {
        const auto ticks = (number * 1001 * 600 + 15000) / 30000;
        EXPECT_EQ(numbers.at(static_cast<double>(ticks) / 600), number);
        EXPECT_EQ(numbers.at(static_cast<double>(ticks - 1) / 600), number - 1);
    }
}

TEST(FrameNumbers, areNoneWhereTheFileDoesNotProveAConstantRate) {
    for (const Recipe& recipe :
         {Recipe{.hasVariableFrameRate = true}, Recipe{.container = "mkv"},
          Recipe{.container = "ts"},
          // The index of the first fragments says nothing of the others.
          Recipe{.duration = 8,
          .additionalArguments = {"-movflags", "frag_keyframe+empty_moov"}}}) {
        const FrameNumbers numbers = numbersOf(makeFixture(recipe).path);
        EXPECT_FALSE(numbers.areKnown()) << recipe.fileName();
        EXPECT_EQ(numbers.at(1), std::nullopt);
        EXPECT_EQ(numbers.timeOf(0), std::nullopt);
    }
    const auto source = makeFixture({.duration = 4, .audioTracks = 0}).path;
    const auto gap = testsupport::cachedMedia(
        "numbers-gap.mp4", {"-i", source.string(), "-vf", "select='not(between(n,20,24))'",
                            "-fps_mode", "passthrough", "-c:v", "libx264", "-bf", "0"});
    EXPECT_FALSE(numbersOf(gap).areKnown());
}

} // namespace
} // namespace brisklet
