#include "PlaybackRules.h"

#include <memory>

/// Playing while decoding is behind the clock.
namespace {

using namespace std::chrono_literals;
using media::Ticks;
using media::playback::DecodeWork;
using testing::ElementsAre;
using testing::IsEmpty;
using Kind = DecodeWork::Kind;

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
    rig.state.beginStep(1, rig.now);
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
    rig.state.beginStep(-1, rig.now);
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
