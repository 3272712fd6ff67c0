#include "Views/Crop/CropOverlayView.h"

#include "Models/EditStateFixture.h"
#include "QtSupport/Pixels.h"
#include "QtSupport/Pointer.h"

#include <QAccessible>
#include <QKeySequence>
#include <QMouseEvent>
#include <QPainter>
#include <QShortcut>
#include <QSignalSpy>

#include <gtest/gtest.h>

#include <array>

namespace {

using namespace brisklet;
using media::Rect;
using testsupport::isNear;
using testsupport::keepPicture;
using testsupport::onScreen;
using testsupport::paintedAtOnce;
using testsupport::PaintedRegion;
using testsupport::Pixels;
using testsupport::Pointer;
using testsupport::pumpPending;
using testsupport::underBlack;

/// Stands for the views below the overlay: one colour, and a count of the clicks that reach it.
class Ground final : public QWidget {
public:
    using QWidget::QWidget;

    int presses = 0;

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter(this).fillRect(rect(), QColor(80, 160, 220));
    }

    void mousePressEvent(QMouseEvent* /*event*/) override { ++presses; }
};

/// The overlay over a picture of 640 × 320 points at (80, 40) of a view of 800 × 400.
class CropOverlayViewTest : public EditStateFixture {
protected:
    CropOverlayViewTest() {
        m_window.resize(800, 400);
        m_overlay->setGeometry(0, 0, 800, 400);
        m_overlay->setVideoRect({80, 40, 640, 320});
        m_window.show();
        m_window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&m_window));
    }

    void SetUp() override { ASSERT_TRUE(loadAndWait({.duration = 2})); }

    /// The middle of a handle, on whole points.
    QPoint handle(CropHandle handle) const {
        return CropGeometry::position(handle, m_overlay->cropViewRect()).toPoint();
    }

    void expectCrop(const Rect& expected) {
        ASSERT_TRUE(state().cropRect());
        EXPECT_NEAR(state().cropRect()->x, expected.x, 1e-9);
        EXPECT_NEAR(state().cropRect()->y, expected.y, 1e-9);
        EXPECT_NEAR(state().cropRect()->width, expected.width, 1e-9);
        EXPECT_NEAR(state().cropRect()->height, expected.height, 1e-9);
    }

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(m_window.windowHandle(), key, modifiers);
    }

    Ground m_window;
    CropOverlayView* m_overlay = new CropOverlayView(m_state, 12, &m_window);
    Pointer m_pointer{m_window};
    /// In the view (240, 120) to (560, 280).
    const Rect m_middle{0.25, 0.25, 0.5, 0.5};
};

TEST_F(CropOverlayViewTest, showsNothingAndTakesNothingWithoutACrop) {
    const Pixels pixels(m_window);
    EXPECT_TRUE(isNear(pixels.at(100, 60), QColor(80, 160, 220), 0));
    EXPECT_TRUE(isNear(pixels.at(400, 200), QColor(80, 160, 220), 0));
    m_pointer.drag({400, 200}, {450, 220});
    EXPECT_EQ(m_window.presses, 1);
    EXPECT_FALSE(state().cropRect());
    press(Qt::Key_Tab);
    EXPECT_FALSE(m_overlay->hasFocus());
}

TEST_F(CropOverlayViewTest, passesOnClicksBesideTheCrop) {
    state().setCropRect(m_middle);
    m_pointer.drag({100, 100}, {200, 150});
    EXPECT_EQ(m_window.presses, 1);
    m_pointer.click({400, 200}, Qt::RightButton);
    EXPECT_EQ(m_window.presses, 2);
    m_pointer.click({400, 200});
    EXPECT_EQ(m_window.presses, 2);
    expectCrop(m_middle);
}

TEST_F(CropOverlayViewTest, darkensThePictureAroundTheCrop) {
    state().setCropRect(m_middle);
    const Pixels pixels(m_window);
    const QColor ground(80, 160, 220);
    // Inside the picture, around the crop; the last points of the picture too.
    for (const QPointF& point : {QPointF(80, 40), QPointF(230, 200), QPointF(719.5, 359.5)})
        EXPECT_TRUE(isNear(pixels.at(point.x(), point.y()), underBlack(ground, 0.5), 1));
    for (const QPointF& point : {QPointF(79.5, 200), QPointF(720, 200), QPointF(400, 39.5),
                                 QPointF(400, 360), QPointF(250, 130), QPointF(400, 200)})
        EXPECT_TRUE(isNear(pixels.at(point.x(), point.y()), ground, 0)) << point.x();
    keepPicture(m_window, QStringLiteral("crop"));
}

