#include "Media/Export/OutputFile.h"

#include "Media/ChildProcess.h"
#include "Media/Error.h"
#include "Media/ExportFixture.h"
#include "TestSupport/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace media {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testsupport::inChildProcess;
using testsupport::TemporaryFolder;

int append(OutputFile& file, const std::string& text) {
    return file.write(reinterpret_cast<const std::uint8_t*>(text.data()),
                      static_cast<std::int64_t>(text.size()));
}

void writeCompletely(const std::filesystem::path& path, const std::string& text) {
    OutputFile file(path);
    if (const int error = append(file, text); error != 0)
        throw Error(reasonOf(error));
    file.commit();
}

std::string openError(const std::filesystem::path& path) {
    return errorOf([&] { const OutputFile file(path); });
}

TEST(OutputFile, hasItsNameOnlyOnceItIsComplete) {
    const TemporaryFolder folder;
    OutputFile file(folder / "a.mp4");
    EXPECT_EQ(append(file, "content"), 0);
    EXPECT_THAT(namesIn(folder.path()), ElementsAre(testing::StartsWith(".")));
    file.commit();
    EXPECT_THAT(namesIn(folder.path()), ElementsAre("a.mp4"));
    EXPECT_EQ(contentsOf(folder / "a.mp4"), "content");
}

TEST(OutputFile, leavesNothingBehindWhenItIsGivenUp) {
    const TemporaryFolder folder;
    {
        OutputFile file(folder / "a.mp4");
        EXPECT_EQ(append(file, "content"), 0);
    }
    EXPECT_THAT(namesIn(folder.path()), IsEmpty());
}

TEST(OutputFile, keepsTheOlderFileUntilTheNewOneIsComplete) {
    const TemporaryFolder folder;
    writeFile(folder / "a.mp4", "old");
    OutputFile file(folder / "a.mp4");
    EXPECT_EQ(append(file, "new"), 0);
    EXPECT_EQ(contentsOf(folder / "a.mp4"), "old");
    file.commit();
    EXPECT_EQ(contentsOf(folder / "a.mp4"), "new");
    EXPECT_THAT(namesIn(folder.path()), ElementsAre("a.mp4"));
}

TEST(OutputFile, overwritesWhereItIsToldTo) {
    const TemporaryFolder folder;
    OutputFile file(folder / "a");
    EXPECT_EQ(append(file, "0123456789"), 0);
    file.seek(2);
    EXPECT_EQ(append(file, "ab"), 0);
    EXPECT_EQ(file.position(), 4);
    EXPECT_EQ(file.size(), 10);
    file.commit();
    EXPECT_EQ(contentsOf(folder / "a"), "01ab456789");
}

TEST(OutputFile, canBeAsPublicAsOtherNewFiles) {
    const TemporaryFolder folder;
    const mode_t mask = ::umask(022);
    writeCompletely(folder / "a.mp4", "content");
    ::umask(mask);
    EXPECT_EQ(std::filesystem::status(folder / "a.mp4").permissions(),
              static_cast<std::filesystem::perms>(0644));
}

TEST(OutputFile, takesEveryNameThatTheDiskTakes) {
    const TemporaryFolder folder;
    for (const std::string& name :
         {std::string("with space.mp4"), std::string("quote'\".mp4"),
          std::string("\xf0\x9f\x8e\xac.mp4"), std::string("\xff\xfe.mp4"),
          std::string(251, 'x') + ".mp4", std::string("-y.mp4")}) {
        writeCompletely(folder / name, name);
        EXPECT_THAT(namesIn(folder.path()), ElementsAre(name));
        EXPECT_EQ(contentsOf(folder / name), name);
        std::filesystem::remove(folder / name);
    }
}

