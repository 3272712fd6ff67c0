#include "Models/EditKeeper.h"

#include "Models/EditGesture.h"
#include "Models/EditStateFixture.h"
#include "Models/KeptEditText.h"
#include "TestSupport/TemporaryFolder.h"

#include <QTimer>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <vector>

namespace brisklet {

namespace {

using testsupport::makeFixture;
using testsupport::pumpPending;
using testsupport::pumpUntil;

class EditKeeperTest : public EditStateFixture {
protected:
    void SetUp() override {
        m_keeper->watch(m_state);
        ASSERT_TRUE(loadAndWait(kTenSeconds));
    }

    std::vector<KeptRecord> onDisk() const {
        std::stringstream text;
        text << std::ifstream(m_folder / "edits").rdbuf();
        return KeptEditText::parse(text.str()).records;
    }

    bool waitForDisk(const std::vector<Edit>& edits) const {
        return pumpUntil([&] {
            return std::ranges::equal(onDisk(), edits, {},
                                      [](const KeptRecord& record) { return record.edit.edit; });
        });
    }

    bool isSaving() const { return m_keeper->findChild<QTimer*>()->isActive(); }

    /// What another program that runs now, or the next one, would get.
    std::optional<KeptEdit> takenByAnother() const {
        EditStore other(m_folder.path());
        return other.takeLast({}, {});
    }

    std::optional<KeptEdit> taken() const { return testsupport::await(m_keeper->takeLast()); }

