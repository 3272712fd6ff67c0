#include "Media/Export/OutputFile.h"

#include "Media/ChildProcess.h"
#include "Media/Error.h"
#include "Media/Export/HiddenName.h"
#include "Media/ExportFixture.h"
#include "TestSupport/SlowDisk.h"
#include "TestSupport/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <barrier>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <optional>
#include <sys/file.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace media {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testsupport::inChildProcess;
using testsupport::TemporaryFolder;

int append(OutputFile& file, const std::string& text) {
    return file.writer().write(reinterpret_cast<const std::uint8_t*>(text.data()),
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

void appendAndBeKilled(const std::filesystem::path& path) {
    const std::string said = inChildProcess([&]() -> std::string {
        OutputFile file(path);
        append(file, std::string(100'000, 'x'));
        ::kill(::getpid(), SIGKILL);
        return "";
    });
    EXPECT_EQ(said, "signal 9");
}

bool canHoldFilesWithoutName(const std::filesystem::path& folder) {
    const int descriptor = ::open(folder.c_str(), O_RDWR | O_TMPFILE | O_CLOEXEC, 0600);
    if (descriptor >= 0)
        ::close(descriptor);
    return descriptor >= 0;
}

TEST(UnnamedOutputFile, hasNoNameUntilItIsComplete) {
    const TemporaryFolder folder;
    if (!canHoldFilesWithoutName(folder.path()))
        GTEST_SKIP() << "the file system of the temporary folder has no files without a name";
    OutputFile file(folder / "a.mp4");
    EXPECT_EQ(append(file, "content"), 0);
    EXPECT_THAT(namesIn(folder.path()), IsEmpty());
    file.commit();
    EXPECT_THAT(namesIn(folder.path()), ElementsAre("a.mp4"));
    EXPECT_EQ(contentsOf(folder / "a.mp4"), "content");
}

TEST(UnnamedOutputFile, leavesNothingWhenItsProcessIsKilled) {
    const TemporaryFolder folder;
    if (!canHoldFilesWithoutName(folder.path()))
        GTEST_SKIP() << "the file system of the temporary folder has no files without a name";
    appendAndBeKilled(folder / "a.mp4");
    EXPECT_THAT(namesIn(folder.path()), IsEmpty());
}

TEST(UnnamedOutputFile, waitsForOneThatHasAHiddenName) {
    const TemporaryFolder folder;
    const auto hidden = folder / hiddenName(numberOf(folder / "a.mp4"));
    const int other = ::open(hidden.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0666);
    ASSERT_EQ(::flock(other, LOCK_EX), 0);
    EXPECT_EQ(openError(folder / "a.mp4"), "“a.mp4” is being written by another export.");
    writeCompletely(folder / "b.mp4", "content");
    EXPECT_TRUE(std::filesystem::exists(hidden));
    ::close(other);
    writeCompletely(folder / "a.mp4", "content");
    EXPECT_THAT(namesIn(folder.path()), ElementsAre("a.mp4", "b.mp4"));
}

/// What killed exports have left in a folder.
TEST(DeadFiles, areRemovedByTheNextExportIntoTheirFolder) {
    const TemporaryFolder folder;
    writeFile(folder / hiddenName(1), "left behind");
    writeFile(folder / randomHiddenName(), "left behind");
    writeCompletely(folder / "a.mp4", "content");
    EXPECT_THAT(namesIn(folder.path()), ElementsAre("a.mp4"));
}

TEST(DeadFiles, areOnlyThoseUnderANameOfOurs) {
    const TemporaryFolder folder;
    const std::vector<std::string> names = {".brisklet-.part",
                                            ".brisklet-0123456789abcdeF.part",
                                            ".brisklet-0123456789abcdef",
                                            ".brisklet-holiday.part",
                                            ".brisklet-0123456789abcdef.part2",
                                            "brisklet-0123456789abcdef.part"};
    for (const std::string& name : names)
        writeFile(folder / name, "precious");
    writeCompletely(folder / "a.mp4", "content");
    for (const std::string& name : names)
        EXPECT_EQ(contentsOf(folder / name), "precious") << name;
}

TEST(DeadFiles, areOnlyRegularFilesOfThisUser) {
    const TemporaryFolder folder;
    writeFile(folder / "precious", "precious");
    std::filesystem::create_symlink("precious", folder / hiddenName(1));
    std::filesystem::create_directory(folder / hiddenName(2));
    ASSERT_EQ(::mkfifo((folder / hiddenName(3)).c_str(), 0666), 0);
    std::vector<std::string> names = {hiddenName(1), hiddenName(2), hiddenName(3)};
    writeFile(folder / hiddenName(4), "of another user");
    constexpr uid_t kNobody = 65534;
    if (::chown((folder / hiddenName(4)).c_str(), kNobody, kNobody) == 0)
        names.push_back(hiddenName(4));
    names.emplace_back("a.mp4");
    names.emplace_back("precious");
    writeCompletely(folder / "a.mp4", "content");
    EXPECT_EQ(namesIn(folder.path()), names);
    EXPECT_EQ(contentsOf(folder / "precious"), "precious");
}

TEST(DeadFiles, areNotThoseOfExportsThatRun) {
    const TemporaryFolder folder;
    // As an earlier version of the program locks it.
    const int other = ::open((folder / hiddenName(1)).c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0666);
    ASSERT_EQ(::flock(other, LOCK_EX), 0);
    writeCompletely(folder / "a.mp4", "content");
    EXPECT_THAT(namesIn(folder.path()), ElementsAre(hiddenName(1), "a.mp4"));
    ::close(other);
    writeCompletely(folder / "b.mp4", "content");
    EXPECT_THAT(namesIn(folder.path()), ElementsAre("a.mp4", "b.mp4"));
}

/// On a disk whose files all have a name.
class HiddenOutputFile : public testing::Test {
protected:
    void SetUp() override {
        if (!m_disk.isThere())
            GTEST_SKIP() << "no file system of our own can be mounted here";
        ASSERT_FALSE(canHoldFilesWithoutName(m_disk.path()));
    }

    [[nodiscard]] std::filesystem::path at(const std::string& name) const {
        return m_disk.path() / name;
    }

    [[nodiscard]] std::string hiddenNameFor(const std::string& name) const {
        return hiddenName(numberOf(at(name)));
    }

    testsupport::SlowDisk m_disk{100'000'000};
};

TEST_F(HiddenOutputFile, hasItsNameOnlyOnceItIsComplete) {
    OutputFile file(at("a.mp4"));
    EXPECT_EQ(append(file, "content"), 0);
    EXPECT_THAT(namesIn(m_disk.path()), ElementsAre(hiddenNameFor("a.mp4")));
    file.commit();
    EXPECT_THAT(namesIn(m_disk.path()), ElementsAre("a.mp4"));
    EXPECT_EQ(contentsOf(at("a.mp4")), "content");
}

TEST_F(HiddenOutputFile, keepsTheOlderFileUntilTheNewOneIsComplete) {
    writeFile(at("a.mp4"), "old");
    {
        OutputFile file(at("a.mp4"));
        EXPECT_EQ(append(file, "given up"), 0);
    }
    EXPECT_EQ(contentsOf(at("a.mp4")), "old");
    writeCompletely(at("a.mp4"), "new");
    EXPECT_EQ(contentsOf(at("a.mp4")), "new");
    EXPECT_THAT(namesIn(m_disk.path()), ElementsAre("a.mp4"));
}

TEST_F(HiddenOutputFile, isAloneAtItsDestination) {
    OutputFile first(at("a.mp4"));
    EXPECT_EQ(openError(at("a.mp4")), "“a.mp4” is being written by another export.");
    writeCompletely(at("b.mp4"), "content");
    EXPECT_EQ(append(first, "first"), 0);
    first.commit();
    EXPECT_EQ(contentsOf(at("a.mp4")), "first");
}

TEST_F(HiddenOutputFile, isRemovedByTheNextExportIntoItsFolderWhenItsProcessIsKilled) {
    appendAndBeKilled(at("a.mp4"));
    EXPECT_THAT(namesIn(m_disk.path()), ElementsAre(hiddenNameFor("a.mp4")));
    // Its process might run on another machine, whose locks are not seen here.
    writeCompletely(at("b.mp4"), "content");
    EXPECT_THAT(namesIn(m_disk.path()), ElementsAre(hiddenNameFor("a.mp4"), "b.mp4"));
    writeCompletely(at("a.mp4"), "content");
    EXPECT_THAT(namesIn(m_disk.path()), ElementsAre("a.mp4", "b.mp4"));
}

/// Each export into a folder looks for dead files there; none may take another's for one.
TEST_F(HiddenOutputFile, isNeverTakenForADeadOneByOthers) {
    constexpr int kThreads = 4;
    constexpr int kExports = 25;
    std::vector<std::jthread> threads;
    std::vector<std::string> errors(kThreads);
    for (int number = 0; number < kThreads; ++number) {
        threads.emplace_back([&, number] {
            const std::string name = std::to_string(number) + ".mp4";
            for (int i = 0; i < kExports; ++i)
                errors[static_cast<std::size_t>(number)] +=
                    errorOf([&] { writeCompletely(at(name), "content"); });
        });
    }
    threads.clear();
    EXPECT_THAT(errors, testing::Each(""));
    EXPECT_THAT(namesIn(m_disk.path()), ElementsAre("0.mp4", "1.mp4", "2.mp4", "3.mp4"));
}

TEST_F(HiddenOutputFile, hasARandomNameWhereItsOwnIsBlocked) {
    for (int i = 0; i < 2; ++i) {
        const auto blocked = at(hiddenNameFor("a.mp4"));
        std::filesystem::create_directory(m_disk.behind() / blocked.filename());
        OutputFile file(at("a.mp4"));
        EXPECT_EQ(append(file, "content"), 0);
        // Which does not make it look like a dead one.
        writeCompletely(at("b.mp4"), "content");
        file.commit();
        EXPECT_EQ(contentsOf(at("a.mp4")), "content");
        std::filesystem::remove(m_disk.behind() / blocked.filename());
    }
}

/// All of one name at the same moment: one is the first, the others are told.
TEST(OutputFile, isAloneAmongMany) {
    const TemporaryFolder folder;
    constexpr int kThreads = 8;
    std::barrier start(kThreads);
    std::barrier end(kThreads);
    std::vector<std::string> errors(kThreads);
    std::vector<std::jthread> threads;
    for (std::string& error : errors) {
        threads.emplace_back([&] {
            start.arrive_and_wait();
            std::optional<OutputFile> file;
            error = errorOf([&] { file.emplace(folder / "a.mp4"); });
            end.arrive_and_wait();
        });
    }
    threads.clear();
    EXPECT_EQ(std::ranges::count(errors, ""), 1);
    EXPECT_EQ(std::ranges::count(errors, "“a.mp4” is being written by another export."),
              kThreads - 1);
    EXPECT_THAT(namesIn(folder.path()), IsEmpty());
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
    file.writer().seek(2);
    EXPECT_EQ(append(file, "ab"), 0);
    EXPECT_EQ(file.writer().position(), 4);
    EXPECT_EQ(file.writer().size(), 10);
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

TEST(OutputFile, neverWritesThroughWhatOthersPutInItsPlace) {
    const TemporaryFolder folder;
    const auto hidden = folder / hiddenName(numberOf(folder / "a.mp4"));
    writeFile(folder / "precious", "precious");
    std::filesystem::create_symlink("precious", hidden);
    writeCompletely(folder / "a.mp4", "content");
    EXPECT_EQ(contentsOf(folder / "precious"), "precious");
    std::filesystem::remove(hidden);
    std::filesystem::create_directory(hidden);
    writeCompletely(folder / "a.mp4", "again");
    EXPECT_EQ(contentsOf(folder / "a.mp4"), "again");
    std::filesystem::remove(hidden);
    ASSERT_EQ(::mkfifo(hidden.c_str(), 0666), 0);
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
