#include "Media/ChildProcess.h"
#include "Media/Error.h"
#include "Media/Export/OutputFile.h"
#include "Media/ExportFixture.h"
#include "TestSupport/Fixture.h"
#include "TestSupport/Inspection.h"
#include "TestSupport/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <csignal>
#include <sched.h>
#include <sys/stat.h>
#include <unistd.h>

/// Exports that cannot end well: nothing incomplete is ever found under the final name, nothing is
/// left behind, and what was there before stays.
namespace media {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testsupport::Fixture;
using testsupport::inChildProcess;
using testsupport::makeFixture;
using testsupport::TemporaryFolder;

TEST(BadOutput, anExportIntoAMissingFolderSaysSo) {
    const TemporaryFolder folder;
    EXPECT_EQ(errorOf([&] { exportRange(makeFixture({}).path, 0, 1, folder / "missing/out.mp4"); }),
              "The folder “missing” for the new file doesn’t exist.");
    EXPECT_THAT(namesIn(folder.path()), IsEmpty());
}

TEST(BadOutput, anExportIntoAProtectedFolderSaysSo) {
    const TemporaryFolder folder;
    const auto source = makeFixture({}).path;
    std::filesystem::copy_file(source, folder / "a.mp4");
    writeFile(folder / "out.mp4", "old");
    std::filesystem::permissions(folder.path(), static_cast<std::filesystem::perms>(0555));
    const std::string said = inChildProcess([&]() -> std::string {
        if (!testsupport::dropPrivileges())
            return "skip";
        return errorOf([&] { exportRange(folder / "a.mp4", 0, 1, folder / "out.mp4"); });
    });
    std::filesystem::permissions(folder.path(), static_cast<std::filesystem::perms>(0755));
    if (said == "skip")
        GTEST_SKIP() << "this user cannot become another one";
    EXPECT_EQ(said, "You don’t have permission to write to the folder “" +
                        folder.path().filename().string() + "”.");
    EXPECT_EQ(contentsOf(folder / "out.mp4"), "old");
    EXPECT_THAT(namesIn(folder.path()), ElementsAre("a.mp4", "out.mp4"));
}

TEST(BadOutput, anExportOntoAFullDiskSaysSoAndFreesIt) {
    const TemporaryFolder folder;
    const auto source = longFixture().path;
    const std::string said = inChildProcess([&]() -> std::string {
        if (!testsupport::mountSmallDisk(folder.path(), 256 * 1024))
            return "skip";
        writeFile(folder / "out.mp4", "old");
        const std::string error = errorOf([&] { exportRange(source, 0, 40, folder / "out.mp4"); });
        return error + " " + contentsOf(folder / "out.mp4") + " " +
               std::to_string(namesIn(folder.path()).size());
    });
    if (said == "skip")
        GTEST_SKIP() << "no file system can be mounted here";
    EXPECT_EQ(said, "There is not enough space on the disk. old 1");
}

/// The disk is full exactly when the last bytes are written: nothing may pass for complete.
TEST(BadOutput, aDiskThatIsFullOnlyAtTheEndIsNoticedToo) {
    const TemporaryFolder folder;
    const auto source = makeFixture({}).path;
    exportRange(source, 0, 4, folder / "whole.mp4");
    const std::size_t size = std::filesystem::file_size(folder / "whole.mp4");
    std::filesystem::remove(folder / "whole.mp4");
    const std::string said = inChildProcess([&]() -> std::string {
        const auto page = static_cast<std::size_t>(::sysconf(_SC_PAGESIZE));
        if (!testsupport::mountSmallDisk(folder.path(), size / page * page))
            return "skip";
        const std::string error = errorOf([&] { exportRange(source, 0, 4, folder / "out.mp4"); });
        return error + " " + std::to_string(namesIn(folder.path()).size());
    });
    if (said == "skip")
        GTEST_SKIP() << "no file system can be mounted here";
    EXPECT_EQ(said, "There is not enough space on the disk. 0");
}

/// An export may be over before it hears of the stop; then it is complete, and is tried again.
void expectCancellationAt(double fraction) {
    const auto asset = Asset::open(longFixture().path);
    for (int attempt = 0; attempt < 30; ++attempt) {
        const TemporaryFolder folder;
        writeFile(folder / "out.mp4", "old");
        StagedExportSession session(compositionOf(asset), folder / "out.mp4", FileType::mpeg4);
        RunningExport running(session);
        ASSERT_TRUE(running.waitForProgress(fraction));
        running.requestStop();
        running.join();
        EXPECT_EQ(running.error(), "");
        EXPECT_THAT(namesIn(folder.path()), ElementsAre("out.mp4"));
        EXPECT_EQ(contentsOf(folder / "out.mp4") == "old", running.wasCancelled());
        EXPECT_EQ(session.state(), running.wasCancelled() ? ExportSession::State::cancelled
                                                          : ExportSession::State::completed);
        if (running.wasCancelled())
            return;
    }
    ADD_FAILURE() << "the export was always over before it could be cancelled";
}

TEST(CancelledExport, leavesNothingAtItsBeginning) {
    expectCancellationAt(0);
}

TEST(CancelledExport, leavesNothingInItsMiddle) {
    expectCancellationAt(0.5);
}

TEST(CancelledExport, leavesNothingAtItsEnd) {
    expectCancellationAt(0.99);
}

TEST(CancelledExport, touchesNothingWhenItIsStoppedBeforeItBegins) {
    const TemporaryFolder folder;
    writeFile(folder / "out.mp4", "old");
    std::stop_source stop;
    stop.request_stop();
    StagedExportSession session(compositionOf(Asset::open(makeFixture({}).path)),
                                folder / "out.mp4", FileType::mpeg4);
    EXPECT_THROW(session.run(stop.get_token()), Cancelled);
    EXPECT_EQ(session.state(), ExportSession::State::cancelled);
    EXPECT_EQ(contentsOf(folder / "out.mp4"), "old");
    EXPECT_THAT(namesIn(folder.path()), ElementsAre("out.mp4"));
}

TEST(KilledExport, leavesNothingUnderItsFinalName) {
    const Fixture fixture = longFixture();
    const TemporaryFolder folder;
    writeFile(folder / "old.mp4", "old");
    for (const char* name : {"new.mp4", "old.mp4"}) {
        const std::string said = inChildProcess([&]() -> std::string {
            StagedExportSession session(compositionOf(Asset::open(fixture.path)), folder / name,
                                        FileType::mpeg4);
            RunningExport running(session);
            running.waitForProgress(0.5);
            if (session.state() == ExportSession::State::exporting)
                ::kill(::getpid(), SIGKILL);
            running.join();
            return "over";
        });
        ASSERT_EQ(said, "signal 9");
    }
    EXPECT_FALSE(std::filesystem::exists(folder / "new.mp4"));
    EXPECT_EQ(contentsOf(folder / "old.mp4"), "old");
    // Where it had to have another name meanwhile, the next export into the folder removes it.
    exportRange(makeFixture({}).path, 0, 1, folder / "next.mp4");
    EXPECT_THAT(namesIn(folder.path()), ElementsAre("next.mp4", "old.mp4"));
}

TEST(ExportOntoItsSource, isRefusedBeforeAnythingIsTouched) {
    const TemporaryFolder folder;
    std::filesystem::copy_file(makeFixture({}).path, folder / "a.mp4");
    std::filesystem::create_symlink("a.mp4", folder / "symbolic.mp4");
    std::filesystem::create_hard_link(folder / "a.mp4", folder / "hard.mp4");
    std::filesystem::create_directory(folder / "sub");
    std::filesystem::create_directory_symlink("..", folder / "sub/up");
    const std::string before = contentsOf(folder / "a.mp4");
    const auto asset = Asset::open(folder / "a.mp4");
    for (const char* name : {"a.mp4", "./a.mp4", "symbolic.mp4", "hard.mp4", "sub/../a.mp4",
                             "sub/up/a.mp4", "sub/up/symbolic.mp4"}) {
        EXPECT_EQ(errorOf([&] {
                      const StagedExportSession session(compositionOf(asset), folder / name,
                                                        FileType::mpeg4);
                  }),
                  "The video can’t be exported over itself.")
            << name;
    }
    EXPECT_EQ(contentsOf(folder / "a.mp4"), before);
    EXPECT_THAT(namesIn(folder.path()), ElementsAre("a.mp4", "hard.mp4", "sub", "symbolic.mp4"));
}

TEST(ExportOntoItsSource, isRefusedThroughTheLinkThatWasOpenedToo) {
    const TemporaryFolder folder;
    std::filesystem::copy_file(makeFixture({}).path, folder / "a.mp4");
    std::filesystem::create_symlink("a.mp4", folder / "link.mp4");
    EXPECT_NE(errorOf([&] { exportRange(folder / "link.mp4", 0, 1, folder / "a.mp4"); }), "");
    EXPECT_NE(errorOf([&] { exportRange(folder / "link.mp4", 0, 1, folder / "link.mp4"); }), "");
}

TEST(ExportOntoItsSource, isRefusedWhenTheSourceTakesTheNameMeanwhile) {
    const TemporaryFolder folder;
    std::filesystem::copy_file(longFixture().path, folder / "a.mp4");
    StagedExportSession session(compositionOf(Asset::open(folder / "a.mp4")), folder / "out.mp4",
                                FileType::mpeg4);
    RunningExport running(session);
    EXPECT_TRUE(running.waitForProgress(0.05));
    std::filesystem::rename(folder / "a.mp4", folder / "out.mp4");
    const bool isInTime = session.progress() < 0.9;
    running.join();
    if (!isInTime)
        GTEST_SKIP() << "the export was quicker than the test";
    EXPECT_EQ(running.error(), "The video can’t be exported over itself.");
    EXPECT_THAT(namesIn(folder.path()), ElementsAre("out.mp4"));
    EXPECT_EQ(std::filesystem::file_size(folder / "out.mp4"),
              std::filesystem::file_size(longFixture().path));
}

/// Two exports at once to one destination: the second is refused, the first goes on undisturbed.
class ExportToATakenDestination : public testing::Test {
protected:
    static constexpr const char* kTaken = "“out.mp4” is being written by another export.";

