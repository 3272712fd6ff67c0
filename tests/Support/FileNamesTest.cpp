#include "Support/FileNames.h"

#include "TestSupport/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace {

using brisklet::truncatedName;

QString text(const char* utf8) {
    return QString::fromUtf8(utf8);
}

TEST(FileNames, leavesANameAloneThatFits) {
    EXPECT_EQ(truncatedName(text("holiday"), text(".mp4"), 11), text("holiday.mp4"));
    EXPECT_EQ(truncatedName(text("holiday"), text(".mp4"), 10), text("holida.mp4"));
    EXPECT_EQ(truncatedName(text("holiday"), text(".mp4"), 4), text(".mp4"));
}

TEST(FileNames, countsBytesAndCutsBetweenLetters) {
    // Two bytes, three bytes, four bytes: none is cut through.
    EXPECT_EQ(truncatedName(text("aüü"), text(".mp4"), 8), text("aü.mp4"));
    EXPECT_EQ(truncatedName(text("a日日"), text(".mp4"), 10), text("a日.mp4"));
    EXPECT_EQ(truncatedName(text("a\U0001F600\U0001F600"), text(".mp4"), 12),
              text("a\U0001F600.mp4"));
    // A letter and its accent, the two halves of a flag, a family.
    EXPECT_EQ(truncatedName(text("ae\u0301"), text(".mp4"), 7), text("a.mp4"));
    EXPECT_EQ(truncatedName(text("a\U0001F1E9\U0001F1EA"), text(".mp4"), 10), text("a.mp4"));
    EXPECT_EQ(truncatedName(text("a\U0001F468\u200D\U0001F469"), text(".mp4"), 15), text("a.mp4"));
}

TEST(FileNames, showsMarksInPlaceOfWhatActsOnTheTextAround) {
    using brisklet::legible;
    EXPECT_EQ(legible(text("a\nb\t\x1b[31m\x7f.mp4")), text("a\uFFFDb\uFFFD\uFFFD[31m\uFFFD.mp4"));
    EXPECT_EQ(legible(text("a\u0085\u2028\u2029b")), text("a\uFFFD\uFFFD\uFFFDb"));
    EXPECT_EQ(legible(text("\u202A\u202B\u202C\u202D\u202Egpj.mp4")),
              text("\uFFFD\uFFFD\uFFFD\uFFFD\uFFFDgpj.mp4"));
    EXPECT_EQ(legible(text("\u2066\u2067\u2068\u2069")), text("\uFFFD\uFFFD\uFFFD\uFFFD"));
    // Letters of all scripts, marks that only concern their neighbours, emoji; and no markup.
    for (const char* name : {"<b>x</b>&amp;%1 %n [*].mp4", "\u05D0\u200E1\u200F \u0627\u061C",
                             "e\u0301 \u65E5 \U0001F468\u200D\U0001F469", "\u202F\u00A0"})
        EXPECT_EQ(legible(text(name)), text(name));
}

TEST(FileNames, knowsTheLongestOfAFolder) {
    const testsupport::TemporaryFolder folder;
    EXPECT_GT(brisklet::maxNameBytesIn(folder.path()), 100);
    EXPECT_LE(brisklet::maxNameBytesIn(folder.path()), 255);
    EXPECT_EQ(brisklet::maxNameBytesIn(folder / "nowhere"), 255);
}

} // namespace
