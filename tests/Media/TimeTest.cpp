#include "Media/Time.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace media {

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr std::int64_t kMostTicks = std::numeric_limits<std::int64_t>::max();

void expectSame(Time actual, Time expected) {
    EXPECT_EQ(actual.value, expected.value);
    EXPECT_EQ(actual.timescale, expected.timescale);
}

TEST(Time, takesTheTickNearestToSeconds) {
    struct Case {
        double seconds;
        std::int32_t timescale;
        std::int64_t ticks;
    };

    for (const auto& [seconds, timescale, ticks] : {
             Case{0, 600, 0},
             Case{1, 600, 600},
             Case{1.0 / 30, 600, 20},
             Case{1001.0 / 30000, 600, 20},
             Case{2.00083, 600, 1200},
             Case{2.0009, 600, 1201},
             Case{-1.5, 600, -900},
             Case{1e9, 90000, 90'000'000'000'000},
         })
        expectSame(Time::fromSeconds(seconds, timescale), {ticks, timescale});
}

TEST(Time, roundsHalvesAwayFromZero) {
    expectSame(Time::fromSeconds(0.25, 2), {1, 2});
    expectSame(Time::fromSeconds(-0.25, 2), {-1, 2});
    expectSame(Time::fromSeconds(0.75, 2), {2, 2});
    expectSame(Time{1, 4}.rescaled(2), {1, 2});
    expectSame(Time{-1, 4}.rescaled(2), {-1, 2});
    expectSame(Time{3, 1200}.rescaled(600), {2, 600});
    EXPECT_EQ((Time{1, 1200}.ticks()), Ticks(1));
    EXPECT_EQ((Time{-1, 1200}.ticks()), Ticks(-1));
}

TEST(Time, keepsWhatIsNoNumberOfSecondsApart) {
    expectSame(Time::fromSeconds(std::nan(""), 600), Time::invalid());
    expectSame(Time::fromSeconds(kInfinity, 600), Time::positiveInfinity());
    expectSame(Time::fromSeconds(-kInfinity, 600), Time::negativeInfinity());
    EXPECT_FALSE(Time::invalid().isNumeric());
    EXPECT_FALSE(Time::positiveInfinity().isNumeric());
    EXPECT_TRUE(Time{}.isNumeric());
    EXPECT_TRUE(std::isnan(Time::invalid().seconds()));
    EXPECT_EQ(Time::positiveInfinity().seconds(), kInfinity);
    EXPECT_EQ(Time::negativeInfinity().seconds(), -kInfinity);
    expectSame(Time::positiveInfinity().rescaled(90000), Time::positiveInfinity());
    expectSame(Time::invalid().rescaled(90000), Time::invalid());
}

TEST(Time, takesSecondsThatNoTickCountHoldsForInfinite) {
    expectSame(Time::fromSeconds(1e18, 600), Time::positiveInfinity());
    expectSame(Time::fromSeconds(-1e18, 600), Time::negativeInfinity());
    expectSame(Time::fromSeconds(std::numeric_limits<double>::max(), 1), Time::positiveInfinity());
}

