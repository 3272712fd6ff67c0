#include "Models/EditStateFixture.h"
#include "TestSupport/TemporaryFolder.h"

#include <filesystem>
#include <string>

namespace brisklet {

namespace {

namespace fs = std::filesystem;

using testsupport::makeFixture;
using testsupport::pumpUntil;

/// A kept edit of a copy of a video, whose file the test then moves about.
class ReopenedEditTest : public EditStateFixture {
protected:
    void SetUp() override { keep("clip.mp4"); }

    void keep(const std::string& name) {
        m_file = m_videos / name;
        fs::create_directories(m_videos);
        fs::copy_file(makeFixture(kTenSeconds).path, m_file);
        ASSERT_TRUE(loadAndWait(m_file));
        state().setTrimStart(2);
        state().setTrimEnd(7);
        state().toggleCrop();
        state().rotateLeft();
        state().setMuted(true);
        state().seek(5);
        const auto kept = state().unfinishedEdit();
        ASSERT_TRUE(kept);
        m_kept = *kept;
        m_state = std::make_shared<EditState>();
    }

    bool reopen() {
        state().reopen(m_kept);
        EXPECT_FALSE(state().isEmpty());
        return pumpUntil(
            [this] { return state().videoURL() || state().errorMessage().has_value(); });
    }

    void expectEdit(const fs::path& file) {
        ASSERT_TRUE(reopen());
        ASSERT_EQ(state().errorMessage(), std::nullopt) << state().errorMessage()->toStdString();
        EXPECT_EQ(pathOf(*state().videoURL()), file);
        EXPECT_EQ(state().edit(), m_kept.edit);
        EXPECT_EQ(state().editId(), m_kept.id);
        EXPECT_NEAR(state().currentTime(), 5, 1.0 / 600);
        EXPECT_TRUE(player().isMuted());
        EXPECT_EQ(state().history().undoStep(), std::nullopt);
    }

    static std::string sentence(const char* before, const fs::path& folder = {},
                                const char* after = "") {
        return std::string("Couldn’t reopen “clip.mp4”: ") + before + folder.string() + after;
    }

    std::string expectFailure() {
        std::uint64_t failed = 0;
        QObject::connect(&state(), &EditState::reopenFailed, &state(),
                         [&](std::uint64_t id) { failed = id; });
        EXPECT_TRUE(reopen());
        EXPECT_EQ(failed, m_kept.id);
        EXPECT_TRUE(state().isEmpty());
        return state().errorMessage().value_or(QString()).toStdString();
    }

    testsupport::TemporaryFolder m_folder;
    fs::path m_videos = m_folder / "videos";
    fs::path m_file;
    KeptEdit m_kept;
};

TEST_F(ReopenedEditTest, comesBackAsItWas) {
    expectEdit(m_file);
}

TEST_F(ReopenedEditTest, findsAFileThatWasRenamed) {
    fs::rename(m_file, m_videos / "other.mp4");
    // A bystander.
    fs::copy_file(makeFixture({.duration = 1}).path, m_videos / "short.mp4");
    expectEdit(m_videos / "other.mp4");
}

TEST_F(ReopenedEditTest, findsAFileThatWasRenamedAndAnotherOneTookItsName) {
    fs::rename(m_file, m_videos / "other.mp4");
    fs::copy_file(makeFixture({.duration = 1}).path, m_file);
    expectEdit(m_videos / "other.mp4");
}

TEST_F(ReopenedEditTest, takesACopyOfTheSameSizeAndDuration) {
    fs::copy_file(m_file, m_videos / "copy.mp4");
    fs::remove(m_file);
    expectEdit(m_videos / "copy.mp4");
}

/// The numbers of disks that come and go change.
TEST_F(ReopenedEditTest, takesTheFileOfTheNameOnADiskWithAnotherNumber) {
    m_kept.identity.device += 1;
    expectEdit(m_file);
}

TEST_F(ReopenedEditTest, doesNotTakeAnotherVideoForIt) {
    const auto other = makeFixture({.duration = 3}).path;
    fs::remove(m_file);
    fs::copy_file(other, m_videos / "bystander.mp4");
    EXPECT_EQ(expectFailure(), sentence("It is no longer in the folder “", m_videos, "”."));
    fs::copy_file(other, m_file);
    state().clearErrorMessage();
    EXPECT_EQ(expectFailure(), sentence("Another file has its name now."));
}

TEST_F(ReopenedEditTest, saysWhereTheFolderIsGone) {
    fs::remove_all(m_videos);
    EXPECT_EQ(expectFailure(), sentence("The folder “", m_videos, "” is not there."));
}

TEST_F(ReopenedEditTest, fitsIntoAFileThatIsShorterNow) {
    // In the same place on disk, of the same size, of another length.
    m_kept.duration = 20;
    m_kept.edit.trimStart = 12;
    m_kept.edit.trimEnd = 18;
    m_kept.playhead = 15;
    ASSERT_TRUE(reopen());
    EXPECT_EQ(state().trimEnd(), 10);
    EXPECT_DOUBLE_EQ(state().trimStart(), 9.9);
    EXPECT_EQ(state().currentTime(), 10);
}

class OddlyNamedEditTest : public ReopenedEditTest {
protected:
    void SetUp() override { keep("two\nlines <b>&amp;\xff.mp4"); }
};

TEST_F(OddlyNamedEditTest, comesBack) {
    expectEdit(m_file);
}

TEST_F(ReopenedEditTest, isWorthKeepingUntilItIsExported) {
    ASSERT_TRUE(loadAndWait(makeFixture({.duration = 1}).path));
    EXPECT_EQ(state().unfinishedEdit(), std::nullopt) << "fresh";
    state().seek(0.5);
    EXPECT_EQ(state().unfinishedEdit(), std::nullopt) << "the playhead alone";
    state().toggleCrop();
    EXPECT_TRUE(state().unfinishedEdit());
    state().toggleCrop();
    EXPECT_EQ(state().unfinishedEdit(), std::nullopt) << "as it was";
    state().setTrimEnd(0.5);
    state().exportTo(urlOf(m_folder / "out.mp4"));
    EXPECT_TRUE(state().unfinishedEdit()) << "not yet exported";
    ASSERT_TRUE(pumpUntil([this] { return !state().exportProgress(); }));
    EXPECT_EQ(state().unfinishedEdit(), std::nullopt) << "exported";
    state().setTrimEnd(0.6);
    EXPECT_TRUE(state().unfinishedEdit()) << "edited since";
}

TEST_F(ReopenedEditTest, isWorthKeepingWhereItsExportWasCancelledOrFailed) {
    ASSERT_TRUE(loadAndWait(m_file));
    state().setTrimEnd(9);
    state().exportTo(urlOf(m_folder / "out.mp4"));
    state().cancelExport();
    ASSERT_TRUE(pumpUntil([this] { return !state().exportProgress(); }));
    EXPECT_TRUE(state().unfinishedEdit());
    state().exportTo(urlOf(m_folder / "missing" / "out.mp4"));
    ASSERT_TRUE(pumpUntil([this] { return !state().exportProgress(); }));
    EXPECT_TRUE(state().unfinishedEdit());
}

} // namespace

} // namespace brisklet
