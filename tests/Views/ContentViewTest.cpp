#include "Views/ContentView.h"

#include "Models/EditStateFixture.h"
#include "QtSupport/Pixels.h"
#include "QtSupport/Pointer.h"
#include "Views/ContentViewStage.h"
#include "Views/Controls/ControlsView.h"
#include "Views/Controls/ExportButton.h"
#include "Views/Controls/FlatButton.h"
#include "Views/Crop/CropOverlayView.h"
#include "Views/EditorView.h"
#include "Views/PlayerContainerView.h"
#include "Views/PlayerLayerView.h"
#include "Views/Timeline/TimelineMarker.h"
#include "Views/Timeline/TimelineStrip.h"
#include "Views/Timeline/TimelineView.h"
#include "Views/VideoArea.h"

#include <QAccessible>
#include <QTest>

#include <cmath>
#include <vector>

namespace brisklet {
namespace {

using testsupport::pumpPending;
using testsupport::pumpUntil;

class ContentViewTest : public ContentViewStage {
protected:
    QRect areaOfPlayer() const { return shown<VideoArea>()->player().geometry(); }
};

/// Screen readers met an element without a name in each round corner of the picture.
TEST_F(ContentViewTest, offersNoPartOfThePictureThatIsOnlyPaint) {
    auto* area = m_content->findChild<VideoArea*>();
    QAccessibleInterface* picture = QAccessible::queryAccessibleInterface(area);
    ASSERT_EQ(picture->childCount(), 1);
    EXPECT_EQ(picture->child(0)->object(), &area->player());
    EXPECT_EQ(picture->indexOfChild(picture->child(0)), 0);
    EXPECT_EQ(picture->child(1), nullptr);
}

/// The tabulator passed the trim start over.
TEST_F(ContentViewTest, isTabbedThroughInReadingOrder) {
    ASSERT_TRUE(loadAndWait(kTenSeconds));
    state().setCropRect(media::Rect{0.1, 0.1, 0.8, 0.8});
    const auto* editor = shown<EditorView>();
    ASSERT_NE(editor, nullptr);
    const auto& [trimStart, playhead, trimEnd] = editor->timeline().strip().markers();
    const ControlsView& controls = editor->controls();
    const std::vector<QWidget*> order{&editor->videoArea().cropOverlay(),
                                      trimStart,
                                      playhead,
                                      trimEnd,
                                      &controls.playButton(),
                                      &controls.muteButton(),
                                      &controls.rotateButton(),
                                      &controls.cropButton(),
                                      &controls.exportButton()};
    order.front()->setFocus(Qt::TabFocusReason);
    for (std::size_t index = 1; index < order.size(); ++index) {
        QTest::keyClick(m_content->windowHandle(), Qt::Key_Tab);
        EXPECT_EQ(m_content->focusWidget(), order[index]) << "at " << index;
    }
    for (std::size_t index = order.size() - 1; index > 0; --index) {
        QTest::keyClick(m_content->windowHandle(), Qt::Key_Backtab, Qt::ShiftModifier);
        EXPECT_EQ(m_content->focusWidget(), order[index - 1]) << "back at " << index - 1;
    }
}

TEST_F(ContentViewTest, laysAPictureOfUnknownSizeOutAsSixteenByNine) {
    EXPECT_EQ(fittedPicture({0, 0}, {1600, 1600}), QRectF(0, 350, 1600, 900));
    EXPECT_EQ(fittedPicture({0, 0}, {3200, 900}), QRectF(800, 0, 1600, 900));
}

TEST_F(ContentViewTest, fitsThePictureWholeAndCentred) {
    EXPECT_EQ(fittedPicture({1080, 1920}, {1000, 960}), QRectF(230, 0, 540, 960));
    EXPECT_EQ(fittedPicture({400, 300}, {800, 800}), QRectF(0, 100, 800, 600));
}

TEST_F(ContentViewTest, turnsThePictureWithinTheFittedRectangle) {
    ASSERT_TRUE(loadAndWait(testsupport::Recipe{.duration = 2, .width = 320, .height = 240}));
    const auto* area = shown<VideoArea>();
    for (int turn = 0; turn < 4; ++turn) {
        const media::Size shownSize = state().rotatedDisplaySize();
        const QRectF fitted = fittedPicture(shownSize, area->size());
        // On whole points, so that no line of the picture lies beside the overlay.
        const QRectF player = areaOfPlayer();
        for (const qreal difference :
             {player.left() - fitted.left(), player.top() - fitted.top(),
              player.right() - fitted.right(), player.bottom() - fitted.bottom()})
            EXPECT_LE(std::abs(difference), 0.5);
        const CropOverlayView& overlay = area->cropOverlay();
        EXPECT_EQ(overlay.videoRect().translated(overlay.pos() - area->pos()), player);
        EXPECT_EQ(area->player().layerView().rotation(), state().rotation());
        // The picture, once it has come in the new size, fills the rectangle.
        EXPECT_TRUE(pumpUntil([&] {
            const QRectF picture = area->player().layerView().videoRect();
            return picture.width() >= fitted.width() - 2 && picture.height() >= fitted.height() - 2;
        }));
        state().rotateLeft();
    }
}

/// The half of a handle that lies beyond the picture was cut off, and the corners of the area lay
/// over the handles in them.
TEST_F(ContentViewTest, showsWholeHandlesAtTheEdgesOfThePicture) {
    // As high as the area, then as wide.
    for (const QSize size : {QSize(320, 240), QSize(640, 160)}) {
        const auto video = testsupport::makeFixture(
            {.duration = 2, .width = size.width(), .height = size.height()});
        state().load(urlOf(video.path));
        ASSERT_TRUE(hasVideo(video.path));
        state().setCropRect(media::Rect{0, 0, 1, 1});
        pumpPending();
        auto* editor = shown<EditorView>();
        const CropOverlayView& overlay = editor->videoArea().cropOverlay();
        const QRectF crop = overlay.cropViewRect().translated(overlay.pos());
        const testsupport::Pixels pixels(*editor);
        for (const CropHandle handle : kCropHandles) {
            const QPointF middle = CropGeometry::position(handle, crop);
            for (const QPointF& by :
                 {QPointF(-4, 0), QPointF(3.5, 0), QPointF(0, -4), QPointF(0, 3.5)})
                EXPECT_TRUE(testsupport::isNear(pixels.at(middle.x() + by.x(), middle.y() + by.y()),
                                                Qt::white, 40))
                    << "handle " << static_cast<int>(handle) << " at " << by.x() << ", " << by.y();
        }
    }
}

TEST_F(ContentViewTest, gripsHandlesBeyondTheAreaOfThePicture) {
    ASSERT_TRUE(loadAndWait(testsupport::Recipe{.duration = 2, .width = 320, .height = 240}));
    state().setCropRect(media::Rect{0, 0, 1, 1});
    pumpPending();
    auto* editor = shown<EditorView>();
    const CropOverlayView& overlay = editor->videoArea().cropOverlay();
    const QRect area = editor->videoArea().geometry();
    const QPoint top =
        CropGeometry::position(CropHandle::top, overlay.cropViewRect().translated(overlay.pos()))
            .toPoint() -
        QPoint(0, 5);
    ASSERT_FALSE(area.contains(top));
    testsupport::Pointer(*editor).drag(top, top + QPoint(0, area.height() / 2));
    ASSERT_TRUE(state().cropRect());
    EXPECT_NEAR(state().cropRect()->y, 0.5, 0.01);
    EXPECT_NEAR(state().cropRect()->height, 0.5, 0.01);
}

/// The shade of the crop would lie over them as well.
TEST_F(ContentViewTest, keepsTheCornersOfTheAreaInTheColourOfTheWindow) {
    ASSERT_TRUE(loadAndWait(testsupport::Recipe{.duration = 2, .width = 800, .height = 480}));
    auto* editor = shown<EditorView>();
    const QRect area = editor->videoArea().geometry();
    // The picture fills the area but for a few points.
    m_content->resize(m_content->width() - area.width() + area.height() * 5 / 3,
                      m_content->height());
    state().setCropRect(media::Rect{0.25, 0.25, 0.5, 0.5});
    pumpPending();
    const testsupport::Pixels pixels(*editor);
    EXPECT_TRUE(
        testsupport::isNear(pixels.at(12.5, 12.5), editor->palette().color(QPalette::Window), 1));
}

TEST_F(ContentViewTest, standsInRowsTwelvePointsApart) {
    ASSERT_TRUE(loadAndWait(kTenSeconds));
    const auto* editor = shown<EditorView>();
    const QRect area = editor->videoArea().geometry();
    const QRect timeline = editor->timeline().geometry();
    const QRect controls = editor->controls().geometry();
    EXPECT_EQ(area.topLeft(), QPoint(12, 12));
    EXPECT_EQ(area.right() + 1, editor->width() - 12);
    EXPECT_EQ(timeline.top() - area.bottom() - 1, 12);
    EXPECT_EQ(timeline.left(), 12);
    EXPECT_EQ(timeline.width(), area.width());
    EXPECT_EQ(controls.top() - timeline.bottom() - 1, 12);
    EXPECT_EQ(controls.right(), area.right());
    EXPECT_EQ(controls.bottom() + 1, editor->height() - 12);
}

TEST_F(ContentViewTest, showsThePictureOnBlackWithRoundCorners) {
    ASSERT_TRUE(loadAndWait(kTenSeconds));
    pumpPending();
    auto* area = shown<VideoArea>();
    const testsupport::Pixels pixels(*area);
    const QColor around = area->palette().color(QPalette::Window);
    const int right = area->width() - 1;
    const int bottom = area->height() - 1;
    for (const QPoint& corner :
         {QPoint(0, 0), QPoint(right, 0), QPoint(0, bottom), QPoint(right, bottom)})
        EXPECT_EQ(pixels.at(corner.x(), corner.y()), around) << corner.x() << ' ' << corner.y();
    // The picture is less wide than the room for it.
    ASSERT_GT(area->player().x(), 20);
    for (const QPoint& point :
         {QPoint(8, 8), QPoint(0, 8), QPoint(8, 0), QPoint(right - 8, bottom - 8),
          QPoint(right, bottom - 8), QPoint(10, bottom / 2), QPoint(right - 10, bottom / 2)})
        EXPECT_EQ(pixels.at(point.x(), point.y()), QColor(Qt::black))
            << point.x() << ' ' << point.y();
}

TEST_F(ContentViewTest, givesTheKeyboardToNoControlBeforeTheUserDoes) {
    ASSERT_TRUE(loadAndWait(kTenSeconds));
    EXPECT_EQ(m_content->focusWidget(), shown<EditorView>());
    QTest::keyClick(m_content.get(), Qt::Key_R);
    EXPECT_EQ(state().rotation(), 270);
}

} // namespace
} // namespace brisklet
