#include "Models/RemainingTime.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <vector>

namespace brisklet {
namespace {

/// One tenth of a second after another, as progress is reported.
constexpr double kInterval = 0.1;

struct Told {
    double seconds = 0;
    double left = 0;
};

/// What is told on the way, if the fraction done follows that function of the seconds.
std::vector<Told> follow(double end, const std::function<double(double)>& fraction) {
    RemainingTime remaining;
    std::vector<Told> all;
    for (int i = 0; i * kInterval < end; ++i) {
        const double now = i * kInterval;
        remaining.report(std::clamp(fraction(now), 0.0, 1.0), now);
        if (const auto left = remaining.at(now))
            all.push_back({now, *left});
    }
    return all;
}

double largestRise(const std::vector<Told>& told) {
    double rise = 0;
    for (std::size_t i = 1; i < told.size(); ++i)
        rise = std::max(rise, told[i].left - told[i - 1].left);
    return rise;
}

TEST(RemainingTime, saysNothingInTheFirstThreeSecondsAndWithoutProgress) {
    const auto told = follow(20, [](double now) { return now / 20; });
    ASSERT_FALSE(told.empty());
    EXPECT_NEAR(told.front().seconds, 3, kInterval);
    EXPECT_TRUE(follow(20, [](double) { return 0; }).empty());
}

TEST(RemainingTime, countsAnEvenProgressDownToItsEnd) {
    const auto told = follow(60, [](double now) { return now / 60; });
    for (const Told& each : told)
        EXPECT_NEAR(each.left, 60 - each.seconds, 0.1) << each.seconds;
    EXPECT_LE(largestRise(told), 0);
}

TEST(RemainingTime, doesNotFlickerWhenProgressComesInJolts) {
    // Nothing for two seconds, then as much as should have come meanwhile.
    const auto told = follow(60, [](double now) { return std::floor(now / 2) * 2 / 60; });
    EXPECT_LE(largestRise(told), 0);
    for (const Told& each : told)
        EXPECT_NEAR(each.left, 60 - each.seconds, 8) << each.seconds;
}

TEST(RemainingTime, risesOnlyOnceOrTwiceWhenTheSpeedHalves) {
    // 20 s at full speed do half of it, the rest takes 40 s.
    const auto told =
        follow(60, [](double now) { return now < 20 ? now / 40 : 0.5 + (now - 20) / 80; });
    int rises = 0;
    for (std::size_t i = 1; i < told.size(); ++i)
        rises += told[i].left > told[i - 1].left ? 1 : 0;
    EXPECT_GE(rises, 1);
    EXPECT_LE(rises, 3);
    EXPECT_NEAR(told.back().left, 0, 3);
}

TEST(RemainingTime, fallsSoonWhenTheSpeedDoubles) {
    const auto told =
        follow(45, [](double now) { return now < 30 ? now / 60 : 0.5 + (now - 30) / 30; });
    const auto later =
        std::ranges::find_if(told, [](const Told& each) { return each.seconds > 40; });
    ASSERT_NE(later, told.end());
    EXPECT_NEAR(later->left, 45 - later->seconds, 4);
    EXPECT_LE(largestRise(told), 0);
}

TEST(RemainingTime, growsDuringAStall) {
    RemainingTime remaining;
    for (int i = 0; i <= 100; ++i)
        remaining.report(i * 0.005, i * kInterval);
    const double before = remaining.at(10).value();
    for (int second = 11; second <= 40; ++second)
        EXPECT_TRUE(remaining.at(second));
    EXPECT_GT(remaining.at(41).value(), before);
}

TEST(RemainingTime, saysNothingWhenAllIsDone) {
    RemainingTime remaining;
    remaining.report(0.5, 5);
    EXPECT_TRUE(remaining.at(5));
    remaining.report(1, 10);
    EXPECT_FALSE(remaining.at(10));
}

TEST(RemainingTime, neverFallsBelowZero) {
    RemainingTime remaining;
    remaining.report(0.5, 10);
    for (int second = 10; second < 200; ++second)
        EXPECT_GE(remaining.at(second).value(), 0);
}

} // namespace
} // namespace brisklet
