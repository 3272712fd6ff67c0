#include "PlaybackRig.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <variant>

/// What the rules of playback take care of when things cross: reports that come too late, frames
/// that are late, jumps that fail while playing.
namespace {

using namespace std::chrono_literals;
using media::Ticks;
using media::Time;
using media::playback::CachedFrame;
using media::playback::DecodeWork;
using media::playback::SoundStart;
using media::playback::SteadyTime;
using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using Kind = DecodeWork::Kind;

Ticks ticksOf(int frame) {
    return Ticks(frame * kFrameLength.count());
}

class PlaybackRules : public testing::Test {
protected:
    /// Plays from the frame on show, with nothing at hand but that.
    void playWithEmptyCache() {
        rig.cache.begin(rig.item.get());
        rig.state.setPlaying(true, rig.now);
        rig.present();
        rig.letSoundWork();
    }

    void stopStaleWork() {
        for (std::stop_source& work : rig.state.takeDeferredWork().staleWork)
            work.request_stop();
    }

    PlaybackRig rig;
};

// The direction of a drag.

TEST_F(PlaybackRules, takeSeeksThatFollowOneAnotherForADrag) {
    rig.load(1000);
    rig.seek(500);
    rig.settle();
    rig.cache.begin(rig.item.get());
    rig.seek(498);
    DecodeWork work = rig.nextWork();
    EXPECT_TRUE(work.isBackward);
    EXPECT_EQ(work.completeFrom, ticksOf(498) - Ticks(1200)) << "more of them will be asked for";
    rig.seek(499);
    work = rig.nextWork();
    EXPECT_FALSE(work.isBackward) << "forward of the seek before it";
    EXPECT_EQ(work.completeFrom, ticksOf(499) - Ticks(150));
    rig.seek(300);
    EXPECT_FALSE(rig.nextWork().isBackward) << "that far is no drag";
}

TEST_F(PlaybackRules, takeSeeksForADragOnlyWhenTheyFollowSoon) {
    rig.load(1000);
    rig.seek(500);
    rig.settle();
    rig.now += 500ms;
    rig.cache.begin(rig.item.get());
    rig.seek(498);
    EXPECT_FALSE(rig.nextWork().isBackward);
}

// Jumps.

TEST_F(PlaybackRules, goWhereTheFrameOfASeekWithToleranceWasFound) {
    rig.load(1000);
    rig.state.beginSeek(Time{500 * 20, 600}, Time{600, 600}, Time{600, 600}, rig.now);
    const DecodeWork work = rig.nextWork();
    ASSERT_EQ(work.kind, Kind::seekNear);
    rig.cache.insert(rig.item.get(), rig.frameOf(480));
    rig.state.nearFrameArrived(work, ticksOf(480));
    rig.settle();
    EXPECT_EQ(rig.shownFrame(), 480);
    EXPECT_EQ(rig.state.time(rig.now), (Time{480 * 20, 600}));
}

TEST_F(PlaybackRules, runOnWithThePictureOnShowWhereASeekFailsWhilePlaying) {
    rig.load(1000);
    rig.state.setPlaying(true, rig.now);
    rig.pass(200ms);
    const int before = rig.shownFrame();
    rig.damaged = {600};
    rig.seek(600);
    rig.takeShown();
    rig.pass(500ms);
    EXPECT_THAT(rig.takeShown(), Each(before)) << "no frame of where it was before";
    EXPECT_NEAR(rig.seconds(), 20.5, 0.01);
}

TEST_F(PlaybackRules, dropAStepOfManyFramesThatASeekOvertakes) {
    rig.load(1000);
    rig.state.beginStep(200);
    rig.settle();
    rig.seek(7);
    rig.pass(500ms);
    EXPECT_EQ(rig.shownFrame(), 7);
    rig.state.beginStep(1);
    rig.pass(100ms);
    EXPECT_EQ(rig.shownFrame(), 8) << "a later step begins anew";
}

TEST_F(PlaybackRules, playOnFromWhereAStepWent) {
    rig.load(1000);
    rig.state.setPlaying(true, rig.now);
    rig.pass(500ms);
    rig.state.setPlaying(false, rig.now);
    rig.settle();
    rig.state.beginStep(-10);
    rig.pass(100ms);
    const int there = rig.shownFrame();
    rig.takeShown();
    rig.state.setPlaying(true, rig.now);
    rig.pass(110ms);
    EXPECT_THAT(rig.takeShown(), ElementsAre(there + 1, there + 2, there + 3));
}

TEST_F(PlaybackRules, answerNoJumpThatAnotherOvertakes) {
    rig.load(100);
    rig.seek(40);
    rig.decodeAll();
    rig.present();
    rig.seek(50);
    rig.answer();
    EXPECT_THAT(rig.events, IsEmpty());
}

TEST_F(PlaybackRules, answerNoJumpOnceTheItemIsGone) {
    rig.load(100);
    rig.state.replaceItem(nullptr, rig.now);
    rig.pass(100ms);
    EXPECT_THAT(rig.events, IsEmpty());
}

TEST_F(PlaybackRules, showNothingOfAnItemThatIsGoneForAFrameThatIsSought) {
    rig.load(1000);
    rig.seek(600);
    const DecodeWork work = rig.nextWork();
    const auto passed = std::make_shared<CachedFrame>(rig.frameOf(500));
    rig.state.replaceItem(rig.item = makeItem(1000), rig.now);
    rig.seek(700);
    rig.now += 60ms;
    rig.takeShown();
    rig.state.substituteArrived(work, passed, rig.now);
    rig.present();
    EXPECT_THAT(rig.takeShown(), Not(Contains(500)));
}

TEST_F(PlaybackRules, lookForASubstituteWhenASeekHasTakenLongEnough) {
    rig.load(1000);
    rig.seek(600);
    rig.decode();
    rig.cache.begin(rig.item.get());
    EXPECT_EQ(std::get<SteadyTime>(rig.state.nextPresentation(rig.now)), rig.now + 50ms);
}

TEST_F(PlaybackRules, showTheNearestOfWhatASeekPassesAndWhatIsAtHand) {
    rig.load(1000);
    rig.cache.begin(rig.item.get());
    rig.cache.insert(rig.item.get(), rig.frameOf(580));
    rig.seek(600);
    const DecodeWork work = rig.nextWork();
    rig.now += 60ms;
    rig.takeShown();
    rig.state.substituteArrived(work, std::make_shared<CachedFrame>(rig.frameOf(500)), rig.now);
    rig.present();
    EXPECT_THAT(rig.takeShown(), ElementsAre(580));
    rig.now += 300ms;
    rig.state.substituteArrived(work, std::make_shared<CachedFrame>(rig.frameOf(550)), rig.now);
    rig.present();
    EXPECT_THAT(rig.takeShown(), IsEmpty()) << "the one on show is nearer";
}

TEST_F(PlaybackRules, takeNoFrameAtHandThatBeginsOutsideATolerance) {
    rig.load(1000);
    rig.state.beginSeek(Time{510, 600}, Time{5, 600}, Time{5, 600}, rig.now);
    EXPECT_EQ(rig.nextWork().kind, Kind::seekNear);
}

TEST_F(PlaybackRules, stepPastAFrameThatShowsLongerThanWasKnown) {
    rig.load(1000);
    rig.cache.insert(rig.item.get(), cachedFrame(12000_ticks, 12010_ticks));
    rig.seek(600);
    rig.settle();
    ASSERT_EQ(rig.state.shown().range.end, 12010_ticks);
    rig.cache.begin(rig.item.get());
    rig.state.beginStep(1);
    rig.pass(10ms);
    EXPECT_EQ(rig.shownFrame(), 601);
}

TEST_F(PlaybackRules, countWhatWasAtHand) {
    rig.load(1000);
    const auto before = rig.state.statistics().fromCache;
    rig.seek(600);
    rig.pass(1s);
    EXPECT_EQ(rig.state.statistics().fromCache, before);
    rig.seek(601);
    rig.settle();
    EXPECT_EQ(rig.state.statistics().fromCache, before + 1);
    rig.state.setPlaying(true, rig.now);
    rig.pass(110ms);
    EXPECT_EQ(rig.state.statistics().fromCache, before + 4);
}

// The clock and the sound.

TEST_F(PlaybackRules, countTheWaitForTheSoundFromWhenThePictureIsThere) {
    rig.load(1000);
    rig.hasSound = true;
    rig.state.setPlaying(true, rig.now);
    rig.seek(600);
    rig.now += 1500ms;
    rig.settle();
    ASSERT_EQ(rig.shownFrame(), 600);
    rig.pass(900ms);
    EXPECT_EQ(rig.seconds(), 20);
    rig.pass(200ms);
    EXPECT_NEAR(rig.seconds(), 20.1, 0.005);
}

TEST_F(PlaybackRules, letNoSoundBeginBeforeThePictureIsThere) {
    rig.load(1000);
    rig.hasSound = true;
    rig.state.setPlaying(true, rig.now);
    rig.seek(600);
    const auto run = rig.state.nextSoundRun(0, rig.now);
    EXPECT_EQ(rig.state.soundStart(run->number), SoundStart::notYet);
    rig.settle();
    EXPECT_EQ(rig.state.soundStart(run->number), SoundStart::now);
}

TEST_F(PlaybackRules, takeNoSoundWhilePaused) {
    rig.load(100);
    const auto run = rig.state.nextSoundRun(0, rig.now);
    EXPECT_FALSE(run->isWanted);
    EXPECT_FALSE(rig.state.soundHeard(run->number, false, Time{60, 600}, rig.now));
    EXPECT_EQ(rig.seconds(), 0);
}

TEST_F(PlaybackRules, leaveAClockAloneThatRunsWithoutThisSound) {
    rig.load(100);
    rig.state.setPlaying(true, rig.now);
    rig.pass(500ms);
    const auto run = rig.state.nextSoundRun(0, rig.now);
    EXPECT_FALSE(rig.state.soundHeard(run->number, false, Time{60, 600}, rig.now));
    EXPECT_NEAR(rig.seconds(), 0.5, 0.002);
    EXPECT_TRUE(rig.state.soundHeard(run->number, true, Time{600, 600}, rig.now));
    EXPECT_NEAR(rig.seconds(), 1, 0.002);
}

TEST_F(PlaybackRules, startNoClockForARunThatIsOver) {
    rig.load(1000);
    rig.hasSound = true;
    rig.state.setPlaying(true, rig.now);
    const auto run = rig.state.nextSoundRun(0, rig.now);
    rig.seek(600);
    rig.settle();
    rig.state.runWithoutSound(run->number, rig.now);
    EXPECT_FALSE(rig.state.isClockRunning());
}

TEST_F(PlaybackRules, stopTheSoundOfWhatIsPaused) {
    rig.load(100);
    rig.state.setPlaying(true, rig.now);
    const auto run = rig.state.nextSoundRun(0, rig.now);
    stopStaleWork();
    ASSERT_FALSE(run->stop.stop_requested());
    rig.state.setPlaying(false, rig.now);
    stopStaleWork();
    EXPECT_TRUE(run->stop.stop_requested());
}

TEST_F(PlaybackRules, sayWhenTheItemEndedUntilItIsPaused) {
    rig.load(15);
    rig.state.setPlaying(true, rig.now);
    while (rig.endCount == 0)
        rig.pass(1ms);
    EXPECT_EQ(rig.state.nextSoundRun(0, rig.now)->lastEnd, rig.now);
    rig.seek(0);
    rig.state.setPlaying(true, rig.now);
    rig.state.setPlaying(false, rig.now);
    EXPECT_EQ(rig.state.nextSoundRun(0, rig.now)->lastEnd, SteadyTime{});
}

TEST_F(PlaybackRules, haveNoTimeAfterTheEndOfTheItem) {
    rig.load(30);
    rig.state.setPlaying(true, rig.now);
    rig.settle();
    rig.now += 5s;
    EXPECT_EQ(rig.state.time(rig.now), (Time{600, 600}));
}

TEST_F(PlaybackRules, forgetAnEndThatAPauseOvertakes) {
    rig.load(15);
    rig.state.setPlaying(true, rig.now);
    rig.pass(480ms);
    rig.now += 40ms;
    rig.present();
    rig.state.setPlaying(false, rig.now);
    rig.answer();
    EXPECT_EQ(rig.endCount, 0);
}

TEST_F(PlaybackRules, wantNoSoundOnceTheItemHasEnded) {
    rig.load(15);
    rig.hasSound = true;
    rig.state.setPlaying(true, rig.now);
    const auto run = rig.state.nextSoundRun(0, rig.now);
    rig.state.soundHeard(run->number, false, Time{300, 600}, rig.now);
    rig.present();
    const auto after = rig.state.nextSoundRun(run->number, rig.now);
    ASSERT_TRUE(after);
    EXPECT_FALSE(after->isWanted);
}

// Frames that are late.

TEST_F(PlaybackRules, showAFrameThatIsALittleLateAllTheSame) {
    rig.load(1000);
    playWithEmptyCache();
    rig.now += 120ms;
    const DecodeWork work = rig.nextWork();
    EXPECT_EQ(work.kind, Kind::decodeAhead);
    EXPECT_EQ(work.target.earliest, ticksOf(1));
    EXPECT_EQ(rig.state.statistics().dropped, 0U);
}

TEST_F(PlaybackRules, goOnToTheClockWhereAFrameIsTooLate) {
    rig.load(1000);
    playWithEmptyCache();
    rig.now += 150ms;
    EXPECT_EQ(rig.nextWork().target.earliest, Ticks(90));
    EXPECT_EQ(rig.state.statistics().dropped, 3U);
}

TEST_F(PlaybackRules, leaveOutFramesAtHandWhoseTimeIsOver) {
    rig.load(1000);
    rig.state.setPlaying(true, rig.now);
    rig.present();
    rig.letSoundWork();
    rig.now += 90ms;
    const DecodeWork work = rig.nextWork();
    EXPECT_EQ(work.kind, Kind::queue);
    EXPECT_EQ(work.target.earliest, ticksOf(2));
}

TEST_F(PlaybackRules, countWhatTheyShowLateAndWhatTheyLeaveOut) {
    rig.load(1000);
    rig.state.setPlaying(true, rig.now);
    rig.pass(100ms);
    rig.now += 99ms;
    rig.present();
    EXPECT_EQ(rig.state.statistics().late, 1U);
    EXPECT_EQ(rig.state.statistics().dropped, 2U);
}

TEST_F(PlaybackRules, showFramesOnTheWayToTheClockNoCloserTogetherThanEvenly) {
    rig.load(1000);
    playWithEmptyCache();
    rig.now += 500ms;
    const DecodeWork work = rig.nextWork();
    rig.takeShown();
    for (int frame = 1; frame <= 12; ++frame) {
        if (rig.state.wantsLateFrame(work, ticksOf(frame), rig.now))
            rig.state.lateFrameArrived(work, renderedFrame(rig.frameOf(frame)), rig.now);
        rig.present();
        rig.now += 10ms;
    }
    EXPECT_THAT(rig.takeShown(), ElementsAre(1, 5, 9));
}

TEST_F(PlaybackRules, showNoFrameOnTheWayRightAfterOneThatWasSought) {
    rig.load(1000);
    playWithEmptyCache();
    rig.now += 500ms;
    rig.decode();
    rig.present();
    ASSERT_EQ(rig.shownFrame(), 15);
    const DecodeWork work = rig.nextWork();
    EXPECT_FALSE(rig.state.wantsLateFrame(work, ticksOf(16), rig.now + 39ms));
    EXPECT_TRUE(rig.state.wantsLateFrame(work, ticksOf(16), rig.now + 40ms));
}

TEST_F(PlaybackRules, wantNoFrameOnTheWayWhileOthersAreReady) {
    rig.load(1000);
    playWithEmptyCache();
    rig.now += 500ms;
    const DecodeWork work = rig.nextWork();
    ASSERT_TRUE(rig.state.wantsLateFrame(work, ticksOf(3), rig.now));
    rig.state.lateFrameArrived(work, renderedFrame(rig.frameOf(3)), rig.now);
    rig.now += 60ms;
    EXPECT_FALSE(rig.state.wantsLateFrame(work, ticksOf(4), rig.now));
    rig.state.lateFrameArrived(work, renderedFrame(rig.frameOf(2)), rig.now);
    rig.takeShown();
    rig.present();
    EXPECT_THAT(rig.takeShown(), ElementsAre(3));
}

TEST_F(PlaybackRules, showNoFrameOnTheWayThatLiesBeforeTheOneOnShow) {
    rig.load(1000);
    rig.seek(500);
    rig.settle();
    playWithEmptyCache();
    rig.now += 50ms;
    const DecodeWork work = rig.nextWork();
    ASSERT_EQ(work.kind, Kind::decodeAhead);
    rig.takeShown();
    rig.state.lateFrameArrived(work, renderedFrame(rig.frameOf(450)), rig.now);
    rig.present();
    EXPECT_THAT(rig.takeShown(), IsEmpty());
}

TEST_F(PlaybackRules, showNoFrameOnAWayThatASeekOrStepHasEnded) {
    rig.load(1000);
    playWithEmptyCache();
    rig.now += 500ms;
    const DecodeWork work = rig.nextWork();
    rig.state.setPlaying(false, rig.now);
    rig.state.beginStep(1);
    rig.takeShown();
    rig.state.lateFrameArrived(work, renderedFrame(rig.frameOf(9)), rig.now);
    rig.present();
    rig.state.nextFrameArrived(work, renderedFrame(rig.frameOf(15)), rig.now);
    rig.settle();
    EXPECT_THAT(rig.takeShown(), ElementsAre(1));
    rig.seek(0);
    rig.settle();
    rig.state.setPlaying(true, rig.now);
    rig.letSoundWork();
    rig.now += 600ms;
    rig.takeShown();
    EXPECT_FALSE(rig.state.wantsLateFrame(work, ticksOf(9), rig.now));
    rig.state.lateFrameArrived(work, renderedFrame(rig.frameOf(9)), rig.now);
    rig.state.nextFrameArrived(work, renderedFrame(rig.frameOf(15)), rig.now);
    rig.present();
    EXPECT_THAT(rig.takeShown(), IsEmpty());
}

TEST_F(PlaybackRules, playOnWhereAFrameFailsThatIsNotWantedAnyMore) {
    rig.load(1000);
    rig.state.setPlaying(true, rig.now);
    rig.pass(100ms);
    rig.cache.begin(rig.item.get());
    rig.now += 300ms;
    rig.present();
    const DecodeWork work = rig.nextWork();
    ASSERT_EQ(work.kind, Kind::decodeAhead);
    rig.seek(600);
    rig.settle();
    rig.state.frameFailed(work, rig.now);
    rig.pass(1010ms);
    EXPECT_EQ(rig.shownFrame(), 630);
}

TEST_F(PlaybackRules, goStraightToTheFrameOfTheClockWhenPausedWhileBehind) {
    rig.load(1000);
    rig.cache.begin(rig.item.get());
    rig.state.setPlaying(true, rig.now);
    rig.pass(200ms);
    rig.cache.begin(rig.item.get());
    rig.now += 380ms;
    rig.present();
    rig.state.setPlaying(false, rig.now);
    const DecodeWork work = rig.nextWork();
    EXPECT_EQ(work.kind, Kind::decodeAhead);
    EXPECT_EQ(work.target.earliest, rig.state.time(rig.now).ticks());
    rig.settle();
    EXPECT_EQ(rig.shownFrame(), 17);
    rig.takeShown();
    rig.pass(50ms);
    EXPECT_THAT(rig.takeShown(), IsEmpty()) << "once and no further";
}

// What may wait.

TEST_F(PlaybackRules, putWaitingFramesAwayUnlessPlaying) {
    rig.load(1000);
    rig.decoder.hasWaitingFrames = true;
    EXPECT_EQ(rig.nextWork().kind, Kind::keepWaitingFrame);
    rig.state.setPlaying(true, rig.now);
    while (rig.nextWork().kind == Kind::queue || rig.nextWork().kind == Kind::positionDecoder)
        rig.decode();
    EXPECT_EQ(rig.nextWork().kind, Kind::wait);
}

TEST_F(PlaybackRules, readNothingAheadWhilePlaying) {
    rig.load(1000);
    rig.seek(500);
    rig.settle();
    rig.state.setPlaying(true, rig.now);
    for (int work = 0; work < 100 && rig.nextWork().kind != Kind::wait; ++work) {
        EXPECT_NE(rig.nextWork().kind, Kind::readAhead);
        rig.decode();
    }
    rig.now += 1s;
    EXPECT_NE(rig.nextWork().kind, Kind::readAhead);
}

TEST_F(PlaybackRules, decodeNothingWhileAllUpToTheEndIsAtHand) {
    rig.load(30);
    ASSERT_EQ(rig.cache.coveredUntil(0_ticks, kFrameSize), Ticks::forever());
    rig.decoder.position = 0_ticks;
    rig.state.setPlaying(true, rig.now);
    while (rig.nextWork().kind == Kind::queue)
        rig.decode();
    EXPECT_EQ(rig.nextWork().kind, Kind::wait);
}

TEST_F(PlaybackRules, keepTheDecoderUntilEverythingIsReadAhead) {
    rig.load(1000);
    rig.seek(500);
    rig.settle();
    rig.decoder.isOverBudget = true;
    EXPECT_NE(rig.nextWork().kind, Kind::releaseDecoder);
    rig.pass(1s);
    EXPECT_EQ(rig.state.statistics().decodersGivenUp, 1U);
}

// Sizes.

TEST_F(PlaybackRules, drawAPictureOnceThatComesOutInAnotherSize) {
    rig.load(100);
    rig.state.setPreviewSize({kOtherFrameSize.width, kOtherFrameSize.height});
    const DecodeWork work = rig.nextWork();
    ASSERT_EQ(work.kind, Kind::redraw);
    rig.state.frameArrived(work, ticksOf(1));
    EXPECT_NE(rig.nextWork().kind, Kind::redraw);
}

TEST_F(PlaybackRules, drawTheLastPictureInANewSizeWhereNothingFollowsWhilePlaying) {
    rig.load(120);
    for (int frame = 80; frame < 120; ++frame)
        rig.damaged.insert(frame);
    rig.state.setPlaying(true, rig.now);
    rig.pass(3s);
    rig.state.setPreviewSize({kOtherFrameSize.width, kOtherFrameSize.height});
    rig.pass(10ms);
    EXPECT_EQ(rig.state.shown().image->width, kOtherFrameSize.width);
}

TEST_F(PlaybackRules, tryAnewToDrawTheFirstFrameOfANewItem) {
    rig.load(100);
    rig.damaged = {0};
    rig.state.setPreviewSize({kOtherFrameSize.width, kOtherFrameSize.height});
    rig.settle();
    rig.damaged.clear();
    rig.decoder.mustRest = true;
    rig.state.replaceItem(rig.item = makeItem(100), rig.now);
    rig.pass(100ms);
    rig.state.setPreviewSize({kFrameSize.width, kFrameSize.height});
    rig.pass(100ms);
    EXPECT_EQ(rig.state.shown().image->width, kFrameSize.width);
}

// Observers.

TEST_F(PlaybackRules, tellObserversOnAfterAJumpThatOvertookABoundary) {
    rig.load(1000);
    rig.state.addObserver(1, Time{60, 600}, rig.now);
    rig.state.setPlaying(true, rig.now);
    rig.pass(95ms);
    rig.now += 10ms;
    rig.present();
    rig.seek(300);
    rig.answer();
    rig.events.clear();
    rig.pass(250ms);
    EXPECT_THAT(rig.events, ElementsAre("jump", "tick", "tick"));
}

TEST_F(PlaybackRules, takeAJumpForNoBoundaryOfItsOwn) {
    rig.load(1000);
    rig.state.addObserver(1, Time{600, 600}, rig.now);
    rig.state.setPlaying(true, rig.now);
    rig.seek(309);
    rig.pass(500ms);
    EXPECT_THAT(rig.events, ElementsAre("jump"));
    rig.pass(300ms);
    EXPECT_THAT(rig.events, ElementsAre("jump", "tick"));
}

TEST_F(PlaybackRules, standOnTheFrameOfTheClockWhenPausedAfterFramesOnTheWayOnly) {
    rig.load(900);
    playWithEmptyCache();
    rig.now += 500ms;
    const DecodeWork work = rig.nextWork();
    ASSERT_EQ(work.target.earliest, ticksOf(15));
    rig.state.lateFrameArrived(work, renderedFrame(rig.frameOf(5)), rig.now);
    rig.present();
    rig.state.setPlaying(false, rig.now);
    rig.pass(1s);
    EXPECT_EQ(rig.shownFrame(), 15);
}

TEST_F(PlaybackRules, showTheLastFrameAtTheEndThoughDecodingWasBehind) {
    rig.load(30);
    playWithEmptyCache();
    rig.now += 500ms;
    const DecodeWork work = rig.nextWork();
    rig.state.lateFrameArrived(work, renderedFrame(rig.frameOf(5)), rig.now);
    rig.present();
    rig.now += 600ms;
    rig.present();
    rig.pass(1s);
    EXPECT_EQ(rig.endCount, 1);
    EXPECT_EQ(rig.shownFrame(), 29);
}

TEST_F(PlaybackRules, renderNoFrameOnTheWayThatLiesBeforeTheOneOnShow) {
    rig.load(900);
    rig.seek(450);
    rig.settle();
    playWithEmptyCache();
    rig.now += 100ms;
    const DecodeWork work = rig.nextWork();
    ASSERT_EQ(work.kind, Kind::decodeAhead);
    EXPECT_FALSE(rig.state.wantsLateFrame(work, ticksOf(449), rig.now));
    EXPECT_TRUE(rig.state.wantsLateFrame(work, ticksOf(451), rig.now));
    rig.state.setPlaying(false, rig.now);
    EXPECT_FALSE(rig.state.wantsLateFrame(work, ticksOf(451), rig.now)) << "it stands";
}

TEST_F(PlaybackRules, stepBackFromAFrameThatIsKnownFromItsMiddleOn) {
    rig.load(900);
    playWithEmptyCache();
    rig.now += 510ms;
    const DecodeWork work = rig.nextWork();
    // Where frames were left out on the way, the one found is known from the target on.
    auto frame = rig.frameOf(15);
    frame.range.begin = work.target.earliest;
    ASSERT_GT(frame.range.begin, ticksOf(15));
    rig.cache.insert(rig.item.get(), frame);
    rig.state.nextFrameArrived(work, renderedFrame(frame), rig.now);
    rig.present();
    rig.state.setPlaying(false, rig.now);
    rig.settle();
    rig.state.beginStep(-1);
    rig.pass(10ms);
    EXPECT_EQ(rig.shownFrame(), 14);
}

TEST_F(PlaybackRules, tryOnceToBringTheDecoderToWhereNothingDecodes) {
    rig.load(300);
    const Ticks missing = rig.cache.coveredUntil(Ticks(0), kFrameSize);
    rig.decoder.position = Ticks(0);
    rig.state.setPlaying(true, rig.now);
    while (rig.nextWork().kind == Kind::queue)
        rig.decode();
    const DecodeWork work = rig.nextWork();
    ASSERT_EQ(work.kind, Kind::positionDecoder);
    ASSERT_EQ(work.target.earliest, missing);
    rig.state.frameFailed(work, rig.now);
    EXPECT_EQ(rig.nextWork().kind, Kind::wait);
    rig.pass(200ms);
    EXPECT_GT(rig.shownFrame(), 3) << "the frames at hand are shown";
}

} // namespace
