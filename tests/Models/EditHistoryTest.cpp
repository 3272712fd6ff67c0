#include "Models/EditHistory.h"

#include "Models/EditGesture.h"
#include "Models/EditStateFixture.h"
#include "TestSupport/Inspection.h"
#include "TestSupport/TemporaryFolder.h"

#include <QSignalSpy>

#include <optional>
#include <random>
#include <vector>

namespace brisklet {

namespace {

using testsupport::pumpUntil;

class EditHistoryTest : public EditStateFixture {
protected:
    void SetUp() override { ASSERT_TRUE(loadAndWait(kTenSeconds)); }

    EditHistory& history() { return state().history(); }

    int undoAll() {
        int count = 0;
        for (; history().undoStep(); ++count)
            history().undo();
        return count;
    }
};

TEST_F(EditHistoryTest, undoesEachKindOfStepByItsName) {
    struct Case {
        std::function<void(EditState&)> change;
        EditStep step;
    };

    const std::vector<Case> cases{
        {[](EditState& model) { model.setTrimStart(1); }, EditStep::trimStart},
        {[](EditState& model) { model.moveMarker(EditMarker::trimEnd, 7); }, EditStep::trimEnd},
        {[](EditState& model) { model.toggleCrop(); }, EditStep::crop},
        {[](EditState& model) { model.rotateLeft(); }, EditStep::rotate},
        {[](EditState& model) { model.toggleCrop(); }, EditStep::removeCrop},
        {[](EditState& model) { model.setMuted(true); }, EditStep::mute},
        {[](EditState& model) { model.setMuted(false); }, EditStep::unmute},
    };
    std::vector<Edit> edits{state().edit()};
    for (const Case& each : cases) {
        each.change(state());
        edits.push_back(state().edit());
        EXPECT_EQ(history().undoStep(), each.step);
        EXPECT_EQ(history().redoStep(), std::nullopt);
    }
    for (std::size_t step = cases.size(); step-- > 0;) {
        history().undo();
        EXPECT_EQ(state().edit(), edits[step]);
        EXPECT_EQ(history().redoStep(), cases[step].step);
    }
    EXPECT_EQ(history().undoStep(), std::nullopt);
    history().redo();
    EXPECT_EQ(state().edit(), edits[1]);
}

TEST_F(EditHistoryTest, takesAGestureAsOneStep) {
    const Edit before = state().edit();
    {
        const EditGesture gesture(m_state);
        for (const double time : {1.0, 2.0, 3.0}) {
            state().moveMarker(EditMarker::trimStart, time);
            state().moveMarker(EditMarker::trimEnd, 10 - time);
        }
        history().undo();
        EXPECT_EQ(state().trimStart(), 3) << "in the middle of the gesture";
    }
    EXPECT_EQ(undoAll(), 1);
    EXPECT_EQ(state().edit(), before);
    history().redo();
    EXPECT_EQ(state().trimStart(), 3);
}

TEST_F(EditHistoryTest, takesAGestureThatChangesNothingAsNone) {
    {
        const EditGesture gesture(m_state);
        const auto origin = state().dragOrigin(EditMarker::trimEnd);
        state().moveMarker(EditMarker::trimEnd, 5);
        state().takeBackDrag(origin);
    }
    EXPECT_EQ(history().undoStep(), std::nullopt);
}

TEST_F(EditHistoryTest, takesARunOfKeysOnOneHandleAsOneStep) {
    for (int press = 0; press < 5; ++press)
        state().stepMarker(EditMarker::trimStart, 1);
    for (int press = 0; press < 5; ++press)
        state().stepMarker(EditMarker::trimEnd, -1);
    for (int press = 0; press < 5; ++press)
        state().stepMarker(EditMarker::trimStart, 1);
    // As when the handle loses the keyboard.
    history().endRun();
    state().stepMarker(EditMarker::trimStart, 1);
    // As when the picture is looked at in between.
    state().stepMarker(EditMarker::playhead, 1);
    state().stepMarker(EditMarker::trimStart, 1);
    EXPECT_EQ(undoAll(), 5);
    EXPECT_EQ(state().edit(), Edit{.trimEnd = 10});
}

TEST_F(EditHistoryTest, tellsRunsOnTheSidesOfACropApart) {
    state().toggleCrop();
    const auto resize = [&](CropHandle handle) {
        state().resizeCrop(*state().cropRect(), handle, {.x = -0.01, .y = -0.01});
    };
    resize(CropHandle::right);
    resize(CropHandle::right);
    resize(CropHandle::bottom);
    state().moveCrop(*state().cropRect(), {.x = 0.01});
    state().moveCrop(*state().cropRect(), {.x = 0.01});
    EXPECT_EQ(undoAll(), 4);
}

TEST_F(EditHistoryTest, forgetsARunThatEndsWhereItBegan) {
    state().rotateLeft();
    const auto start = state().trimStart();
    state().moveMarker(EditMarker::trimStart, 2);
    state().moveMarker(EditMarker::trimStart, start);
    EXPECT_EQ(history().undoStep(), EditStep::rotate);
    EXPECT_EQ(undoAll(), 1);
}

TEST_F(EditHistoryTest, doesNotJoinARunThatWasUndone) {
    state().moveMarker(EditMarker::trimStart, 1);
    state().rotateLeft();
    history().undo();
    state().moveMarker(EditMarker::trimStart, 2);
    history().undo();
    EXPECT_EQ(state().trimStart(), 1);
}

TEST_F(EditHistoryTest, beginsAnewWithEachVideo) {
    state().rotateLeft();
    ASSERT_TRUE(loadAndWait({.duration = 1}));
    EXPECT_EQ(history().undoStep(), std::nullopt);
    state().setTrimEnd(0.5);
    history().undo();
    EXPECT_EQ(state().edit(), Edit{.trimEnd = 1});
}

TEST_F(EditHistoryTest, leavesPlayheadAndPlayerAlone) {
    state().moveMarker(EditMarker::trimStart, 3);
    state().seek(6);
    history().undo();
    EXPECT_EQ(state().currentTime(), 6);
    state().setMuted(true);
    history().undo();
    EXPECT_FALSE(player().isMuted());
    history().redo();
    EXPECT_TRUE(player().isMuted());
}

/// An export has the edit that it was started with.
TEST_F(EditHistoryTest, doesNotReachIntoARunningExport) {
    const testsupport::TemporaryFolder folder;
    state().setTrimStart(2);
    state().setTrimEnd(3);
    state().exportTo(urlOf(folder / "out.mp4"));
    history().undo();
    EXPECT_EQ(state().trimEnd(), 10);
    ASSERT_TRUE(pumpUntil([this] { return !state().exportProgress(); }));
    EXPECT_EQ(state().errorMessage(), std::nullopt);
    const auto asset = media::Asset::open(folder / "out.mp4");
    EXPECT_NEAR(asset->duration().seconds(), 1, 1e-3);
    EXPECT_TRUE(state().unfinishedEdit()) << "other than the exported one";
    history().redo();
    EXPECT_FALSE(state().unfinishedEdit()) << "the exported one again";
}

/// One change, as a user makes it in one go.
class RandomEditor {
public:
    explicit RandomEditor(EditState& model) : m_model(model) {}

