#include "Media/BytesRead.h"
#include "Media/DamagedCopy.h"
#include "Media/DecodedNumber.h"
#include "Media/Export/FrameSchedule.h"
#include "Media/ExportFixture.h"
#include "Media/Pictures/DecodingImageGenerator.h"
#include "TestSupport/Fixture.h"

#include <gmock/gmock.h>

#include <ostream>

/// Files of which a long part does not decode: what has to be read for a range or a position is
/// bounded by where that lies, not by how far away the next picture is that does decode.
namespace media {
namespace {

using testsupport::makeFixture;
using testsupport::Recipe;
using testsupport::VideoCodec;

struct Case {
    std::string name;
    Recipe recipe;
};

std::ostream& operator<<(std::ostream& stream, const Case& testCase) {
    return stream << testCase.name;
}

/// The last picture that decodes before the damage, and the first after it.
constexpr int kLastWhole = 74;
constexpr int kFirstWhole = 1170;
constexpr int kPictures = 1200;
constexpr int kRate = 30;
/// A range inside of the damage; seconds.
constexpr double kStart = 3.5;
constexpr double kEnd = 4.5;

class Undecodable : public testing::TestWithParam<Case> {
protected:
    void SetUp() override {
        const auto source = makeFixture(GetParam().recipe).path;
        m_path = m_folder / ("damaged" + source.extension().string());
        copyDamaged(source, kLastWhole + 1, kFirstWhole - 1, m_path);
        m_asset = Asset::open(m_path);
        m_track = m_asset->tracks(MediaType::video).at(0);
        const auto before = bytesRead();
        if (!before)
            GTEST_SKIP() << "the system does not tell how much was read";
        m_before = *before;
    }

    /// The part of the file that was read since the beginning of the test.
    [[nodiscard]] double partRead() const {
        return static_cast<double>(*bytesRead() - m_before) /
               static_cast<double>(std::filesystem::file_size(m_path));
    }

    testsupport::TemporaryFolder m_folder;
    std::filesystem::path m_path;
    std::shared_ptr<const Asset> m_asset;
    AssetTrack m_track;
    std::int64_t m_before = 0;
};

TEST_P(Undecodable, rangeIsReadNotFarBeyondItsEndOnAGrid) {
    VideoReader reader(m_asset, m_track);
    const Composition composition = compositionOf(m_asset, kStart, kEnd);
    const auto schedule = FrameSchedule::constantRate(
        reader, composition.videoTrack->range, Time{1, kRate}, FrameSchedule::Neighbours::none);
    int count = 0;
    for (; const auto frame = schedule->next({}); ++count)
        EXPECT_EQ(numberIn({ffmpeg::referenced(*frame->frame), {}, {}}), kLastWhole);
    EXPECT_EQ(count, kRate);
    EXPECT_LT(partRead(), 0.5);
}

TEST_P(Undecodable, rangeIsReadNotFarBeyondItsEndWithItsOwnTiming) {
    VideoReader reader(m_asset, m_track);
    const Composition composition = compositionOf(m_asset, kStart, kEnd);
    const auto schedule = FrameSchedule::sourceTiming(reader, *composition.videoTrack, kRate);
    const auto frame = schedule->next({});
    ASSERT_TRUE(frame);
    EXPECT_EQ(numberIn({ffmpeg::referenced(*frame->frame), {}, {}}), kLastWhole);
    EXPECT_FALSE(schedule->next({}));
    EXPECT_LT(partRead(), 0.5);
}

TEST_P(Undecodable, positionShowsWhatDecodedLastWithoutReadingOn) {
    VideoReader reader(m_asset, m_track);
    const Ticks ticks = Time::fromSeconds(kStart, kComparisonTimescale).ticks();
    reader.seek(ticks);
    ASSERT_TRUE(reader.peek());
    EXPECT_EQ(numberIn(*reader.peek()), kLastWhole);
    EXPECT_LT(partRead(), 0.5);
}

/// The steps by which its pictures are looked for all end where the damage does.
class UndecodableKeyFrames : public Undecodable {};

TEST_P(UndecodableKeyFrames, pictureOfTheFilmstripIsGivenUpWithoutReadingOn) {
    DecodingImageGenerator generator(m_asset);
    const Time tolerance{kComparisonTimescale / 2, kComparisonTimescale};
    generator.setTolerance(tolerance, tolerance);
    try {
        (void)generator.image(Time::fromSeconds(20, kComparisonTimescale));
    } catch (const std::exception&) {
        // There is none at this time.
    }
    EXPECT_LT(partRead(), 2);
}

TEST_P(Undecodable, partIsFollowedByTheFirstPictureThatDecodesAgain) {
    VideoReader reader(m_asset, m_track);
    const double seconds = static_cast<double>(kFirstWhole + 10) / kRate;
    reader.seek(Time::fromSeconds(kStart, kComparisonTimescale).ticks());
    reader.seek(Time::fromSeconds(seconds, kComparisonTimescale).ticks());
    const auto frame = reader.next();
    ASSERT_TRUE(frame);
    EXPECT_EQ(numberIn(*frame), kFirstWhole + 10);
}

const Case kKeyFramesOnly{"keyFramesOnly",
                          {.codec = VideoCodec::mjpeg,
                           .container = "mov",
                           .duration = double{kPictures} / kRate,
                           .audioTracks = 0}};
const Case kGroups{"groups",
                   {.codec = VideoCodec::vp9,
                    .container = "mp4",
                    .duration = double{kPictures} / kRate,
                    .groupOfPictures = 30,
                    .bFrames = 0,
                    .audioTracks = 0}};

std::string nameOf(const testing::TestParamInfo<Case>& testCase) {
    return testCase.param.name;
}

INSTANTIATE_TEST_SUITE_P(Kinds, Undecodable, testing::Values(kKeyFramesOnly, kGroups), nameOf);
INSTANTIATE_TEST_SUITE_P(Kinds, UndecodableKeyFrames, testing::Values(kKeyFramesOnly), nameOf);

} // namespace
} // namespace media
