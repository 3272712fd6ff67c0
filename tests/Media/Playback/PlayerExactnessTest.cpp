#include "PlayerStage.h"

#include "Media/Playback/DecoderBudget.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <random>
#include <string>

using media::Time;
using media::playback::DecoderBudget;
using testsupport::Fixture;
using testsupport::makeFixture;
using testsupport::Recipe;
using testsupport::VideoCodec;

/// Whatever the cache, foresight and overtaken seeks do: a frame that is reported as the one that
/// was asked for is that one, and every picture shown is that of the time that comes with it.
/// BRISKLET_SEEKS sets how many seeks are made over all the files together.
namespace {

constexpr int kUsualSeeks = 600;
constexpr int kFiles = 10;

int seeksForEachFile() {
    const char* wanted = std::getenv("BRISKLET_SEEKS");
    return (wanted ? std::atoi(wanted) : kUsualSeeks) / kFiles;
}

/// The frame with exactly this presentation time; -1 if there is none.
int frameOf(const Fixture& fixture, Time time) {
    for (const testsupport::NumberedFrame& frame : fixture.frames) {
        if (std::abs(frame.seconds - time.seconds()) < 1e-3)
            return frame.number;
    }
    return -1;
}

/// Someone who drags, jumps, steps and resizes the window.
class Restless {
public:
    Restless(PlayerStage& stage, const Fixture& fixture)
        : m_stage(stage),
          m_fixture(fixture),
          m_end(static_cast<std::int64_t>(fixture.videoEnd() * 600)) {}

    void seekOnce() {
        chooseTarget();
        if (isOneIn(4))
            resize();
        // A few that are overtaken on their way.
        for (int i = below(4); i > 0 && isOneIn(2); --i)
            seekExactly(*m_stage.player, Time{below(m_end), 600});
        const Time time{m_ticks, 600};
        ASSERT_TRUE(m_stage.seekAndWait(time));
        ASSERT_EQ(m_stage.sink.number(), frameAt(m_fixture, time)) << m_ticks << "/600";
        ASSERT_EQ(m_stage.player->currentTime(), time);
        if (isOneIn(5))
            stepOnce();
    }

    void checkAllShown() {
        for (const media::TimedImage& frame : m_stage.sink.frames()) {
            if (!frame.image)
                continue;
            ASSERT_EQ(readNumber(frame.image), frameOf(m_fixture, frame.time))
                << frame.time.seconds();
        }
        m_stage.sink.clear();
    }

private:
    int below(std::int64_t limit) {
        return static_cast<int>(
            std::uniform_int_distribution<std::int64_t>(0, limit - 1)(m_random));
    }

    bool isOneIn(int count) { return below(count) == 0; }

    /// Mostly near the last one, forward or back, as in a drag.
    void chooseTarget() {
        if (isOneIn(3))
            m_ticks = below(m_end + 1);
        else
            m_ticks =
                std::clamp<std::int64_t>(m_ticks + (m_isForward ? 1 : -1) * below(60), 0, m_end);
        if (isOneIn(12))
            m_isForward = !m_isForward;
    }

    void resize() {
        constexpr int kSizes[][2] = {{160, 120}, {213, 160}, {121, 400}, {0, 0}, {900, 97}};
        const auto& size = kSizes[below(std::size(kSizes))];
        m_stage.player->setPreviewSize(size[0], size[1]);
    }

    void stepOnce() {
        const int last = m_fixture.frames.back().number;
        const int from = frameAt(m_fixture, Time{m_ticks, 600});
        const int to = std::clamp(from + below(7) - 3, 0, last);
        if (to == from)
            return;
        ASSERT_TRUE(m_stage.stepUntilShown(to - from, to)) << "from " << from << " to " << to;
    }

    PlayerStage& m_stage;
    const Fixture& m_fixture;
    std::int64_t m_end;
    std::int64_t m_ticks = 0;
    bool m_isForward = true;
    std::mt19937 m_random{11};
};

Recipe silent(Recipe recipe) {
    recipe.audioTracks = 0;
    return recipe;
}

/// While it lives no decoder but the one used last keeps its pictures.
class NoRoomForIdleDecoders {
public:
    NoRoomForIdleDecoders() { DecoderBudget::setBytesOfAll(0); }

