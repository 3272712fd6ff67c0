#include "PlaybackRules.h"

#include <memory>
#include <variant>

/// Reports that come too late, jumps that fail while playing, and what may wait.
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

// Steps that wait, as behind a held key.

TEST_F(PlaybackRules, keepMoreOnTheWayWhereManyStepsBackWait) {
    const auto keptBefore = [this](int steps, int by) {
        rig.load(1000);
        rig.seek(500);
        rig.settle();
        rig.cache.begin(rig.item.get());
        for (int i = 0; i < steps; ++i)
            rig.state.beginStep(by, rig.now);
        rig.present();
        const DecodeWork work = rig.nextWork();
        EXPECT_EQ(work.kind, Kind::step);
        return work.target.earliest - work.completeFrom;
    };
    EXPECT_EQ(keptBefore(1, -1), Ticks(1200));
    EXPECT_EQ(keptBefore(8, -1), Ticks(1200));
    EXPECT_GT(keptBefore(9, -1), Ticks(2000));
    EXPECT_EQ(keptBefore(9, 1), Ticks(150)) << "those lie before all that is asked for";
}

// The way began anew, and all of it was decoded once more.
TEST_F(PlaybackRules, waitForWhatIsReadAheadWhereThatLeadsToAStepBack) {
    rig.load(1000);
    rig.seek(500);
    rig.settle();
    rig.cache.begin(rig.item.get());
    rig.cache.insert(rig.item.get(), rig.frameOf(499));
    rig.state.beginStep(-1, rig.now);
    rig.present();
    ASSERT_EQ(rig.shownFrame(), 499);
    rig.decoder.position = ticksOf(500);
    const DecodeWork begun = rig.nextWork();
    ASSERT_EQ(begun.kind, Kind::readAhead);
    ASSERT_LT(begun.target.earliest, ticksOf(498));
    rig.state.beginStep(-1, rig.now);
    rig.present();
    rig.decoder.position = ticksOf(450);
    const DecodeWork work = rig.nextWork();
    EXPECT_EQ(work.kind, Kind::readAhead);
    EXPECT_EQ(work.target.earliest, begun.target.earliest);
    EXPECT_EQ(work.endBehind, begun.endBehind);
    rig.cache.insert(rig.item.get(), rig.frameOf(498));
    rig.settle();
    EXPECT_EQ(rig.shownFrame(), 498);
}

// The two took turns for ever, each beginning anew.
TEST_F(PlaybackRules, goOnWithTheWayToAStepBackOnceItHasBegun) {
    rig.load(1000);
    rig.seek(500);
    rig.settle();
    rig.cache.begin(rig.item.get());
    rig.cache.insert(rig.item.get(), rig.frameOf(499));
    rig.state.beginStep(-1, rig.now);
    rig.present();
    rig.decoder.position = ticksOf(500);
    ASSERT_EQ(rig.nextWork().kind, Kind::readAhead);
    rig.state.beginStep(-1, rig.now);
    rig.present();
    EXPECT_EQ(rig.nextWork().kind, Kind::step) << "what is read ahead has not set out yet";
    for (const Ticks position : {Ticks::beginning(), ticksOf(300), ticksOf(497)}) {
        rig.decoder.position = position;
        EXPECT_EQ(rig.nextWork().kind, Kind::step);
    }
}

// Jumps.

TEST_F(PlaybackRules, goWhereTheFrameOfASeekWithToleranceWasFound) {
    rig.load(1000);
    rig.state.beginSeek(Time{10'000, 600}, Time{600, 600}, Time{600, 600}, rig.now);
    const DecodeWork work = rig.nextWork();
    ASSERT_EQ(work.kind, Kind::seekNear);
    rig.cache.insert(rig.item.get(), rig.frameOf(480));
    rig.state.nearFrameArrived(work, ticksOf(480));
    rig.settle();
    EXPECT_EQ(rig.shownFrame(), 480);
    EXPECT_EQ(rig.state.time(rig.now), (Time{9600, 600}));
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
    rig.state.beginStep(200, rig.now);
    rig.settle();
    rig.seek(7);
    rig.pass(500ms);
    EXPECT_EQ(rig.shownFrame(), 7);
    rig.state.beginStep(1, rig.now);
    rig.pass(100ms);
    EXPECT_EQ(rig.shownFrame(), 8) << "a later step begins anew";
}

TEST_F(PlaybackRules, playOnFromWhereAStepWent) {
    rig.load(1000);
    rig.state.setPlaying(true, rig.now);
    rig.pass(500ms);
    rig.state.setPlaying(false, rig.now);
    rig.settle();
    rig.state.beginStep(-10, rig.now);
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
    rig.state.beginStep(1, rig.now);
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

} // namespace