    [[nodiscard]] static std::string errorAt(const std::filesystem::path& output) {
        return errorOf([&] { exportRange(makeFixture({}).path, 0, 1, output); });
    }

    /// Goes on with the first export, which another has tried to disturb.
    void expectFirstToEndWell() {
        const std::string text = "first";
        EXPECT_EQ(m_first.writer().write(reinterpret_cast<const std::uint8_t*>(text.data()),
                                         static_cast<std::int64_t>(text.size())),
                  0);
        m_first.commit();
        EXPECT_EQ(contentsOf(m_folder / "out.mp4"), text);
    }

    TemporaryFolder m_folder;
    OutputFile m_first{m_folder / "out.mp4"};
};

TEST_F(ExportToATakenDestination, isRefusedAndLeavesTheFirstAlone) {
    EXPECT_EQ(errorAt(m_folder / "out.mp4"), kTaken);
    expectFirstToEndWell();
    EXPECT_THAT(namesIn(m_folder.path()), ElementsAre("out.mp4"));
    EXPECT_EQ(errorAt(m_folder / "out.mp4"), "");
    EXPECT_THAT(namesIn(m_folder.path()), ElementsAre("out.mp4"));
}

TEST_F(ExportToATakenDestination, isRefusedUnderEveryOtherSpelling) {
    std::filesystem::create_directory(m_folder / "sub");
    std::filesystem::create_directory_symlink(m_folder.path(), m_folder / "again");
    // A link that leads nowhere is a name like others.
    writeFile(m_folder / "out.mp4", "old");
    std::filesystem::create_symlink("out.mp4", m_folder / "link.mp4");
    EXPECT_EQ(errorAt(m_folder / "sub/../out.mp4"), kTaken);
    EXPECT_EQ(errorAt(m_folder / "again/./out.mp4"), kTaken);
    EXPECT_EQ(errorAt(m_folder / "link.mp4"), "“link.mp4” is being written by another export.");
    EXPECT_EQ(errorAt(m_folder / "sub/out.mp4"), "");
    EXPECT_EQ(errorAt(m_folder / "other.mp4"), "");
    expectFirstToEndWell();
}

TEST_F(ExportToATakenDestination, isRefusedInAnotherProcessToo) {
    makeFixture({});
    EXPECT_EQ(inChildProcess([this] { return errorAt(m_folder / "out.mp4"); }), kTaken);
    expectFirstToEndWell();
}

TEST(ExportOntoSomethingElse, neverReplacesFoldersPipesOrDevices) {
    const auto source = makeFixture({}).path;
    const TemporaryFolder folder;
    std::filesystem::create_directory(folder / "folder.mp4");
    ASSERT_EQ(::mkfifo((folder / "pipe.mp4").c_str(), 0666), 0);
    EXPECT_EQ(errorOf([&] { exportRange(source, 0, 1, folder / "folder.mp4"); }),
              "A folder has the name of the new file.");
    for (const auto& path : {folder / "pipe.mp4", std::filesystem::path("/dev/null"),
                             std::filesystem::path("/dev/full")})
        EXPECT_EQ(errorOf([&] { exportRange(source, 0, 1, path); }),
                  "Something that is not a regular file has the name of the new file.");
    EXPECT_THAT(namesIn(folder.path()), ElementsAre("folder.mp4", "pipe.mp4"));
    EXPECT_TRUE(std::filesystem::is_fifo(folder / "pipe.mp4"));
    EXPECT_TRUE(std::filesystem::is_character_file("/dev/null"));
}

/// Stages that wait for each other must not do so for ever where only one of them runs at a time.
TEST(HardPressedExport, isRightOnOneProcessor) {
    const TemporaryFolder folder;
    const Fixture fixture = makeFixture({.audioTracks = 2});
    const std::string said = inChildProcess([&]() -> std::string {
        cpu_set_t processors;
        CPU_ZERO(&processors);
        CPU_SET(0, &processors);
        if (::sched_setaffinity(0, sizeof processors, &processors) != 0)
            return "skip";
        return errorOf([&] {
            exportRange(fixture.path, 0.5, 3.5, folder / "straight.mp4");
            const auto opened = Asset::open(fixture.path);
            StagedExportSession session(compositionOf(opened, 0.5, 3.5), folder / "turned.mp4",
                                        FileType::mpeg4);
            session.setVideoComposition(
                renderedAt(opened->tracks(MediaType::video).at(0), 160, 120, 30));
            session.run();
        });
    });
    if (said == "skip")
        GTEST_SKIP() << "processors cannot be chosen here";
    EXPECT_EQ(said, "");
    for (const char* name : {"straight.mp4", "turned.mp4"}) {
        const auto frames = testsupport::readNumberedFrames(folder / name);
        ASSERT_EQ(frames.size(), 90U);
        EXPECT_EQ(frames.front().number, 15);
        EXPECT_EQ(frames.back().number, 104);
        EXPECT_EQ(testsupport::readClicks(folder / name, 1).size(), 3U);
    }
}

} // namespace
} // namespace media
