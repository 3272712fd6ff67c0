#include "Media/Reading/VideoReader.h"

#include "Media/DecodedNumber.h"
#include "Media/Error.h"
#include "Media/ExportFixture.h"
#include "TestSupport/Fixture.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <ostream>
#include <random>
#include <thread>

namespace media {
namespace {

using testsupport::Fixture;
using testsupport::makeFixture;
using testsupport::Recipe;
using testsupport::VideoCodec;

/// Containers that count in 1/90000 s, or more coarsely, have times half-way between two ticks.
Ticks ticksOf(double seconds) {
    constexpr double kSteps = 90'000;
    return Ticks(std::llround(std::round(seconds * kSteps) / (kSteps / kComparisonTimescale)));
}

/// The number of the frame at a time by the frame rule.
int expectedAt(const Fixture& fixture, Ticks ticks) {
    int number = fixture.frames.front().number;
    for (const testsupport::NumberedFrame& frame : fixture.frames) {
        if (ticksOf(frame.seconds) <= ticks)
            number = frame.number;
    }
    return number;
}

class Source {
public:
    explicit Source(const Recipe& recipe)
        : fixture(makeFixture(recipe)), asset(Asset::open(fixture.path)) {}

    [[nodiscard]] VideoReader reader(VideoReader::Options options = {}) const {
        return {asset, asset->tracks(MediaType::video).at(0), options};
    }

    [[nodiscard]] Ticks end() const { return ticksOf(fixture.videoEnd()); }

