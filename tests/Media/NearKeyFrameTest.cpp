#include "Media/Pictures/DecodingImageGenerator.h"
#include "TestSupport/Fixture.h"

#include <gtest/gtest.h>

namespace media {
namespace {

/// Story: with B-frames a key frame is shown a little later than it is decoded. Asked for a time
/// in between, the generator went by the one and its container by the other, and so it decoded a
/// whole group of pictures up to half a second before the time, with the key frame at hand.
TEST(ImageGenerator, takesTheKeyFrameAtHandHoweverLateItIsShown) {
    constexpr Time kHalfSecond{kComparisonTimescale / 2, kComparisonTimescale};
    for (const char* container : {"mp4", "mkv"}) {
        const auto fixture = testsupport::makeFixture(
            {.container = container, .duration = 6, .groupOfPictures = 60, .bFrames = 2});
        DecodingImageGenerator generator(Asset::open(fixture.path));
        generator.setMaximumSize(0, 120);
        generator.setTolerance(kHalfSecond, kHalfSecond);
        const double keyFrame = fixture.frames.at(120).seconds;
        for (const double offset : {-0.3, -0.05, -0.02, 0.0, 0.02, 0.3}) {
            SCOPED_TRACE(container + std::to_string(offset));
            const Time time = Time::fromSeconds(keyFrame + offset, kComparisonTimescale);
            EXPECT_NEAR(generator.image(time).time.seconds(), keyFrame, 0.001);
        }
    }
}

} // namespace
} // namespace media
