#include "Media/BytesRead.h"
#include "Media/DecodedNumber.h"
#include "Media/Error.h"
#include "Media/ExportFixture.h"
#include "Media/SequenceTiming.h"
#include "TestSupport/FrameRule.h"
#include "TestSupport/MediaCache.h"
#include "TestSupport/Process.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <ostream>
#include <random>

/// Bitstreams without a container, as single-board cameras write them: no packet has a time, the
/// file no length and no index. All of it follows from the pictures' order and their rate.
namespace media {
namespace {

using testsupport::Fixture;
using testsupport::makeFixture;
using testsupport::NumberedFrame;
using testsupport::Recipe;
using testsupport::VideoCodec;

struct Case {
    std::string name;
    /// ffmpeg's name for the format of the stream, which is its extension too.
    std::string format;
    Recipe recipe;
    bool isWithoutTiming = false;

    /// What the stream says, or else 25.
    [[nodiscard]] double rate() const { return isWithoutTiming ? 25 : recipe.frameRate.value(); }
};

std::ostream& operator<<(std::ostream& stream, const Case& testCase) {
    return stream << testCase.name;
}

std::filesystem::path bareStream(const Case& testCase) {
    const std::filesystem::path source = makeFixture(testCase.recipe).path;
    const std::string name = "bare-" + testCase.name + "." + testCase.format;
    const auto stream = testsupport::cachedMedia(
        name, {"-i", source.string(), "-map", "0:v:0", "-c", "copy", "-f", testCase.format});
    if (testCase.format != "h264" || !testCase.isWithoutTiming)
        return stream;
    return testsupport::cachedMedia("untimed-" + name, [&](const std::filesystem::path& path) {
        writeFile(path, withoutTiming(contentsOf(stream)));
    });
}

/// Picture k shows the number k from k / rate on.
Fixture bareFixture(const Case& testCase) {
    Fixture fixture;
    fixture.path = bareStream(testCase);
    const auto count = makeFixture(testCase.recipe).frames.size();
    for (std::size_t k = 0; k < count; ++k) {
        fixture.frames.push_back(
            {static_cast<int>(k), static_cast<double>(k) / testCase.rate(), 1 / testCase.rate()});
    }
    return fixture;
}

Ticks ticksOf(double seconds) {
    return Ticks(std::llround(seconds * kComparisonTimescale));
}

int expectedAt(const Fixture& fixture, Ticks ticks) {
    int number = 0;
    for (const NumberedFrame& frame : fixture.frames) {
        if (ticksOf(frame.seconds) <= ticks)
            number = frame.number;
    }
    return number;
}

class BareStream : public testing::TestWithParam<Case> {
protected:
    [[nodiscard]] AssetTrack track() const { return m_asset->tracks(MediaType::video).at(0); }

