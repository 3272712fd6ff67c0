#include "Media/Playback/DecodingPace.h"

#include "CachedFrames.h"

#include <gtest/gtest.h>

#include <chrono>

namespace {

using namespace std::chrono_literals;
using media::playback::DecodingPace;
using media::playback::SteadyTime;

constexpr SteadyTime kStart = SteadyTime{} + 1h;

TEST(DecodingPace, knowsNothingBeforeItHasSeenTwoFramesOfOneWay) {
    DecodingPace pace;
    pace.begin({.target = 1000_ticks, .start = 0_ticks}, kStart);
    EXPECT_FALSE(pace.arrival());
    pace.pass(0_ticks, kStart + 40ms);
    EXPECT_FALSE(pace.arrival());
    pace.pass(0_ticks, kStart + 45ms);
    EXPECT_FALSE(pace.arrival()) << "the same once more";
    pace.pass(100_ticks, kStart + 60ms);
    EXPECT_EQ(pace.arrival(), kStart + 60ms + 180ms);
    pace.pass(500_ticks, kStart + 90ms);
    EXPECT_EQ(pace.arrival(), kStart + 90ms + 50ms) << "it has become faster";
}

class KnownPace : public testing::Test {
protected:
    KnownPace() {
        pace.begin({.target = 1000_ticks, .start = 0_ticks}, kStart);
        pace.pass(0_ticks, kStart + 40ms);
        pace.pass(100_ticks, kStart + 60ms);
    }

    DecodingPace pace;
    SteadyTime later = kStart + 10s;
};

TEST_F(KnownPace, tellsANewWayFromItsLength) {
    pace.begin({.target = 5200_ticks, .start = 5000_ticks}, later);
    EXPECT_EQ(pace.arrival(), later + 40ms + 40ms) << "the decoder’s delay, and 200 ticks";
    pace.pass(5000_ticks, later + 50ms);
    EXPECT_EQ(pace.arrival(), later + 50ms + 40ms) << "the delay was longer";
}

TEST_F(KnownPace, expectsNoDelayWhereDecodingGoesOn) {
    pace.begin({.target = 1200_ticks, .start = 1000_ticks, .isContinued = true}, later);
    EXPECT_EQ(pace.arrival(), later + 40ms);
    pace.pass(1020_ticks, later + 1ms);
    pace.begin({.target = 5000_ticks, .start = 5000_ticks}, later);
    EXPECT_EQ(pace.arrival(), later + 40ms) << "which tells nothing of that of another way";
}

TEST_F(KnownPace, saysNothingOfAWayThatBeginsNobodyKnowsWhere) {
    pace.begin({.target = 5200_ticks}, later);
    EXPECT_FALSE(pace.arrival());
    pace.pass(5100_ticks, later + 50ms);
    EXPECT_EQ(pace.arrival(), later + 50ms + 20ms);
}

TEST_F(KnownPace, takesNoTimeToWhatLiesBehind) {
    pace.begin({.target = 5000_ticks, .start = 5010_ticks}, later);
    EXPECT_EQ(pace.arrival(), later + 40ms);
}

} // namespace
