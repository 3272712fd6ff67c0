#include "Media/Asset.h"
#include "TestSupport/Fixture.h"
#include "TestSupport/MediaCache.h"

#include <gmock/gmock.h>

#include <ostream>

/// Crops, turns and caps put a video on a grid of its nominal rate, rounded: too low a rate loses
/// pictures.
namespace media {
namespace {

using testsupport::makeFixture;
using testsupport::Recipe;
using testsupport::VideoCodec;

float nominalRate(const std::filesystem::path& path) {
    return Asset::open(path)->tracks(MediaType::video).at(0).nominalFrameRate;
}

struct Case {
    std::string name;
    std::string container;
    /// The pictures of 30 a second that are left out, or moved, as a filter of ffmpeg.
    std::string filter;
    double rate;
};

std::ostream& operator<<(std::ostream& stream, const Case& testCase) {
    return stream << testCase.name;
}

std::filesystem::path filtered(const Case& testCase) {
    const auto source = makeFixture({.duration = 4, .audioTracks = 0}).path;
    return testsupport::cachedMedia("rate-" + testCase.name + "." + testCase.container,
                                    {"-i", source.string(), "-vf", testCase.filter, "-fps_mode",
                                     "passthrough", "-enc_time_base", "1:90000", "-c:v", "libx264",
                                     "-preset", "superfast", "-bf", "2"});
}

class NominalFrameRate : public testing::TestWithParam<Case> {};

TEST_P(NominalFrameRate, isThePrevailingOne) {
    EXPECT_NEAR(nominalRate(filtered(GetParam())), GetParam().rate, 0.05);
}

constexpr const char* kTwoGaps = "select='not(between(n,20,24)+between(n,40,43))'";
constexpr const char* kUneven = "select='not(between(n,20,24)+between(n,40,43))',settb=1/90000,"
                                "setpts='PTS+mod(N*373,180)'";
/// Every second picture of 30 a second, and three in a row at each seventh place.
constexpr const char* kOfAllKinds = "select='eq(mod(n,7),0)+eq(mod(n,7),1)+eq(mod(n,7),2)+"
                                    "eq(mod(n,7),4)'";

INSTANTIATE_TEST_SUITE_P(
    Kinds, NominalFrameRate,
    testing::Values(Case{"gapsInMp4", "mp4", kTwoGaps, 30}, Case{"gapsInMov", "mov", kTwoGaps, 30},
                    Case{"gapsInMkv", "mkv", kTwoGaps, 30}, Case{"gapsInTs", "ts", kTwoGaps, 30},
                    Case{"unevenWithGaps", "mp4", kUneven, 30},
                    // What varies throughout has no other rate than the average.
                    Case{"ofAllKinds", "mp4", kOfAllKinds, 17.69}),
    [](const testing::TestParamInfo<Case>& testCase) { return testCase.param.name; });

TEST(NominalFrameRateOfConstantRate, isThatRateItself) {
    for (const testsupport::Fraction rate :
         {testsupport::Fraction{24, 1}, {25, 1}, {30000, 1001}, {60, 1}}) {
        for (const char* container : {"mp4", "mov", "mkv", "ts"}) {
            Recipe recipe{.container = container, .frameRate = rate, .audioTracks = 0};
            EXPECT_NEAR(nominalRate(makeFixture(recipe).path), rate.value(), 1e-4) << container;
        }
    }
}

} // namespace
} // namespace media
