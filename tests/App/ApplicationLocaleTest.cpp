#include "Application.h"

#include <QLocale>

#include <gtest/gtest.h>

#include <array>
#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <string>

/// These run in several locales. The application object is that of the tests' own main().
namespace {

TEST(ApplicationLocale, leavesNumbersForMachinesAsTheyAre) {
    EXPECT_STREQ(std::setlocale(LC_NUMERIC, nullptr), "C");
    std::array<char, 8> text = {};
    std::snprintf(text.data(), text.size(), "%.1f", 1.5);
    EXPECT_STREQ(text.data(), "1.5");
    EXPECT_EQ(std::strtod("1.5", nullptr), 1.5);
}

TEST(ApplicationLocale, keepsTheUsersLocaleForWhatPeopleRead) {
    EXPECT_EQ(QLocale(), QLocale::system());
    if (!qEnvironmentVariableIsSet("BRISKLET_TEST_LOCALE"))
        return;
    const std::string user = qgetenv("LC_ALL").toStdString();
    EXPECT_EQ(std::setlocale(LC_MESSAGES, nullptr), user);
    EXPECT_EQ(QLocale().name().toStdString(), user.substr(0, 5));
    const bool isArabic = user.starts_with("ar");
    EXPECT_EQ(QLocale().toString(1.5), isArabic ? QStringLiteral(u"١٫٥") : QStringLiteral("1,5"));
}

} // namespace