TEST(Time, rescalesByWayOfExactArithmetic) {
    struct Case {
        Time time;
        std::int32_t timescale;
        std::int64_t ticks;
    };

    for (const auto& [time, timescale, ticks] : {
             Case{{1001, 30000}, 600, 20},
             Case{{1001, 24000}, 600, 25},
             Case{{1, 600}, 90000, 150},
             // More than 53 bits: a double would lose the last ones.
             Case{{9'007'199'254'740'993, 1}, 3, 27'021'597'764'222'979},
             Case{{9'007'199'254'740'993, 3}, 1, 3'002'399'751'580'331},
             Case{{-9'007'199'254'740'993, 1}, 3, -27'021'597'764'222'979},
         })
        expectSame(time.rescaled(timescale), {ticks, timescale});
}

TEST(Time, staysAtTheEndOfTheTickRange) {
    expectSame(Time{kMostTicks, 1}.rescaled(600), {kMostTicks, 600});
    expectSame(Time{-kMostTicks, 1}.rescaled(600), {std::numeric_limits<std::int64_t>::min(), 600});
}

TEST(Time, isComparedInTicks) {
    // The frames of 29.97 per second fall on the ticks of 20 each, late by one after 30 of them.
    for (std::int64_t frame = 0; frame < 3000; ++frame) {
        const auto exact = static_cast<double>(frame * 1001) * 600 / 30000;
        EXPECT_EQ((Time{frame * 1001, 30000}.ticks()), Ticks(std::llround(exact)));
    }
    EXPECT_EQ(Time::positiveInfinity().ticks(), Ticks::forever());
    EXPECT_EQ(Time::negativeInfinity().ticks(), Ticks::beginning());
    EXPECT_EQ(Time::invalid().ticks(), Ticks(0));
}

TEST(Time, addsAndSubtractsExactlyInACommonTimescale) {
    EXPECT_EQ((Time{1, 3} + Time{1, 6}), (Time{1, 2}));
    EXPECT_EQ((Time{1, 600} + Time{1, 90000}), (Time{151, 90000}));
    EXPECT_EQ((Time{1, 48000} + Time{1, 44100}), (Time{307, 7'056'000}));
    EXPECT_EQ((Time{5, 600} - Time{1001, 30000}), (Time{5 * 50 - 1001, 30000}));
    EXPECT_EQ((Time{1, 600} - Time{1, 600}), Time{});
}

TEST(Time, roundsSumsToTheFinerTimescaleWhereNoneIsCommon) {
    // Two primes whose product takes more than 31 bits.
    constexpr std::int32_t kCoarse = 999'999'937;
    constexpr std::int32_t kFine = 2'147'483'647;
    const Time sum = Time{1, kCoarse} + Time{5, kFine};
    expectSame(sum, {5 + 2, kFine});
}

TEST(Time, addsToTimesThatAreNoNumberOfSeconds) {
    const Time one{600, 600};
    expectSame(one + Time::positiveInfinity(), Time::positiveInfinity());
    expectSame(Time::negativeInfinity() + one, Time::negativeInfinity());
    expectSame(one - Time::positiveInfinity(), Time::negativeInfinity());
    expectSame(Time::positiveInfinity() - one, Time::positiveInfinity());
    expectSame(one + Time::invalid(), Time::invalid());
    expectSame(Time::invalid() - one, Time::invalid());
    expectSame(Time::positiveInfinity() - Time::positiveInfinity(), Time::invalid());
    expectSame(Time::positiveInfinity() + Time::positiveInfinity(), Time::positiveInfinity());
}

TEST(Time, comparesExactRationals) {
    EXPECT_EQ((Time{1, 30}), (Time{20, 600}));
    EXPECT_LT((Time{1001, 30000}), (Time{1002, 30000}));
    EXPECT_LT((Time{1, 30}), (Time{1001, 30000}));
    EXPECT_GT((Time{-1, 30}), (Time{-1001, 30000}));
    // One part in 10^18: the same double.
    EXPECT_LT((Time{999'999'999'999'999'999, 1'000'000'000}), (Time{1'000'000'000, 1}));
    EXPECT_LT((Time{kMostTicks - 1, 600}), (Time{kMostTicks, 600}));
}

TEST(Time, ordersTheInfinitiesAroundAllNumbers) {
    for (const Time time : {Time{}, Time{kMostTicks, 1}, Time{-kMostTicks, 1}}) {
        EXPECT_LT(time, Time::positiveInfinity());
        EXPECT_GT(time, Time::negativeInfinity());
    }
    EXPECT_EQ(Time::positiveInfinity(), Time::positiveInfinity());
    EXPECT_LT(Time::negativeInfinity(), Time::positiveInfinity());
}

TEST(Time, leavesInvalidUnordered) {
    for (const Time time : {Time{}, Time::invalid(), Time::positiveInfinity()}) {
        EXPECT_FALSE(time == Time::invalid());
        EXPECT_FALSE(time < Time::invalid());
        EXPECT_FALSE(time > Time::invalid());
    }
}

TEST(TimeRange, lastsFromItsStartToItsEnd) {
    const TimeRange range{{1, 3}, {1, 2}};
    EXPECT_EQ(range.duration(), (Time{1, 6}));
    EXPECT_EQ(TimeRange{}.duration(), Time{});
    EXPECT_EQ((TimeRange{{0, 600}, {20, 600}}), (TimeRange{{0, 30}, {1, 30}}));
}

} // namespace

} // namespace media
