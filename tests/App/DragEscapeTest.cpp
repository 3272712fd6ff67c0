#include "AppFixture.h"

#include "QtSupport/Keys.h"
#include "QtSupport/Pointer.h"
#include "Views/ContentView.h"
#include "Views/Crop/CropOverlayView.h"
#include "Views/ErrorAlert.h"
#include "Views/GoToTimePanel.h"
#include "Views/Timeline/TimelineStrip.h"

#include <QApplication>
#include <QPointer>
#include <QPointingDevice>

#include <initializer_list>
#include <memory>
#include <optional>

namespace brisklet {
namespace {

using testsupport::Pointer;
using testsupport::pumpPending;
using testsupport::pumpUntil;

/// Escape while the mouse drags something in a real window. It closed the window, and with it went
/// the whole edit.
class DragEscapeTest : public AppFixture {
protected:
    void SetUp() override {
        ASSERT_TRUE(loadAndWait(*m_window, video(10)));
        state().setTrimStart(2);
        state().setTrimEnd(8);
        state().seek(5);
        pumpPending();
        m_strip = m_window->findChild<TimelineStrip*>();
        m_overlay = m_window->findChild<CropOverlayView*>();
        ASSERT_NE(m_strip, nullptr);
        ASSERT_NE(m_overlay, nullptr);
        m_timeline = std::make_unique<Pointer>(*m_strip);
        m_crop = std::make_unique<Pointer>(*m_overlay);
    }

    EditState& state() { return *m_window->state(); }

    void pressEscape(Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        testsupport::clickKey(m_window->windowHandle(), Qt::Key_Escape, modifiers);
    }

    QPoint at(double seconds) const {
        return {qRound(m_strip->geometryNow().x(seconds)), m_strip->height() / 2};
    }

    QPoint handle(EditMarker end) const {
        return m_strip->geometryNow().marker(end).center().toPoint();
    }

    void expectAsBefore() {
        EXPECT_TRUE(m_window && m_window->isVisible());
        EXPECT_EQ(state().trimStart(), 2);
        EXPECT_EQ(state().trimEnd(), 8);
        EXPECT_EQ(state().currentTime(), 5);
    }

    /// What the held mouse does after the drag was taken back, and the release.
    void expectNothingUntilRelease(const Pointer& pointer, const QPoint& point) {
        pointer.moveTo(point);
        pointer.moveTo(point + QPoint(5, 0));
        expectAsBefore();
        pointer.release(point);
        expectAsBefore();
    }

    /// Keys of commands, of controls, of the marker that has the focus and of a menu.
    void expectNoKeyActsIn(const Pointer& pointer, const QPoint& from, const QPoint& to) {
        pointer.press(from);
        pointer.moveTo(to);
        const Edit dragged = state().edit();
        const double time = state().currentTime();
        for (const QKeyCombination key : std::initializer_list<QKeyCombination>{
                 Qt::Key_R, Qt::Key_K, Qt::Key_M, Qt::Key_BracketLeft, Qt::Key_BracketRight,
                 Qt::Key_Left, Qt::Key_Right, Qt::Key_Home, Qt::Key_End, Qt::Key_Up, Qt::Key_Down,
                 Qt::Key_PageUp, Qt::Key_Space, Qt::CTRL | Qt::Key_Z, Qt::CTRL | Qt::Key_Y,
                 Qt::CTRL | Qt::Key_G, Qt::CTRL | Qt::Key_W, Qt::ALT | Qt::Key_C}) {
            testsupport::clickKey(m_window->windowHandle(), key.key(), key.keyboardModifiers());
            pumpPending();
            ASSERT_TRUE(m_window && m_window->isVisible()) << key.key();
            EXPECT_EQ(state().edit(), dragged) << key.key();
            // The player may round the time that the drag asked for; a key would move it by a
            // frame.
            EXPECT_NEAR(state().currentTime(), time, 1.0 / 600) << key.key();
            EXPECT_EQ(m_window->findChild<GoToTimePanel*>(), nullptr);
            EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
        }
        EXPECT_FALSE(state().isPlaying());
        pointer.release(to);
    }

    void expectClosedByEscape() {
        pressEscape();
        EXPECT_TRUE(pumpUntil([this] { return m_window.isNull(); }));
    }

