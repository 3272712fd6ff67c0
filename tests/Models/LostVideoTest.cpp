#include "LosableVideos/LosableVideos.h"
#include "Models/EditKeeper.h"
#include "Models/EditStateFixture.h"
#include "Models/ExportForecaster.h"
#include "TestSupport/Inspection.h"
#include "TestSupport/TemporaryFolder.h"

#include <QSignalSpy>

#include <cmath>
#include <filesystem>
#include <string>

/// The process that decodes a video may end at any time.
namespace brisklet {

namespace {

namespace fs = std::filesystem;

using testsupport::LosableVideos;
using testsupport::makeFixture;
using testsupport::pumpPending;
using testsupport::pumpUntil;

class LostVideoTest : public EditStateFixture {
protected:
    /// Edits a copy of a video, with steps to undo.
    void SetUp() override {
        fs::create_directories(m_videos);
        fs::copy_file(makeFixture(kTenSeconds).path, m_file);
        ASSERT_TRUE(loadAndWait(m_file));
        state().setTrimStart(2.345);
        state().setTrimEnd(7.5);
        state().toggleCrop();
        state().rotateLeft();
        state().setMuted(true);
        state().seek(5.25);
        m_edit = state().edit();
        m_id = state().editId();
    }

    bool lose() {
        LosableVideos::lose(m_file);
        return pumpUntil([this] { return state().isVideoLost(); });
    }

    bool openAgain() {
        state().openAgain();
        return pumpUntil([this] { return !state().isVideoLost() || state().errorMessage(); });
    }

    void expectTheSameEdit() {
        EXPECT_EQ(state().edit(), m_edit);
        EXPECT_EQ(state().editId(), m_id);
        EXPECT_NEAR(state().currentTime(), 5.25, 1.0 / 600);
    }