    Fixture m_fixture = bareFixture(GetParam());
    std::shared_ptr<const Asset> m_asset = Asset::open(m_fixture.path);
    testsupport::TemporaryFolder m_folder;
};

TEST_P(BareStream, lastsAsLongAsItsPicturesAtItsRate) {
    EXPECT_NEAR(m_asset->duration().seconds(), m_fixture.videoEnd(), 1e-5);
    EXPECT_FLOAT_EQ(track().nominalFrameRate, static_cast<float>(GetParam().rate()));
    EXPECT_EQ(track().startTime.ticks(), Ticks(0));
}

TEST_P(BareStream, readsEachPictureOnceInOrderAtItsTime) {
    VideoReader reader(m_asset, track());
    for (const NumberedFrame& expected : m_fixture.frames) {
        const auto frame = reader.next();
        ASSERT_TRUE(frame);
        ASSERT_EQ(numberIn(*frame), expected.number);
        ASSERT_NEAR(frame->time.seconds(), expected.seconds, 1e-5);
    }
    EXPECT_FALSE(reader.next());
}

TEST_P(BareStream, findsThePictureAtAnyTime) {
    VideoReader reader(m_asset, track());
    std::mt19937 random(4711);
    std::uniform_int_distribution<std::int64_t> place(-100,
                                                      ticksOf(m_fixture.videoEnd()).count() + 100);
    for (int i = 0; i < 24; ++i) {
        const Ticks ticks(place(random));
        SCOPED_TRACE(ticks.count());
        reader.seek(ticks);
        const int first = expectedAt(m_fixture, ticks);
        const int last = std::min(first + 2, m_fixture.frames.back().number);
        for (int number = first; number <= last; ++number) {
            const auto frame = reader.next();
            ASSERT_TRUE(frame);
            ASSERT_EQ(numberIn(*frame), number);
        }
    }
}

TEST_P(BareStream, isExportedPictureByPicture) {
    const testsupport::KeptRange range{0.7, 2.2};
    exportRange(m_fixture.path, range.start, range.end, m_folder / "out.mp4");
    const auto frames = testsupport::readNumberedFrames(m_folder / "out.mp4");
    const auto expected = testsupport::expectedStraight(m_fixture, range);
    ASSERT_EQ(frames.size(), expected.size());
    for (std::size_t i = 0; i < frames.size(); ++i) {
        EXPECT_EQ(frames[i].number, expected[i].number);
        EXPECT_NEAR(frames[i].seconds, expected[i].seconds, 0.001);
    }
}

TEST_P(BareStream, isExportedExactlyOnAGrid) {
    const testsupport::KeptRange range{0.7, 2.2};
    const int rate = static_cast<int>(std::lround(GetParam().rate()));
    StagedExportSession session(compositionOf(m_asset, range.start, range.end),
                                m_folder / "out.mp4", FileType::mpeg4);
    session.setVideoComposition(renderedAt(track(), 160, 120, rate));
    session.run();
    const auto frames = testsupport::readNumberedFrames(m_folder / "out.mp4");
    const auto expected = testsupport::expectedAtRate(m_fixture, range, rate);
    ASSERT_EQ(frames.size(), expected.size());
    for (std::size_t i = 0; i < frames.size(); ++i)
        EXPECT_EQ(frames[i].number, expected[i].number);
}

constexpr testsupport::Fraction kNtsc{30000, 1001};

Recipe recipeOf(VideoCodec codec, testsupport::Fraction rate, Recipe recipe = {}) {
    recipe.codec = codec;
    recipe.container = codec == VideoCodec::mpeg4 ? "avi" : "mkv";
    recipe.frameRate = rate;
    recipe.audioTracks = 0;
    return recipe;
}

const std::vector<std::string> kInterlaced{"-flags", "+ildct+ilme"};

INSTANTIATE_TEST_SUITE_P(
    Kinds, BareStream,
    testing::Values(
        Case{"h264", "h264", recipeOf(VideoCodec::h264, kNtsc)},
        Case{"h264OpenGroups", "h264",
             recipeOf(VideoCodec::h264, {24, 1}, {.bFrames = 3, .isOpenGroup = true})},
        Case{"h264InOrder", "h264", recipeOf(VideoCodec::h264, {50, 1}, {.bFrames = 0})},
        Case{"h264WithoutTiming", "h264", recipeOf(VideoCodec::h264, {30, 1}), true},
        Case{"h264OneGroup", "h264", recipeOf(VideoCodec::h264, kNtsc, {.groupOfPictures = 250})},
        Case{"h264Interlaced", "h264",
             recipeOf(VideoCodec::h264, {25, 1},
                      {.additionalArguments = {"-x264-params", "tff=1:b-adapt=0"}})},
        Case{"hevc", "hevc", recipeOf(VideoCodec::hevc, kNtsc, {.bFrames = 4})},
        Case{"hevcOpenGroups", "hevc",
             recipeOf(VideoCodec::hevc, {24, 1}, {.bFrames = 4, .isOpenGroup = true})},
        Case{
            "hevcWithoutTiming", "hevc",
            recipeOf(VideoCodec::hevc, {30, 1},
                     {.additionalArguments = {"-x265-params", "log-level=error:keyint=12:bframes=3:"
                                                              "vui-timing-info=0"}}),
            true},
        Case{"mpeg2", "mpeg2video", recipeOf(VideoCodec::mpeg2, kNtsc)},
        Case{"mpeg2OpenGroups", "mpeg2video",
             recipeOf(VideoCodec::mpeg2, {25, 1}, {.isOpenGroup = true})},
        Case{"mpeg2Interlaced", "mpeg2video",
             recipeOf(VideoCodec::mpeg2, {25, 1}, {.additionalArguments = kInterlaced})},
        Case{"mpeg4", "m4v", recipeOf(VideoCodec::mpeg4, {24, 1})},
        Case{"mpeg4Ntsc", "m4v", recipeOf(VideoCodec::mpeg4, kNtsc)}),
    [](const testing::TestParamInfo<Case>& testCase) { return testCase.param.name; });

/// As when a camera is stopped and started in the middle of a group of pictures.
TEST(BareStreams, beginWithTheFirstPictureThatDecodes) {
    const std::string whole = contentsOf(
        bareStream({"hevcToCut", "hevc",
                    recipeOf(VideoCodec::hevc, {24, 1}, {.bFrames = 4, .isOpenGroup = true})}));
    // From the second random-access picture on, its parameters in front of it.
    const std::string parameters("\0\0\0\1\x40\x01", 6);
    const std::size_t second = whole.find(parameters, whole.find(parameters) + 1);
    ASSERT_NE(second, std::string::npos);
    const testsupport::TemporaryFolder folder;
    writeFile(folder / "cut.hevc", whole.substr(second));
    const auto asset = Asset::open(folder / "cut.hevc");
    EXPECT_NEAR(asset->duration().seconds(), 4 - 12 / 24.0, 1e-5);
    VideoReader reader(asset, asset->tracks(MediaType::video).at(0));
    for (int number = 12; number < 96; ++number) {
        const auto frame = reader.next();
        ASSERT_TRUE(frame);
        ASSERT_EQ(numberIn(*frame), number);
        ASSERT_NEAR(frame->time.seconds(), (number - 12) / 24.0, 1e-5);
    }
}

/// Two recordings in one file: numbers of pictures begin anew.
TEST(BareStreams, goOnWhereAnotherOneWasAppended) {
    const auto fixture = bareFixture({"h264", "h264", recipeOf(VideoCodec::h264, kNtsc)});
    const std::string stream = contentsOf(fixture.path);
    const testsupport::TemporaryFolder folder;
    writeFile(folder / "two.h264", stream + stream);
    const auto asset = Asset::open(folder / "two.h264");
    const std::size_t count = fixture.frames.size();
    EXPECT_NEAR(asset->duration().seconds(), 2 * fixture.videoEnd(), 1e-5);
    VideoReader reader(asset, asset->tracks(MediaType::video).at(0));
    for (std::size_t k = 0; k < 2 * count; ++k) {
        const auto frame = reader.next();
        ASSERT_TRUE(frame);
        ASSERT_EQ(numberIn(*frame), static_cast<int>(k % count));
        ASSERT_NEAR(frame->time.seconds(), static_cast<double>(k) * 1001 / 30000, 1e-5);
    }
}

TEST(BareStreams, areNotReadFromTheirStartToReachTheirEnd) {
    const auto fixture = bareFixture({"h264", "h264", recipeOf(VideoCodec::h264, kNtsc)});
    const std::string stream = contentsOf(fixture.path);
    const testsupport::TemporaryFolder folder;
    std::string repeated;
    while (repeated.size() < 4'000'000)
        repeated += stream;
    writeFile(folder / "long.h264", repeated);
    const auto asset = Asset::open(folder / "long.h264");
    const auto before = bytesRead();
    if (!before)
        GTEST_SKIP() << "the system does not tell how much was read";
    VideoReader reader(asset, asset->tracks(MediaType::video).at(0));
    reader.seek(asset->duration().ticks());
    const auto frame = reader.next();
    ASSERT_TRUE(frame);
    EXPECT_EQ(numberIn(*frame), fixture.frames.back().number);
    EXPECT_LT(*bytesRead() - *before, static_cast<std::int64_t>(repeated.size() / 4));
}

/// MPEG-2 pictures can ask to be repeated, as those of films on television do.
TEST(BareStreams, showPicturesForAsLongAsTheySay) {
    const auto fixture = bareFixture({"mpeg2", "mpeg2video", recipeOf(VideoCodec::mpeg2, kNtsc)});
    std::string stream = contentsOf(fixture.path);
    // Rec. ITU-T H.262, 6.2.3.1: top_field_first is the fourth byte's first bit, and
    // repeat_first_field its last but one.
    const std::string startCode("\0\0\1\xB5", 4);
    for (auto at = stream.find(startCode); at != std::string::npos;
         at = stream.find(startCode, at + 1)) {
        if ((stream.at(at + 4) & 0xF0) == 0x80)
            stream.at(at + 7) = static_cast<char>((stream.at(at + 7) & 0x7F) | 2);
    }
    const testsupport::TemporaryFolder folder;
    writeFile(folder / "twice.m2v", stream);
    const auto asset = Asset::open(folder / "twice.m2v");
    EXPECT_NEAR(asset->duration().seconds(), 2 * fixture.videoEnd(), 1e-5);
    VideoReader reader(asset, asset->tracks(MediaType::video).at(0));
    for (const NumberedFrame& expected : fixture.frames) {
        const auto frame = reader.next();
        ASSERT_TRUE(frame);
        ASSERT_EQ(numberIn(*frame), expected.number);
        ASSERT_NEAR(frame->time.seconds(), 2 * expected.seconds, 1e-5);
    }
}

TEST(BareStreams, countTheTwoFieldsOfAFrameOnce) {
    const auto sample = testsupport::sampleMedia("mts-avchd-1080i50-ac3-pgs.mts");
    if (!sample)
        GTEST_SKIP() << "the collection of samples is not here";
    const testsupport::TemporaryFolder folder;
    const std::filesystem::path path = folder / "fields.h264";
    testsupport::runProcessOrThrow({"ffmpeg", "-v", "error", "-i", sample->string(), "-map",
                                    "0:v:0", "-c", "copy", "-bsf:v", "setts=ts=N", "-f", "h264",
                                    "file:" + path.string()});
    const auto asset = Asset::open(path);
    VideoReader reader(asset, asset->tracks(MediaType::video).at(0));
    int count = 0;
    for (; const auto frame = reader.next(); ++count)
        EXPECT_NEAR(frame->time.seconds(), count / 25.0, 1e-5);
    EXPECT_GT(count, 10);
    EXPECT_NEAR(asset->duration().seconds(), count / 25.0, 1e-5);
}

TEST(BareStreams, ofRealDiscsLastAsLongAsTheirPictures) {
    const auto sample = testsupport::sampleMedia("mpg-raw-mpeg1-es-no-timestamps.mpg");
    if (!sample)
        GTEST_SKIP() << "the collection of samples is not here";
    EXPECT_NEAR(Asset::open(*sample)->duration().seconds(), 419 * 1001 / 30000.0, 1e-5);
}

TEST(BareStreams, areNotCountedAnyLongerOnceThatIsCalledOff) {
    std::stop_source stop;
    stop.request_stop();
    const auto path = bareStream({"h264", "h264", recipeOf(VideoCodec::h264, kNtsc)});
    EXPECT_THROW(Asset::open(path, stop.get_token()), Cancelled);
}

} // namespace
} // namespace media