    QPointer<WindowRootView> m_window = openWindow();
    TimelineStrip* m_strip = nullptr;
    CropOverlayView* m_overlay = nullptr;
    std::unique_ptr<Pointer> m_timeline;
    std::unique_ptr<Pointer> m_crop;
};

TEST_F(DragEscapeTest, putsAHandleBackAndThePlayheadWithIt) {
    for (const EditMarker end : {EditMarker::trimStart, EditMarker::trimEnd}) {
        m_timeline->press(handle(end));
        m_timeline->moveTo(at(4));
        // The player rounds the times of its seeks to ticks of 1/600 s, and reports them so.
        ASSERT_NEAR(state().currentTime(), state().time(end), 1.0 / 600);
        ASSERT_NE(state().currentTime(), 5);
        pressEscape();
        expectAsBefore();
        expectNothingUntilRelease(*m_timeline, at(6));
    }
    expectClosedByEscape();
}

TEST_F(DragEscapeTest, putsAScrubbedPlayheadBack) {
    m_timeline->press(at(6));
    m_timeline->moveTo(at(7));
    ASSERT_NE(state().currentTime(), 5);
    pressEscape();
    expectAsBefore();
    expectNothingUntilRelease(*m_timeline, at(3));
    // The next drag is one like any other.
    m_timeline->drag(at(6), at(7));
    EXPECT_NEAR(state().currentTime(), 7, 0.05);
    expectClosedByEscape();
}

/// They merged into the step of the drag, so that undo took both back under its name.
TEST_F(DragEscapeTest, letsNoOtherKeyActUntilTheMouseIsReleased) {
    const media::Rect crop{0.25, 0.25, 0.5, 0.5};
    state().setCropRect(crop);
    pumpPending();
    const QPoint middle = m_overlay->cropViewRect().center().toPoint();
    expectNoKeyActsIn(*m_timeline, handle(EditMarker::trimStart), at(4));
    expectNoKeyActsIn(*m_timeline, handle(EditMarker::trimEnd), at(7));
    expectNoKeyActsIn(*m_timeline, at(6), at(5));
    expectNoKeyActsIn(*m_crop, middle, middle + QPoint(30, 20));

    // The drag of the crop, and nothing with it.
    testsupport::clickKey(m_window->windowHandle(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(state().cropRect(), crop);
    testsupport::clickKey(m_window->windowHandle(), Qt::Key_R);
    EXPECT_EQ(state().rotation(), 270);
}

TEST_F(DragEscapeTest, goesOnPlayingWhereAHandlePausedIt) {
    state().togglePlayback();
    ASSERT_TRUE(pumpUntil([this] { return state().isPlaying(); }));
    m_timeline->press(handle(EditMarker::trimEnd));
    m_timeline->moveTo(at(7));
    ASSERT_TRUE(pumpUntil([this] { return !state().isPlaying(); }));
    pressEscape();
    EXPECT_TRUE(pumpUntil([this] { return state().isPlaying(); }));
    EXPECT_EQ(state().trimEnd(), 8);
    EXPECT_LT(state().currentTime(), 7);
    m_timeline->release(at(7));
}

TEST_F(DragEscapeTest, putsTheCropBack) {
    const media::Rect before{0.25, 0.25, 0.5, 0.5};
    state().setCropRect(before);
    pumpPending();
    const QRectF crop = m_overlay->cropViewRect();
    for (const QPoint& start :
         {crop.center().toPoint(), crop.topLeft().toPoint(), crop.bottomRight().toPoint()}) {
        m_crop->press(start);
        m_crop->moveTo(start + QPoint(30, 20));
        ASSERT_NE(state().cropRect(), before);
        pressEscape();
        EXPECT_EQ(state().cropRect(), before);
        expectNothingUntilRelease(*m_crop, start + QPoint(40, 40));
        EXPECT_EQ(state().cropRect(), before);
    }
    expectClosedByEscape();
}

TEST_F(DragEscapeTest, closesNothingWhileTheMouseIsStillHeld) {
    m_timeline->press(at(6));
    pressEscape();
    pressEscape();
    pressEscape(Qt::ShiftModifier);
    pumpPending();
    expectAsBefore();
    m_timeline->release(at(6));
    expectClosedByEscape();
}

TEST_F(DragEscapeTest, takesBackADragByTouch) {
    const std::unique_ptr<QPointingDevice> screen(QTest::createTouchDevice());
    QWindow* window = m_window->windowHandle();
    const auto inWindow = [this](const QPoint& point) { return m_strip->mapTo(m_window, point); };
    QTest::touchEvent(window, screen.get()).press(0, inWindow(at(6)), window);
    QTest::touchEvent(window, screen.get()).move(0, inWindow(at(7)), window);
    ASSERT_NEAR(state().currentTime(), 7, 0.05);
    pressEscape();
    expectAsBefore();
    QTest::touchEvent(window, screen.get()).move(0, inWindow(at(3)), window);
    expectAsBefore();
    QTest::touchEvent(window, screen.get()).release(0, inWindow(at(3)), window);
    expectAsBefore();
    expectClosedByEscape();
}

/// The release goes to nobody while an alert stands over the window.
TEST_F(DragEscapeTest, leavesTheKeyToAnAlertThatEndsTheDrag) {
    m_timeline->press(at(6));
    state().setErrorMessage(QStringLiteral("Message"));
    auto* alert = m_window->findChild<ErrorAlert*>();
    ASSERT_NE(alert, nullptr);
    ASSERT_TRUE(testsupport::showActive(*alert));
    m_timeline->release(at(6));
    testsupport::clickKey(alert->windowHandle(), Qt::Key_Escape);
    ASSERT_TRUE(pumpUntil([this] { return !state().errorMessage(); }));
    EXPECT_NEAR(state().currentTime(), 6, 0.05) << "The drag was over, not taken back.";
    ASSERT_TRUE(testsupport::showActive(*m_window));
    expectClosedByEscape();
}

TEST_F(DragEscapeTest, putsNothingOfTheVideoBeforeIntoTheNextOne) {
    m_timeline->press(handle(EditMarker::trimStart));
    m_timeline->moveTo(at(4));
    ASSERT_TRUE(loadAndWait(*m_window, video(1)));
    pressEscape();
    EXPECT_TRUE(m_window && m_window->isVisible());
    EXPECT_EQ(state().trimStart(), 0);
    EXPECT_EQ(state().trimEnd(), state().duration());
    EXPECT_EQ(state().currentTime(), 0);
    m_timeline->release(at(0.5));
}

} // namespace
} // namespace brisklet