TEST_F(CropOverlayViewTest, outlinesTheCropInsideItsBounds) {
    state().setCropRect(m_middle);
    const Pixels pixels(m_window);
    for (const double x : {240.0, 241.9, 558.0, 559.9})
        EXPECT_TRUE(isNear(pixels.at(x, 150), Qt::white, 0)) << x;
    for (const double x : {239.9, 242.1, 557.4, 560.0})
        EXPECT_FALSE(isNear(pixels.at(x, 150), Qt::white)) << x;
    for (const double y : {120.0, 121.9, 278.0, 279.9})
        EXPECT_TRUE(isNear(pixels.at(300, y), Qt::white, 0)) << y;
}

TEST_F(CropOverlayViewTest, drawsRoundHandlesWithADarkRim) {
    state().setCropRect(m_middle);
    const Pixels pixels(m_window);
    for (const CropHandle each : kCropHandles) {
        const QPoint middle = handle(each);
        EXPECT_TRUE(isNear(pixels.at(middle.x() - 4, middle.y()), Qt::white, 0));
        EXPECT_TRUE(isNear(pixels.at(middle.x(), middle.y() + 4), Qt::white, 0));
        EXPECT_FALSE(isNear(pixels.at(middle.x() - 5.4, middle.y() - 5.4), Qt::white, 60));
    }
    // Half of the rim lies on the white of the handle.
    const QPoint left = handle(CropHandle::left);
    EXPECT_LT(pixels.at(left.x() - 6, left.y()).lightness(), 190);
}

TEST_F(CropOverlayViewTest, movesByADragInside) {
    state().setCropRect(m_middle);
    m_pointer.drag({400, 180}, {464, 212});
    expectCrop({0.35, 0.35, 0.5, 0.5});
}

TEST_F(CropOverlayViewTest, resizesByEachHandle) {
    struct Case {
        CropHandle handle;
        Rect result;
    };

    for (const Case& each : {Case{CropHandle::topLeft, {0.3, 0.3, 0.45, 0.45}},
                             {CropHandle::top, {0.25, 0.3, 0.5, 0.45}},
                             {CropHandle::topRight, {0.25, 0.3, 0.55, 0.45}},
                             {CropHandle::right, {0.25, 0.25, 0.55, 0.5}},
                             {CropHandle::bottomRight, {0.25, 0.25, 0.55, 0.55}},
                             {CropHandle::bottom, {0.25, 0.25, 0.5, 0.55}},
                             {CropHandle::bottomLeft, {0.3, 0.25, 0.45, 0.55}},
                             {CropHandle::left, {0.3, 0.25, 0.45, 0.5}}}) {
        state().setCropRect(m_middle);
        const QPoint from = handle(each.handle);
        m_pointer.drag(from, from + QPoint(32, 16));
        expectCrop(each.result);
    }
}

TEST_F(CropOverlayViewTest, stopsAtTheSmallestCropAcrossTheOppositeCorner) {
    state().setCropRect(m_middle);
    m_pointer.drag(handle(CropHandle::topLeft), {750, 390});
    expectCrop({0.7, 0.7, 0.05, 0.05});
    state().setCropRect(m_middle);
    m_pointer.drag(handle(CropHandle::bottomRight), {5, 5});
    expectCrop({0.25, 0.25, 0.05, 0.05});
}

TEST_F(CropOverlayViewTest, stopsAtTheEdgesOfThePicture) {
    state().setCropRect(m_middle);
    m_pointer.drag({400, 200}, {790, 395});
    expectCrop({0.5, 0.5, 0.5, 0.5});
    m_pointer.drag({600, 300}, {2, 290});
    expectCrop({0, 0.5 - 10.0 / 320, 0.5, 0.5});
}

TEST_F(CropOverlayViewTest, doesNotMoveACropOfTheWholePicture) {
    state().setCropRect(Rect{0, 0, 1, 1});
    const QSignalSpy changes(&state(), &EditState::cropRectChanged);
    m_pointer.drag({400, 190}, {500, 250});
    EXPECT_EQ(changes.count(), 0);
    EXPECT_EQ(state().cropRect(), (Rect{0, 0, 1, 1}));
}

TEST_F(CropOverlayViewTest, ignoresDragsShorterThanTenPoints) {
    state().setCropRect(m_middle);
    m_pointer.drag({400, 180}, {407, 187});
    expectCrop(m_middle);
    m_pointer.drag(handle(CropHandle::right), handle(CropHandle::right) + QPoint(9, 0));
    expectCrop(m_middle);
    // With the tenth point all of the way counts.
    m_pointer.drag({400, 180}, {410, 180});
    expectCrop({0.25 + 10.0 / 640, 0.25, 0.5, 0.5});
}

