#include "Support/FileUrl.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

using brisklet::displayBaseName;
using brisklet::displayName;
using brisklet::pathOf;
using brisklet::urlOf;

namespace {

TEST(FileUrl, carriesEveryByteThatAFileNameCanHold) {
    for (int byte = 1; byte < 256; ++byte) {
        if (byte == '/')
            continue;
        const std::string path = std::string("/a ") + static_cast<char>(byte) + "%41#?.mov";
        EXPECT_EQ(pathOf(urlOf(path)).string(), path) << "byte " << byte;
    }
}

TEST(FileUrl, carriesPairsOfBytesThatAreNoText) {
    for (int first = 0x7f; first < 256; ++first) {
        for (int second = 0x7f; second < 256; ++second) {
            const std::string path =
                std::string("/x") + static_cast<char>(first) + static_cast<char>(second) + ".mov";
            ASSERT_EQ(pathOf(urlOf(path)).string(), path) << first << ' ' << second;
        }
    }
}

TEST(FileUrl, agreesWithTheUrlsOfFileDialogsOnNamesThatAreText) {
    for (const char* path : {"/tmp/holiday.mov", "/tmp/a b;c=1&d'e\".mov", "/tmp/100%2F#?.mov",
                             "/tmp/caf\u00e9 \U0001F600.mov", "/tmp/[x]!$()*+,:@.mov"}) {
        EXPECT_EQ(urlOf(path), QUrl::fromLocalFile(QString::fromUtf8(path))) << path;
        EXPECT_EQ(pathOf(QUrl::fromLocalFile(QString::fromUtf8(path))).string(), path);
    }
}

TEST(FileUrl, keepsAnEscapedByteOfAUrlThatWasDropped) {
    const QUrl url = QUrl::fromEncoded("file:///tmp/caf%E9%20x.mov");
    EXPECT_EQ(pathOf(url).string(), "/tmp/caf\xe9 x.mov");
    EXPECT_EQ(urlOf(pathOf(url)), url);
}

TEST(FileUrl, takesRelativePathsFromTheCurrentFolder) {
    EXPECT_EQ(pathOf(urlOf("clip.mov")), std::filesystem::current_path() / "clip.mov");
}

TEST(FileUrl, readsLeadingSlashesAsAPathAndNotAsAHost) {
    EXPECT_EQ(pathOf(urlOf("//tmp/clip.mov")).string(), "/tmp/clip.mov");
}

TEST(FileUrl, namesFilesByTheirLastComponent) {
    EXPECT_EQ(displayName(urlOf("/tmp/My Holiday.MOV")), QStringLiteral("My Holiday.MOV"));
    EXPECT_EQ(displayName(urlOf("/tmp/My Videos/")), QStringLiteral("My Videos"));
    EXPECT_EQ(displayBaseName(urlOf("/tmp/My Holiday.v2.MOV")), QStringLiteral("My Holiday.v2"));
    EXPECT_EQ(displayBaseName(urlOf("/tmp/holiday")), QStringLiteral("holiday"));
}

TEST(FileUrl, showsReplacementCharactersForBytesThatAreNoText) {
    EXPECT_EQ(displayName(urlOf("/tmp/a\xff.mov")), QStringLiteral("a\uFFFD.mov"));
}

TEST(FileUrl, carriesANameOfTheGreatestLength) {
    const std::string path = "/tmp/" + std::string(251, '\xfe') + ".mov";
    EXPECT_EQ(pathOf(urlOf(path)).string(), path);
}

} // namespace
