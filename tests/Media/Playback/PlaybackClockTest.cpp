#include "Media/Playback/PlaybackClock.h"

#include <gtest/gtest.h>

#include <cmath>

namespace media::playback {
namespace {

using namespace std::chrono_literals;

constexpr SteadyTime kStart{1000s};

Time seconds(double value) {
    return Time::fromSeconds(value, kNanoTimescale);
}

double secondsAt(PlaybackClock& clock, SteadyTime when) {
    return clock.time(when).seconds();
}

TEST(PlaybackClock, givesTheTimeItStandsAtAsItWasGiven) {
    PlaybackClock clock;
    clock.hold(Time{1001, 30000});
    EXPECT_FALSE(clock.isRunning());
    EXPECT_EQ(clock.time(kStart + 5s).value, 1001);
    EXPECT_EQ(clock.time(kStart + 5s).timescale, 30000);
}

TEST(PlaybackClock, hasNoTimeBeforeItIsHeldAndDoesNotRun) {
    PlaybackClock clock;
    clock.run(kStart);
    clock.correct(seconds(1), kStart);
    EXPECT_FALSE(clock.isRunning());
    EXPECT_FALSE(clock.time(kStart + 1s).isNumeric());
}

TEST(PlaybackClock, runsWithTheSteadyClock) {
    PlaybackClock clock;
    clock.hold(seconds(2));
    clock.run(kStart);
    EXPECT_DOUBLE_EQ(secondsAt(clock, kStart), 2);
    EXPECT_DOUBLE_EQ(secondsAt(clock, kStart + 1500ms), 3.5);
}

TEST(PlaybackClock, standsWhereItIsPausedAndRunsOnFromThere) {
    PlaybackClock clock;
    clock.hold(seconds(0));
    clock.run(kStart);
    clock.pause(kStart + 2s);
    EXPECT_DOUBLE_EQ(secondsAt(clock, kStart + 9s), 2);
    clock.run(kStart + 10s);
    EXPECT_DOUBLE_EQ(secondsAt(clock, kStart + 11s), 3);
}

TEST(PlaybackClock, isNotSetBackByBeingToldToRunAgain) {
    PlaybackClock clock;
    clock.hold(seconds(0));
    clock.run(kStart);
    clock.run(kStart + 1s);
    EXPECT_DOUBLE_EQ(secondsAt(clock, kStart + 2s), 2);
}

TEST(PlaybackClock, startsWhenSoundIsHeardBeyondWhereItStands) {
    PlaybackClock clock;
    clock.hold(seconds(4));
    clock.correct(seconds(4), kStart);
    EXPECT_FALSE(clock.isRunning()) << "the device has not begun to sound";
    clock.correct(seconds(4.01), kStart + 10ms);
    ASSERT_TRUE(clock.isRunning());
    EXPECT_DOUBLE_EQ(secondsAt(clock, kStart + 10ms), 4.01);
    EXPECT_DOUBLE_EQ(secondsAt(clock, kStart + 20ms), 4.02);
}

struct Correction {
    double error;
    double expected;
};

class PlaybackClockCorrection : public testing::TestWithParam<Correction> {};

TEST_P(PlaybackClockCorrection, setsWhatIsFarOffAndDrawsNearerWhatIsNear) {
    PlaybackClock clock;
    clock.hold(seconds(0));
    clock.run(kStart);
    clock.correct(seconds(1 + GetParam().error), kStart + 1s);
    EXPECT_NEAR(secondsAt(clock, kStart + 1s), 1 + GetParam().expected, 1e-9);
}

INSTANTIATE_TEST_SUITE_P(Errors, PlaybackClockCorrection,
                         testing::Values(Correction{0, 0}, Correction{0.01, 0.001},
                                         Correction{-0.01, -0.001}, Correction{0.5, 0.5},
                                         Correction{-0.5, -0.5}, Correction{0.020, 0.002},
                                         Correction{0.021, 0.021}));

TEST(PlaybackClock, neverGoesBackward) {
    PlaybackClock clock;
    clock.hold(seconds(0));
    clock.run(kStart);
    EXPECT_DOUBLE_EQ(secondsAt(clock, kStart + 2s), 2);
    clock.correct(seconds(1.5), kStart + 2s);
    EXPECT_DOUBLE_EQ(secondsAt(clock, kStart + 2s), 2);
    EXPECT_DOUBLE_EQ(secondsAt(clock, kStart + 2400ms), 2) << "waits until the sound has come up";
    EXPECT_DOUBLE_EQ(secondsAt(clock, kStart + 2600ms), 2.1);
}

TEST(PlaybackClock, mayGoBackOnceItIsHeldAnew) {
    PlaybackClock clock;
    clock.hold(seconds(0));
    clock.run(kStart);
    EXPECT_DOUBLE_EQ(secondsAt(clock, kStart + 8s), 8);
    clock.hold(seconds(1));
    clock.run(kStart + 8s);
    EXPECT_DOUBLE_EQ(secondsAt(clock, kStart + 9s), 2);
}

TEST(PlaybackClock, runsOnWhereCorrectionsEnd) {
    PlaybackClock clock;
    clock.hold(seconds(0));
    clock.correct(seconds(0.01), kStart);
    clock.correct(seconds(1.01), kStart + 1s);
    EXPECT_DOUBLE_EQ(secondsAt(clock, kStart + 61s), 61.01);
}

TEST(PlaybackClock, staysWithADeviceOfAnotherSpeedWhosePositionJitters) {
    // Ten minutes of a device that runs 200 ppm fast and whose position wavers by 3 ms.
    PlaybackClock clock;
    clock.hold(seconds(0));
    double worst = 0;
    for (int round = 1; round <= 60'000; ++round) {
        const double elapsed = round * 0.01;
        const double truth = elapsed * 1.0002;
        const double jitter = 0.003 * std::sin(round * 1.7);
        const SteadyTime when = kStart + std::chrono::milliseconds(10 * round);
        clock.correct(seconds(truth + jitter), when);
        if (round > 100)
            worst = std::max(worst, std::abs(secondsAt(clock, when) - truth));
    }
    EXPECT_LT(worst, 0.002);
}

TEST(PlaybackClock, tellsWhenItReachesATime) {
    PlaybackClock clock;
    clock.hold(seconds(1));
    clock.run(kStart);
    EXPECT_EQ(clock.whenReaches(3s, kStart), kStart + 2s);
    EXPECT_EQ(clock.whenReaches(1500ms, kStart + 4s), kStart + 4s) << "it has passed already";
}

} // namespace
} // namespace media::playback
