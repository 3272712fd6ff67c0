#include "PlayerStage.h"

#include "Media/DamagedCopy.h"
#include "TestSupport/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>

using media::Time;
using testsupport::Fixture;
using testsupport::makeFixture;
using testsupport::Recipe;
using testsupport::VideoCodec;

namespace {

Recipe silent(Recipe recipe) {
    recipe.audioTracks = 0;
    return recipe;
}

class PlayerSeek : public testing::TestWithParam<Recipe> {};

TEST_P(PlayerSeek, showsTheFrameAtExactlyThatTime) {
    const Fixture fixture = makeFixture(GetParam());
    PlayerStage stage;
    stage.load(fixture.path);
    EXPECT_EQ(stage.sink.number(), 0);
    std::mt19937 random(7);
    std::uniform_int_distribution<std::int64_t> ticks(
        0, Time::fromSeconds(fixture.videoEnd(), 600).value);
    for (int i = 0; i < 40; ++i) {
        const Time time{ticks(random), 600};
        ASSERT_TRUE(stage.seekAndWait(time));
        ASSERT_EQ(stage.sink.number(), frameAt(fixture, time)) << time.value << "/600";
        ASSERT_EQ(stage.player->currentTime(), time);
    }
}

TEST_P(PlayerSeek, stepsOverEveryFrameForwardAndBackward) {
    const Fixture fixture = makeFixture(GetParam());
    PlayerStage stage;
    stage.load(fixture.path);
    const int last = fixture.frames.back().number;
    const double end = stage.player->currentItem()->asset()->duration().seconds();
    for (int number = 1; number <= last; ++number) {
        ASSERT_TRUE(stage.stepUntilShown(1, number)) << "forward to " << number;
        const double seconds = fixture.frames[static_cast<std::size_t>(number)].seconds;
        ASSERT_NEAR(stage.player->currentTime().seconds(), std::min(seconds, end), 1e-3) << number;
    }
    for (int number = last - 1; number >= 0; --number)
        ASSERT_TRUE(stage.stepUntilShown(-1, number)) << "backward to " << number;
}

INSTANTIATE_TEST_SUITE_P(Files, PlayerSeek,
                         testing::Values(silent({.duration = 2}),
                                         silent({.codec = VideoCodec::hevc,
                                                 .container = "mkv",
                                                 .frameRate = {30000, 1001},
                                                 .duration = 2,
                                                 .groupOfPictures = 250,
                                                 .isOpenGroup = true,
                                                 .startOffset = 3.7}),
                                         silent({.duration = 2, .hasVariableFrameRate = true}),
                                         silent({.codec = VideoCodec::mpeg2,
                                                 .container = "ts",
                                                 .frameRate = {25, 1},
                                                 .duration = 2,
                                                 .startOffset = 1.3}),
                                         silent({.codec = VideoCodec::vp9,
                                                 .container = "webm",
                                                 .frameRate = {60, 1},
                                                 .duration = 1})));

TEST(Player, answersSeeksThatWereReplacedInOrderAndShowsTheLast) {
    const Fixture fixture = makeFixture(silent({.duration = 4, .groupOfPictures = 250}));
    PlayerStage stage;
    stage.load(fixture.path);
    std::vector<bool> answers;
    for (int i = 0; i < 20; ++i)
        seekExactly(*stage.player, Time{(i * 1117) % 2400, 600},
                    [&answers](bool finished) { answers.push_back(finished); });
    const Time last{1800, 600};
    seekExactly(*stage.player, last, [&answers](bool finished) { answers.push_back(finished); });
    EXPECT_EQ(stage.player->currentTime(), last) << "at once";
    ASSERT_TRUE(stage.pumpUntil([&] { return answers.size() == 21; }));
    EXPECT_EQ(std::vector<bool>(answers.begin(), answers.end() - 1), std::vector<bool>(20, false));
    EXPECT_TRUE(answers.back());
    EXPECT_EQ(stage.sink.number(), frameAt(fixture, last));
}

TEST(Player, stepsOverAKeyFrameThatDoesNotDecode) {
    const Fixture fixture =
        makeFixture(silent({.codec = VideoCodec::mjpeg, .container = "mov", .duration = 2}));
    const testsupport::TemporaryFolder folder;
    const auto path = folder / "damaged.mov";
    constexpr int kDamaged = 20;
    copyDamaged(fixture.path, kDamaged, path);
    PlayerStage stage;
    stage.load(path);
    const auto timeOf = [&](int number) {
        return Time::fromSeconds(fixture.frames[static_cast<std::size_t>(number)].seconds, 600);
    };
    ASSERT_TRUE(stage.seekAndWait(timeOf(kDamaged - 1)));
    EXPECT_EQ(stage.sink.number(), kDamaged - 1);
    ASSERT_TRUE(stage.stepUntilShown(1, kDamaged + 1));
    ASSERT_TRUE(stage.stepUntilShown(-1, kDamaged - 1));
    ASSERT_TRUE(stage.seekAndWait(timeOf(kDamaged)));
    EXPECT_EQ(stage.sink.number(), kDamaged - 1) << "it shows for longer";
    ASSERT_TRUE(stage.stepUntilShown(1, kDamaged + 1));
}

TEST(Player, goesToAnyFrameWithinTheTolerance) {
    const Fixture fixture = makeFixture(silent({.duration = 4, .groupOfPictures = 30}));
    PlayerStage stage;
    stage.load(fixture.path);
    std::optional<bool> finished;
    stage.player->seek(Time{1310, 600}, Time{300, 600}, Time{300, 600},
                       [&finished](bool is) { finished = is; });
    ASSERT_TRUE(stage.pumpUntil([&] { return finished.has_value(); }));
    EXPECT_TRUE(*finished);
    const Time time = stage.player->currentTime();
    EXPECT_GE(time, (Time{1010, 600}));
    EXPECT_LE(time, (Time{1610, 600}));
    EXPECT_EQ(stage.sink.number(), frameAt(fixture, time));
    EXPECT_EQ(time, stage.sink.last().time);
}

TEST(Player, reportsTheNewTimeOfEachJump) {
    const Fixture fixture = makeFixture(silent({.duration = 2}));
    PlayerStage stage;
    stage.load(fixture.path);
    stage.times.clear();
    stage.seekAndWait(Time{700, 600});
    EXPECT_THAT(stage.times, testing::ElementsAre(testing::DoubleEq(700.0 / 600)));
    ASSERT_TRUE(stage.stepUntilShown(1, 36));
    ASSERT_TRUE(stage.pumpUntil([&] { return stage.times.size() == 2; }));
    EXPECT_NEAR(stage.times.back(), 1.2, 1e-3);
}

TEST(Player, hasNoTimeAndFinishesNoSeekWithoutAnItem) {
    PlayerStage stage;
    EXPECT_FALSE(stage.player->currentTime().isNumeric());
    EXPECT_FALSE(stage.seekAndWait(Time{600, 600}));
    stage.player->step(1);
    stage.player->play();
    EXPECT_EQ(stage.player->rate(), 1.0F);
    EXPECT_EQ(stage.sink.number(), std::nullopt);
}

} // namespace
