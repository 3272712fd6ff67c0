#include "PlaybackRig.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <variant>

/// Whom the rules of playback wake: here each thread sleeps, as the real ones do, until it is woken
/// or until the time at which it said that it would look again.
namespace {

using namespace std::chrono_literals;
using media::Ticks;
using media::Time;
using media::playback::DecodeWork;
using media::playback::DeferredWork;
using media::playback::FrameToShow;
using media::playback::Presentation;
using media::playback::SteadyTime;
using media::playback::Wakes;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr Time kNoTolerance{};

class SleepingThreads : public testing::Test {
protected:
    /// An item at rest: its first frame on show, everything read ahead, all threads asleep.
    void load(int frameCount) {
        rig.load(frameCount);
        rig.takeShown();
        m_decodingUntil = m_presentingUntil = rig.now;
        pass(1s);
        rig.takeShown();
        rig.events.clear();
    }

    /// What is awake works until everything sleeps again.
    void settle() {
        for (int round = 0; round < 10'000; ++round) {
            hear(rig.state.takeDeferredWork().wakes);
            if (!(decode() | present() | sound()))
                return;
        }
        FAIL() << "The threads wake one another without end.";
    }

    void pass(std::chrono::milliseconds time) {
        for (auto each = 0ms; each < time; each += 1ms) {
            rig.now += 1ms;
            settle();
            rig.answer();
            settle();
        }
    }

    PlaybackRig rig;

private:
    void hear(const Wakes& wakes) {
        m_awake.decoding |= wakes.decoding;
        m_awake.presenting |= wakes.presenting;
        m_awake.sound |= wakes.sound;
    }

    bool decode() {
        if (!std::exchange(m_awake.decoding, false) && rig.now < m_decodingUntil)
            return false;
        for (DecodeWork work = rig.nextWork(); work.kind != DecodeWork::Kind::wait;
             work = rig.nextWork()) {
            rig.decode();
            m_decodingUntil = rig.now;
        }
        m_decodingUntil = rig.nextWork().until;
        return true;
    }

    bool present() {
        if (!std::exchange(m_awake.presenting, false) && rig.now < m_presentingUntil)
            return false;
        rig.present();
        const Presentation next = rig.state.nextPresentation(rig.now);
        m_presentingUntil = std::get<SteadyTime>(next);
        return true;
    }

    bool sound() {
        if (!std::exchange(m_awake.sound, false))
            return false;
        rig.letSoundWork();
        return true;
    }

