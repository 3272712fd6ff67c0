#include "Models/EditStateFixture.h"

#include "Export/ExportSettings.h"
#include "TestSupport/Inspection.h"
#include "TestSupport/TemporaryFolder.h"

#include <QSignalSpy>

#include <filesystem>
#include <string>
#include <system_error>

/// What is edited is the file that was opened, whatever happens to its name meanwhile.
namespace brisklet {

namespace {

using testsupport::makeFixture;
using testsupport::pumpUntil;
using testsupport::readNumberedFrames;
using testsupport::TemporaryFolder;

class EditStateSourceTest : public EditStateFixture {
protected:
    EditStateSourceTest() {
        ExportSettings::shared().setFormat(ExportFormat::mp4);
        ExportSettings::shared().setResolution(ExportResolution::original);
    }

    /// Opens a video of its own, in which second 1 shows number 30.
    void openClip() {
        std::filesystem::copy_file(makeFixture({.duration = 4}).path, clip());
        ASSERT_TRUE(loadAndWait(clip()));
        state().setTrimStart(1);
        state().setTrimEnd(2);
    }

    [[nodiscard]] std::filesystem::path clip() const { return m_folder / "clip.mp4"; }

    /// Another video, in which second 1 shows number 15.
    static std::filesystem::path other() {
        return makeFixture({.frameRate = {15, 1}, .duration = 6}).path;
    }

    void exportTo(const std::filesystem::path& output) {
        state().exportTo(urlOf(output));
        ASSERT_TRUE(pumpUntil([this] { return !state().exportProgress(); }));
    }

    void expectExportOfClip(const std::filesystem::path& output) {
        exportTo(output);
        EXPECT_EQ(state().errorMessage(), std::nullopt);
        const auto frames = readNumberedFrames(output);
        ASSERT_EQ(frames.size(), 30U);
        EXPECT_EQ(frames.front().number, 30);
        EXPECT_EQ(frames.back().number, 59);
    }

    TemporaryFolder m_folder;
};

// The export once opened the name again, and held the pictures of whatever had it by then.
TEST_F(EditStateSourceTest, exportsWhatWasSeenWhenTheNameIsAnotherVideos) {
    openClip();
    std::filesystem::copy_file(other(), m_folder / "other.mp4");
    std::filesystem::rename(m_folder / "other.mp4", clip());
    expectExportOfClip(m_folder / "out.mp4");
}

TEST_F(EditStateSourceTest, exportsWhatWasSeenWhenTheFileIsDeletedOrRenamed) {
    openClip();
    std::filesystem::rename(clip(), m_folder / "renamed.mp4");
    expectExportOfClip(m_folder / "out.mp4");
    std::filesystem::remove(m_folder / "renamed.mp4");
    expectExportOfClip(m_folder / "second.mp4");
}

TEST_F(EditStateSourceTest, showsTheOpenedFileWhenTheNameIsAnotherVideos) {
    std::filesystem::copy_file(makeFixture({.duration = 4}).path, clip());
    state().load(urlOf(clip()));
    ASSERT_TRUE(pumpUntil([this] { return state().videoURL().has_value(); }));
    std::filesystem::remove(clip());
    ASSERT_TRUE(pumpUntil([this] { return !state().thumbnails().isEmpty(); }));
    EXPECT_EQ(state().thumbnails().size(), 12);
}

TEST_F(EditStateSourceTest, isNeverWrittenOverUnderItsNewNameEither) {
    openClip();
    std::filesystem::rename(clip(), m_folder / "renamed.mp4");
    exportTo(m_folder / "renamed.mp4");
    EXPECT_EQ(state().errorMessage(),
              QStringLiteral("Export failed: Couldn't create an export session for this video."));
    EXPECT_EQ(readNumberedFrames(m_folder / "renamed.mp4").size(), 120U);
}

TEST_F(EditStateSourceTest, mayBeExportedOntoItsFormerName) {
    openClip();
    std::filesystem::rename(clip(), m_folder / "renamed.mp4");
    std::filesystem::copy_file(other(), clip());
    expectExportOfClip(clip());
    EXPECT_EQ(readNumberedFrames(m_folder / "renamed.mp4").size(), 120U);
}

// An index of what the file held before finds anything but pictures in what it holds now.
TEST_F(EditStateSourceTest, isNotExportedOnceItHoldsAnotherVideo) {
    openClip();
    std::filesystem::copy_file(other(), clip(), std::filesystem::copy_options::overwrite_existing);
    exportTo(m_folder / "out.mp4");
    EXPECT_EQ(state().errorMessage(),
              QStringLiteral("Export failed: “clip.mp4” was changed after it was opened."));
    EXPECT_FALSE(std::filesystem::exists(m_folder / "out.mp4"));
}

TEST_F(EditStateSourceTest, isExportedWhenItHasOnlyGrown) {
    openClip();
    std::filesystem::resize_file(clip(), std::filesystem::file_size(clip()) + 100'000);
    expectExportOfClip(m_folder / "out.mp4");
}

TEST_F(EditStateSourceTest, tellsThatItWasCutShort) {
    openClip();
    std::filesystem::resize_file(clip(), std::filesystem::file_size(clip()) / 4);
    exportTo(m_folder / "out.mp4");
    EXPECT_EQ(state().errorMessage(),
              QStringLiteral("Export failed: The video was cut short while it was being read."));
    EXPECT_FALSE(std::filesystem::exists(m_folder / "out.mp4"));
}

} // namespace

} // namespace brisklet