    Fixture fixture;
    std::shared_ptr<const Asset> asset;
};

/// Seeks, and reads the frame there and the `following` ones after it.
void expectExactAt(VideoReader& reader, const Fixture& fixture, Ticks ticks, int following = 2) {
    SCOPED_TRACE(testing::Message() << "at " << ticks.count() << " of " << fixture.path.filename());
    reader.seek(ticks);
    const auto first = static_cast<std::size_t>(expectedAt(fixture, ticks));
    const std::size_t last =
        std::min(first + static_cast<std::size_t>(following), fixture.frames.size() - 1);
    for (std::size_t number = first; number <= last; ++number) {
        const auto frame = reader.next();
        ASSERT_TRUE(frame);
        ASSERT_EQ(numberIn(*frame), static_cast<int>(number));
        ASSERT_NEAR(frame->time.seconds(), fixture.frames[number].seconds, 0.001);
        ASSERT_EQ(frame->ticks, frame->time.ticks());
    }
}

struct Case {
    std::string name;
    Recipe recipe;
};

std::ostream& operator<<(std::ostream& stream, const Case& testCase) {
    return stream << testCase.name;
}

class EveryFormat : public testing::TestWithParam<Case> {
protected:
    Source m_source{GetParam().recipe};
};

TEST_P(EveryFormat, readsEachFrameOnceInOrder) {
    VideoReader reader = m_source.reader();
    for (const testsupport::NumberedFrame& expected : m_source.fixture.frames) {
        const auto frame = reader.next();
        ASSERT_TRUE(frame);
        ASSERT_EQ(numberIn(*frame), expected.number);
        ASSERT_NEAR(frame->time.seconds(), expected.seconds, 0.001);
    }
    EXPECT_FALSE(reader.next());
    EXPECT_FALSE(reader.next());
    EXPECT_EQ(reader.peek(), nullptr);
}

TEST_P(EveryFormat, findsTheFrameAtAnyTime) {
    VideoReader reader = m_source.reader();
    std::mt19937 random(4711);
    std::uniform_int_distribution<std::int64_t> place(-100, m_source.end().count() + 100);
    for (int i = 0; i < 24 && !HasFatalFailure(); ++i)
        expectExactAt(reader, m_source.fixture, Ticks(place(random)));
}

TEST_P(EveryFormat, findsAFrameAtItsOwnTimeAndThatBeforeItATickEarlier) {
    VideoReader reader = m_source.reader();
    const auto& frames = m_source.fixture.frames;
    for (const std::size_t part : {3U, 1U, 2U}) {
        const std::size_t index = frames.size() * part / 4;
        const Ticks ticks = ticksOf(frames[index].seconds);
        expectExactAt(reader, m_source.fixture, ticks, 0);
        expectExactAt(reader, m_source.fixture, ticks - Ticks(1), 1);
        expectExactAt(reader, m_source.fixture, ticks + Ticks(1), 0);
    }
}

TEST_P(EveryFormat, showsTheFirstFrameBeforeAndTheLastAfterAll) {
    VideoReader reader = m_source.reader();
    expectExactAt(reader, m_source.fixture, m_source.end() + Ticks(60'000));
    EXPECT_FALSE(reader.next());
    expectExactAt(reader, m_source.fixture, Ticks(-60'000));
    expectExactAt(reader, m_source.fixture, m_source.end());
    expectExactAt(reader, m_source.fixture, Ticks(0));
}

std::vector<Case> everyCase() {
    std::vector<Case> cases;

    struct Combination {
        VideoCodec codec;
        const char* container;
        const char* name;
    };

    constexpr Combination kCombinations[] = {
        {VideoCodec::h264, "mp4", "H264_mp4"},   {VideoCodec::h264, "mkv", "H264_mkv"},
        {VideoCodec::h264, "ts", "H264_ts"},     {VideoCodec::hevc, "mov", "HEVC_mov"},
        {VideoCodec::hevc, "ts", "HEVC_ts"},     {VideoCodec::hevcTenBit, "mkv", "HEVC10_mkv"},
        {VideoCodec::vp9, "webm", "VP9_webm"},   {VideoCodec::vp9, "mp4", "VP9_mp4"},
        {VideoCodec::mpeg2, "ts", "MPEG2_ts"},   {VideoCodec::mpeg2, "mov", "MPEG2_mov"},
        {VideoCodec::mpeg4, "mkv", "MPEG4_mkv"}, {VideoCodec::proRes, "mov", "ProRes_mov"}};
    constexpr double kOffsets[] = {0, 1.3, 3.7};
    unsigned index = 0;
    for (const Combination& combination : kCombinations) {
        for (const int group : {1, 12, 250}) {
            if (group != 12 && combination.codec == VideoCodec::proRes)
                continue;
            Recipe recipe{.codec = combination.codec,
                          .container = combination.container,
                          .frameRate = index % 2 == 0 ? testsupport::Fraction{30000, 1001}
                                                      : testsupport::Fraction{25, 1},
                          .duration = 6,
                          .groupOfPictures = group,
                          .bFrames = group == 1 ? 0 : 2,
                          .isOpenGroup = group > 1 && index % 2 == 1,
                          .startOffset = kOffsets[index % std::size(kOffsets)],
                          .width = 192,
                          .height = 144};
            ++index;
            cases.push_back(
                {std::string(combination.name) + "_GroupOf" + std::to_string(group), recipe});
        }
    }
    for (const char* container : {"mp4", "mkv", "ts"}) {
        Recipe recipe{.container = container,
                      .duration = 4,
                      .groupOfPictures = 25,
                      .isOpenGroup = true,
                      .hasVariableFrameRate = true,
                      .startOffset = 1.3,
                      .width = 192,
                      .height = 144};
        cases.push_back({std::string("VariableFrameRate_") + container, recipe});
    }
    return cases;
}

INSTANTIATE_TEST_SUITE_P(VideoReader, EveryFormat, testing::ValuesIn(everyCase()),
                         [](const auto& testCase) { return testCase.param.name; });

Recipe longGroups() {
    return {.duration = 16, .groupOfPictures = 250};
}

TEST(VideoReader, goesOnExactlyAfterASeekThatWasGivenUp) {
    const Source source(longGroups());
    VideoReader reader = source.reader();
    std::mt19937 random(11);
    const Ticks target = ticksOf(8.2);
    int given = 0;
    // The stop comes somewhere between before the first frame and after the last.
    for (int yields = 0; yields < 200 && !HasFatalFailure(); yields = yields * 3 / 2 + 1) {
        reader.seek(Ticks(0));
        std::stop_source stop;
        std::jthread stopper([&] {
            for (int i = 0; i < yields; ++i)
                std::this_thread::yield();
            stop.request_stop();
        });
        try {
            reader.seek(target, stop.get_token());
        } catch (const Cancelled&) {
            ++given;
        }
        stopper.join();
        // A little before what the reader was on the way to, where it may have left out pictures.
        expectExactAt(reader, source.fixture,
                      target - Ticks(1 + static_cast<std::int64_t>(random() % 60)));
    }
    EXPECT_GT(given, 0);
}

TEST(VideoReader, isUsableAfterEveryCallThatWasStopped) {
    const Source source(longGroups());
    VideoReader reader = source.reader();
    std::stop_source stop;
    stop.request_stop();
    EXPECT_THROW(reader.seek(ticksOf(8), stop.get_token()), Cancelled);
    EXPECT_THROW(reader.seekNear(ticksOf(7), ticksOf(8), stop.get_token()), Cancelled);
    EXPECT_THROW(static_cast<void>(source.reader().next(stop.get_token())), Cancelled);
    expectExactAt(reader, source.fixture, ticksOf(4));
    EXPECT_THROW(reader.seek(ticksOf(12), stop.get_token()), Cancelled);
    expectExactAt(reader, source.fixture, ticksOf(4.2));
}

TEST(VideoReader, goesForwardInSmallStepsAsExactlyAsInOne) {
    const Source source({.codec = VideoCodec::h264, .duration = 6, .bFrames = 3});
    VideoReader reader = source.reader();
    for (Ticks ticks; ticks < source.end() && !HasFatalFailure(); ticks = ticks + Ticks(47))
        expectExactAt(reader, source.fixture, ticks, 0);
    for (Ticks ticks = source.end(); ticks > Ticks(0) && !HasFatalFailure();
         ticks = ticks - Ticks(97))
        expectExactAt(reader, source.fixture, ticks, 0);
}

TEST(VideoReader, peeksWithoutMoving) {
    const Source source({});
    VideoReader reader = source.reader();
    reader.seek(ticksOf(2));
    const Ticks ticks = reader.peek()->ticks;
    EXPECT_EQ(reader.peek()->ticks, ticks);
    EXPECT_EQ(reader.next()->ticks, ticks);
    EXPECT_GT(reader.peek()->ticks, ticks);
}

TEST(VideoReader, staysInsideTheWindowWhenItMovesNear) {
    const Source source({.duration = 16, .groupOfPictures = 60});
    VideoReader reader = source.reader({VideoReader::Detail::thumbnail, 1});
    std::mt19937 random(5);
    for (int i = 0; i < 30; ++i) {
        const Ticks earliest(static_cast<std::int64_t>(
            random() % static_cast<unsigned>(source.end().count() - 400)));
        const Ticks latest = earliest + Ticks(100 + static_cast<std::int64_t>(random() % 300));
        SCOPED_TRACE(testing::Message() << earliest.count() << " to " << latest.count());
        reader.seekNear(earliest, latest);
        const auto frame = reader.next();
        ASSERT_TRUE(frame);
        EXPECT_GE(frame->ticks, earliest);
        EXPECT_LE(frame->ticks, latest);
        EXPECT_EQ(numberIn(*frame), expectedAt(source.fixture, frame->ticks));
    }
}

TEST(VideoReader, takesTheKeyFrameOfAWindowThatHasOne) {
    // Key frames every two seconds.
    const Source source({.duration = 16, .groupOfPictures = 60});
    VideoReader reader = source.reader({VideoReader::Detail::thumbnail, 1});
    for (const double key : {6.0, 2.0, 12.0, 14.0}) {
        const double place = source.fixture.frames.front().seconds + key;
        reader.seekNear(ticksOf(place - 0.5), ticksOf(place + 0.5));
        EXPECT_NEAR(reader.next()->time.seconds(), place, 0.001);
    }
}

TEST(VideoReader, takesTheFrameBeforeAWindowBetweenTwoFrames) {
    const Source source({.frameRate = {2, 1}, .duration = 10});
    VideoReader reader = source.reader();
    const double first = source.fixture.frames.front().seconds;
    reader.seekNear(ticksOf(first + 3.1), ticksOf(first + 3.3));
    EXPECT_NEAR(reader.next()->time.seconds(), first + 3, 0.001);
}

TEST(VideoReader, leapsOnlyToKeyFramesThatLieFarEnoughAhead) {
    const Fixture fixture = makeFixture({.duration = 4, .groupOfPictures = 15, .audioTracks = 0});
    const auto asset = Asset::open(fixture.path);
    // The next key frame lies half a second beyond what was decoded: 15 frames at 30 a second.
    for (const auto& [leap, expected] : {std::pair{Ticks(0), 30}, {Ticks(600), 2}}) {
        VideoReader reader(asset, asset->tracks(MediaType::video).at(0));
        ASSERT_TRUE(reader.next());
        ASSERT_TRUE(reader.next());
        ASSERT_TRUE(reader.peek());
        const Ticks target(40 * 20);
        reader.approach(
            {.target = target, .completeFrom = Ticks(0), .beginAt = target, .shortestLeap = leap});
        const auto frame = reader.next();
        ASSERT_TRUE(frame);
        EXPECT_EQ(frame->ticks, Ticks(expected * 20));
    }
}

TEST(VideoReader, readsTheSameWithAnyNumberOfThreads) {
    const Source source({.codec = VideoCodec::hevc, .isOpenGroup = true});
    for (const int threads : {1, 2, 7}) {
        VideoReader reader = source.reader({VideoReader::Detail::full, threads});
        for (const double seconds : {3.0, 0.5, 1.9})
            expectExactAt(reader, source.fixture, ticksOf(seconds), 10);
    }
}

} // namespace
} // namespace media
