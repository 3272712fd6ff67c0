#include "Media/Ticks.h"

#include <gtest/gtest.h>

#include <type_traits>

namespace media {
namespace {

TEST(Ticks, doNotMixWithBareNumbers) {
    EXPECT_FALSE((std::is_convertible_v<std::int64_t, Ticks>));
    EXPECT_FALSE((std::is_convertible_v<Ticks, std::int64_t>));
}

TEST(Ticks, addAndSubtractWithoutLeavingTheirRange) {
    EXPECT_EQ(Ticks(7) + Ticks(-9), Ticks(-2));
    EXPECT_EQ(Ticks(7) - Ticks(-9), Ticks(16));
    EXPECT_EQ(Ticks(Ticks::forever().count() - 1) + Ticks(5), Ticks::forever());
    EXPECT_EQ(Ticks(Ticks::beginning().count() + 1) - Ticks(5), Ticks::beginning());
    EXPECT_EQ(Ticks(Ticks::beginning().count() + 1) + Ticks(-5), Ticks::beginning());
    EXPECT_EQ(Ticks(Ticks::forever().count() - 1) - Ticks(-5), Ticks::forever());
}

TEST(Ticks, stayEndlessWhateverIsAdded) {
    EXPECT_EQ(Ticks::forever() - Ticks(1), Ticks::forever());
    EXPECT_EQ(Ticks::beginning() + Ticks(1), Ticks::beginning());
}

TEST(Ticks, areMultipliedAndDividedAsLengths) {
    EXPECT_EQ(3 * Ticks(-7), Ticks(-21));
    EXPECT_EQ(Ticks(-7) / 2, Ticks(-3));
    EXPECT_EQ(4 * Ticks(Ticks::forever().count() / 2), Ticks::forever());
    EXPECT_EQ(-4 * Ticks(Ticks::forever().count() / 2), Ticks::beginning());
}

TEST(Ticks, haveAMidpointNoLaterThanHalfWay) {
    EXPECT_EQ(midpoint(Ticks(-5), Ticks(0)), Ticks(-3));
    EXPECT_EQ(midpoint(Ticks(4), Ticks(9)), Ticks(6));
    EXPECT_EQ(midpoint(Ticks(4), Ticks(4)), Ticks(4));
}

TEST(Ticks, tellDistancesBeyondTheirOwnRange) {
    EXPECT_EQ(distance(Ticks(-3), Ticks(4)), 7);
    EXPECT_GT(distance(Ticks::beginning(), Ticks::forever()), 1.8e19);
}

TEST(TickRange, holdsItsBeginAndNotItsEnd) {
    constexpr TickRange range{Ticks(20), Ticks(40)};
    EXPECT_FALSE(range.holds(Ticks(19)));
    EXPECT_TRUE(range.holds(Ticks(20)));
    EXPECT_TRUE(range.holds(Ticks(39)));
    EXPECT_FALSE(range.holds(Ticks(40)));
}

TEST(TickRange, meetsWhatSharesATickWithIt) {
    constexpr TickRange range{Ticks(20), Ticks(40)};
    EXPECT_TRUE(range.meets({Ticks(39), Ticks(50)}));
    EXPECT_FALSE(range.meets({Ticks(40), Ticks(50)}));
    EXPECT_FALSE(range.meets({Ticks(0), Ticks(20)}));
    EXPECT_TRUE((TickRange{Ticks(5), Ticks(5)}).isEmpty());
}

} // namespace
} // namespace media