TEST_F(CropOverlayViewTest, followsADragThatComesBack) {
    state().setCropRect(m_middle);
    m_pointer.press({400, 180});
    for (const int x : {420, 900, 423, -50, 405})
        m_pointer.moveTo({x, 180});
    expectCrop({0.25 + 5.0 / 640, 0.25, 0.5, 0.5});
    m_pointer.moveTo({400, 180});
    EXPECT_EQ(state().cropRect(), m_middle) << "no rounding adds up";
    m_pointer.release({400, 180});
    // The next drag begins anew.
    m_pointer.moveTo({500, 250});
    expectCrop(m_middle);
    m_pointer.drag({400, 180}, {432, 180});
    expectCrop({0.3, 0.25, 0.5, 0.5});
}

TEST_F(CropOverlayViewTest, endsADragWithItsCrop) {
    state().setCropRect(m_middle);
    m_pointer.press({400, 180});
    m_pointer.moveTo({420, 180});
    state().setCropRect(std::nullopt);
    m_pointer.moveTo({460, 180});
    EXPECT_FALSE(state().cropRect());
    state().setCropRect(m_middle);
    m_pointer.moveTo({480, 180});
    m_pointer.release({480, 180});
    expectCrop(m_middle);
}

TEST_F(CropOverlayViewTest, endsADragWhenThePictureIsTurned) {
    state().setCropRect(m_middle);
    m_pointer.press({400, 180});
    m_pointer.moveTo({432, 180});
    state().rotateLeft();
    const auto turned = state().cropRect();
    m_pointer.moveTo({480, 200});
    EXPECT_EQ(state().cropRect(), turned);
    m_pointer.release({480, 200});
    EXPECT_EQ(state().cropRect(), turned);
}

// The release goes to a dialog that came meanwhile.
TEST_F(CropOverlayViewTest, endsADragWhoseReleaseItDidNotSee) {
    state().setCropRect(m_middle);
    m_pointer.press({400, 180});
    m_pointer.moveTo({432, 180});
    expectCrop({0.3, 0.25, 0.5, 0.5});
    const QPointF point(500, 200);
    QMouseEvent move(QEvent::MouseMove, point, m_overlay->mapToGlobal(point), Qt::NoButton,
                     Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(m_overlay, &move);
    expectCrop({0.3, 0.25, 0.5, 0.5});
    m_pointer.release({500, 200});
}

TEST_F(CropOverlayViewTest, dragsNothingOnAPictureWithoutArea) {
    state().setCropRect(m_middle);
    m_overlay->setVideoRect({400, 200, 0, 0});
    m_pointer.drag({400, 200}, {500, 260});
    expectCrop(m_middle);
    EXPECT_FALSE(Pixels(m_window).image().isNull());
}

TEST_F(CropOverlayViewTest, saysByTheCursorWhatADragWillDo) {
    state().setCropRect(m_middle);
    pumpPending();
    const std::array shapes{Qt::SizeFDiagCursor, Qt::SizeVerCursor,   Qt::SizeBDiagCursor,
                            Qt::SizeHorCursor,   Qt::SizeFDiagCursor, Qt::SizeVerCursor,
                            Qt::SizeBDiagCursor, Qt::SizeHorCursor};
    for (const CropHandle each : kCropHandles) {
        m_pointer.moveTo(handle(each));
        EXPECT_EQ(m_overlay->cursor().shape(), shapes.at(static_cast<std::size_t>(each)));
    }
    m_pointer.moveTo({400, 200});
    EXPECT_EQ(m_overlay->cursor().shape(), Qt::OpenHandCursor);
    m_pointer.press({400, 200});
    EXPECT_EQ(m_overlay->cursor().shape(), Qt::ClosedHandCursor);
    m_pointer.release({400, 200});
    EXPECT_EQ(m_overlay->cursor().shape(), Qt::OpenHandCursor);
    m_pointer.moveTo({10, 10});
    EXPECT_EQ(m_overlay->cursor().shape(), Qt::ArrowCursor);
}

TEST_F(CropOverlayViewTest, leavesNoTracesOfEarlierPlaces) {
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&m_window));
    for (const Rect& crop : {m_middle, Rect{0.3, 0.2, 0.5, 0.6}, Rect{0.313, 0.217, 0.33, 0.41},
                             Rect{0, 0, 0.05, 0.05}, Rect{0, 0, 1, 1}, Rect{0.9, 0.9, 0.1, 0.1}}) {
        state().setCropRect(crop);
        pumpPending();
        ASSERT_EQ(onScreen(m_window).size(), paintedAtOnce(m_window).size());
        EXPECT_TRUE(onScreen(m_window) == paintedAtOnce(m_window)) << crop.x;
    }
    state().setCropRect(std::nullopt);
    pumpPending();
    EXPECT_TRUE(onScreen(m_window) == paintedAtOnce(m_window));
}

