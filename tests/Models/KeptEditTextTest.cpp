#include "Models/KeptEditText.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>
#include <string>
#include <vector>

namespace brisklet {

namespace {

KeptRecord record(std::uint64_t id) {
    return {.edit = {.id = id,
                     .file = "/home/anna/Videos/holiday.mov",
                     .identity = {.device = 66306, .inode = 1234567, .size = 98765432},
                     .duration = 62.345,
                     .edit = {.trimStart = 1.0 / 3,
                              .trimEnd = 61.7,
                              .cropRect = media::Rect{0.1, 0.2, 1.0 / 7, 0.4},
                              .rotation = 270,
                              .isMuted = true},
                     .playhead = 20.02},
            .session = 42};
}

std::string textOf(const std::string& line) {
    return std::string("brisklet-edits 1\n").append(line).append("\n");
}

TEST(KeptEditText, comesBackExactly) {
    KeptRecord plain = record(std::numeric_limits<std::uint64_t>::max());
    plain.session = 0;
    plain.edit.edit = {.trimEnd = 62.345};
    const std::vector<KeptRecord> records{record(1), plain};
    const std::string text = KeptEditText::format(records);
    const KeptEditText read = KeptEditText::parse(text);
    EXPECT_EQ(read.records, records);
    EXPECT_FALSE(read.isDamaged);
    EXPECT_FALSE(read.isNewer);
    EXPECT_NE(text.find("duration=62.345 "), std::string::npos) << text;
}

TEST(KeptEditText, carriesNamesOfAnyBytes) {
    KeptRecord odd = record(1);
    std::string name = "/";
    for (int byte = 1; byte < 256; ++byte)
        name += static_cast<char>(byte);
    odd.edit.file = name + "/two\nlines id=7.mov";
    const std::string text = KeptEditText::format({odd, record(2)});
    EXPECT_EQ(KeptEditText::parse(text).records, (std::vector{odd, record(2)}));
}

TEST(KeptEditText, isEmptyForNoBytes) {
    const KeptEditText read = KeptEditText::parse({});
    EXPECT_TRUE(read.records.empty());
    EXPECT_FALSE(read.isDamaged);
}

TEST(KeptEditText, keepsTheLinesThatAreWhole) {
    std::string text = KeptEditText::format({record(1), record(2), record(3)});
    text.replace(text.find("id=2 "), 5, "id=x ");
    const KeptEditText read = KeptEditText::parse(text);
    EXPECT_EQ(read.records, (std::vector{record(1), record(3)}));
    EXPECT_TRUE(read.isDamaged);

    const KeptEditText cut = KeptEditText::parse(std::string_view(text).substr(0, text.size() - 4));
    EXPECT_EQ(cut.records, std::vector{record(1)});
    EXPECT_TRUE(cut.isDamaged);
}

TEST(KeptEditText, refusesWhatCannotBe) {
    const std::string good = "id=1 file=/a.mov duration=10 start=1 end=9 turn=90 playhead=2";
    EXPECT_EQ(KeptEditText::parse(textOf(good)).records.size(), 1U);
    for (const char* field :
         {"id=0",         "id=-1",          "file=a.mov",   "file=",          "file=/a%00.mov",
          "file=/a%2",    "file=/a?b",      "duration=nan", "duration=inf",   "duration=-1",
          "start=10",     "start=-0.1",     "start=1,5",    "end=1e999",      "turn=45",
          "turn=360",     "playhead=nan",   "crop=0,0,1",   "crop=0,0,1,1,1", "crop=0.5,0,0.6,1",
          "crop=0,0,0,1", "crop=nan,0,1,1", "muted=2"}) {
        const KeptEditText read = KeptEditText::parse(textOf(good + ' ' + field));
        EXPECT_TRUE(read.records.empty()) << field;
        EXPECT_TRUE(read.isDamaged) << field;
    }
}

TEST(KeptEditText, skipsFieldsThatItDoesNotKnow) {
    const std::string text = textOf("id=1 file=/a.mov end=9 colour=blue note");
    EXPECT_EQ(KeptEditText::parse(text).records.size(), 1U);
}

TEST(KeptEditText, leavesALaterFormatToLaterReleases) {
    const KeptEditText read = KeptEditText::parse("brisklet-edits 2\n{\"anything\": [1]}\n");
    EXPECT_TRUE(read.isNewer);
    EXPECT_FALSE(read.isDamaged);
    for (const char* other : {"brisklet-edits 0\n", "brisklet-edits\n", "brisklet-edits x\n", "{}",
                              "brisklet-edits 99999999999\n"})
        EXPECT_TRUE(KeptEditText::parse(other).isDamaged) << other;
}

TEST(KeptEditText, readsAndWritesNoMoreThanItsLimits) {
    std::string longest(KeptEditText::kLongestPath, '\n');
    longest.front() = '/';
    std::vector<KeptRecord> many;
    for (std::uint64_t id = 1; id <= KeptEditText::kMostRecords + 10; ++id) {
        many.push_back(record(id));
        many.back().edit.file = longest;
    }
    const std::string text = KeptEditText::format(many);
    EXPECT_LE(text.size(), KeptEditText::kMostBytes);
    const KeptEditText read = KeptEditText::parse(text);
    ASSERT_EQ(read.records.size(), KeptEditText::kMostRecords);
    EXPECT_EQ(read.records.back(), many.back()) << "the latest";
    EXPECT_TRUE(KeptEditText::parse(text + text).isDamaged);
    EXPECT_TRUE(
        KeptEditText::parse(std::string(KeptEditText::kMostBytes + 1, '\n')).records.empty());
}

TEST(KeptEditText, leavesOutWhatItWouldNotRead) {
    KeptRecord broken = record(1);
    broken.edit.edit.trimEnd = std::numeric_limits<double>::infinity();
    const std::string text = KeptEditText::format({broken, record(2)});
    EXPECT_EQ(KeptEditText::parse(text).records, std::vector{record(2)});
}

/// Whatever stands in the file: what is read of it can be written and comes back.
TEST(KeptEditText, readsAnyBytes) {
    std::mt19937 random(11);
    const auto below = [&random](std::size_t limit) {
        return std::uniform_int_distribution<std::size_t>(0, limit - 1)(random);
    };
    const std::string whole = KeptEditText::format({record(1), record(2), record(3)});
    std::size_t readCount = 0;
    for (int round = 0; round < 20'000; ++round) {
        std::string text = whole;
        for (std::size_t change = below(6); change > 0; --change) {
            const std::size_t place = below(text.size());
            switch (below(4)) {
            case 0:
                text[place] = static_cast<char>(below(256));
                break;
            case 1:
                text.erase(place, below(20));
                break;
            case 2:
                text.insert(place, text.substr(below(text.size()), below(40)));
                break;
            default:
                text.insert(place, 1, " =,.%\n0-9e"[below(10)]);
            }
            if (text.empty())
                text.push_back('b');
        }
        const KeptEditText read = KeptEditText::parse(text);
        readCount += read.records.size();
        const KeptEditText again = KeptEditText::parse(KeptEditText::format(read.records));
        ASSERT_EQ(again.records, read.records) << text;
        ASSERT_FALSE(again.isDamaged) << text;
    }
    EXPECT_GT(readCount, 20'000U);
}

} // namespace

} // namespace brisklet
