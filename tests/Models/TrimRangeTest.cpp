#include "Models/TrimRange.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

using brisklet::TrimRange;

constexpr double kNotANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

TEST(TrimRange, keepsTheEndsInsideTheFileAndApart) {
    struct Case {
        double time;
        double start;
        double end;
    };

    const TrimRange range{.duration = 10, .start = 2, .end = 7};
    for (const Case& each : {Case{-kInfinity, 0, 2.1},
                             {-1, 0, 2.1},
                             {0, 0, 2.1},
                             {2.05, 2.05, 2.1},
                             {3, 3, 3},
                             {6.95, 6.9, 6.95},
                             {9, 6.9, 9},
                             {10, 6.9, 10},
                             {11, 6.9, 10},
                             {kInfinity, 6.9, 10}}) {
        EXPECT_DOUBLE_EQ(range.clampedStart(each.time), each.start) << each.time;
        EXPECT_DOUBLE_EQ(range.clampedEnd(each.time), each.end) << each.time;
    }
}

/// The start of a shorter file was put before its beginning, and its handle beside the strip.
TEST(TrimRange, keepsAFileWholeThatIsShorterThanTheMinimum) {
    const TrimRange range{.duration = 0.04, .start = 0, .end = 0.04};
    for (const double time : {-1.0, 0.0, 0.02, 0.04, 1.0}) {
        EXPECT_EQ(range.clampedStart(time), 0) << time;
        EXPECT_EQ(range.clampedEnd(time), 0.04) << time;
    }
}

TEST(TrimRange, neverRoundsAnEndOutOfTheFile) {
    // Sums and differences of these do not come out even.
    for (const double duration : {0.1, 0.3, 0.7, 1.1, 6.1, 9.9}) {
        TrimRange range{.duration = duration, .start = 0, .end = duration};
        range.start = range.clampedStart(duration);
        EXPECT_GE(range.start, 0) << duration;
        EXPECT_LE(range.clampedEnd(0), duration) << duration;
        range.start = 0;
        range.end = range.clampedEnd(0);
        EXPECT_GE(range.clampedStart(0), 0) << duration;
    }
}

TEST(TrimRange, onlyKeepsTheEndsApartWithoutADuration) {
    for (const double duration : {0.0, kNotANumber}) {
        const TrimRange range{.duration = duration, .start = 2, .end = 5};
        EXPECT_EQ(range.latestStart(), 5 - 0.1) << duration;
        EXPECT_EQ(range.earliestEnd(), 2 + 0.1) << duration;
    }
}

TEST(TrimRange, takesATimeThatIsNoNumberAsTheBeginningForTheStartOnly) {
    const TrimRange range{.duration = 10, .start = 2, .end = 7};
    EXPECT_EQ(range.clampedStart(kNotANumber), 0);
    EXPECT_TRUE(std::isnan(range.clampedEnd(kNotANumber)));
}

} // namespace
