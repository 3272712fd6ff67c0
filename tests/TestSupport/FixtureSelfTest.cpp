#include "TestSupport/ClickTrack.h"
#include "TestSupport/Fixture.h"
#include "TestSupport/MediaCache.h"
#include "TestSupport/NumberedPicture.h"
#include "TestSupport/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <cmath>

namespace testsupport {
namespace {

TEST(NumberedPicture, isReadBackAtAnySize) {
    for (const int number : {0, 1, 2, 255, 256, 4095, 40000, kLargestPictureNumber}) {
        for (const auto& [width, height] : {std::pair{60, 40}, {160, 120}, {853, 479}}) {
            const GreyPicture picture = drawNumber(number, width, height);
            EXPECT_EQ(readNumber(picture.pixels, width, height), number);
        }
    }
}

TEST(NumberedPicture, isNotReadFromPlainTurnedOrMixedPictures) {
    const GreyPicture black{60, 40, std::vector<std::uint8_t>(2400, 16)};
    EXPECT_EQ(readNumber(black.pixels, 60, 40), std::nullopt);

    const GreyPicture upright = drawNumber(77, 60, 60);
    for (const int degrees : {90, 180, 270})
        EXPECT_NE(readNumber(turnedLeft(upright, degrees).pixels, 60, 60), 77);

    GreyPicture mixed = drawNumber(7, 60, 40);
    const GreyPicture other = drawNumber(8, 60, 40);
    for (std::size_t i = 0; i < mixed.pixels.size(); ++i)
        mixed.pixels[i] = static_cast<std::uint8_t>((mixed.pixels[i] + other.pixels[i]) / 2);
    EXPECT_EQ(readNumber(mixed.pixels, 60, 40), std::nullopt);
}

TEST(NumberedPicture, turnedFourTimesIsItself) {
    const GreyPicture picture = drawNumber(5, 30, 20);
    EXPECT_EQ(turnedLeft(picture, 360).pixels, picture.pixels);
    EXPECT_EQ(turnedLeft(turnedLeft(picture, 90), -90).pixels, picture.pixels);
    EXPECT_EQ(turnedLeft(picture, 90).width, 20);
}

TEST(ClickTrack, findsWhatItDrewToTheSample) {
    for (const int rate : {8000, 22050, 44100, 48000}) {
        const std::vector<std::int16_t> drawn =
            drawClicks({.sampleRate = rate, .start = 0.5, .duration = 3, .clickPhase = 0.1});
        std::vector<float> samples;
        samples.reserve(drawn.size());
        for (const std::int16_t sample : drawn)
            samples.push_back(static_cast<float>(sample) / 32768);
        const auto at = [&](double seconds) {
            return static_cast<std::size_t>(std::lround((seconds - 0.5) * rate));
        };
        EXPECT_THAT(findClicks(samples, rate), testing::ElementsAre(at(1.1), at(2.1), at(3.1)));
    }
}

TEST(ExhaustiveFixture, hasEveryNumberAndClickInEveryCodecAndContainer) {
    const std::vector<std::pair<VideoCodec, const char*>> combinations = {
        {VideoCodec::h264, "mp4"},   {VideoCodec::h264, "mov"},  {VideoCodec::h264, "mkv"},
        {VideoCodec::h264, "ts"},    {VideoCodec::hevc, "mp4"},  {VideoCodec::vp9, "webm"},
        {VideoCodec::vp9, "mp4"},    {VideoCodec::mpeg2, "ts"},  {VideoCodec::mpeg2, "mov"},
        {VideoCodec::mpeg2, "mkv"},  {VideoCodec::hevc, "ts"},   {VideoCodec::h264TenBit, "mp4"},
        {VideoCodec::proRes, "mov"}, {VideoCodec::mjpeg, "mov"}, {VideoCodec::mpeg4, "mp4"}};
    for (const auto& [codec, container] : combinations) {
        SCOPED_TRACE(container);
        const Fixture fixture =
            makeFixture({.codec = codec, .container = container, .duration = 2, .audioTracks = 2});
        EXPECT_EQ(fixture.frames.size(), 60U);
        ASSERT_EQ(fixture.audio.size(), 2U);
        EXPECT_EQ(fixture.audio[0].clicks.size(), 2U);
        EXPECT_EQ(fixture.audio[1].clicks.size(), 2U);
    }
}

TEST(ExhaustiveFixture, startsWhereTheRecipeSays) {
    for (const char* container : {"mp4", "mov", "mkv", "ts", "webm"}) {
        for (const double offset : {1.3, 3.7}) {
            SCOPED_TRACE(container);
            const bool isWebM = std::string(container) == "webm";
            const Fixture fixture =
                makeFixture({.codec = isWebM ? VideoCodec::vp9 : VideoCodec::h264,
                             .container = container,
                             .duration = 2,
                             .startOffset = offset});
            EXPECT_NEAR(fixture.clockStart, offset, 0.2);
            EXPECT_LT(fixture.frames.front().seconds, 0.2);
        }
    }
}

TEST(ExhaustiveFixture, hasTheGroupsOfPicturesThatTheRecipeSays) {
    for (const VideoCodec codec : {VideoCodec::h264, VideoCodec::hevc, VideoCodec::mpeg2}) {
        for (const bool isOpen : {false, true}) {
            const Fixture fixture = makeFixture({.codec = codec,
                                                 .container = "ts",
                                                 .frameRate = {25, 1},
                                                 .duration = 2,
                                                 .isOpenGroup = isOpen});
            SCOPED_TRACE(fixture.path.filename());
            int leading = 0;
            double lastKey = -1;
            for (const ProbedPacket& packet : readPackets(fixture.path)) {
                if (packet.isKey)
                    lastKey = packet.pts;
                else if (packet.pts < lastKey)
                    ++leading;
            }
            EXPECT_EQ(leading > 0, isOpen);
        }
    }
}

TEST(ExhaustiveFixture, hasIrregularTimesWhenTheFrameRateIsVariable) {
    for (const char* container : {"mp4", "mkv"}) {
        const Fixture fixture =
            makeFixture({.container = container, .duration = 3, .hasVariableFrameRate = true});
        double smallest = 10;
        double largest = 0;
        for (std::size_t i = 1; i < fixture.frames.size(); ++i) {
            const double gap = fixture.frames[i].seconds - fixture.frames[i - 1].seconds;
            smallest = std::min(smallest, gap);
            largest = std::max(largest, gap);
        }
        EXPECT_GT(smallest, 0.02);
        EXPECT_GT(largest, 0.08);
    }
}

TEST(ExhaustiveFixture, isUprightUnderEveryDisplayRotation) {
    for (const int rotation : {0, 90, 180, 270}) {
        const Fixture fixture = makeFixture({.container = "mov",
                                             .duration = 1,
                                             .width = 320,
                                             .height = 200,
                                             .displayRotation = rotation});
        const auto video = probe(fixture.path).streamsOf("video").at(0);
        const double printed = video.number("side_data_list.side_data.0.rotation").value_or(0);
        EXPECT_EQ(std::fmod(printed + rotation + 360, 360), 0) << printed;
        EXPECT_EQ(video.number("width"), 320);
    }
}

TEST(ExhaustiveFixture, canHaveSoundThatStartsLaterAndEndsEarlier) {
    const Fixture fixture =
        makeFixture({.container = "mov", .duration = 4, .audioStart = 1.5, .audioDuration = 1.75});
    // The encoder's priming lies before the sound.
    EXPECT_NEAR(fixture.audio[0].start, 1.5, 0.025);
    EXPECT_NEAR(fixture.audio[0].end, 3.25, 0.025);
    EXPECT_THAT(fixture.audio[0].clicks,
                testing::ElementsAre(testing::DoubleNear(2, 0.001), testing::DoubleNear(3, 0.001)));
}

TEST(Inspection, comparesPictures) {
    const Fixture fixture = makeFixture({.duration = 1, .audioTracks = 0});
    EXPECT_GT(ssim(fixture.path, fixture.path), 0.9999);
    const auto other =
        cachedMedia("grey-320x240.mp4", {"-f", "lavfi", "-i", "color=gray:s=320x240:d=1:r=30"});
    EXPECT_LT(ssim(fixture.path, other), 0.9);
    EXPECT_EQ(readNumberedFrames(other).front().number, -1);
}

TEST(Inspection, saysWhatIsWrongWithADamagedFile) {
    const Fixture fixture = makeFixture({.duration = 1});
    EXPECT_EQ(warningsWhilePlaying(fixture.path), "");
    const TemporaryFolder folder;
    const auto damaged = folder / "damaged.mp4";
    std::filesystem::copy_file(fixture.path, damaged);
    std::filesystem::resize_file(damaged, std::filesystem::file_size(damaged) / 2);
    EXPECT_NE(warningsWhilePlaying(damaged), "");
}

} // namespace
} // namespace testsupport