    void change() {
        m_model.history().endRun();
        switch (below(9)) {
        case 0:
            return m_model.rotateLeft();
        case 1:
            return m_model.toggleCrop();
        case 2:
            return m_model.setMuted(!m_model.isMuted());
        case 3:
            return m_model.moveMarker(EditMarker::trimStart, real(-1, 11));
        case 4:
            return m_model.moveMarker(EditMarker::trimEnd, real(-1, 11));
        case 5:
            return m_model.stepMarker(EditMarker::trimStart, below(21) - 10);
        case 6:
            m_model.seek(real(0, 10));
            return m_model.setTrimEndToPlayhead();
        case 7:
            if (m_model.cropRect())
                m_model.moveCrop(*m_model.cropRect(), {.x = real(-1, 1), .y = real(-1, 1)});
            return;
        default:
            if (m_model.cropRect())
                m_model.resizeCrop(*m_model.cropRect(),
                                   kCropHandles.at(static_cast<std::size_t>(below(8))),
                                   {.x = real(-1, 1), .y = real(-1, 1)});
        }
    }

private:
    int below(int limit) { return std::uniform_int_distribution(0, limit - 1)(m_random); }

    double real(double from, double to) {
        return std::uniform_real_distribution(from, to)(m_random);
    }

    EditState& m_model;
    std::mt19937 m_random{7};
};

TEST_F(EditHistoryTest, returnsThroughTenThousandStepsAndForwardAgain) {
    constexpr std::size_t kSteps = 10'000;
    RandomEditor editor(state());
    std::vector<Edit> edits{state().edit()};
    while (edits.size() <= kSteps) {
        editor.change();
        if (const Edit now = state().edit(); now != edits.back())
            edits.push_back(now);
    }
    for (std::size_t step = kSteps; step-- > 0;) {
        history().undo();
        ASSERT_EQ(state().edit(), edits[step]) << "undoing step " << step;
    }
    EXPECT_EQ(history().undoStep(), std::nullopt);
    for (std::size_t step = 1; step <= kSteps; ++step) {
        history().redo();
        ASSERT_EQ(state().edit(), edits[step]) << "redoing step " << step;
    }
    EXPECT_EQ(history().redoStep(), std::nullopt);
}

} // namespace

} // namespace brisklet
