#include "Models/EditStateFixture.h"

#include <QSignalSpy>

#include <cmath>
#include <limits>
#include <optional>

namespace brisklet {

namespace {

using testsupport::makeFixture;
using testsupport::pumpPending;
using testsupport::pumpUntil;

constexpr double kFrame = 1.0 / 30;
constexpr double kNotANumber = std::numeric_limits<double>::quiet_NaN();

class EditStateMarkersTest : public EditStateFixture {
protected:
    /// A range from 2 to 7 seconds of ten, the playhead at 5.
    void SetUp() override {
        ASSERT_TRUE(loadAndWait(kTenSeconds));
        state().setTrimStart(2);
        state().setTrimEnd(7);
        state().seek(5);
    }

    bool waitForPlayer(bool isPlaying) {
        return pumpUntil([&] { return state().isPlaying() == isPlaying; });
    }

    bool waitForTime(double seconds) {
        return pumpUntil([&] { return std::abs(state().currentTime() - seconds) < 1e-3; });
    }
};

TEST_F(EditStateMarkersTest, areWhereTheirPropertiesAre) {
    struct Case {
        EditMarker marker;
        double time;
        double earliest;
        double latest;
    };

    for (const Case& each : {Case{EditMarker::trimStart, 2, 0, 6.9},
                             {EditMarker::playhead, 5, 0, 10},
                             {EditMarker::trimEnd, 7, 2.1, 10}}) {
        EXPECT_EQ(state().time(each.marker), each.time);
        EXPECT_DOUBLE_EQ(state().earliest(each.marker), each.earliest);
        EXPECT_DOUBLE_EQ(state().latest(each.marker), each.latest);
    }
}

TEST_F(EditStateMarkersTest, moveWithinTheirLimits) {
    struct Case {
        EditMarker marker;
        double to;
        double moved;
    };

    for (const Case& each : {Case{EditMarker::trimStart, 3, 3},
                             {EditMarker::trimStart, -1, 0},
                             {EditMarker::trimStart, 8, 6.9},
                             {EditMarker::trimEnd, 6, 6},
                             {EditMarker::trimEnd, 99, 10},
                             {EditMarker::trimEnd, 1, 2.1},
                             {EditMarker::playhead, 9, 9},
                             {EditMarker::playhead, -1, 0},
                             {EditMarker::playhead, 99, 10}}) {
        state().setTrimStart(2);
        state().setTrimEnd(7);
        state().seek(5);
        state().moveMarker(each.marker, each.to);
        EXPECT_DOUBLE_EQ(state().time(each.marker), each.moved) << each.to;
        // The picture shows the frame there, and no other marker moves.
        EXPECT_EQ(state().currentTime(), state().time(each.marker)) << each.to;
        EXPECT_NEAR(player().currentTime().seconds(), each.moved, 1.0 / 600) << each.to;
        if (each.marker != EditMarker::trimStart) {
            EXPECT_EQ(state().trimStart(), 2) << each.to;
        }
        if (each.marker != EditMarker::trimEnd) {
            EXPECT_EQ(state().trimEnd(), 7) << each.to;
        }
    }
}

TEST_F(EditStateMarkersTest, stayWhereTheyAreForATimeThatIsNoNumber) {
    for (const EditMarker marker : kEditMarkers)
        state().moveMarker(marker, kNotANumber);
    EXPECT_EQ(state().trimStart(), 2);
    EXPECT_EQ(state().trimEnd(), 7);
    EXPECT_EQ(state().currentTime(), 5);
}

TEST_F(EditStateMarkersTest, tellObserversOfRealMovesOnly) {
    const QSignalSpy starts(&state(), &EditState::trimStartChanged);
    const QSignalSpy ends(&state(), &EditState::trimEndChanged);
    state().moveMarker(EditMarker::trimStart, 2);
    state().moveMarker(EditMarker::trimEnd, 7);
    EXPECT_EQ(starts.count() + ends.count(), 0);
    state().moveMarker(EditMarker::trimStart, 3);
    EXPECT_EQ(starts.count(), 1);
    EXPECT_EQ(ends.count(), 0);
}

TEST_F(EditStateMarkersTest, pauseWhereTheyAreAnEndOfTheRange) {
    for (const EditMarker marker : kEditMarkers) {
        state().seek(3);
        player().play();
        ASSERT_TRUE(waitForPlayer(true));
        state().moveMarker(marker, 4);
        EXPECT_EQ(player().rate(), marker == EditMarker::playhead ? 1.0F : 0.0F);
        player().pause();
        ASSERT_TRUE(waitForPlayer(false));
    }
}

TEST_F(EditStateMarkersTest, moveAnEndByTheNominalDurationOfFrames) {
    state().stepMarker(EditMarker::trimStart, 1);
    EXPECT_DOUBLE_EQ(state().trimStart(), 2 + kFrame);
    EXPECT_DOUBLE_EQ(state().currentTime(), 2 + kFrame);
    state().stepMarker(EditMarker::trimEnd, -10);
    EXPECT_DOUBLE_EQ(state().trimEnd(), 7 - 10 * kFrame);
    state().stepMarker(EditMarker::trimEnd, -1000);
    EXPECT_DOUBLE_EQ(state().trimEnd(), 2 + kFrame + 0.1);
    state().stepMarker(EditMarker::trimStart, -1000);
    EXPECT_EQ(state().trimStart(), 0);
}

TEST_F(EditStateMarkersTest, moveByFramesOfTheRateThatTheVideoStates) {
    ASSERT_TRUE(loadAndWait({.frameRate = {25, 1}, .duration = 4}));
    ASSERT_TRUE(pumpUntil([this] { return state().duration() < 5; }));
    state().stepMarker(EditMarker::trimStart, 5);
    EXPECT_DOUBLE_EQ(state().trimStart(), 0.2);
}

TEST_F(EditStateMarkersTest, moveThePlayheadFromPictureToPicture) {
    const auto fixture = makeFixture({.duration = 4, .hasVariableFrameRate = true});
    state().load(urlOf(fixture.path));
    ASSERT_TRUE(pumpUntil([&] { return state().videoURL() == urlOf(fixture.path); }));
    state().stepMarker(EditMarker::playhead, 1);
    EXPECT_TRUE(waitForTime(fixture.frames.at(1).seconds));
    state().stepMarker(EditMarker::playhead, 5);
    EXPECT_TRUE(waitForTime(fixture.frames.at(6).seconds));
    state().stepMarker(EditMarker::playhead, -3);
    EXPECT_TRUE(waitForTime(fixture.frames.at(3).seconds));
    EXPECT_EQ(state().trimStart(), 0);
    EXPECT_EQ(state().trimEnd(), state().duration());
}

TEST_F(EditStateMarkersTest, pauseAPlayingVideoBeforeItSteps) {
    state().seek(3);
    state().togglePlayback();
    ASSERT_TRUE(waitForPlayer(true));
    state().stepFrames(1);
    EXPECT_EQ(player().rate(), 0.0F);
    EXPECT_TRUE(waitForPlayer(false));
}

TEST_F(EditStateMarkersTest, tellTheTimeAtOnceWhenTheyStep) {
    pumpPending();
    player().pause();
    // What the model shows has gone astray; the step brings the player's own time.
    state().playerController().onTick(8);
    ASSERT_EQ(state().currentTime(), 8);
    state().stepFrames(1);
    EXPECT_LT(state().currentTime(), 6);
}

TEST_F(EditStateMarkersTest, areBackAfterADragThatIsTakenBack) {
    for (const EditMarker marker : kEditMarkers) {
        const EditState::DragOrigin origin = state().dragOrigin(marker);
        state().moveMarker(marker, 4);
        state().moveMarker(marker, 3);
        ASSERT_EQ(state().currentTime(), 3);
        state().takeBackDrag(origin);
        EXPECT_EQ(state().trimStart(), 2);
        EXPECT_EQ(state().trimEnd(), 7);
        EXPECT_EQ(state().currentTime(), 5);
        EXPECT_EQ(player().rate(), 0.0F);
    }
}

TEST_F(EditStateMarkersTest, goOnPlayingAfterADragThatIsTakenBack) {
    state().seek(3);
    state().togglePlayback();
    ASSERT_TRUE(waitForPlayer(true));
    const EditState::DragOrigin origin = state().dragOrigin(EditMarker::trimEnd);
    state().moveMarker(EditMarker::trimEnd, 6);
    ASSERT_TRUE(waitForPlayer(false));
    state().takeBackDrag(origin);
    EXPECT_EQ(player().rate(), 1.0F);
    EXPECT_EQ(state().trimEnd(), 7);
}

TEST_F(EditStateMarkersTest, keepTheRangeThatWasSetWhileThePlayheadWasDragged) {
    const EditState::DragOrigin origin = state().dragOrigin(EditMarker::playhead);
    state().moveMarker(EditMarker::playhead, 4);
    state().setTrimStartToPlayhead();
    state().takeBackDrag(origin);
    EXPECT_EQ(state().trimStart(), 4);
    EXPECT_EQ(state().currentTime(), 5);
}

TEST_F(EditStateMarkersTest, takeNothingBackInAnotherVideo) {
    const EditState::DragOrigin origin = state().dragOrigin(EditMarker::trimStart);
    state().moveMarker(EditMarker::trimStart, 4);
    ASSERT_TRUE(loadAndWait({.duration = 2}));
    ASSERT_TRUE(pumpUntil([this] { return state().duration() < 3; }));
    state().takeBackDrag(origin);
    EXPECT_EQ(state().trimStart(), 0);
    EXPECT_EQ(state().trimEnd(), state().duration());
    EXPECT_EQ(state().currentTime(), 0);
}

using EmptyEditStateTest = EditStateFixture;

TEST_F(EmptyEditStateTest, stepsNowhereWithoutAVideo) {
    state().stepFrames(1);
    state().stepMarker(EditMarker::playhead, 1);
    EXPECT_EQ(state().currentTime(), 0);
}

TEST_F(EmptyEditStateTest, setsAndRemovesTheFirstCrop) {
    state().toggleCrop();
    EXPECT_EQ(state().cropRect(), (media::Rect{0.1, 0.1, 0.8, 0.8}));
    state().setCropRect(media::Rect{0.2, 0.2, 0.3, 0.3});
    state().toggleCrop();
    EXPECT_EQ(state().cropRect(), std::nullopt);
}

TEST_F(EmptyEditStateTest, movesAndResizesACropFromWhereADragBegan) {
    const media::Rect start{0.25, 0.25, 0.5, 0.5};
    state().setCropRect(start);
    const QSignalSpy changes(&state(), &EditState::cropRectChanged);
    for (const double by : {0.125, 0.125, 0.5})
        state().moveCrop(start, {by, 0});
    EXPECT_EQ(state().cropRect(), (media::Rect{0.5, 0.25, 0.5, 0.5}));
    EXPECT_EQ(changes.count(), 2);
    state().resizeCrop(start, CropHandle::left, {-0.125, 0.25});
    EXPECT_EQ(state().cropRect(), (media::Rect{0.125, 0.25, 0.625, 0.5}));
}

} // namespace

} // namespace brisklet
