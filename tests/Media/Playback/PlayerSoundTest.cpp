#include "PlayerStage.h"

#include "TestSupport/ClickTrack.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

using media::Time;
using testsupport::Fixture;
using testsupport::makeFixture;

namespace {

constexpr int kRate = media::playback::kOutputSampleRate;

Fixture soundingSeconds(double duration) {
    return makeFixture({.duration = duration});
}

bool isSilent(const std::vector<float>& samples) {
    return std::all_of(samples.begin(), samples.end(), [](float s) { return std::abs(s) < 1e-3F; });
}

/// Plays the device by hand, with pumping in between, until `frameCount` frames were taken from
/// the player.
std::vector<float> playByHand(PlayerStage& stage, std::size_t frameCount) {
    std::vector<float> heard;
    stage.pumpUntil([&] {
        const std::vector<float> more =
            stage.device.play(std::min<std::size_t>(480, frameCount - heard.size()));
        heard.insert(heard.end(), more.begin(), more.end());
        return heard.size() >= frameCount;
    });
    return heard;
}

TEST(PlayerSound, playsTheSamplesOfTheItemInStepWithItsTime) {
    const Fixture fixture = soundingSeconds(4);
    PlayerStage stage;
    stage.load(fixture.path);
    stage.seekAndWait(Time{450, 600});
    EXPECT_FALSE(stage.device.isOpen()) << "a paused player makes no sound";
    stage.player->play();
    ASSERT_TRUE(stage.pumpUntil([&] { return stage.device.isOpen(); }));
    const std::vector<float> heard = playByHand(stage, 3 * kRate / 2);
    const std::vector<std::size_t> clicks = testsupport::findClicks(heard, kRate);
    ASSERT_EQ(clicks.size(), 2U);
    EXPECT_NEAR(static_cast<double>(clicks[0]), 0.25 * kRate, 48) << "the click at 1 s";
    EXPECT_NEAR(static_cast<double>(clicks[1]), 1.25 * kRate, 48) << "the click at 2 s";
}

TEST(PlayerSound, takesItsTimeFromTheDevice) {
    const Fixture fixture = soundingSeconds(30);
    PlayerStage stage;
    stage.load(fixture.path);
    stage.player->play();
    ASSERT_TRUE(stage.pumpUntil([&] { return stage.device.isOpen(); }));
    EXPECT_EQ(stage.player->currentTime(), Time{}) << "nothing has been heard yet";
    // The device hurries ahead of any clock of ours.
    for (int second = 0; second < 25; ++second)
        stage.device.play(kRate);
    ASSERT_TRUE(stage.pumpUntil([&] { return stage.sink.number() >= 25 * 30; }));
    EXPECT_GE(stage.player->currentTime(), Time::fromSeconds(25, 600));
    EXPECT_LT(stage.player->currentTime(), Time::fromSeconds(30, 600));
}

TEST(PlayerSound, isSilentFromTheNextPullOnceMuted) {
    const Fixture fixture = soundingSeconds(4);
    PlayerStage stage;
    stage.load(fixture.path);
    stage.player->setMuted(true);
    EXPECT_TRUE(stage.player->isMuted());
    stage.player->play();
    ASSERT_TRUE(stage.pumpUntil([&] { return stage.device.isOpen(); }));
    EXPECT_TRUE(isSilent(playByHand(stage, 3 * kRate / 2))) << "a click would stand at 1 s";
    stage.player->setMuted(false);
    EXPECT_FALSE(isSilent(playByHand(stage, kRate)));
    EXPECT_EQ(stage.device.openCount(), 1) << "the stream ran all the while";
}

TEST(PlayerSound, soundsNothingOfBeforeAfterASeek) {
    const Fixture fixture = soundingSeconds(4);
    PlayerStage stage;
    stage.load(fixture.path);
    stage.seekAndWait(Time{540, 600});
    stage.player->play();
    ASSERT_TRUE(stage.pumpUntil([&] { return stage.device.isOpen(); }));
    playByHand(stage, 480);
    // The click at 1 s is queued by now. The new position has none within half a second.
    ASSERT_TRUE(stage.seekAndWait(Time{1300, 600}));
    EXPECT_TRUE(isSilent(playByHand(stage, kRate / 2)));
    EXPECT_EQ(stage.device.openCount(), 1);
}

TEST(PlayerSound, closesTheDeviceWhenPausedAndOpensItAgain) {
    const Fixture fixture = soundingSeconds(4);
    PlayerStage stage;
    stage.load(fixture.path);
    stage.player->play();
    ASSERT_TRUE(stage.pumpUntil([&] { return stage.device.isOpen(); }));
    playByHand(stage, 4800);
    stage.player->pause();
    ASSERT_TRUE(stage.pumpUntil([&] { return !stage.device.isOpen(); }));
    stage.player->play();
    ASSERT_TRUE(stage.pumpUntil([&] { return stage.device.isOpen(); }));
    EXPECT_EQ(stage.device.openCount(), 2);
}

TEST(PlayerSound, playsOnWhereTheSoundEndsBeforeThePicture) {
    const Fixture fixture = makeFixture({.duration = 2, .audioDuration = 0.5});
    PlayerStage stage;
    RunningDevice running(stage.device);
    stage.load(fixture.path);
    stage.player->play();
    ASSERT_TRUE(stage.pumpUntil([&] { return stage.endCount == 1; }));
    EXPECT_EQ(stage.sink.number(), fixture.frames.back().number);
    EXPECT_GE(running.takeHeard().size(), static_cast<std::size_t>(1.9 * kRate))
        << "the device gave the time to the end";
}

TEST(PlayerSound, playsOnWhereTheSoundBeginsAfterThePicture) {
    const Fixture fixture = makeFixture({.duration = 2, .audioStart = 0.7});
    PlayerStage stage;
    RunningDevice running(stage.device);
    stage.load(fixture.path);
    stage.player->play();
    ASSERT_TRUE(stage.pumpUntil([&] { return stage.endCount == 1; }));
    EXPECT_EQ(testsupport::findClicks(running.takeHeard(), kRate).size(), 1U);
}

TEST(PlayerSound, playsWithoutADevice) {
    const Fixture fixture = soundingSeconds(1);
    PlayerStage stage;
    stage.device.setPresent(false);
    stage.load(fixture.path);
    stage.player->play();
    ASSERT_TRUE(stage.pumpUntil([&] { return stage.endCount == 1; }));
    EXPECT_EQ(stage.sink.number(), 29);
    EXPECT_EQ(stage.device.openCount(), 0);
}

TEST(PlayerSound, playsOnWhenTheDeviceFails) {
    const Fixture fixture = soundingSeconds(4);
    PlayerStage stage;
    stage.load(fixture.path);
    stage.player->play();
    ASSERT_TRUE(stage.pumpUntil([&] { return stage.device.isOpen(); }));
    playByHand(stage, kRate);
    ASSERT_TRUE(stage.pumpUntil([&] { return stage.sink.number() >= 29; }));
    stage.times.clear();
    stage.device.setPresent(false);
    stage.device.fail();
    ASSERT_TRUE(stage.pumpUntil([&] { return stage.endCount == 1; }));
    EXPECT_GE(stage.times.front(), 0.9) << "from where it was";
    EXPECT_TRUE(std::is_sorted(stage.times.begin(), stage.times.end()));
    EXPECT_EQ(stage.sink.number(), fixture.frames.back().number);
}

TEST(PlayerSound, playsOnWhenTheDeviceStandsStill) {
    const Fixture fixture = soundingSeconds(4);
    PlayerStage stage;
    stage.load(fixture.path);
    stage.player->play();
    ASSERT_TRUE(stage.pumpUntil([&] { return stage.device.isOpen(); }));
    ASSERT_TRUE(stage.pumpUntil([&] { return stage.endCount == 1; }))
        << "although nothing was ever heard";
}

TEST(PlayerSound, doesNotWaitForADeviceThatTakesTooLongToOpen) {
    const Fixture fixture = soundingSeconds(4);
    PlayerStage stage;
    stage.device.setBlocking(true);
    stage.load(fixture.path);
    stage.player->play();
    ASSERT_TRUE(stage.pumpUntil([&] { return stage.sink.number() >= 30; }));
    EXPECT_EQ(stage.device.startCount(), 1);
    EXPECT_FALSE(stage.device.isOpen());
}

TEST(PlayerSound, fallsInWithTheClockWhenTheDeviceComesLate) {
    const Fixture fixture = soundingSeconds(30);
    PlayerStage stage;
    RunningDevice running(stage.device);
    stage.device.setPresent(false);
    stage.load(fixture.path);
    stage.times.clear();
    stage.player->play();
    ASSERT_TRUE(stage.pumpUntil([&] { return stage.sink.number() >= 15; }));
    stage.device.setPresent(true);
    std::vector<float> heard;
    std::vector<std::size_t> clicks;
    ASSERT_TRUE(stage.pumpUntil([&] {
        const std::vector<float> more = running.takeHeard();
        heard.insert(heard.end(), more.begin(), more.end());
        clicks = testsupport::findClicks(heard, kRate);
        return clicks.size() >= 2;
    }));
    EXPECT_NEAR(static_cast<double>(clicks[1] - clicks[0]), kRate, 48);
    EXPECT_TRUE(std::is_sorted(stage.times.begin(), stage.times.end()));
}

} // namespace
