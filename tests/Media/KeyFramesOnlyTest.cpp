#include "Media/DamagedCopy.h"
#include "Media/Reading/VideoReader.h"
#include "TestSupport/Fixture.h"
#include "TestSupport/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <ostream>
#include <random>

/// Files in which every picture is a random-access point: where a frame ends is told by the
/// packets, and the frame after it need not be decoded to know it.
namespace media {
namespace {

using testsupport::Fixture;
using testsupport::makeFixture;
using testsupport::Recipe;
using testsupport::VideoCodec;

struct Case {
    const char* name;
    Recipe recipe;
};

std::ostream& operator<<(std::ostream& stream, const Case& testCase) {
    return stream << testCase.name;
}

VideoReader readerOf(const std::filesystem::path& path) {
    const auto asset = Asset::open(path);
    return {asset, asset->tracks(MediaType::video).at(0)};
}

Ticks ticksOf(const Fixture& fixture, std::size_t number) {
    return Time::fromSeconds(fixture.frames[number].seconds, 90'000).ticks();
}

class KeyFramesOnly : public testing::TestWithParam<Case> {
protected:
    Fixture m_fixture = makeFixture(GetParam().recipe);
};

TEST_P(KeyFramesOnly, tellWhereTheFrameSoughtEndsByTheirPackets) {
    VideoReader reader = readerOf(m_fixture.path);
    std::mt19937 random(23);
    for (int i = 0; i < 20; ++i) {
        const std::size_t number = random() % (m_fixture.frames.size() - 2);
        const Ticks begin = ticksOf(m_fixture, number);
        const Ticks end = ticksOf(m_fixture, number + 1);
        reader.seek(begin + Ticks(static_cast<std::int64_t>(random()) % (end - begin).count()));
        const auto frame = reader.next();
        ASSERT_TRUE(frame);
        ASSERT_EQ(frame->ticks, begin) << number;
        ASSERT_EQ(frame->knownEnd, end) << number;
        const auto following = reader.next();
        ASSERT_TRUE(following);
        ASSERT_EQ(following->ticks, end) << "the run goes on after frame " << number;
    }
}

TEST_P(KeyFramesOnly, showAFrameForLongerWhereTheNextDoesNotDecode) {
    const testsupport::TemporaryFolder folder;
    const auto path = folder / m_fixture.path.filename();
    constexpr std::size_t kDamaged = 20;
    copyDamaged(m_fixture.path, kDamaged, path);
    VideoReader reader = readerOf(path);
    const Ticks before = ticksOf(m_fixture, kDamaged - 1);
    const Ticks damaged = ticksOf(m_fixture, kDamaged);
    const Ticks after = ticksOf(m_fixture, kDamaged + 1);
    for (const Ticks ticks :
         {before, damaged, after - Ticks(1), before + Ticks(1), damaged + Ticks(1)}) {
        reader.seek(ticks);
        const auto frame = reader.next();
        ASSERT_TRUE(frame);
        EXPECT_EQ(frame->ticks, before) << "at " << (ticks - damaged).count();
    }
    EXPECT_EQ(reader.next()->ticks, after);
    reader.seek(before);
    EXPECT_EQ(reader.next()->ticks, before);
    EXPECT_EQ(reader.next()->ticks, after) << "the one between them is passed over";
}

INSTANTIATE_TEST_SUITE_P(
    Files, KeyFramesOnly,
    testing::Values(
        Case{"H264", {.duration = 2, .groupOfPictures = 1, .bFrames = 0}},
        Case{"H264VariableRate",
             {.container = "mov",
              .duration = 2,
              .groupOfPictures = 1,
              .bFrames = 0,
              .hasVariableFrameRate = true}},
        Case{
            "ProRes",
            {.codec = VideoCodec::proRes, .container = "mov", .frameRate = {25, 1}, .duration = 2}},
        Case{"MotionJpeg", {.codec = VideoCodec::mjpeg, .container = "mov", .duration = 2}}),
    [](const auto& testCase) { return testCase.param.name; });

TEST(VideoReader, leavesTheEndOfAFrameToDecodingWherePicturesDependOnOthers) {
    for (const int bFrames : {0, 2}) {
        const Fixture fixture =
            makeFixture({.duration = 2, .groupOfPictures = 12, .bFrames = bFrames});
        VideoReader reader = readerOf(fixture.path);
        for (const std::size_t number : {12U, 24U, 13U, 11U, 0U}) {
            reader.seek(ticksOf(fixture, number));
            const auto frame = reader.next();
            ASSERT_TRUE(frame);
            EXPECT_EQ(frame->ticks, ticksOf(fixture, number));
            EXPECT_EQ(frame->knownEnd, std::nullopt) << number;
        }
    }
}

} // namespace
} // namespace media