    NoRoomForIdleDecoders(const NoRoomForIdleDecoders&) = delete;
    NoRoomForIdleDecoders& operator=(const NoRoomForIdleDecoders&) = delete;

    ~NoRoomForIdleDecoders() { DecoderBudget::setBytesOfAll(DecoderBudget::kBytesOfAll); }
};

TEST(PlayerMemory, showsTheFrameAskedForAfterItsDecoderWasGivenUpForAnothers) {
    const NoRoomForIdleDecoders noRoom;
    const Fixture fixture = makeFixture(
        silent({.duration = 40, .groupOfPictures = 50, .bFrames = 3, .isOpenGroup = true}));
    std::array<PlayerStage, 2> stages;
    for (PlayerStage& stage : stages)
        stage.load(fixture.path);
    const auto givenUp = [&] {
        return stages[0].player->statistics().decodersGivenUp +
               stages[1].player->statistics().decodersGivenUp;
    };
    for (int round = 0; round < 8; ++round) {
        // When both have come to rest one of them has to have let go; it needs a decoder again
        // for a place as far from the last.
        const std::uint64_t before = givenUp();
        const Time time{600 * (3 + 4 * round) + 37 * round, 600};
        for (PlayerStage& stage : stages) {
            ASSERT_TRUE(stage.seekAndWait(time));
            ASSERT_EQ(stage.sink.number(), frameAt(fixture, time)) << "round " << round;
        }
        ASSERT_TRUE(stages[0].pumpUntil([&] { return givenUp() > before; })) << round;
        const int number = frameAt(fixture, time);
        for (PlayerStage& stage : stages) {
            stage.player->setPreviewSize(100 + 20 * round, 0);
            ASSERT_TRUE(stage.stepUntilShown(-2, number - 2)) << "round " << round;
            ASSERT_TRUE(stage.stepUntilShown(70, number + 68)) << "round " << round;
        }
    }
}

class PlayerExactness : public testing::TestWithParam<Recipe> {};

TEST_P(PlayerExactness, showsTheFrameAskedForWhateverWasDoneBefore) {
    const Fixture fixture = makeFixture(GetParam());
    PlayerStage stage;
    stage.load(fixture.path);
    stage.player->setPointsOfInterest({Time{300, 600}, Time::fromSeconds(fixture.videoEnd(), 600)});
    Restless user(stage, fixture);
    for (int i = seeksForEachFile(); i > 0 && !HasFatalFailure(); --i) {
        user.seekOnce();
        if (i % 20 == 0 || i == 1)
            user.checkAllShown();
    }
}

INSTANTIATE_TEST_SUITE_P(
    Files, PlayerExactness,
    testing::Values(
        silent({.duration = 12, .groupOfPictures = 250, .bFrames = 3}),
        silent({.duration = 6, .hasVariableFrameRate = true}),
        silent({.container = "mkv",
                .frameRate = {30000, 1001},
                .duration = 8,
                .groupOfPictures = 60,
                .bFrames = 3,
                .isOpenGroup = true,
                .startOffset = 3.7}),
        silent({.codec = VideoCodec::hevc,
                .container = "mkv",
                .frameRate = {24000, 1001},
                .duration = 8,
                .groupOfPictures = 250,
                .isOpenGroup = true}),
        silent({.codec = VideoCodec::hevc, .duration = 8, .groupOfPictures = 48, .bFrames = 4}),
        silent({.container = "ts",
                .frameRate = {25, 1},
                .duration = 8,
                .groupOfPictures = 50,
                .isOpenGroup = true,
                .startOffset = 1.4}),
        silent({.codec = VideoCodec::mpeg2,
                .container = "ts",
                .frameRate = {25, 1},
                .duration = 6,
                .isOpenGroup = true}),
        silent({.codec = VideoCodec::vp9,
                .container = "webm",
                .frameRate = {60, 1},
                .duration = 5,
                .groupOfPictures = 120}),
        silent({.container = "mov", .frameRate = {50, 1}, .duration = 6, .groupOfPictures = 1}),
        silent({.container = "mkv",
                .duration = 8,
                .groupOfPictures = 100,
                .bFrames = 2,
                .hasVariableFrameRate = true})));

} // namespace