    Wakes m_awake;
    SteadyTime m_decodingUntil;
    SteadyTime m_presentingUntil;
};

TEST_F(SleepingThreads, showANewItem) {
    rig.item = makeItem(100);
    rig.frameCount = 100;
    rig.state.replaceItem(rig.item, rig.now);
    pass(1ms);
    EXPECT_THAT(rig.takeShown(), ElementsAre(0));
    EXPECT_THAT(rig.events, ElementsAre("jump"));
}

TEST_F(SleepingThreads, showTheFrameOfASeekAtOnceWhetherItIsAtHandOrNot) {
    load(1000);
    for (const int frame : {700, 5, 6, 999}) {
        rig.seek(frame);
        pass(1ms);
        EXPECT_THAT(rig.takeShown(), ElementsAre(frame));
        pass(2s);
    }
}

TEST_F(SleepingThreads, showTheFrameOfASeekWithATolerance) {
    load(1000);
    rig.state.beginSeek(Time{12000, 600}, Time{60, 600}, Time{60, 600}, rig.now);
    pass(1ms);
    EXPECT_THAT(rig.takeShown(), ElementsAre(600));
}

TEST_F(SleepingThreads, answerASeekToWhereNothingDecodes) {
    load(1000);
    rig.damaged = {600};
    rig.seek(600);
    pass(1ms);
    EXPECT_THAT(rig.events, ElementsAre("jump"));
}

TEST_F(SleepingThreads, showWhereAStepGoesWhetherItIsAtHandOrNot) {
    load(1000);
    for (const auto& [count, expected] : {std::pair{1, 1}, {900, 901}, {-1, 900}}) {
        rig.state.beginStep(count, rig.now);
        pass(1ms);
        EXPECT_EQ(rig.shownFrame(), expected);
        pass(2s);
    }
}

TEST_F(SleepingThreads, endAStepBeforeAFrameThatDoesNotDecode) {
    load(1000);
    rig.damaged = {600};
    rig.state.beginStep(700, rig.now);
    pass(1ms);
    EXPECT_EQ(rig.shownFrame(), 599);
}

TEST_F(SleepingThreads, playEveryFrameAndNoticeTheEnd) {
    load(60);
    rig.state.setPlaying(true, rig.now);
    pass(2100ms);
    const std::vector<int> shown = rig.takeShown();
    EXPECT_EQ(shown.size(), 59U) << "but the first, which was on show already";
    EXPECT_EQ(rig.state.statistics().late, 0U);
    EXPECT_EQ(rig.state.statistics().dropped, 0U);
    EXPECT_EQ(rig.endCount, 1);
}

TEST_F(SleepingThreads, playOnFromASeek) {
    load(1000);
    rig.state.setPlaying(true, rig.now);
    pass(500ms);
    rig.seek(600);
    pass(110ms);
    EXPECT_NEAR(rig.seconds(), 20.11, 0.002);
    EXPECT_EQ(rig.shownFrame(), 603);
}

TEST_F(SleepingThreads, playWhenNoSoundComes) {
    load(1000);
    rig.hasSound = true;
    rig.state.setPlaying(true, rig.now);
    pass(1500ms);
    EXPECT_NEAR(rig.seconds(), 0.5, 0.002);
    EXPECT_EQ(rig.shownFrame(), 15);
}

TEST_F(SleepingThreads, playAsSoonAsTheSoundIsHeard) {
    load(1000);
    rig.hasSound = true;
    rig.state.setPlaying(true, rig.now);
    pass(300ms);
    const auto run = rig.state.nextSoundRun(0, rig.now);
    ASSERT_TRUE(rig.state.soundHeard(run->number, false, Time{60, 600}, rig.now));
    pass(1ms);
    EXPECT_EQ(rig.shownFrame(), 3);
}

TEST_F(SleepingThreads, giveTheSoundTheRunThatAPauseOrASeekBegins) {
    load(1000);
    rig.state.setPlaying(true, rig.now);
    pass(100ms);
    for (const auto& change : std::vector<std::function<void()>>{
             [&] { rig.seek(400); }, [&] { rig.state.setPlaying(false, rig.now); }}) {
        rig.state.takeDeferredWork();
        change();
        EXPECT_TRUE(rig.state.takeDeferredWork().wakes.sound);
    }
}

TEST_F(SleepingThreads, tellTheSoundWhenThePictureIsThere) {
    load(1000);
    rig.state.setPlaying(true, rig.now);
    pass(100ms);
    rig.seek(400);
    rig.letSoundWork();
    ASSERT_FALSE(rig.state.isClockRunning()) << "it sleeps until the picture is there";
    rig.decodeAll();
    rig.state.takeDeferredWork();
    rig.present();
    EXPECT_TRUE(rig.state.takeDeferredWork().wakes.sound);
}

TEST_F(SleepingThreads, tellAnObserverThatComesWhilePlaying) {
    load(1000);
    rig.state.setPlaying(true, rig.now);
    pass(500ms);
    // Nothing else is due for long: the frames that follow don't decode.
    for (int frame = 0; frame < 1000; ++frame)
        rig.damaged.insert(frame);
    rig.cache.begin(rig.item.get());
    pass(1s);
    rig.state.addObserver(1, Time{60, 600}, rig.now);
    pass(450ms);
    EXPECT_THAT(rig.events, ElementsAre("tick", "tick", "tick", "tick", "tick"));
}

TEST_F(SleepingThreads, drawTheFrameOnShowInANewSize) {
    load(1000);
    rig.state.setPreviewSize({kOtherFrameSize.width, kOtherFrameSize.height});
    pass(1ms);
    EXPECT_EQ(rig.state.shown().image->width, kOtherFrameSize.width);
    pass(1s);
    rig.state.setPreviewSize({kFrameSize.width, kFrameSize.height});
    pass(1ms);
    EXPECT_EQ(rig.state.shown().image->width, kFrameSize.width);
}

TEST_F(SleepingThreads, showANewSinkItsFrame) {
    load(1000);

    class : public media::VideoSink {
        void present(const media::TimedImage& /*frame*/) override {}
    } sink;

    rig.state.setSink(&sink);
    pass(1ms);
    EXPECT_THAT(rig.takeShown(), ElementsAre(0));
}

TEST_F(SleepingThreads, tellWhoWaitsForTheSink) {
    load(1000);
    rig.seek(3);
    bool wasDelivering = false;
    rig.onDelivery = [&](const auto& /*delivery*/) {
        wasDelivering = rig.state.isDelivering();
        rig.state.takeDeferredWork();
    };
    rig.present();
    EXPECT_TRUE(wasDelivering);
    EXPECT_FALSE(rig.state.isDelivering());
    EXPECT_TRUE(rig.state.takeDeferredWork().wakes.sinkIsFree);
}

TEST_F(SleepingThreads, readAheadAfterASeekByItself) {
    load(2000);
    rig.seek(1000);
    pass(10s);
    EXPECT_GE(rig.cache.coveredUntil(Ticks(1000 * 20), kFrameSize), Ticks(1060 * 20));
}

TEST_F(SleepingThreads, goOnReadingAheadOnceTheProcessorIsFree) {
    load(2000);
    rig.decoder.mustRest = true;
    rig.seek(1000);
    pass(2s);
    ASSERT_EQ(rig.cache.coveredUntil(Ticks(1000 * 20), kFrameSize), Ticks(1001 * 20));
    rig.decoder.mustRest = false;
    pass(300ms);
    EXPECT_GE(rig.cache.coveredUntil(Ticks(1000 * 20), kFrameSize), Ticks(1060 * 20));
}

TEST_F(SleepingThreads, readAheadAroundNewPointsOfInterest) {
    load(2000);
    rig.state.setPointsOfInterest({Time{1500 * 20, 600}});
    pass(1ms);
    EXPECT_TRUE(rig.cache.find(Ticks(1500 * 20), kFrameSize));
}

TEST_F(SleepingThreads, showWhatASlowSeekPasses) {
    load(2000);
    rig.cache.begin(rig.item.get());
    rig.seek(1000);
    rig.state.takeDeferredWork();
    rig.present();
    rig.now += 60ms;
    const DecodeWork work = rig.nextWork();
    rig.present();
    ASSERT_THAT(rig.takeShown(), IsEmpty()) << "there is nothing nearer yet";
    rig.state.takeDeferredWork();
    rig.now += 41ms;
    ASSERT_TRUE(rig.state.wantsSubstitute(rig.now));
    rig.state.substituteArrived(
        work, std::make_shared<media::playback::CachedFrame>(rig.frameOf(900)), rig.now);
    EXPECT_TRUE(rig.state.takeDeferredWork().wakes.presenting);
    rig.present();
    EXPECT_THAT(rig.takeShown(), ElementsAre(900));
}

TEST_F(SleepingThreads, showAFrameThatIsPassedOnTheWayToTheClock) {
    load(1000);
    rig.cache.begin(rig.item.get());
    rig.state.setPlaying(true, rig.now);
    rig.present();
    rig.letSoundWork();
    rig.now += 500ms;
    const DecodeWork work = rig.nextWork();
    ASSERT_TRUE(rig.state.wantsLateFrame(work, 180_ticks, rig.now));
    rig.state.takeDeferredWork();
    rig.state.lateFrameArrived(work, renderedFrame(rig.frameOf(9)), rig.now);
    EXPECT_TRUE(rig.state.takeDeferredWork().wakes.presenting);
    rig.present();
    EXPECT_THAT(rig.takeShown(), Contains(9));
}

} // namespace
