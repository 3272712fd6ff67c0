#include "PlaybackRules.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

/// What a jump back finds at hand: the places where the playhead has rested.
namespace {

using namespace std::chrono_literals;
using media::Ticks;
using Kind = media::playback::DecodeWork::Kind;

constexpr int kFramesInCache = 100;

class PlaybackRest : public testing::Test {
protected:
    PlaybackRest() { rig.load(20'000); }

    void restAt(int frame) {
        rig.seek(frame);
        rig.pass(300ms);
    }

    /// Whether a jump to the frame finds it although all the cache is taken by frames around the
    /// one on show; makes it.
    bool isLookUp(int frame) {
        const Ticks begin = ticksOf(rig.shownFrame());
        fillCache(rig.cache, rig.item.get(), begin, begin + ticksOf(kFramesInCache));
        rig.seek(frame);
        const bool isFound = rig.nextWork().kind != Kind::seek;
        rig.settle();
        EXPECT_EQ(rig.shownFrame(), frame);
        return isFound;
    }

    // Far fewer frames than lie between any two places.
    PlaybackRig rig{kFramesInCache * kFrameBytes};
};

TEST_F(PlaybackRest, isGoneBackToWithoutDecoding) {
    for (const int frame : {2000, 4000, 6000, 8000, 10'000, 12'000})
        restAt(frame);
    for (const int frame : {4000, 10'000, 6000, 12'000, 8000})
        EXPECT_TRUE(isLookUp(frame)) << frame;
    EXPECT_FALSE(isLookUp(2000)) << "five others have followed it";
}

TEST_F(PlaybackRest, isLeftByStepsAndByPlayingToo) {
    restAt(2000);
    for (int i = 0; i < 200; ++i) {
        rig.state.beginStep(1, rig.now);
        rig.pass(33ms);
    }
    EXPECT_TRUE(isLookUp(2000));
    restAt(4000);
    rig.state.setPlaying(true, rig.now);
    rig.pass(8s);
    rig.state.setPlaying(false, rig.now);
    const int stopped = rig.shownFrame();
    EXPECT_GT(stopped, 4200);
    rig.pass(300ms);
    EXPECT_TRUE(isLookUp(4000));
    EXPECT_TRUE(isLookUp(stopped));
}

TEST_F(PlaybackRest, isNowhereOnTheWayOfADrag) {
    restAt(2000);
    for (int frame = 4000; frame < 19'000; frame += 500) {
        rig.seek(frame);
        rig.pass(17ms);
    }
    rig.pass(300ms);
    EXPECT_TRUE(isLookUp(2000));
    EXPECT_FALSE(isLookUp(4000));
}

TEST_F(PlaybackRest, isNotWhereOnlyAPictureHasStoodIn) {
    rig.cache.insert(rig.item.get(), rig.frameOf(3900));
    rig.seek(4000);
    rig.now += 50ms;
    rig.present();
    ASSERT_EQ(rig.shownFrame(), 3900);
    rig.now += 400ms;
    rig.seek(8000);
    rig.pass(300ms);
    EXPECT_FALSE(isLookUp(3900));
}

} // namespace
