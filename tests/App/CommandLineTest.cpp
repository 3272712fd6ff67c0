#include "CommandLine.h"

#include "Support/FileUrl.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <vector>

namespace {

using brisklet::CommandLine;
using brisklet::pathOf;
using brisklet::urlOf;
using testing::ElementsAre;

CommandLine parse(std::vector<const char*> arguments) {
    return CommandLine::parse(arguments);
}

TEST(CommandLine, namesNoFileWhenThereIsNone) {
    const CommandLine line = parse({});
    EXPECT_TRUE(line.files.empty());
    EXPECT_FALSE(line.wantsHelp);
    EXPECT_FALSE(line.wantsVersion);
    EXPECT_EQ(line.unknownOption, std::nullopt);
}

TEST(CommandLine, takesFilesInOrderWithAllTheirBytes) {
    const CommandLine line = parse({"/tmp/b.mov", "/tmp/caf\xe9 #.mov", "a.mov"});
    EXPECT_THAT(line.files, ElementsAre(urlOf("/tmp/b.mov"), urlOf("/tmp/caf\xe9 #.mov"),
                                        urlOf(std::filesystem::current_path() / "a.mov")));
    EXPECT_EQ(pathOf(line.files[1]).string(), "/tmp/caf\xe9 #.mov");
}

TEST(CommandLine, takesFileUrls) {
    const CommandLine line = parse({"file:///tmp/a%20b%FF.mov"});
    ASSERT_EQ(line.files.size(), 1U);
    EXPECT_EQ(pathOf(line.files[0]).string(), "/tmp/a b\xff.mov");
}

TEST(CommandLine, knowsItsOptions) {
    EXPECT_TRUE(parse({"--help"}).wantsHelp);
    EXPECT_TRUE(parse({"-h"}).wantsHelp);
    EXPECT_TRUE(parse({"--version"}).wantsVersion);
    EXPECT_EQ(parse({"a.mov", "--frobnicate", "--other"}).unknownOption, "--frobnicate");
}

TEST(CommandLine, findsTheQuickActionWhereverItStands) {
    EXPECT_FALSE(parse({"a.mov"}).installsQuickAction);
    EXPECT_FALSE(parse({"--install-quick-action=yes"}).installsQuickAction);
    const CommandLine line = parse({"a.mov", "--", "--install-quick-action"});
    EXPECT_TRUE(line.installsQuickAction);
    EXPECT_EQ(line.files.size(), 1U);
}

TEST(CommandLine, takesWhatFollowsTwoDashesAsFiles) {
    const CommandLine line = parse({"--", "--help", "-"});
    EXPECT_FALSE(line.wantsHelp);
    EXPECT_EQ(line.files.size(), 2U);
}

} // namespace