    testsupport::TemporaryFolder m_folder;
    std::unique_ptr<EditKeeper> m_keeper = std::make_unique<EditKeeper>(m_folder.path());
};

TEST_F(EditKeeperTest, writesWhatIsEditedWithoutBeingAsked) {
    EXPECT_FALSE(isSaving()) << "nothing is edited yet";
    state().seek(3);
    EXPECT_FALSE(isSaving()) << "the playhead alone";
    state().setTrimStart(1);
    EXPECT_TRUE(waitForDisk({state().edit()}));
    EXPECT_EQ(onDisk().at(0).edit, state().unfinishedEdit());
    EXPECT_FALSE(m_keeper->canReopen()) << "it is open";
    EXPECT_EQ(takenByAnother(), std::nullopt);
}

TEST_F(EditKeeperTest, needsNoTimerAtRest) {
    state().setTrimStart(1);
    EXPECT_TRUE(isSaving());
    EXPECT_TRUE(m_keeper->findChild<QTimer*>()->isSingleShot());
    ASSERT_TRUE(waitForDisk({state().edit()}));
    EXPECT_FALSE(isSaving());
    state().togglePlayback();
    ASSERT_TRUE(pumpUntil([this] { return state().isPlaying() && state().currentTime() > 1.5; }));
    EXPECT_FALSE(isSaving()) << "while it plays";
    state().togglePlayback();
    ASSERT_TRUE(pumpUntil([this] { return !state().isPlaying(); }));
    EXPECT_TRUE(isSaving()) << "the playhead has moved";
}

/// A drag that does not end must not put the writing off for ever.
TEST_F(EditKeeperTest, writesInTheMiddleOfADrag) {
    const EditGesture gesture(m_state);
    double start = 0;
    EXPECT_TRUE(pumpUntil([&] {
        start += 1e-4;
        state().moveMarker(EditMarker::trimStart, start);
        return !onDisk().empty();
    }));
}

TEST_F(EditKeeperTest, forgetsWhatIsUndoneOrExported) {
    state().setTrimStart(1);
    ASSERT_TRUE(waitForDisk({state().edit()}));
    state().history().undo();
    EXPECT_TRUE(waitForDisk({}));
    state().setTrimStart(8);
    state().setTrimEnd(9);
    ASSERT_TRUE(waitForDisk({state().edit()}));
    const testsupport::TemporaryFolder outputs;
    state().exportTo(urlOf(outputs / "out.mp4"));
    ASSERT_TRUE(pumpUntil([this] { return !state().exportProgress(); }));
    EXPECT_TRUE(waitForDisk({}));
}

TEST_F(EditKeeperTest, keepsTheEditThatAnotherVideoReplaces) {
    state().rotateLeft();
    const Edit edited = state().edit();
    ASSERT_TRUE(loadAndWait({.duration = 1}));
    EXPECT_TRUE(waitForDisk({edited}));
    EXPECT_TRUE(pumpUntil([this] { return m_keeper->canReopen(); }));
    // The same video again is another edit.
    ASSERT_TRUE(loadAndWait(kTenSeconds));
    state().setMuted(true);
    EXPECT_TRUE(waitForDisk({edited, state().edit()}));
}

TEST_F(EditKeeperTest, keepsTheEditOfAWindowThatCloses) {
    state().toggleCrop();
    const auto kept = state().unfinishedEdit();
    m_keeper->release(m_state);
    // What happens to the model from now on is nobody's edit.
    state().toggleCrop();
    EXPECT_TRUE(waitForDisk({kept->edit}));
    EXPECT_TRUE(pumpUntil([this] { return m_keeper->canReopen(); }));
    EXPECT_EQ(taken(), kept);
    EXPECT_FALSE(m_keeper->canReopen());
    EXPECT_EQ(taken(), std::nullopt);
}

/// The program ends right after its last window, before any event.
TEST_F(EditKeeperTest, writesTheLastEditsAfterItsOwnEnd) {
    state().toggleCrop();
    m_keeper->release(m_state);
    m_keeper.reset();
    waitForWorkers();
    const auto kept = takenByAnother();
    ASSERT_TRUE(kept);
    EXPECT_EQ(kept->edit, state().edit());
}

TEST_F(EditKeeperTest, goesOnWithAReopenedEdit) {
    state().toggleCrop();
    m_keeper->release(m_state);
    const auto kept = taken();
    ASSERT_TRUE(kept);
    m_state = std::make_shared<EditState>();
    m_keeper->watch(m_state);
    m_keeper->reopen(m_state, *kept);
    ASSERT_TRUE(pumpUntil([this] { return state().videoURL().has_value(); }));
    EXPECT_EQ(state().edit(), kept->edit);
    state().rotateLeft();
    EXPECT_TRUE(waitForDisk({state().edit()})) << "in its own place";
    state().toggleCrop();
    for (int turn = 0; turn < 3; ++turn)
        state().rotateLeft();
    EXPECT_TRUE(waitForDisk({})) << "nothing is left of it";
}

TEST_F(EditKeeperTest, keepsAnEditWhoseVideoIsNotThereAndTriesTheOthersFirst) {
    const auto closeEditOf = [this](const std::filesystem::path& file) {
        ASSERT_TRUE(loadAndWait(file));
        state().toggleCrop();
        m_keeper->release(m_state);
        m_state = std::make_shared<EditState>();
        m_keeper->watch(m_state);
    };
    closeEditOf(makeFixture(kTenSeconds).path);
    const auto gone = m_folder / "gone.mp4";
    std::filesystem::copy_file(makeFixture({.duration = 1}).path, gone);
    closeEditOf(gone);
    std::filesystem::remove(gone);

    const auto missing = taken();
    ASSERT_TRUE(missing);
    ASSERT_EQ(missing->file, gone);
    m_keeper->reopen(m_state, *missing);
    ASSERT_TRUE(waitForError());
    ASSERT_TRUE(pumpUntil([this] { return m_keeper->canReopen(); }));
    const auto other = taken();
    ASSERT_TRUE(other);
    EXPECT_NE(other->id, missing->id);
    EXPECT_EQ(taken(), missing) << "now there is no other";
}

TEST_F(EditKeeperTest, keepsAnEditWhoseWindowClosesWhileItIsReopened) {
    state().toggleCrop();
    m_keeper->release(m_state);
    const auto kept = taken();
    ASSERT_TRUE(kept);
    m_state = std::make_shared<EditState>();
    m_keeper->watch(m_state);
    m_keeper->reopen(m_state, *kept);
    m_keeper->release(m_state);
    EXPECT_TRUE(pumpUntil([this] { return m_keeper->canReopen(); }));
    EXPECT_EQ(taken(), kept);
}

TEST_F(EditKeeperTest, doesNotLoseTheEditsOfAProgramThatRunsBesideIt) {
    EditKeeper other(m_folder.path());
    const auto model = std::make_shared<EditState>();
    other.watch(model);
    model->load(urlOf(makeFixture({.duration = 1}).path));
    ASSERT_TRUE(pumpUntil([&] { return model->videoURL().has_value(); }));
    model->setMuted(true);
    ASSERT_TRUE(waitForDisk({model->edit()}));
    state().rotateLeft();
    ASSERT_TRUE(waitForDisk({model->edit(), state().edit()}));
    EXPECT_EQ(taken(), std::nullopt) << "both are open";
    other.release(model);
    EXPECT_FALSE(m_keeper->canReopen());
    waitForWorkers();
    m_keeper->refresh();
    ASSERT_TRUE(pumpUntil([this] { return m_keeper->canReopen(); }));
    EXPECT_EQ(taken()->edit, model->edit());
}

} // namespace

} // namespace brisklet
