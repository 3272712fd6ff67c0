#include "Support/TimeFormatting.h"

#include <QLocale>

#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <limits>

using brisklet::formatExactTime;
using brisklet::formatTime;

namespace {

TEST(TimeFormatting, showsMinutesAndTenthsOfSecondsBelowAnHour) {
    EXPECT_EQ(formatTime(0), QStringLiteral("00:00.0"));
    EXPECT_EQ(formatTime(5.3), QStringLiteral("00:05.3"));
    EXPECT_EQ(formatTime(83.4), QStringLiteral("01:23.4"));
    EXPECT_EQ(formatTime(3599.9), QStringLiteral("59:59.9"));
}

TEST(TimeFormatting, showsUnpaddedHoursFromAnHourOn) {
    EXPECT_EQ(formatTime(3600), QStringLiteral("1:00:00.0"));
    EXPECT_EQ(formatTime(3725.5), QStringLiteral("1:02:05.5"));
    EXPECT_EQ(formatTime(36000), QStringLiteral("10:00:00.0"));
    EXPECT_EQ(formatTime(3600.0 * 12345), QStringLiteral("12345:00:00.0"));
}

TEST(TimeFormatting, roundsTheSecondsWithoutCarryingIntoTheMinutes) {
    EXPECT_EQ(formatTime(59.94), QStringLiteral("00:59.9"));
    EXPECT_EQ(formatTime(59.96), QStringLiteral("00:60.0"));
    EXPECT_EQ(formatTime(119.97), QStringLiteral("01:60.0"));
    EXPECT_EQ(formatTime(3599.99), QStringLiteral("59:60.0"));
}

TEST(TimeFormatting, roundsTheMiddleOfTwoTenthsToTheEvenOne) {
    EXPECT_EQ(formatTime(2.25), QStringLiteral("00:02.2"));
    EXPECT_EQ(formatTime(2.75), QStringLiteral("00:02.8"));
    EXPECT_EQ(formatTime(0.05), QStringLiteral("00:00.1")) << "in binary it is a little more";
    EXPECT_EQ(formatTime(3600.25), QStringLiteral("1:00:00.2"));
}

TEST(TimeFormatting, readsNegativeTimesAndNaNAsZero) {
    EXPECT_EQ(formatTime(-3), QStringLiteral("00:00.0"));
    EXPECT_EQ(formatTime(-std::numeric_limits<double>::infinity()), QStringLiteral("00:00.0"));
    EXPECT_EQ(formatTime(std::nan("")), QStringLiteral("00:00.0"));
}

TEST(TimeFormatting, writesAFullStopInEveryLocale) {
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German));
    const char* const german = std::setlocale(LC_ALL, "de_DE.UTF-8");
    EXPECT_EQ(formatTime(5.3), QStringLiteral("00:05.3"));
    EXPECT_EQ(formatExactTime(5.3), QStringLiteral("0:00:05.300"));
    if (german != nullptr)
        std::setlocale(LC_ALL, "C.UTF-8");
    QLocale::setDefault(before);
}

TEST(TimeFormatting, showsExactTimesToTheMillisecondWithACarry) {
    EXPECT_EQ(formatExactTime(0), QStringLiteral("0:00:00.000"));
    EXPECT_EQ(formatExactTime(83.456), QStringLiteral("0:01:23.456"));
    EXPECT_EQ(formatExactTime(59.9996), QStringLiteral("0:01:00.000"));
    EXPECT_EQ(formatExactTime(3599.9996), QStringLiteral("1:00:00.000"));
    EXPECT_EQ(formatExactTime(36000 + 1.0 / 600), QStringLiteral("10:00:00.002"));
    EXPECT_EQ(formatExactTime(-1), QStringLiteral("0:00:00.000"));
    EXPECT_EQ(formatExactTime(std::nan("")), QStringLiteral("0:00:00.000"));
}

TEST(TimeFormattingDeathTest, endsTheProgramOnTimesThatNoWholeNumberHolds) {
    EXPECT_DEATH(formatTime(std::numeric_limits<double>::infinity()), "cannot be shown");
    EXPECT_DEATH(formatTime(9223372036854775808.0), "cannot be shown");
}

} // namespace
