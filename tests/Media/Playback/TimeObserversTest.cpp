#include "Media/Playback/TimeObservers.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace std::chrono_literals;
using media::Time;
using media::playback::PlaybackClock;
using media::playback::SteadyTime;
using media::playback::TimeObservers;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr Time kSecond{600, 600};

Time seconds(double seconds) {
    return {static_cast<std::int64_t>(seconds * 600), 600};
}

TEST(TimeObservers, haveNewsOfBoundariesAfterTheTimeAtWhichTheyCame) {
    TimeObservers observers;
    observers.add(1, kSecond, seconds(10.2));
    EXPECT_FALSE(observers.advanceTo(seconds(10.9)));
    EXPECT_TRUE(observers.advanceTo(seconds(11)));
    EXPECT_THAT(observers.takePending(), ElementsAre(1));
    EXPECT_THAT(observers.takePending(), IsEmpty());
}

TEST(TimeObservers, haveNewsOnceUntilTheyAreTold) {
    TimeObservers observers;
    observers.add(1, kSecond, seconds(0));
    EXPECT_TRUE(observers.advanceTo(seconds(1)));
    EXPECT_FALSE(observers.advanceTo(seconds(2))) << "the owner is to call it already";
    EXPECT_THAT(observers.takePending(), ElementsAre(1));
    EXPECT_TRUE(observers.advanceTo(seconds(3)));
}

TEST(TimeObservers, areNotCalledMoreOftenThanEveryMillisecond) {
    TimeObservers observers;
    observers.add(1, Time{0, 600}, seconds(0));
    EXPECT_FALSE(observers.advanceTo(Time{1, 2000}));
    EXPECT_TRUE(observers.advanceTo(Time{2, 2000}));
}

TEST(TimeObservers, nameTheFirstBoundaryOfAny) {
    TimeObservers observers;
    PlaybackClock clock;
    clock.hold(seconds(0));
    const SteadyTime now = SteadyTime{} + 1h;
    clock.run(now);
    EXPECT_FALSE(observers.nextBoundary(clock, now));
    observers.add(1, seconds(0.5), seconds(0));
    observers.add(2, kSecond, seconds(0));
    EXPECT_EQ(observers.nextBoundary(clock, now), now + 500ms);
}

} // namespace