TEST(OutputFile, writesIntoTheFileThatALinkLeadsTo) {
    const TemporaryFolder folder;
    std::filesystem::create_directory(folder / "elsewhere");
    writeFile(folder / "elsewhere/a.mp4", "old");
    std::filesystem::create_symlink("elsewhere/a.mp4", folder / "link.mp4");
    writeCompletely(folder / "link.mp4", "new");
    EXPECT_TRUE(std::filesystem::is_symlink(folder / "link.mp4"));
    EXPECT_EQ(contentsOf(folder / "elsewhere/a.mp4"), "new");
    EXPECT_THAT(namesIn(folder / "elsewhere"), ElementsAre("a.mp4"));
}

TEST(OutputFile, isAloneAtItsDestination) {
    const TemporaryFolder folder;
    const std::string longName(255, 'x');
    for (const std::string& name : {std::string("a.mp4"), longName}) {
        {
            OutputFile first(folder / name);
            EXPECT_EQ(append(first, "first"), 0);
            EXPECT_EQ(openError(folder / name),
                      "“" + name + "” is being written by another export.");
            first.commit();
            writeCompletely(folder / name, "after the first");
        }
        EXPECT_EQ(contentsOf(folder / name), "after the first");
        EXPECT_THAT(namesIn(folder.path()), ElementsAre(name));
        std::filesystem::remove(folder / name);
    }
}

TEST(OutputFile, freesItsDestinationWhenItIsDiscarded) {
    const TemporaryFolder folder;
    OutputFile first(folder / "a.mp4");
    first.discard();
    writeCompletely(folder / "a.mp4", "second");
    EXPECT_EQ(append(first, "first"), 0);
    EXPECT_EQ(contentsOf(folder / "a.mp4"), "second");
}