TEST_F(CropOverlayViewTest, paintsOnlyWhatADragChanges) {
    state().setCropRect(m_middle);
    pumpPending();
    PaintedRegion painted(*m_overlay);
    state().setCropRect(Rect{0.25 + 1.0 / 640, 0.25, 0.5, 0.5});
    pumpPending();
    EXPECT_GT(painted.area(), 0);
    EXPECT_LT(painted.area(), 800 * 400 / 10);
}

TEST_F(CropOverlayViewTest, isMovedAndResizedByKeys) {
    state().setCropRect(m_middle);
    press(Qt::Key_Tab);
    ASSERT_TRUE(m_overlay->hasFocus());
    keepPicture(m_window, QStringLiteral("crop-focus"));
    press(Qt::Key_Right, Qt::ShiftModifier);
    expectCrop({0.25 + 10.0 / 640, 0.25, 0.5, 0.5});
    press(Qt::Key_Up);
    expectCrop({0.25 + 10.0 / 640, 0.25 - 1.0 / 320, 0.5, 0.5});
    state().setCropRect(m_middle);
    press(Qt::Key_Right, Qt::ControlModifier);
    expectCrop({0.25, 0.25, 0.5 + 1.0 / 640, 0.5});
    press(Qt::Key_Down, Qt::ControlModifier | Qt::ShiftModifier);
    expectCrop({0.25, 0.25, 0.5 + 1.0 / 640, 0.5 + 10.0 / 320});
    state().setCropRect(m_middle);
    press(Qt::Key_Left, Qt::AltModifier);
    press(Qt::Key_Up, Qt::AltModifier);
    expectCrop({0.25 - 1.0 / 640, 0.25 - 1.0 / 320, 0.5 + 1.0 / 640, 0.5 + 1.0 / 320});
}

TEST_F(CropOverlayViewTest, takesTheArrowsFromTheWindowOnlyWithTheFocus) {
    const QShortcut step(QKeySequence(Qt::Key_Right), &m_window);
    const QSignalSpy steps(&step, &QShortcut::activated);
    state().setCropRect(m_middle);
    m_pointer.click({400, 200});
    press(Qt::Key_Right);
    EXPECT_EQ(steps.count(), 1);
    expectCrop(m_middle);
    m_overlay->setFocus(Qt::TabFocusReason);
    press(Qt::Key_Right);
    EXPECT_EQ(steps.count(), 1);
    expectCrop({0.25 + 1.0 / 640, 0.25, 0.5, 0.5});
}

/// A look into the menus took its ring from the crop.
TEST_F(CropOverlayViewTest, showsItsFocusAgainAfterTheMenuBar) {
    state().setCropRect(m_middle);
    m_overlay->setFocus(Qt::TabFocusReason);
    const QImage focused = m_window.grab().toImage();
    m_overlay->clearFocus();
    ASSERT_FALSE(m_window.grab().toImage() == focused);
    m_overlay->setFocus(Qt::TabFocusReason);
    QWidget bar(&m_window);
    bar.setFocusPolicy(Qt::TabFocus);
    bar.setFocus(Qt::MenuBarFocusReason);
    m_overlay->setFocus(Qt::MenuBarFocusReason);
    EXPECT_TRUE(m_window.grab().toImage() == focused);
}

TEST_F(CropOverlayViewTest, letsGoOfTheFocusWithItsCrop) {
    QWidget other(&m_window);
    other.setFocusPolicy(Qt::TabFocus);
    other.show();
    state().setCropRect(m_middle);
    m_overlay->setFocus(Qt::TabFocusReason);
    state().setCropRect(std::nullopt);
    EXPECT_FALSE(m_overlay->isVisible());
    EXPECT_FALSE(other.hasFocus());
}

TEST_F(CropOverlayViewTest, tellsItsSizeToAssistiveTechnology) {
    state().setCropRect(m_middle);
    const media::Size size = state().rotatedDisplaySize();
    QAccessibleInterface* crop = QAccessible::queryAccessibleInterface(m_overlay);
    ASSERT_NE(crop, nullptr);
    EXPECT_EQ(crop->text(QAccessible::Name), QStringLiteral("Crop"));
    const QString text = QStringLiteral("%1×%2 at %3, %4")
                             .arg(size.width / 2)
                             .arg(size.height / 2)
                             .arg(size.width / 4)
                             .arg(size.height / 4);
    EXPECT_EQ(crop->text(QAccessible::Description), text);
    EXPECT_EQ(crop->text(QAccessible::Value), text);
    EXPECT_TRUE(crop->state().focusable);
    EXPECT_EQ(crop->rect(), QRect(m_overlay->mapToGlobal(QPoint(240, 120)), QSize(320, 160)));
    state().setCropRect(std::nullopt);
    EXPECT_TRUE(crop->state().invisible);
}

} // namespace
