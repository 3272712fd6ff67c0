#include "AppFixture.h"

#include "Models/CropRules.h"
#include "QtSupport/Keys.h"
#include "QtSupport/Pointer.h"
#include "Views/ContentView.h"
#include "Views/Crop/CropOverlayView.h"
#include "Views/Timeline/TimelineMarker.h"
#include "Views/Timeline/TimelineStrip.h"

#include <memory>

namespace brisklet {
namespace {

using testsupport::Pointer;
using testsupport::pumpPending;

/// Undoing by key what the mouse and the keys have done in a real window.
class UndoTest : public AppFixture {
protected:
    void SetUp() override {
        ASSERT_TRUE(loadAndWait(*m_window, video(10)));
        pumpPending();
        m_strip = m_window->findChild<TimelineStrip*>();
        m_overlay = m_window->findChild<CropOverlayView*>();
        ASSERT_NE(m_strip, nullptr);
        ASSERT_NE(m_overlay, nullptr);
        m_timeline = std::make_unique<Pointer>(*m_strip);
        m_crop = std::make_unique<Pointer>(*m_overlay);
    }

    EditState& state() { return *m_window->state(); }

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        testsupport::clickKey(m_window->windowHandle(), key, modifiers);
    }

    void undo() { press(Qt::Key_Z, Qt::ControlModifier); }

    void redo() { press(Qt::Key_Y, Qt::ControlModifier); }

    QPoint at(double seconds) const {
        return {qRound(m_strip->geometryNow().x(seconds)), m_strip->height() / 2};
    }

    QPoint handle(EditMarker end) const {
        return m_strip->geometryNow().marker(end).center().toPoint();
    }

    void drag(const Pointer& pointer, const QPoint& from, const QPoint& to) {
        pointer.press(from);
        for (int part = 1; part <= 8; ++part)
            pointer.moveTo(from + (to - from) * part / 8);
        pointer.release(to);
    }

    WindowRootView* m_window = openWindow();
    TimelineStrip* m_strip = nullptr;
    CropOverlayView* m_overlay = nullptr;
    std::unique_ptr<Pointer> m_timeline;
    std::unique_ptr<Pointer> m_crop;
};

TEST_F(UndoTest, takesADragOfAHandleAsOneStep) {
    drag(*m_timeline, handle(EditMarker::trimStart), at(3));
    const double start = state().trimStart();
    drag(*m_timeline, handle(EditMarker::trimEnd), at(7));
    ASSERT_GT(start, 2.5);
    ASSERT_LT(state().trimEnd(), 7.5);
    undo();
    EXPECT_EQ(state().trimEnd(), 10);
    EXPECT_EQ(state().trimStart(), start);
    undo();
    EXPECT_EQ(state().trimStart(), 0);
    redo();
    EXPECT_EQ(state().trimStart(), start);
}

TEST_F(UndoTest, hasNoStepForADragThatEscapeTookBackNorForThePlayhead) {
    press(Qt::Key_R);
    m_timeline->press(handle(EditMarker::trimStart));
    m_timeline->moveTo(at(4));
    undo();
    EXPECT_GT(state().trimStart(), 3) << "undone while the mouse was held";
    press(Qt::Key_Escape);
    m_timeline->release(at(4));
    drag(*m_timeline, at(5), at(8));
    EXPECT_EQ(state().rotation(), 270);
    undo();
    EXPECT_EQ(state().rotation(), 0);
    EXPECT_EQ(state().history().undoStep(), std::nullopt);
}

TEST_F(UndoTest, takesADragOfTheCropAsOneStep) {
    press(Qt::Key_K);
    pumpPending();
    const media::Rect before = *state().cropRect();
    const QPoint middle = m_overlay->cropViewRect().center().toPoint();
    drag(*m_crop, middle, middle + QPoint(40, 24));
    ASSERT_NE(*state().cropRect(), before);
    m_crop->press(middle);
    m_crop->moveTo(middle - QPoint(40, 24));
    press(Qt::Key_Escape);
    m_crop->release(middle);
    undo();
    EXPECT_EQ(*state().cropRect(), before);
    undo();
    EXPECT_FALSE(state().cropRect());
    redo();
    redo();
    EXPECT_NE(*state().cropRect(), before);
    EXPECT_EQ(state().history().redoStep(), std::nullopt);
}

TEST_F(UndoTest, takesARunOfArrowKeysAsOneStepUntilTheHandleLosesTheKeyboard) {
    TimelineMarker& start = m_strip->marker(EditMarker::trimStart);
    const auto run = [&] {
        start.setFocus(Qt::TabFocusReason);
        for (int count = 0; count < 4; ++count)
            press(Qt::Key_Right, Qt::ShiftModifier);
    };
    run();
    const double first = state().trimStart();
    m_strip->marker(EditMarker::trimEnd).setFocus(Qt::TabFocusReason);
    run();
    ASSERT_GT(state().trimStart(), first);
    undo();
    EXPECT_EQ(state().trimStart(), first);
    undo();
    EXPECT_EQ(state().trimStart(), 0);
}

TEST_F(UndoTest, restoresACropThatWasTurnedExactly) {
    press(Qt::Key_K);
    pumpPending();
    const QPoint middle = m_overlay->cropViewRect().center().toPoint();
    drag(*m_crop, middle, middle + QPoint(33, 17));
    const media::Rect dragged = *state().cropRect();
    for (int turn = 0; turn < 7; ++turn)
        press(Qt::Key_R);
    for (int turn = 0; turn < 7; ++turn)
        undo();
    EXPECT_EQ(state().rotation(), 0);
    EXPECT_EQ(*state().cropRect(), dragged);
}

} // namespace
} // namespace brisklet
