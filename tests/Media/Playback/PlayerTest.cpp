#include "PlayerStage.h"

#include "TestSupport/MediaCache.h"
#include "TestSupport/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

using media::Time;
using testing::ElementsAre;
using testsupport::Fixture;
using testsupport::makeFixture;

namespace {

Fixture silentSeconds(double duration) {
    return makeFixture({.duration = duration, .audioTracks = 0});
}

Fixture soundingSeconds(double duration) {
    return makeFixture({.duration = duration});
}

/// The events but for the times, which come as often as they come.
std::vector<std::string> withoutTimes(std::vector<std::string> events) {
    std::erase(events, "time");
    return events;
}

Time endOf(const PlayerStage& stage) {
    return stage.player->currentItem()->asset()->duration();
}

TEST(Player, showsTheFirstFrameOfAnItemAndDoesNotPlayIt) {
    const Fixture fixture = silentSeconds(1);
    PlayerStage stage;
    stage.load(fixture.path);
    EXPECT_EQ(stage.sink.number(), 0);
    EXPECT_EQ(stage.player->rate(), 0.0F);
    EXPECT_EQ(stage.player->currentTime(), Time{});
    EXPECT_THAT(stage.events, ElementsAre("time"));
}

TEST(Player, playsEveryFrameInOrderToTheEndAndReportsIt) {
    const Fixture fixture = silentSeconds(1);
    PlayerStage stage;
    stage.load(fixture.path);
    stage.player->play();
    EXPECT_EQ(stage.player->rate(), 1.0F) << "at once";
    EXPECT_THAT(withoutTimes(stage.events), ElementsAre()) << "but reported later";
    ASSERT_TRUE(stage.pumpUntil([&] { return stage.endCount == 1; }));
    EXPECT_THAT(withoutTimes(stage.events), ElementsAre("rate 1", "rate 0", "end"));
    EXPECT_EQ(stage.player->rate(), 0.0F);
    EXPECT_EQ(stage.player->currentTime(), endOf(stage));
    EXPECT_EQ(stage.sink.number(), fixture.frames.back().number);
    const std::vector<int> numbers = stage.sink.numbers();
    EXPECT_TRUE(std::is_sorted(numbers.begin(), numbers.end()));
}

TEST(Player, tellsTheEndTimeBeforeTheRateAndTheEnd) {
    const Fixture fixture = silentSeconds(1);
    PlayerStage stage;
    stage.load(fixture.path);
    stage.seekAndWait(Time{500, 600});
    stage.player->play();
    ASSERT_TRUE(stage.pumpUntil([&] { return stage.endCount == 1; }));
    const std::vector<std::string> lastThree(stage.events.end() - 3, stage.events.end());
    EXPECT_THAT(lastThree, ElementsAre("time", "rate 0", "end"));
    EXPECT_EQ(stage.times.back(), endOf(stage).seconds());
}

TEST(Player, leavesNothingBehindWhenItGoes) {
    for (int round = 0; round < 20; ++round) {
        PlayerStage stage;
        stage.load(makeFixture({}).path);
        stage.player->play();
        const std::weak_ptr<const media::PlayerItem> item = stage.player->currentItem();
        stage.player.reset();
        EXPECT_TRUE(item.expired());
    }
}

TEST(Player, reportsTheRateOnlyWhenItChanges) {
    const Fixture fixture = silentSeconds(4);
    PlayerStage stage;
    stage.load(fixture.path);
    stage.player->pause();
    stage.player->play();
    stage.player->play();
    stage.player->pause();
    stage.player->pause();
    stage.executor.pump();
    EXPECT_THAT(withoutTimes(stage.events), ElementsAre("rate 1", "rate 0"));
}

TEST(Player, stopsPlayingWhenItSteps) {
    const Fixture fixture = silentSeconds(4);
    PlayerStage stage;
    stage.load(fixture.path);
    stage.player->play();
    ASSERT_TRUE(stage.pumpUntil([&] { return stage.sink.number() > 3; }));
    stage.player->step(1);
    EXPECT_EQ(stage.player->rate(), 0.0F);
    stage.events.clear();
    ASSERT_TRUE(stage.pumpUntil([&] {
        return std::find(stage.events.begin(), stage.events.end(), "time") != stage.events.end();
    }));
    const std::optional<int> number = stage.sink.number();
    ASSERT_TRUE(number);
    EXPECT_EQ(*number, frameAt(fixture, stage.player->currentTime()));
}

TEST(Player, reportsTheTimeAsItPlays) {
    const Fixture fixture = silentSeconds(1);
    PlayerStage stage;
    stage.load(fixture.path);
    stage.times.clear();
    stage.player->play();
    ASSERT_TRUE(stage.pumpUntil([&] { return stage.endCount == 1; }));
    EXPECT_TRUE(std::is_sorted(stage.times.begin(), stage.times.end()));
    EXPECT_GE(stage.times.size(), 5U);
    EXPECT_LE(stage.times.size(), 32U) << "30 boundaries, the end, and none twice";
}

TEST(Player, keepsTheDeviceOpenWhenItLoopsWhilePlaying) {
    const Fixture fixture = soundingSeconds(4);
    PlayerStage stage;
    RunningDevice running(stage.device);
    stage.load(fixture.path);
    stage.player->play();
    for (int round = 0; round < 3; ++round) {
        ASSERT_TRUE(stage.pumpUntil([&] { return stage.player->currentTime() >= Time{240, 600}; }));
        seekExactly(*stage.player, Time{60, 600});
    }
    EXPECT_EQ(stage.device.openCount(), 1);
}

TEST(Player, showsNothingOnceItsItemIsTakenAway) {
    const Fixture fixture = silentSeconds(1);
    PlayerStage stage;
    stage.load(fixture.path);
    bool isFinished = true;
    seekExactly(*stage.player, Time{300, 600}, [&](bool finished) { isFinished = finished; });
    stage.player->replaceCurrentItem(nullptr);
    ASSERT_TRUE(
        stage.pumpUntil([&] { return stage.sink.count() > 0 && !stage.sink.last().image; }));
    EXPECT_FALSE(isFinished);
    EXPECT_FALSE(stage.player->currentTime().isNumeric());
}

TEST(Player, playsAFileWithoutAPicture) {
    const auto path = testsupport::cachedMedia(
        "tone-1s.m4a", {"-f", "lavfi", "-i", "sine=frequency=440:duration=1", "-c:a", "aac"});
    PlayerStage stage;
    stage.player->replaceCurrentItem(PlayerStage::open(path));
    stage.player->play();
    ASSERT_TRUE(stage.pumpUntil([&] { return stage.endCount == 1; }));
    EXPECT_FALSE(stage.sink.last().image);
}

TEST(Player, callsNothingOnceItIsGone) {
    const Fixture fixture = silentSeconds(4);
    PlayerStage stage;
    stage.load(fixture.path);
    stage.player->play();
    ASSERT_TRUE(stage.pumpUntil([&] { return stage.sink.number() > 2; }));
    seekExactly(*stage.player, Time{600, 600}, [](bool) { FAIL() << "an answer from the grave"; });
    stage.player.reset();
    stage.events.clear();
    stage.sink.clear();
    stage.executor.pump();
    EXPECT_THAT(stage.events, ElementsAre());
    EXPECT_EQ(stage.sink.count(), 0U);
}

TEST(Player, mayBeDestroyedByItsOwnHandlers) {
    const Fixture fixture = silentSeconds(1);
    PlayerStage stage;
    stage.load(fixture.path);
    stage.player->setRateHandler([&](float) { stage.player.reset(); });
    stage.player->play();
    EXPECT_TRUE(stage.pumpUntil([&] { return !stage.player; }));

    PlayerStage another;
    another.load(fixture.path);
    another.player->addPeriodicTimeObserver(Time{1, 30}, [&](Time) { another.player.reset(); });
    another.player->addPeriodicTimeObserver(Time{1, 30},
                                            [&](Time) { ADD_FAILURE() << "too late"; });
    another.player->play();
    EXPECT_TRUE(another.pumpUntil([&] { return !another.player; }));
}

TEST(Player, callsNoObserverThatWasRemoved) {
    const Fixture fixture = silentSeconds(1);
    PlayerStage stage;
    stage.load(fixture.path);
    int calls = 0;
    media::Player::Token token = 0;
    token = stage.player->addPeriodicTimeObserver(Time{1, 30}, [&](Time) {
        ++calls;
        stage.player->removeTimeObserver(token);
    });
    stage.player->play();
    ASSERT_TRUE(stage.pumpUntil([&] { return stage.endCount == 1; }));
    EXPECT_EQ(calls, 1);
}

TEST(Player, leavesASinkAloneThatWasTakenAwayAndShowsANewOneItsFrame) {
    const Fixture fixture = silentSeconds(2);
    PlayerStage stage;
    stage.load(fixture.path);
    stage.player->setVideoSink(nullptr);
    stage.sink.clear();
    stage.seekAndWait(Time{600, 600});
    EXPECT_EQ(stage.sink.count(), 0U);
    RecordingSink another(stage.executor);
    stage.player->setVideoSink(&another);
    EXPECT_TRUE(stage.pumpUntil([&] { return another.number() == 30; }));
    stage.player->setVideoSink(nullptr);
}

TEST(Player, drawsItsFrameAgainInANewSizeAndNeverEnlarged) {
    const Fixture fixture = silentSeconds(2);
    PlayerStage stage;
    stage.load(fixture.path);
    stage.seekAndWait(Time{600, 600});

    struct Row {
        int width;
        int height;
        int shownWidth;
        int shownHeight;
    };

    for (const Row& row : {Row{80, 600, 80, 60}, Row{0, 0, 320, 240}, Row{4000, 4000, 320, 240},
                           Row{4000, 90, 120, 90}}) {
        stage.player->setPreviewSize(row.width, row.height);
        EXPECT_TRUE(stage.pumpUntil([&] {
            const media::ImagePtr image = stage.sink.last().image;
            return image->width == row.shownWidth && image->height == row.shownHeight;
        })) << row.width
            << " x " << row.height;
        EXPECT_EQ(stage.sink.number(), 30);
    }
}

TEST(Player, countsTheFramesItShows) {
    const Fixture fixture = silentSeconds(1);
    PlayerStage stage;
    stage.load(fixture.path);
    stage.player->play();
    ASSERT_TRUE(stage.pumpUntil([&] { return stage.endCount == 1; }));
    const media::Player::Statistics statistics = stage.player->statistics();
    EXPECT_EQ(statistics.shown, stage.sink.count() - 1) << "besides the empty frame at the start";
    EXPECT_EQ(statistics.shown + statistics.dropped, 30U);
}

TEST(Player, playsOnWithItsLastPictureWhereTheFileBreaksOff) {
    // Frames of a file that was cut short end before the duration that its header promises.
    const Fixture fixture = silentSeconds(4);
    const testsupport::TemporaryFolder folder;
    const auto path = folder / "cut.mp4";
    std::filesystem::copy_file(fixture.path, path);
    PlayerStage stage;
    stage.load(path);
    std::filesystem::resize_file(path, std::filesystem::file_size(path) / 2);
    stage.seekAndWait(Time{2280, 600});
    stage.player->play();
    ASSERT_TRUE(stage.pumpUntil([&] { return stage.endCount == 1; }));
    EXPECT_EQ(stage.player->currentTime(), endOf(stage));
    EXPECT_TRUE(stage.sink.last().image);
}

} // namespace
