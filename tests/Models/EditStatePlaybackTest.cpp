#include "Models/EditStateFixture.h"

#include <QSignalSpy>

#include <cmath>

namespace brisklet {

namespace {

using testsupport::pumpPending;
using testsupport::pumpUntil;

class EditStatePlaybackTest : public EditStateFixture {};

TEST_F(EditStatePlaybackTest, stopsOnTheTrimEndAndThenRestartsAtTheTrimStart) {
    ASSERT_TRUE(loadAndWait(kTenSeconds));
    state().setTrimStart(1);
    state().setTrimEnd(5);
    state().seek(4.7);
    state().togglePlayback();
    ASSERT_TRUE(pumpUntil([this] { return state().isPlaying(); }));
    ASSERT_TRUE(pumpUntil([this] { return !state().isPlaying() && state().currentTime() == 5; }));
    EXPECT_EQ(player().rate(), 0.0F);
    EXPECT_EQ(player().currentTime(), (media::Time{5, 1}));

    std::optional<double> firstTime;
    QObject::connect(&state(), &EditState::currentTimeChanged, &state(), [&] {
        if (!firstTime)
            firstTime = state().currentTime();
    });
    state().togglePlayback();
    ASSERT_TRUE(pumpUntil([&] { return state().isPlaying() && firstTime; }));
    EXPECT_GE(*firstTime, 1);
    EXPECT_LT(*firstTime, 4);
}

TEST_F(EditStatePlaybackTest, isPutBackOnTheTrimEndByATickBeyondIt) {
    ASSERT_TRUE(loadAndWait(kTenSeconds));
    state().setTrimEnd(5);
    state().seek(1);
    state().togglePlayback();
    ASSERT_TRUE(pumpUntil([this] { return state().isPlaying(); }));
    state().playerController().onTick(5.02);
    EXPECT_EQ(player().rate(), 0.0F);
    EXPECT_EQ(player().currentTime(), (media::Time{5, 1}));
    EXPECT_TRUE(state().isPlaying());
    ASSERT_TRUE(pumpUntil([this] { return !state().isPlaying() && state().currentTime() == 5; }));
}

TEST_F(EditStatePlaybackTest, wrapsToTheTrimStartWithoutPausingWhenLooping) {
    PlaybackSettings::shared().setLoopEnabled(true);
    ASSERT_TRUE(loadAndWait(kTenSeconds));
    state().setTrimStart(2);
    state().setTrimEnd(5);
    state().seek(4.7);
    state().togglePlayback();
    ASSERT_TRUE(pumpUntil([this] { return state().isPlaying(); }));
    const QSignalSpy playStates(&state(), &EditState::isPlayingChanged);
    ASSERT_TRUE(
        pumpUntil([this] { return state().currentTime() >= 2 && state().currentTime() < 4; }));
    EXPECT_EQ(playStates.count(), 0);
    EXPECT_EQ(player().rate(), 1.0F);

    state().playerController().onTick(5.02);
    EXPECT_EQ(player().rate(), 1.0F);
    // The frame is at hand, so playing may have gone on from there already.
    EXPECT_GE(player().currentTime().seconds(), 2);
    EXPECT_LT(player().currentTime().seconds(), 4);
}

TEST_F(EditStatePlaybackTest, startsOverAtTheEndOfTheFileWhenLooping) {
    PlaybackSettings::shared().setLoopEnabled(true);
    ASSERT_TRUE(loadAndWait(testsupport::Recipe{.duration = 2}));
    state().setTrimStart(0.5);
    // Past the end: only the end of the item itself can wrap.
    state().setTrimEnd(100);
    state().seek(1.7);
    state().togglePlayback();
    ASSERT_TRUE(pumpUntil([this] { return state().isPlaying(); }));
    ASSERT_TRUE(
        pumpUntil([this] { return state().currentTime() >= 0.5 && state().currentTime() < 1.5; }));
    ASSERT_TRUE(pumpUntil([this] { return state().isPlaying(); }));
}

TEST_F(EditStatePlaybackTest, staysAtTheEndOfTheFileWithoutLooping) {
    ASSERT_TRUE(loadAndWait(testsupport::Recipe{.duration = 2}));
    state().setTrimEnd(100);
    state().seek(1.7);
    state().togglePlayback();
    ASSERT_TRUE(pumpUntil([this] { return state().isPlaying(); }));
    ASSERT_TRUE(pumpUntil([this] { return !state().isPlaying(); }));
    pumpPending();
    EXPECT_EQ(player().rate(), 0.0F);
    EXPECT_GT(state().currentTime(), 1.5);
}

/// Ends between two ticks, of which there are 30 a second.
const testsupport::Recipe kEndsBetweenTicks{
    .frameRate = {25, 1}, .duration = 2.04, .audioTracks = 0};

/// The end of the file came before the next tick, and the playhead stayed there, past the handle.
TEST_F(EditStatePlaybackTest, stopsOnATrimEndJustBeforeTheEndOfTheFile) {
    ASSERT_TRUE(loadAndWait(kEndsBetweenTicks));
    for (const double distance : {0.0, 1.0 / 600, 3.0 / 600}) {
        const double end = state().duration() - distance;
        state().setTrimEnd(end);
        state().seek(1.7);
        state().togglePlayback();
        ASSERT_TRUE(pumpUntil([this] { return state().isPlaying(); }));
        ASSERT_TRUE(pumpUntil([this] { return !state().isPlaying(); }));
        // The seek onto the handle is told of a moment later.
        EXPECT_TRUE(pumpUntil([&] { return std::abs(state().currentTime() - end) < 1e-6; }))
            << state().currentTime() << " instead of " << end;
        EXPECT_NEAR(player().currentTime().seconds(), end, 1e-6);
        EXPECT_EQ(player().rate(), 0.0F);
    }
}

TEST_F(EditStatePlaybackTest, loopsFromATrimEndJustBeforeTheEndOfTheFile) {
    PlaybackSettings::shared().setLoopEnabled(true);
    ASSERT_TRUE(loadAndWait(kEndsBetweenTicks));
    state().setTrimStart(1);
    for (const double distance : {0.0, 1.0 / 600}) {
        state().setTrimEnd(state().duration() - distance);
        state().seek(1.7);
        player().play();
        ASSERT_TRUE(pumpUntil([this] { return state().isPlaying(); }));
        ASSERT_TRUE(pumpUntil([this] { return state().currentTime() < 1.5; }));
        ASSERT_TRUE(pumpUntil([this] { return state().isPlaying(); }));
        EXPECT_EQ(player().rate(), 1.0F);
        player().pause();
        ASSERT_TRUE(pumpUntil([this] { return !state().isPlaying(); }));
    }
}

TEST_F(EditStatePlaybackTest, followsTicksWhilePausedWithoutStopping) {
    ASSERT_TRUE(loadAndWait(kTenSeconds));
    state().setTrimEnd(5);
    state().playerController().onTick(7);
    EXPECT_EQ(state().currentTime(), 7);
    EXPECT_NE(player().currentTime(), (media::Time{5, 1}));
    state().playerController().onTick(std::nan(""));
    EXPECT_TRUE(std::isnan(state().currentTime()));
}

TEST_F(EditStatePlaybackTest, pausesAndPlays) {
    ASSERT_TRUE(loadAndWait(kTenSeconds));
    state().seek(3);
    state().togglePlayback();
    ASSERT_TRUE(pumpUntil([this] { return state().isPlaying() && state().currentTime() > 3; }));
    state().togglePlayback();
    ASSERT_TRUE(pumpUntil([this] { return !state().isPlaying(); }));
    EXPECT_LT(state().currentTime(), 9);
}

TEST_F(EditStatePlaybackTest, playsFromTheTrimStartWhenThePlayheadIsBeforeIt) {
    ASSERT_TRUE(loadAndWait(kTenSeconds));
    state().setTrimStart(6);
    state().seek(1);
    state().togglePlayback();
    EXPECT_EQ(player().currentTime(), (media::Time{6, 1}));
    EXPECT_EQ(player().rate(), 1.0F);
}

TEST_F(EditStatePlaybackTest, playsFromTheTrimStartWhenThePlayheadIsWithinAMarginOfTheTrimEnd) {
    ASSERT_TRUE(loadAndWait(kTenSeconds));
    state().setTrimStart(1);
    state().setTrimEnd(5);
    state().seek(4.96);
    state().togglePlayback();
    EXPECT_EQ(player().currentTime(), (media::Time{1, 1}));
}

TEST_F(EditStatePlaybackTest, playsOnFromWhereItStandsABitBeforeTheTrimEnd) {
    ASSERT_TRUE(loadAndWait(kTenSeconds));
    state().setTrimStart(1);
    state().setTrimEnd(5);
    for (const double time : {1.0, 4.9, 4.94}) {
        state().seek(time);
        state().togglePlayback();
        EXPECT_GE(player().currentTime().seconds(), time - 1.0 / 600) << time;
        player().pause();
        ASSERT_TRUE(pumpUntil([this] { return !state().isPlaying(); }));
    }
}

} // namespace

} // namespace brisklet
