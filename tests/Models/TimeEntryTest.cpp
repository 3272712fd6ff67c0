#include "Models/TimeEntry.h"

#include <QString>

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace brisklet {
namespace {

using Kind = TimeEntry::Kind;

struct Case {
    const char* text;
    TimeEntry entry;
};

TEST(TimeEntry, readsWhatIsTyped) {
    for (const Case& each : {
             Case{"83.456", {.kind = Kind::time, .seconds = 83.456}},
             {"83,456", {.kind = Kind::time, .seconds = 83.456}},
             {"1:23.456", {.kind = Kind::time, .seconds = 83.456}},
             {"1:23,456", {.kind = Kind::time, .seconds = 83.456}},
             {"01:02:03.5", {.kind = Kind::time, .seconds = 3723.5}},
             {"0:00:05.300", {.kind = Kind::time, .seconds = 5.3}},
             {"100:00:00", {.kind = Kind::time, .seconds = 360000}},
             {"90:00", {.kind = Kind::time, .seconds = 5400}},
             {"0", {.kind = Kind::time, .seconds = 0}},
             {".5", {.kind = Kind::time, .seconds = 0.5}},
             {"5.", {.kind = Kind::time, .seconds = 5}},
             {"  7 ", {.kind = Kind::time, .seconds = 7}},
             {"\u0661:\u0662\u0663\u066b\u0665", {.kind = Kind::time, .seconds = 83.5}},
             {"+10f", {.kind = Kind::frameOffset, .frames = 10}},
             {"-5f", {.kind = Kind::frameOffset, .frames = -5}},
             {"\u22125F", {.kind = Kind::frameOffset, .frames = -5}},
             {"+1.5", {.kind = Kind::timeOffset, .seconds = 1.5}},
             {"-1:00", {.kind = Kind::timeOffset, .seconds = -60}},
             {"#2412", {.kind = Kind::frameNumber, .frames = 2412}},
             {"#0", {.kind = Kind::frameNumber, .frames = 0}},
             {"#999999999999999", {.kind = Kind::frameNumber, .frames = 999999999999999}},
         })
        EXPECT_EQ(TimeEntry::parse(QString::fromUtf8(each.text)), each.entry) << each.text;
}

TEST(TimeEntry, refusesEverythingElse) {
    for (const char* text : {"",
                             " ",
                             "abc",
                             "1:2:3:4",
                             "1:60",
                             "1:75.5",
                             "1:60:00",
                             "1::2",
                             ":",
                             ":5",
                             "1:",
                             "1.5:00",
                             "1.2.3",
                             "1,2,3",
                             "1.234,5",
                             ".",
                             ",",
                             "+",
                             "-",
                             "#",
                             "+-1",
                             "--1",
                             "#-1",
                             "#1.5",
                             "#1f",
                             "10f",
                             "+f",
                             "+1.5f",
                             "+1:00f",
                             "f",
                             "1e5",
                             "0x10",
                             "inf",
                             "nan",
                             "1 2",
                             "1: 2",
                             "9999999999999999",
                             "#9999999999999999",
                             "+9999999999999999f",
                             "1h",
                             "5s",
                             "１x"})
        EXPECT_EQ(TimeEntry::parse(QString::fromUtf8(text)), std::nullopt) << '"' << text << '"';
}

TEST(TimeEntry, givesFiniteNumbersForAnyText) {
    std::mt19937 random(42);
    constexpr QStringView kLetters = u"0123456789012345678901234.,:+-#fF \u0663\u066b\u2212x";
    int readable = 0;
    for (int round = 0; round < 200'000; ++round) {
        QString text;
        for (auto length = random() % 24; length > 0; --length)
            text += kLetters[static_cast<qsizetype>(random() % kLetters.size())];
        if (const auto entry = TimeEntry::parse(text)) {
            ++readable;
            EXPECT_TRUE(std::isfinite(entry->seconds)) << text.toStdString();
            EXPECT_LE(std::abs(entry->frames), 999'999'999'999'999);
        }
    }
    EXPECT_GT(readable, 1000) << "most of the texts must not be refused at their first letter";
}

TEST(TimeEntry, readsVeryLongTexts) {
    const QString zeros(1'000'000, u'0');
    EXPECT_EQ(TimeEntry::parse(zeros), std::nullopt);
    const auto entry = TimeEntry::parse(QStringLiteral("1.") + zeros);
    ASSERT_TRUE(entry);
    EXPECT_EQ(entry->seconds, 1);
}

} // namespace
} // namespace brisklet
