#include "PlaybackRules.h"

/// What is shown while a seek takes long, until its frame is there.
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

class PlaybackGlance : public testing::Test {
protected:
    PlaybackGlance() { rig.load(3000); }

    /// Seeks with a frame at hand that may stand in; when it is expected to come.
    void seek(int frame, int standIn, std::optional<std::chrono::milliseconds> expected) {
        rig.cache.insert(rig.item.get(), rig.frameOf(standIn));
        rig.seek(frame);
        begun = rig.now;
        work = rig.nextWork();
        expect(expected);
    }

    void expect(std::optional<std::chrono::milliseconds> expected) {
        rig.state.expectArrival(work, expected ? std::optional(begun + *expected) : std::nullopt);
    }

    /// What is shown so long after the seek, which was not decoded yet.
    std::vector<int> shownAt(std::chrono::milliseconds time) {
        rig.now = begun + time;
        rig.present();
        rig.answer();
        return rig.takeShown();
    }

    PlaybackRig rig;
    PlaybackRig::SteadyTime begun;
    media::playback::DecodeWork work;
};

TEST_F(PlaybackGlance, comesSoonWhereTheFrameTakesLongOrNobodyKnowsHowLong) {
    seek(1500, 1400, std::nullopt);
    EXPECT_THAT(shownAt(49ms), IsEmpty());
    EXPECT_THAT(shownAt(50ms), ElementsAre(1400));
    rig.settle();
    rig.takeShown();
    seek(2500, 2400, 80ms);
    EXPECT_THAT(shownAt(49ms), IsEmpty());
    EXPECT_THAT(shownAt(50ms), ElementsAre(2400));
}

TEST_F(PlaybackGlance, doesNotFlashUpWhereTheFrameComesSoon) {
    seek(1500, 1400, 79ms);
    EXPECT_FALSE(rig.state.wantsSubstitute(begun + 69ms)) << "nor is it made";
    EXPECT_THAT(shownAt(79ms), IsEmpty());
    rig.settle();
    EXPECT_THAT(rig.takeShown(), ElementsAre(1500));
}

TEST_F(PlaybackGlance, comesAllTheSameWhereTheFrameWasExpectedTooSoon) {
    seek(1500, 1400, 60ms);
    EXPECT_THAT(shownAt(79ms), IsEmpty());
    EXPECT_THAT(shownAt(80ms), ElementsAre(1400));
    rig.settle();
    rig.takeShown();
    seek(2500, 2400, 60ms);
    EXPECT_THAT(shownAt(55ms), IsEmpty());
    expect(200ms);
    EXPECT_THAT(shownAt(56ms), ElementsAre(2400)) << "better is known by then";
}

TEST_F(PlaybackGlance, waitsNoLongerInADragForWhatIsExpectedOfItsLastSeek) {
    seek(1500, 1400, 60ms);
    rig.now += 40ms;
    rig.seek(1501);
    EXPECT_THAT(shownAt(50ms), ElementsAre(1400)) << "that was expected of the one before";
}

TEST_F(PlaybackGlance, isNeverFartherAwayThanWhatIsOnShow) {
    rig.seek(1000);
    rig.settle();
    rig.takeShown();
    rig.cache.begin(rig.item.get());
    // A key frame may lie beyond a cut.
    seek(1100, 990, std::nullopt);
    EXPECT_THAT(shownAt(60ms), IsEmpty());
    rig.state.substituteArrived(
        work, std::make_shared<media::playback::CachedFrame>(rig.frameOf(995)), rig.now);
    EXPECT_THAT(shownAt(61ms), IsEmpty());
    rig.state.substituteArrived(
        work, std::make_shared<media::playback::CachedFrame>(rig.frameOf(1010)), rig.now);
    EXPECT_THAT(shownAt(62ms), ElementsAre(1010));
}

TEST_F(PlaybackGlance, isNoArrival) {
    seek(1500, 1400, std::nullopt);
    ASSERT_THAT(shownAt(50ms), ElementsAre(1400));
    EXPECT_THAT(rig.events, IsEmpty()) << "nobody is told that the seek is done";
    EXPECT_EQ(rig.state.time(rig.now), (media::Time{1500 * 20, 600})) << "where it is going";
    rig.state.beginStep(1, rig.now);
    rig.settle();
    EXPECT_EQ(rig.shownFrame(), 1501) << "a step goes on from the frame sought";
    EXPECT_THAT(rig.events, ElementsAre("jump", "jump"));
}

TEST_F(PlaybackGlance, doesNotStartTheClock) {
    rig.state.setPlaying(true, rig.now);
    rig.pass(1s);
    rig.takeShown();
    seek(1500, 1400, std::nullopt);
    EXPECT_THAT(shownAt(300ms), ElementsAre(1400));
    rig.letSoundWork();
    EXPECT_FALSE(rig.state.isClockRunning());
    rig.now += 200ms;
    EXPECT_EQ(rig.seconds(), 50);
}

} // namespace
