#include "PlaybackRig.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

/// The rules of playback, with a clock that goes by hand and no thread.
namespace {

using namespace std::chrono_literals;
using media::Ticks;
using media::Time;
using media::playback::DecodeWork;
using media::playback::FrameToShow;
using media::playback::Presentation;
using media::playback::SoundStart;
using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using Kind = DecodeWork::Kind;

constexpr Time kNoTolerance{};

Time timeOf(int frame) {
    return {frame * kFrameLength.count(), 600};
}

class PlaybackStateTest : public testing::Test {
protected:
    PlaybackRig rig;
};

TEST_F(PlaybackStateTest, showsTheFirstFrameOfAnItemAndDoesNotPlayIt) {
    rig.item = makeItem(100);
    rig.frameCount = 100;
    rig.state.replaceItem(rig.item, rig.now);
    EXPECT_EQ(rig.nextWork().kind, Kind::open);
    rig.pass(500ms);
    EXPECT_THAT(rig.takeShown(), ElementsAre(0));
    EXPECT_THAT(rig.events, ElementsAre("jump"));
    EXPECT_EQ(rig.seconds(), 0);
}

TEST_F(PlaybackStateTest, hasNoTimeAndTakesNoSeekWithoutAnItem) {
    EXPECT_FALSE(rig.state.time(rig.now).isNumeric());
    EXPECT_FALSE(rig.state.beginSeek(timeOf(3), kNoTolerance, kNoTolerance, rig.now));
    rig.state.beginStep(1, rig.now);
    rig.settle();
    EXPECT_THAT(rig.events, IsEmpty());
}

// Seeks.

TEST_F(PlaybackStateTest, goesToTheFrameAtExactlyTheTimeOfASeek) {
    rig.load(100);
    for (const Time time : {timeOf(57), Time{57 * 20 + 19, 600}, timeOf(0), timeOf(99)}) {
        const auto generation = rig.state.beginSeek(time, kNoTolerance, kNoTolerance, rig.now);
        rig.settle();
        EXPECT_EQ(rig.shownFrame(), time.value / 20);
        EXPECT_EQ(rig.arrivedGenerations.back(), generation);
        EXPECT_EQ(rig.state.time(rig.now), time) << "the clock stands where it was sent";
    }
}

TEST_F(PlaybackStateTest, clampsSeeksToTheItem) {
    rig.load(100);
    rig.state.beginSeek(timeOf(500), kNoTolerance, kNoTolerance, rig.now);
    rig.settle();
    EXPECT_EQ(rig.shownFrame(), 99);
    EXPECT_EQ(rig.state.time(rig.now), timeOf(100));
    rig.state.beginSeek(Time{-600, 600}, kNoTolerance, kNoTolerance, rig.now);
    rig.settle();
    EXPECT_EQ(rig.shownFrame(), 0);
}

TEST_F(PlaybackStateTest, dropsASeekThatAnotherOvertakesWhileItIsDecoded) {
    rig.load(300);
    rig.seek(150);
    std::uint64_t second = 0;
    rig.duringDecode = [&] { second = rig.seek(200); };
    rig.settle();
    EXPECT_THAT(rig.takeShown(), ElementsAre(200));
    EXPECT_EQ(rig.arrivedGenerations.back(), second);
    EXPECT_THAT(rig.events, ElementsAre("jump"));
}

TEST_F(PlaybackStateTest, dropsASeekThatAnotherOvertakesWhileItsPictureIsMade) {
    rig.load(300);
    rig.seek(150);
    rig.decode();
    const Presentation next = rig.state.nextPresentation(rig.now);
    const auto& frame = std::get<FrameToShow>(next);
    rig.seek(200);
    rig.state.frameRendered(frame, renderedFrame(frame.frame), rig.now);
    EXPECT_NE(rig.shownFrame(), 150);
    rig.settle();
    EXPECT_THAT(rig.takeShown(), ElementsAre(200));
}

TEST_F(PlaybackStateTest, takesTheCheapestFrameWithinATolerance) {
    rig.load(300);
    rig.state.beginSeek(timeOf(150), Time{600, 600}, Time{600, 600}, rig.now);
    const DecodeWork work = rig.nextWork();
    EXPECT_EQ(work.kind, Kind::seekNear);
    EXPECT_EQ(work.target, (media::playback::SeekTarget{Ticks(120 * 20), Ticks(180 * 20)}));
    rig.settle();
    EXPECT_EQ(rig.shownFrame(), 150);
    EXPECT_EQ(rig.state.time(rig.now), timeOf(150)) << "the time is that of the frame found";
}

TEST_F(PlaybackStateTest, showsSomethingNearerWhileASeekTakesLong) {
    rig.load(300);
    rig.cache.insert(rig.item.get(), cachedFrame(2800_ticks, 2820_ticks));
    rig.seek(150);
    rig.now += 49ms;
    rig.present();
    EXPECT_THAT(rig.takeShown(), IsEmpty());
    rig.now += 1ms;
    rig.present();
    EXPECT_THAT(rig.takeShown(), ElementsAre(140)) << "nearer than the first frame";
    rig.cache.insert(rig.item.get(), cachedFrame(2900_ticks, 2920_ticks));
    rig.now += 199ms;
    rig.present();
    EXPECT_THAT(rig.takeShown(), IsEmpty()) << "no oftener than five times a second";
    rig.now += 1ms;
    rig.present();
    EXPECT_THAT(rig.takeShown(), ElementsAre(145));
    EXPECT_EQ(rig.state.time(rig.now), timeOf(150));
}

TEST_F(PlaybackStateTest, doesNotWaitAnewWhenASeekOvertakesOneThatIsSlow) {
    rig.load(300);
    rig.seek(150);
    rig.now += 40ms;
    rig.seek(151);
    rig.cache.insert(rig.item.get(), cachedFrame(2800_ticks, 2820_ticks));
    rig.now += 10ms;
    rig.present();
    EXPECT_THAT(rig.takeShown(), ElementsAre(140));
}

TEST_F(PlaybackStateTest, keepsItsPictureWhereNothingDecodes) {
    rig.load(600);
    rig.damaged = {450};
    const std::uint64_t generation = rig.seek(450);
    rig.settle();
    EXPECT_EQ(rig.shownFrame(), 0);
    EXPECT_EQ(rig.arrivedGenerations.back(), generation) << "the seek is answered all the same";
    EXPECT_EQ(rig.state.time(rig.now), timeOf(450));
}

TEST_F(PlaybackStateTest, leavesEverythingAsItIsForAnInvalidTime) {
    rig.load(100);
    rig.seek(40);
    EXPECT_FALSE(rig.state.beginSeek(Time::invalid(), kNoTolerance, kNoTolerance, rig.now));
    rig.settle();
    EXPECT_EQ(rig.shownFrame(), 40);
}

// Steps.

TEST_F(PlaybackStateTest, stepsFromFrameToFrameAndStopsAtEitherEnd) {
    rig.load(5);
    for (const auto& [count, expected] : {std::pair{1, 1}, {3, 4}, {2, 4}, {-1, 3}, {-9, 0}}) {
        rig.state.beginStep(count, rig.now);
        rig.settle();
        EXPECT_EQ(rig.shownFrame(), expected) << "after " << count;
        EXPECT_EQ(rig.state.time(rig.now), timeOf(expected));
    }
}

TEST_F(PlaybackStateTest, stepsFromTheFrameOfASeekThatIsStillOnItsWay) {
    rig.load(300);
    rig.seek(150);
    rig.state.beginStep(2, rig.now);
    rig.state.beginStep(-1, rig.now);
    rig.settle();
    EXPECT_EQ(rig.shownFrame(), 151);
}

TEST_F(PlaybackStateTest, dropsStepsThatASeekOvertakes) {
    rig.load(300);
    rig.state.beginStep(100, rig.now);
    rig.decode();
    rig.seek(7);
    rig.settle();
    EXPECT_EQ(rig.shownFrame(), 7);
}

TEST_F(PlaybackStateTest, endsAStepBeforeAFrameThatDoesNotDecode) {
    rig.load(100);
    rig.seek(50);
    rig.settle();
    rig.damaged = {80};
    rig.state.beginStep(40, rig.now);
    rig.settle();
    EXPECT_EQ(rig.shownFrame(), 79);
}

// Playing.

TEST_F(PlaybackStateTest, showsEveryFrameInOrderWhilePlaying) {
    rig.load(90);
    rig.state.setPlaying(true, rig.now);
    rig.pass(1s);
    const std::vector<int> shown = rig.takeShown();
    ASSERT_EQ(shown.size(), 29U);
    for (std::size_t i = 0; i < shown.size(); ++i)
        EXPECT_EQ(shown[i], static_cast<int>(i) + 1);
    EXPECT_EQ(rig.state.statistics().late, 0U);
    EXPECT_EQ(rig.state.statistics().dropped, 0U);
}

TEST_F(PlaybackStateTest, waitsForTheSoundOnlySoLong) {
    rig.load(90);
    rig.hasSound = true;
    rig.state.setPlaying(true, rig.now);
    rig.pass(999ms);
    EXPECT_EQ(rig.seconds(), 0);
    rig.pass(101ms);
    EXPECT_NEAR(rig.seconds(), 0.1, 0.002);
}

TEST_F(PlaybackStateTest, followsTheSoundOnceItIsHeard) {
    rig.load(90);
    rig.hasSound = true;
    rig.state.setPlaying(true, rig.now);
    rig.settle();
    const auto run = rig.state.nextSoundRun(0, rig.now);
    ASSERT_TRUE(run && run->isWanted);
    EXPECT_EQ(rig.state.soundStart(run->number), SoundStart::now);
    rig.pass(300ms);
    EXPECT_TRUE(rig.state.soundHeard(run->number, false, Time{60, 600}, rig.now));
    EXPECT_NEAR(rig.seconds(), 0.1, 0.001);
    EXPECT_EQ(rig.state.soundStart(run->number), SoundStart::late);
    rig.seek(50);
    EXPECT_EQ(rig.state.soundStart(run->number), SoundStart::notYet) << "that run is over";
    EXPECT_FALSE(rig.state.soundHeard(run->number, true, Time{120, 600}, rig.now));
    EXPECT_TRUE(run->stop.stop_requested() || [&] {
        for (std::stop_source& work : rig.state.takeDeferredWork().staleWork)
            work.request_stop();
        return run->stop.stop_requested();
    }());
}

TEST_F(PlaybackStateTest, startsTheClockOnlyWhenThePictureOfASeekIsThere) {
    rig.load(300);
    rig.state.setPlaying(true, rig.now);
    rig.pass(100ms);
    rig.seek(150);
    rig.state.runWithoutSound(rig.state.nextSoundRun(0, rig.now)->number, rig.now);
    EXPECT_FALSE(rig.state.isClockRunning());
    rig.pass(100ms);
    EXPECT_NEAR(rig.seconds(), 5.1, 0.005);
}

TEST_F(PlaybackStateTest, endsOnceAndStandsAtTheEnd) {
    rig.load(15);
    rig.state.setPlaying(true, rig.now);
    rig.pass(700ms);
    EXPECT_EQ(rig.endCount, 1);
    EXPECT_FALSE(rig.state.isPlaying());
    EXPECT_EQ(rig.state.time(rig.now), timeOf(15));
    EXPECT_EQ(rig.shownFrame(), 14);
    rig.state.setPlaying(true, rig.now);
    rig.settle();
    EXPECT_EQ(rig.endCount, 2) << "played at the end it ends at once";
}

TEST_F(PlaybackStateTest, forgetsAnEndThatASeekOvertakes) {
    rig.load(15);
    rig.state.setPlaying(true, rig.now);
    rig.pass(480ms);
    rig.now += 40ms;
    rig.present();
    rig.seek(3);
    rig.answer();
    EXPECT_EQ(rig.endCount, 0);
    EXPECT_TRUE(rig.state.isPlaying());
    rig.pass(100ms);
    EXPECT_NEAR(rig.seconds(), 0.2, 0.005);
}

TEST_F(PlaybackStateTest, goesRoundWhenSentBackAtTheEnd) {
    rig.load(15);
    rig.state.setPlaying(true, rig.now);
    for (int round = 1; round <= 3; ++round) {
        while (rig.endCount < round)
            rig.pass(1ms);
        rig.takeShown();
        rig.seek(0);
        rig.state.setPlaying(true, rig.now);
        rig.settle();
        EXPECT_THAT(rig.takeShown(), ElementsAre(0));
    }
    rig.pass(100ms);
    EXPECT_THAT(rig.takeShown(), ElementsAre(1, 2, 3));
}

TEST_F(PlaybackStateTest, standsOnTheFrameOfItsTimeWhenPaused) {
    rig.load(90);
    rig.state.setPlaying(true, rig.now);
    rig.pass(500ms);
    // Decoding has fallen behind when it is paused.
    rig.now += 300ms;
    rig.present();
    rig.state.setPlaying(false, rig.now);
    rig.settle();
    EXPECT_NEAR(rig.seconds(), 0.8, 0.002);
    EXPECT_EQ(rig.shownFrame(), 23);
}

TEST_F(PlaybackStateTest, playsOnWithItsLastPictureWhereNothingDecodes) {
    rig.load(120);
    for (int frame = 80; frame < 120; ++frame)
        rig.damaged.insert(frame);
    rig.state.setPlaying(true, rig.now);
    rig.pass(4100ms);
    EXPECT_EQ(rig.shownFrame(), 79);
    EXPECT_EQ(rig.endCount, 1);
}

TEST_F(PlaybackStateTest, decodesOnFromWhereTheFramesAtHandEndWhilePlaying) {
    rig.load(300);
    const Ticks missing = rig.cache.coveredUntil(0_ticks, kFrameSize);
    ASSERT_GE(missing, 600_ticks);
    rig.decoder.position = 0_ticks;
    rig.state.setPlaying(true, rig.now);
    while (rig.nextWork().kind == Kind::queue)
        rig.decode();
    const DecodeWork work = rig.nextWork();
    EXPECT_EQ(work.kind, Kind::positionDecoder);
    EXPECT_EQ(work.target.earliest, missing);
}

// New items.

TEST_F(PlaybackStateTest, takesNoFrameOfAnItemThatIsGone) {
    rig.load(300);
    rig.seek(150);
    rig.duringDecode = [&] {
        rig.item = makeItem(10);
        rig.state.replaceItem(rig.item, rig.now);
    };
    rig.decode();
    rig.frameCount = 10;
    rig.settle();
    EXPECT_THAT(rig.takeShown(), ElementsAre(0));
    EXPECT_EQ(rig.seconds(), 0);
    EXPECT_FALSE(rig.cache.find(Ticks(150 * 20), kFrameSize));
}

TEST_F(PlaybackStateTest, playsANewItemFromItsStartWhilePlaying) {
    rig.load(90);
    rig.state.setPlaying(true, rig.now);
    rig.pass(500ms);
    rig.item = makeItem(60);
    rig.frameCount = 60;
    rig.state.replaceItem(rig.item, rig.now);
    rig.takeShown();
    rig.pass(100ms);
    EXPECT_THAT(rig.takeShown(), ElementsAre(0, 1, 2));
}

TEST_F(PlaybackStateTest, showsNothingOnceItsItemIsTakenAway) {
    rig.load(90);
    rig.state.setPlaying(true, rig.now);
    rig.pass(100ms);
    rig.takeShown();
    rig.state.replaceItem(nullptr, rig.now);
    rig.pass(100ms);
    EXPECT_THAT(rig.takeShown(), ElementsAre(-1));
    EXPECT_FALSE(rig.state.time(rig.now).isNumeric());
}

TEST_F(PlaybackStateTest, stopsTheDecodingOfAnItemThatIsGoneButNotOfASeekThatIsOvertaken) {
    rig.load(300);
    rig.state.takeDeferredWork();
    rig.seek(100);
    const DecodeWork work = rig.nextWork();
    rig.seek(200);
    for (std::stop_source& stale : rig.state.takeDeferredWork().staleWork)
        stale.request_stop();
    EXPECT_FALSE(work.stop.stop_requested()) << "it may be on the way to the next";
    rig.state.replaceItem(makeItem(3), rig.now);
    for (std::stop_source& stale : rig.state.takeDeferredWork().staleWork)
        stale.request_stop();
    EXPECT_TRUE(work.stop.stop_requested());
}

// Sizes.

TEST_F(PlaybackStateTest, drawsTheFrameOnShowAgainInANewSize) {
    rig.load(90);
    rig.state.setPreviewSize({kOtherFrameSize.width, kOtherFrameSize.height});
    const DecodeWork work = rig.nextWork();
    EXPECT_EQ(work.kind, Kind::redraw);
    EXPECT_EQ(work.imageSize, kOtherFrameSize);
    rig.settle();
    EXPECT_THAT(rig.takeShown(), ElementsAre(0));
    EXPECT_EQ(rig.state.shown().image->width, kOtherFrameSize.width);
    EXPECT_THAT(rig.events, IsEmpty()) << "that is no jump";
}

TEST_F(PlaybackStateTest, triesOnceToDrawAFrameThatDoesNotDecodeAnyMore) {
    rig.load(90);
    rig.damaged = {0};
    rig.state.setPreviewSize({kOtherFrameSize.width, kOtherFrameSize.height});
    rig.decode();
    EXPECT_NE(rig.nextWork().kind, Kind::redraw);
}

TEST_F(PlaybackStateTest, leavesANewSizeToTheNextFrameWhilePlaying) {
    rig.load(90);
    rig.state.setPlaying(true, rig.now);
    rig.pass(200ms);
    rig.state.setPreviewSize({kOtherFrameSize.width, kOtherFrameSize.height});
    EXPECT_NE(rig.nextWork().kind, Kind::redraw);
    rig.pass(400ms);
    EXPECT_EQ(rig.state.shown().image->width, kOtherFrameSize.width);
}

TEST_F(PlaybackStateTest, showsItsFrameToANewSink) {
    rig.load(90);
    rig.seek(8);
    rig.settle();
    rig.takeShown();
    rig.state.setSink(nullptr);
    rig.settle();
    EXPECT_THAT(rig.takeShown(), IsEmpty());

    class : public media::VideoSink {
        void present(const media::TimedImage& /*frame*/) override {}
    } sink;

    rig.state.setSink(&sink);
    rig.settle();
    EXPECT_THAT(rig.takeShown(), ElementsAre(8));
}

// What nobody has asked for yet.

TEST_F(PlaybackStateTest, readsAheadAfterARestButNotWhilePlaying) {
    rig.load(1000);
    rig.seek(500);
    while (rig.nextWork().kind == Kind::seek)
        rig.decode();
    rig.present();
    EXPECT_EQ(rig.nextWork().kind, Kind::wait) << "more may be about to happen";
    rig.now += 150ms;
    EXPECT_EQ(rig.nextWork().kind, Kind::readAhead);
    rig.decoder.mustRest = true;
    EXPECT_EQ(rig.nextWork().kind, Kind::wait) << "something needs the processor";
    rig.decoder.mustRest = false;
    rig.state.setPlaying(true, rig.now);
    EXPECT_NE(rig.nextWork().kind, Kind::readAhead);
}

TEST_F(PlaybackStateTest, givesItsDecoderUpWhenItIsDoneAndOthersNeedTheMemory) {
    rig.load(30);
    rig.decoder.isOverBudget = true;
    rig.pass(1s);
    EXPECT_EQ(rig.state.statistics().decodersGivenUp, 1U);
    rig.decoder.isOverBudget = true;
    rig.state.setPlaying(true, rig.now);
    rig.pass(100ms);
    EXPECT_EQ(rig.state.statistics().decodersGivenUp, 1U) << "one that plays needs it";
}

// Observers.

TEST_F(PlaybackStateTest, tellsObserversOfEveryIntervalThatPasses) {
    rig.load(90);
    rig.state.addObserver(1, Time{60, 600}, rig.now);
    rig.state.setPlaying(true, rig.now);
    rig.pass(450ms);
    EXPECT_THAT(rig.events, ElementsAre("tick", "tick", "tick", "tick"));
    rig.state.removeObserver(1);
    rig.pass(450ms);
    EXPECT_EQ(rig.events.size(), 4U);
}

TEST_F(PlaybackStateTest, tellsNobodyOfABoundaryFromBeforeAJump) {
    rig.load(90);
    rig.state.addObserver(1, Time{60, 600}, rig.now);
    rig.state.setPlaying(true, rig.now);
    rig.pass(95ms);
    rig.now += 10ms;
    rig.present();
    rig.seek(40);
    rig.answer();
    EXPECT_THAT(rig.events, Not(Contains("tick")));
}

} // namespace