    testsupport::TemporaryFolder m_folder;
    fs::path m_videos = m_folder / "videos";
    fs::path m_file = m_videos / "clip.mp4";
    LosableVideos m_losable;
    Edit m_edit;
    std::uint64_t m_id = 0;
};

TEST_F(LostVideoTest, isToldAndOfferedToBeOpenedAgain) {
    EXPECT_FALSE(state().isVideoLost());
    const QSignalSpy offered(&state(), &EditState::isOpenAgainOfferedChanged);
    ASSERT_TRUE(lose());
    EXPECT_EQ(state().lossMessage(),
              QStringLiteral("“clip.mp4” can’t be shown any more: its decoder has stopped "
                             "unexpectedly. The edit is not lost."));
    EXPECT_TRUE(state().isOpenAgainOffered());
    EXPECT_EQ(offered.count(), 1);
    EXPECT_EQ(state().errorMessage(), std::nullopt);
    state().withdrawOffer();
    EXPECT_FALSE(state().isOpenAgainOffered());
    EXPECT_TRUE(state().isVideoLost());
}

TEST_F(LostVideoTest, pauses) {
    state().togglePlayback();
    ASSERT_TRUE(pumpUntil([this] { return state().isPlaying(); }));
    ASSERT_TRUE(lose());
    EXPECT_TRUE(pumpUntil([this] { return !state().isPlaying(); }));
    EXPECT_EQ(player().rate(), 0.0F);
    EXPECT_EQ(player().currentItem(), nullptr);
}

TEST_F(LostVideoTest, keepsItsEditAndPlayhead) {
    ASSERT_TRUE(lose());
    pumpPending();
    EXPECT_TRUE(state().videoURL());
    expectTheSameEdit();
    const auto kept = state().unfinishedEdit();
    ASSERT_TRUE(kept);
    EXPECT_EQ(kept->file, m_file);
    EXPECT_EQ(kept->edit, m_edit);
    EXPECT_TRUE(std::isfinite(kept->playhead));
}

TEST_F(LostVideoTest, comesBackAsItWas) {
    ASSERT_TRUE(lose());
    ASSERT_TRUE(openAgain());
    EXPECT_EQ(state().errorMessage(), std::nullopt);
    EXPECT_EQ(state().lossMessage(), std::nullopt);
    EXPECT_FALSE(state().isOpenAgainOffered());
    expectTheSameEdit();
    EXPECT_TRUE(player().isMuted());
    ASSERT_TRUE(
        pumpUntil([this] { return std::abs(player().currentTime().seconds() - 5.25) < 0.01; }));
    pumpPending();
    expectTheSameEdit();
}

TEST_F(LostVideoTest, playsAndExportsAgainOnceItIsBack) {
    ASSERT_TRUE(lose());
    ASSERT_TRUE(openAgain());
    state().togglePlayback();
    ASSERT_TRUE(pumpUntil([this] { return state().currentTime() > 5.3; }));
    state().toggleCrop();
    state().rotateLeft();
    state().rotateLeft();
    state().rotateLeft();
    state().setTrimStart(1);
    state().setTrimEnd(2);
    state().exportTo(urlOf(m_folder / "out.mp4"));
    ASSERT_TRUE(pumpUntil([this] { return !state().exportProgress(); }));
    EXPECT_EQ(state().errorMessage(), std::nullopt);
    const auto frames = testsupport::readNumberedFrames(m_folder / "out.mp4");
    ASSERT_EQ(frames.size(), 30U);
    EXPECT_EQ(frames.front().number, 30);
}

TEST_F(LostVideoTest, comesBackWithItsStepsToUndo) {
    ASSERT_TRUE(lose());
    state().history().undo();
    EXPECT_FALSE(state().isMuted());
    ASSERT_TRUE(openAgain());
    state().history().redo();
    EXPECT_EQ(state().edit(), m_edit);
    for (int step = 0; step < 5; ++step)
        state().history().undo();
    EXPECT_EQ(state().edit(), Edit{.trimEnd = 10});
    EXPECT_EQ(state().history().undoStep(), std::nullopt);
}

TEST_F(LostVideoTest, comesBackWithWhatWasEditedWhileItWasLost) {
    ASSERT_TRUE(lose());
    state().moveMarker(EditMarker::trimStart, 3.5);
    EXPECT_EQ(state().trimStart(), 3.5);
    state().moveMarker(EditMarker::playhead, 6.125);
    pumpPending();
    EXPECT_EQ(state().currentTime(), 6.125);
    state().openAgain();
    state().setMuted(false);
    ASSERT_TRUE(pumpUntil([this] { return !state().isVideoLost(); }));
    EXPECT_EQ(state().trimStart(), 3.5);
    EXPECT_FALSE(state().isMuted());
    EXPECT_FALSE(player().isMuted());
    EXPECT_NEAR(state().currentTime(), 6.125, 1.0 / 600);
}

TEST_F(LostVideoTest, comesBackAsExportedIfItWas) {
    state().exportTo(urlOf(m_folder / "out.mp4"));
    ASSERT_TRUE(pumpUntil([this] { return !state().exportProgress(); }));
    ASSERT_EQ(state().unfinishedEdit(), std::nullopt);
    ASSERT_TRUE(lose());
    ASSERT_TRUE(openAgain());
    EXPECT_EQ(state().unfinishedEdit(), std::nullopt);
}

TEST_F(LostVideoTest, comesBackWithItsFilmstrip) {
    const auto strip = state().thumbnails();
    ASSERT_TRUE(lose());
    EXPECT_EQ(state().thumbnails(), strip);
    ASSERT_TRUE(openAgain());
    EXPECT_EQ(state().thumbnails(), strip);
    EXPECT_TRUE(state().isMakingThumbnails());
    ASSERT_TRUE(pumpUntil([this] { return !state().isMakingThumbnails(); }));
    EXPECT_EQ(state().thumbnails().size(), 12);
}

TEST_F(LostVideoTest, isFoundUnderANewName) {
    ASSERT_TRUE(lose());
    fs::rename(m_file, m_videos / "renamed.mp4");
    ASSERT_TRUE(openAgain());
    EXPECT_EQ(state().videoURL(), urlOf(m_videos / "renamed.mp4"));
    expectTheSameEdit();
    EXPECT_TRUE(state().history().undoStep());
}

/// A copy is most likely the same, but that is not certain.
TEST_F(LostVideoTest, hasNoStepsToUndoInAnotherFile) {
    ASSERT_TRUE(lose());
    fs::copy_file(m_file, m_videos / "copy.mp4");
    fs::remove(m_file);
    ASSERT_TRUE(openAgain());
    EXPECT_EQ(state().videoURL(), urlOf(m_videos / "copy.mp4"));
    expectTheSameEdit();
    EXPECT_EQ(state().history().undoStep(), std::nullopt);
}

TEST_F(LostVideoTest, staysLostWhereItsFileIsGone) {
    ASSERT_TRUE(lose());
    fs::remove(m_file);
    ASSERT_TRUE(openAgain());
    EXPECT_EQ(state().errorMessage().value_or(QString()).toStdString(),
              "Couldn’t reopen “clip.mp4”: It is no longer in the folder “" + m_videos.string() +
                  "”.");
    EXPECT_TRUE(state().isVideoLost());
    EXPECT_FALSE(state().isOpenAgainOffered());
    expectTheSameEdit();
    EXPECT_TRUE(state().unfinishedEdit());
    // And may be tried again.
    state().clearErrorMessage();
    fs::copy_file(makeFixture(kTenSeconds).path, m_file);
    ASSERT_TRUE(openAgain());
    EXPECT_EQ(state().errorMessage(), std::nullopt);
    expectTheSameEdit();
}

TEST_F(LostVideoTest, staysLostWhereItsFileHoldsAnotherVideo) {
    ASSERT_TRUE(lose());
    fs::copy_file(makeFixture({.duration = 3}).path, m_file, fs::copy_options::overwrite_existing);
    ASSERT_TRUE(openAgain());
    EXPECT_EQ(state().errorMessage(),
              QStringLiteral("Couldn’t reopen “clip.mp4”: Another file has its name now."));
    EXPECT_TRUE(state().isVideoLost());
    expectTheSameEdit();
}

TEST_F(LostVideoTest, offersToBeOpenedWhenItIsToPlayStepOrExport) {
    ASSERT_TRUE(lose());
    const auto offers = [this](const auto& act) {
        state().withdrawOffer();
        act();
        return state().isOpenAgainOffered();
    };
    EXPECT_TRUE(offers([this] { state().togglePlayback(); }));
    EXPECT_TRUE(offers([this] { state().stepFrames(1); }));
    EXPECT_TRUE(offers([this] { state().exportTo(urlOf(m_folder / "out.mp4")); }));
    m_panels->toSave = urlOf(m_folder / "out.mp4");
    EXPECT_TRUE(offers([this] { state().presentExportPanel(); }));
    EXPECT_TRUE(m_panels->proposals.empty());
    EXPECT_FALSE(offers([this] { state().seek(1); }));
    EXPECT_EQ(player().rate(), 0.0F);
    EXPECT_EQ(state().exportProgress(), std::nullopt);
    EXPECT_EQ(state().plannedExport(), std::nullopt);
    pumpPending();
    EXPECT_FALSE(fs::exists(m_folder / "out.mp4"));
    EXPECT_EQ(state().currentTime(), 1);
}

TEST_F(LostVideoTest, doesNotPlayWhenADragIsTakenBack) {
    state().togglePlayback();
    const auto origin = state().dragOrigin(EditMarker::trimStart);
    ASSERT_TRUE(origin.isPlaying);
    state().moveMarker(EditMarker::trimStart, 4);
    ASSERT_TRUE(lose());
    state().takeBackDrag(origin);
    EXPECT_EQ(state().edit(), m_edit);
    EXPECT_EQ(player().rate(), 0.0F);
}

/// The forecaster looks at each event for as long as it wants to try.
TEST_F(LostVideoTest, isNotTriedForAForecast) {
    int trials = 0;
    const auto trial =
        [&](const ExportRequest&,
            const std::stop_token&) -> QCoro::Task<std::optional<media::ExportForecast>> {
        ++trials;
        co_return std::nullopt;
    };
    const ExportForecaster forecaster(m_state,
                                      {.rest = std::chrono::milliseconds(50), .trial = trial});
    ASSERT_TRUE(forecaster.isPending());
    ASSERT_TRUE(lose());
    EXPECT_TRUE(pumpUntil([&] { return !forecaster.isPending(); }));
    EXPECT_EQ(trials, 0);
    ASSERT_TRUE(openAgain());
    EXPECT_TRUE(pumpUntil([&] { return trials == 1; }));
}

TEST_F(LostVideoTest, isNotOpenedTwiceAtOnce) {
    ASSERT_TRUE(lose());
    ASSERT_EQ(LosableVideos::openedCount(), 1U);
    state().openAgain();
    state().openAgain();
    state().togglePlayback();
    EXPECT_FALSE(state().isOpenAgainOffered()) << "it is being opened";
    waitForWorkers();
    pumpPending();
    ASSERT_TRUE(pumpUntil([this] { return !state().isVideoLost(); }));
    EXPECT_EQ(LosableVideos::openedCount(), 2U);
}

TEST_F(LostVideoTest, givesWayToAnotherVideo) {
    ASSERT_TRUE(lose());
    ASSERT_TRUE(loadAndWait(makeFixture({.duration = 3}).path));
    EXPECT_FALSE(state().isVideoLost());
    EXPECT_FALSE(state().isOpenAgainOffered());
    EXPECT_EQ(state().edit(), Edit{.trimEnd = 3});
    EXPECT_NE(player().currentItem(), nullptr);
}

TEST_F(LostVideoTest, doesNotComeBackInPlaceOfAnotherVideo) {
    ASSERT_TRUE(lose());
    const auto other = urlOf(makeFixture({.duration = 3}).path);
    state().load(other);
    waitForWorkers();
    // The other one is published while this one is on its way.
    state().openAgain();
    waitForWorkers();
    ASSERT_TRUE(pumpUntil([&] { return state().videoURL() == other; }));
    waitForWorkers();
    pumpPending();
    EXPECT_EQ(state().videoURL(), other);
}

TEST_F(LostVideoTest, isNotTakenForTheVideoThatWasLoadedMeanwhile) {
    const auto other = urlOf(makeFixture({.duration = 3}).path);
    const QObject context;
    QObject::connect(&state(), &EditState::editEnded, &context,
                     [this] { LosableVideos::lose(m_file); });
    state().load(other);
    ASSERT_TRUE(pumpUntil([&] { return state().videoURL() == other; }));
    pumpPending();
    EXPECT_FALSE(state().isVideoLost());
    EXPECT_NE(player().currentItem(), nullptr);
}

TEST_F(LostVideoTest, isNoticedWhereItHappensWhileItIsLoaded) {
    LosableVideos::loseWhenOpened();
    state().load(urlOf(makeFixture({.duration = 3}).path));
    EXPECT_TRUE(pumpUntil([this] { return state().isVideoLost(); }));
    EXPECT_EQ(state().duration(), 3);
}

TEST_F(LostVideoTest, leavesNothingToTellWhenItsWindowHasGone) {
    LosableVideos::lose(m_file);
    m_state.reset();
    pumpPending();
}

/// A strip that is being made fails with the video.
TEST_F(LostVideoTest, hasOneMessageWhileItsFilmstripIsMade) {
    auto other = std::make_shared<EditState>();
    const QSignalSpy errors(other.get(), &EditState::errorMessageChanged);
    other->load(urlOf(m_file));
    ASSERT_TRUE(pumpUntil([&] { return other->isMakingThumbnails(); }));
    LosableVideos::lose(m_file);
    ASSERT_TRUE(pumpUntil([&] { return other->isVideoLost(); }));
    EXPECT_FALSE(other->isMakingThumbnails());
    waitForWorkers();
    pumpPending();
    EXPECT_EQ(errors.count(), 0);
    EXPECT_TRUE(other->thumbnails().isEmpty());
    other->openAgain();
    EXPECT_TRUE(pumpUntil([&] { return other->thumbnails().size() == 12; }));
}

TEST_F(LostVideoTest, doesNotEndAnExport) {
    state().exportTo(urlOf(m_folder / "out.mp4"));
    ASSERT_TRUE(lose());
    EXPECT_TRUE(state().exportProgress());
    ASSERT_TRUE(openAgain());
    ASSERT_TRUE(pumpUntil([this] { return !state().exportProgress(); }));
    EXPECT_EQ(state().errorMessage(), std::nullopt);
    EXPECT_TRUE(fs::exists(m_folder / "out.mp4"));
    EXPECT_EQ(state().unfinishedEdit(), std::nullopt);
}

TEST_F(LostVideoTest, isExportedToTheFileThatIsChosenAfterItCameBack) {
    const auto output = m_folder / "out.mp4";
    m_panels->toSave = urlOf(output);
    m_panels->whileOpen = [this] {
        ASSERT_TRUE(lose());
        ASSERT_TRUE(openAgain());
    };
    state().presentExportPanel();
    ASSERT_TRUE(state().exportProgress());
    ASSERT_TRUE(pumpUntil([this] { return !state().exportProgress(); }));
    EXPECT_TRUE(fs::exists(output));
}

class KeptLostVideoTest : public LostVideoTest {
protected:
    void SetUp() override {
        m_keeper.watch(m_state);
        LostVideoTest::SetUp();
    }

    /// What another program would get that runs now.
    std::optional<KeptEdit> takenByAnother() const {
        EditStore other(m_edits);
        return other.takeLast({}, {});
    }

    fs::path m_edits = m_folder / "edits";
    EditKeeper m_keeper{m_edits};
};

TEST_F(KeptLostVideoTest, comesBackWithoutHavingBeenClosed) {
    ASSERT_TRUE(lose());
    ASSERT_TRUE(openAgain());
    m_keeper.refresh();
    waitForWorkers();
    pumpPending();
    EXPECT_FALSE(m_keeper.canReopen());
    EXPECT_EQ(takenByAnother(), std::nullopt);
}

TEST_F(KeptLostVideoTest, isKeptWhenItsWindowCloses) {
    ASSERT_TRUE(lose());
    state().setTrimEnd(8);
    m_keeper.release(m_state);
    waitForWorkers();
    const auto kept = takenByAnother();
    ASSERT_TRUE(kept);
    EXPECT_EQ(kept->edit, state().edit());
    EXPECT_EQ(kept->file, m_file);
}

} // namespace

} // namespace brisklet