TEST(OutputFile, takesTheLeftoverOfAKilledOneAway) {
    const TemporaryFolder folder;
    const std::string said = inChildProcess([&]() -> std::string {
        OutputFile file(folder / "a.mp4");
        append(file, std::string(100'000, 'x'));
        ::kill(::getpid(), SIGKILL);
        return "";
    });
    EXPECT_EQ(said, "signal 9");
    ASSERT_EQ(namesIn(folder.path()).size(), 1U);
    writeCompletely(folder / "a.mp4", "new");
    EXPECT_THAT(namesIn(folder.path()), ElementsAre("a.mp4"));
    EXPECT_EQ(contentsOf(folder / "a.mp4"), "new");
}

TEST(OutputFile, neverWritesThroughWhatOthersPutInItsPlace) {
    const TemporaryFolder folder;
    std::string temporary;
    {
        const OutputFile file(folder / "a.mp4");
        temporary = namesIn(folder.path()).at(0);
    }
    writeFile(folder / "precious", "precious");
    std::filesystem::create_symlink("precious", folder / temporary);
    writeCompletely(folder / "a.mp4", "content");
    EXPECT_EQ(contentsOf(folder / "precious"), "precious");
    std::filesystem::remove(folder / temporary);
    std::filesystem::create_directory(folder / temporary);
    writeCompletely(folder / "a.mp4", "again");
    EXPECT_EQ(contentsOf(folder / "a.mp4"), "again");
    std::filesystem::remove(folder / temporary);
    ASSERT_EQ(::mkfifo((folder / temporary).c_str(), 0666), 0);
    writeCompletely(folder / "a.mp4", "once more");
    EXPECT_EQ(contentsOf(folder / "a.mp4"), "once more");
}

TEST(OutputFile, refusesAFolderThatIsMissing) {
    const TemporaryFolder folder;
    EXPECT_EQ(openError(folder / "missing/a.mp4"),
              "The folder “missing” for the new file doesn’t exist.");
    writeFile(folder / "file", "");
    EXPECT_EQ(openError(folder / "file/a.mp4"),
              "The folder “file” for the new file doesn’t exist.");
    EXPECT_THAT(namesIn(folder.path()), ElementsAre("file"));
}

TEST(OutputFile, refusesTheNameOfAFolder) {
    const TemporaryFolder folder;
    std::filesystem::create_directory(folder / "a.mp4");
    EXPECT_EQ(openError(folder / "a.mp4"), "A folder has the name of the new file.");
    EXPECT_THAT(namesIn(folder.path()), ElementsAre("a.mp4"));
    EXPECT_TRUE(std::filesystem::is_directory(folder / "a.mp4"));
}

TEST(OutputFile, neverReplacesADeviceOrAPipe) {
    const TemporaryFolder folder;
    ASSERT_EQ(::mkfifo((folder / "pipe.mp4").c_str(), 0666), 0);
    std::filesystem::create_symlink("/dev/null", folder / "null.mp4");
    for (const auto& path :
         {folder / "pipe.mp4", folder / "null.mp4", std::filesystem::path("/dev/null"),
          std::filesystem::path("/dev/full")})
        EXPECT_EQ(openError(path),
                  "Something that is not a regular file has the name of the new file.")
            << path;
    EXPECT_TRUE(std::filesystem::is_fifo(folder / "pipe.mp4"));
    EXPECT_TRUE(std::filesystem::is_character_file("/dev/null"));
    EXPECT_THAT(namesIn(folder.path()), ElementsAre("null.mp4", "pipe.mp4"));
}

TEST(OutputFile, refusesANameThatIsTooLong) {
    const TemporaryFolder folder;
    EXPECT_EQ(openError(folder / std::string(256, 'x')), "The name of the new file is too long.");
    EXPECT_THAT(namesIn(folder.path()), IsEmpty());
}

TEST(OutputFile, doesNotFollowALinkIntoItself) {
    const TemporaryFolder folder;
    std::filesystem::create_symlink("loop.mp4", folder / "loop.mp4");
    EXPECT_NE(openError(folder / "loop.mp4"), "");
    EXPECT_THAT(namesIn(folder.path()), ElementsAre("loop.mp4"));
}

TEST(OutputFile, refusesAFolderWithoutPermission) {
    const TemporaryFolder folder;
    std::filesystem::permissions(folder.path(), static_cast<std::filesystem::perms>(0555));
    const std::string said = inChildProcess(
        [&] { return testsupport::dropPrivileges() ? openError(folder / "a.mp4") : "skip"; });
    std::filesystem::permissions(folder.path(), static_cast<std::filesystem::perms>(0755));
    if (said == "skip")
        GTEST_SKIP() << "this user cannot become another one";
    EXPECT_EQ(said, "You don’t have permission to write to the folder “" +
                        folder.path().filename().string() + "”.");
    EXPECT_THAT(namesIn(folder.path()), IsEmpty());
}

TEST(OutputFile, refusesADiskThatIsWriteProtected) {
    const TemporaryFolder folder;
    const std::string said = inChildProcess([&]() -> std::string {
        if (!testsupport::mountSmallDisk(folder.path(), 1 << 20) ||
            !testsupport::makeReadOnly(folder.path()))
            return "skip";
        return openError(folder / "a.mp4");
    });
    if (said == "skip")
        GTEST_SKIP() << "no file system can be mounted here";
    EXPECT_EQ(said, "The disk with the folder “" + folder.path().filename().string() +
                        "” is write-protected.");
}

TEST(OutputFile, tellsThatTheDiskIsFullAndFreesIt) {
    const TemporaryFolder folder;
    const std::string said = inChildProcess([&]() -> std::string {
        if (!testsupport::mountSmallDisk(folder.path(), 1 << 20))
            return "skip";
        std::string result;
        {
            OutputFile file(folder / "a.mp4");
            const std::string block(600'000, 'x');
            result += append(file, block) == 0 ? "written, " : "failed, ";
            result += append(file, block) == ENOSPC ? "full, " : "not full, ";
        }
        return result + std::to_string(namesIn(folder.path()).size()) + " files";
    });
    if (said == "skip")
        GTEST_SKIP() << "no file system can be mounted here";
    EXPECT_EQ(said, "written, full, 0 files");
}

} // namespace
} // namespace media
