#include "Views/ContentView.h"

#include "Models/EditStateFixture.h"
#include "QtSupport/Pixels.h"
#include "QtSupport/Pointer.h"
#include "TestSupport/TemporaryFolder.h"
#include "Views/Controls/ControlsView.h"
#include "Views/Controls/ExportButton.h"
#include "Views/Controls/FlatButton.h"
#include "Views/Crop/CropOverlayView.h"
#include "Views/DropZoneView.h"
#include "Views/EditorView.h"
#include "Views/ErrorAlert.h"
#include "Views/ExportProgressView.h"
#include "Views/PlayerContainerView.h"
#include "Views/PlayerLayerView.h"
#include "Views/Timeline/TimelineMarker.h"
#include "Views/Timeline/TimelineStrip.h"
#include "Views/Timeline/TimelineView.h"
#include "Views/VideoArea.h"

#include <QAccessible>
#include <QDragEnterEvent>
#include <QDragLeaveEvent>
#include <QDropEvent>
#include <QLabel>
#include <QMimeData>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>

#include <cmath>
#include <fstream>
#include <memory>
#include <vector>

namespace brisklet {
namespace {

using testsupport::pumpPending;
using testsupport::pumpUntil;

class ContentViewTest : public EditStateFixture {
protected:
    ContentViewTest() {
        m_content->resize(960, 640);
        m_content->show();
        m_content->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(m_content.get()));
    }

    ~ContentViewTest() override {
        state().cancelExport();
        pumpUntil([this] { return !state().exportProgress(); });
    }

    template<typename T>
    T* shown() const {
        for (T* child : m_content->findChildren<T*>()) {
            if (child->isVisible())
                return child;
        }
        return nullptr;
    }

    /// Drops as another program does: over the window first, then let go.
    bool drop(const QMimeData& data) {
        const Qt::DropActions actions = Qt::CopyAction | Qt::MoveAction;
        QDragEnterEvent enter({10, 10}, actions, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(m_content.get(), &enter);
        if (!enter.isAccepted())
            return false;
        QDropEvent drop({10, 10}, actions, &data, Qt::LeftButton, Qt::NoModifier);
        drop.setDropAction(Qt::MoveAction);
        QCoreApplication::sendEvent(m_content.get(), &drop);
        m_dropAction = drop.dropAction();
        return drop.isAccepted();
    }

    bool drop(const QList<QUrl>& urls) {
        QMimeData data;
        data.setUrls(urls);
        return drop(data);
    }

    bool hasVideo(const std::filesystem::path& path) {
        return pumpUntil([this, &path] { return state().videoURL() == urlOf(path); });
    }

    /// Starts an export that takes long enough to look at.
    bool startLongExport() {
        if (!loadAndWait(testsupport::Recipe{.duration = 30, .width = 640, .height = 480}))
            return false;
        state().exportTo(urlOf(m_folder / "out.mp4"));
        return pumpUntil([this] { return shown<ExportProgressView>() != nullptr; });
    }

    QRect areaOfPlayer() const { return shown<VideoArea>()->player().geometry(); }

    testsupport::TemporaryFolder m_folder;
    /// What the last drop told the other side to do with its file.
    Qt::DropAction m_dropAction = Qt::IgnoreAction;
    std::unique_ptr<ContentView> m_content = std::make_unique<ContentView>(m_state);
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

TEST_F(ContentViewTest, invitesADropUntilAVideoIsLoaded) {
    EXPECT_NE(shown<DropZoneView>(), nullptr);
    EXPECT_EQ(shown<EditorView>(), nullptr);
    ASSERT_TRUE(loadAndWait(kTenSeconds));
    EXPECT_EQ(shown<DropZoneView>(), nullptr);
    EXPECT_NE(shown<EditorView>(), nullptr);
}

TEST_F(ContentViewTest, opensAVideoByTheButtonOfTheDropZone) {
    const auto video = testsupport::makeFixture(kTenSeconds).path;
    m_panels->toOpen = urlOf(video);
    auto* button = shown<QPushButton>();
    EXPECT_EQ(button->text(), QStringLiteral("Open Video…"));
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_TRUE(hasVideo(video));
}

TEST_F(ContentViewTest, loadsOnlyTheFirstOfThreeDroppedFiles) {
    const auto first = testsupport::makeFixture({.duration = 10}).path;
    const auto second = testsupport::makeFixture({.duration = 4}).path;
    const auto third = testsupport::makeFixture({.duration = 2}).path;
    EXPECT_TRUE(drop({urlOf(first), urlOf(second), urlOf(third)}));
    ASSERT_TRUE(hasVideo(first));
    ASSERT_TRUE(pumpUntil([this] { return !state().thumbnails().isEmpty(); }));
    EXPECT_EQ(state().videoURL(), urlOf(first));
}

TEST_F(ContentViewTest, replacesTheVideoByADroppedOne) {
    ASSERT_TRUE(loadAndWait(kTenSeconds));
    const auto other = testsupport::makeFixture({.duration = 4}).path;
    EXPECT_TRUE(drop({urlOf(other)}));
    EXPECT_TRUE(hasVideo(other));
}

TEST_F(ContentViewTest, refusesADropOfNothing) {
    EXPECT_FALSE(drop(QList<QUrl>()));
    QMimeData text;
    text.setText(QStringLiteral("not a file"));
    EXPECT_FALSE(drop(text));
}

TEST_F(ContentViewTest, leavesTheDraggedFileWhereItIs) {
    EXPECT_TRUE(drop({urlOf(testsupport::makeFixture(kTenSeconds).path)}));
    EXPECT_EQ(m_dropAction, Qt::CopyAction);
}

TEST_F(ContentViewTest, lightsTheDropZoneUpWhileAFileIsOverIt) {
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(QStringLiteral("/a.mov"))});
    const auto* zone = shown<DropZoneView>();
    QDragEnterEvent enter({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(m_content.get(), &enter);
    EXPECT_TRUE(zone->isLit());
    QDragLeaveEvent leave;
    QCoreApplication::sendEvent(m_content.get(), &leave);
    EXPECT_FALSE(zone->isLit());
}

TEST_F(ContentViewTest, loadsTheFileBehindATransferOfASandboxedProgram) {
    const auto video = testsupport::makeFixture(kTenSeconds).path;
    QMimeData data;
    data.setData(QStringLiteral("application/vnd.portal.filetransfer"), QByteArray("4711\0", 5));
    EXPECT_FALSE(drop(data)) << "nobody can say what the key stands for";
    QByteArray asked;
    m_content->setFileTransfer([&](const QByteArray& key, const auto& done) {
        asked = key;
        done({urlOf(video)});
    });
    EXPECT_TRUE(drop(data));
    EXPECT_EQ(asked, "4711");
    EXPECT_TRUE(hasVideo(video));
}

TEST_F(ContentViewTest, tellsThatADroppedTextIsNoVideoAndKeepsItsFace) {
    const auto notes = m_folder / "notes.txt";
    std::ofstream(notes) << "not a video";
    EXPECT_TRUE(drop({urlOf(notes)}));
    ASSERT_TRUE(pumpUntil([this] { return shown<ErrorAlert>() != nullptr; }));
    const QPointer<ErrorAlert> alert = shown<ErrorAlert>();
    EXPECT_EQ(alert->windowTitle(), QStringLiteral("Something Went Wrong"));
    EXPECT_EQ(alert->message(), state().errorMessage());
    EXPECT_TRUE(alert->message().startsWith(QStringLiteral("Couldn't open “notes.txt”: ")));
    EXPECT_EQ(alert->windowModality(), Qt::WindowModal);
    auto* button = alert->findChild<QPushButton*>();
    EXPECT_EQ(button->text(), QStringLiteral("OK"));
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_TRUE(pumpUntil([&alert] { return !alert; }));
    EXPECT_FALSE(state().errorMessage());
    EXPECT_NE(shown<DropZoneView>(), nullptr);
    EXPECT_FALSE(state().videoURL());
}

TEST_F(ContentViewTest, keepsTheVideoWhenAnotherFileCannotBeLoaded) {
    ASSERT_TRUE(loadAndWait(kTenSeconds));
    const auto before = state().videoURL();
    drop({urlOf(m_folder / "missing.mov")});
    ASSERT_TRUE(pumpUntil([this] { return shown<ErrorAlert>() != nullptr; }));
    QTest::keyClick(shown<ErrorAlert>(), Qt::Key_Escape);
    EXPECT_TRUE(pumpUntil([this] { return !state().errorMessage(); }));
    EXPECT_NE(shown<EditorView>(), nullptr);
    EXPECT_EQ(state().videoURL(), before);
}

/// The next message went into the dialog that was on its way out, and vanished with it.
TEST_F(ContentViewTest, showsAFailureThatComesWhileAnAlertIsDismissed) {
    state().setErrorMessage(QStringLiteral("First"));
    const QPointer<ErrorAlert> first = shown<ErrorAlert>();
    ASSERT_TRUE(first);
    QTest::mouseClick(first->findChild<QPushButton*>(), Qt::LeftButton);
    EXPECT_FALSE(state().errorMessage());
    state().setErrorMessage(QStringLiteral("Second"));
    ASSERT_TRUE(pumpUntil([&first] { return !first; }));
    pumpPending();
    auto* second = shown<ErrorAlert>();
    ASSERT_NE(second, nullptr);
    EXPECT_EQ(second->message(), QStringLiteral("Second"));
    EXPECT_EQ(m_content->attachedSheet(), second);
    QTest::keyClick(second, Qt::Key_Escape);
    EXPECT_TRUE(pumpUntil([this] { return !state().errorMessage(); }));
    EXPECT_TRUE(pumpUntil([this] { return m_content->attachedSheet() == nullptr; }));
}

/// A file can fail before the window manager has found a place for its window. The alert was put
/// over the place that the window would have had, where other windows are.
TEST_F(ContentViewTest, waitsForThePlaceOfItsWindowBeforeItShowsAnAlert) {
    m_content->hide();
    ContentView content(m_state);
    state().setErrorMessage(QStringLiteral("Message"));
    EXPECT_EQ(content.attachedSheet(), nullptr);
    content.show();
    ASSERT_TRUE(pumpUntil([&content] {
        const QWidget* alert = content.attachedSheet();
        return alert != nullptr && alert->isVisible();
    }));
    state().clearErrorMessage();
    EXPECT_TRUE(pumpUntil([&content] { return content.attachedSheet() == nullptr; }));
}

TEST_F(ContentViewTest, showsALongNameInAnAlertNoWiderThanTheOthers) {
    state().load(urlOf(m_folder / (std::string(250, 'x') + ".mov")));
    ASSERT_TRUE(pumpUntil([this] { return shown<ErrorAlert>() != nullptr; }));
    EXPECT_LT(shown<ErrorAlert>()->width(), 480);
    // And whole: it is broken into lines that fit.
    int labels = 0;
    for (const QLabel* label : shown<ErrorAlert>()->findChildren<QLabel*>()) {
        const QRect room(0, 0, label->width(), 10000);
        const QRect text = label->fontMetrics().boundingRect(
            room, static_cast<int>(Qt::AlignHCenter) | Qt::TextWordWrap, label->text());
        EXPECT_LE(text.width(), room.width()) << label->text().toStdString();
        EXPECT_LE(text.height(), label->height()) << label->text().toStdString();
        labels += label->text().isEmpty() ? 0 : 1;
    }
    EXPECT_EQ(labels, 2) << "the title and the message";
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

TEST_F(ContentViewTest, showsThatADroppedFileWouldBeTaken) {
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(QStringLiteral("/a.mov"))});
    const auto hover = [&] {
        QDragEnterEvent enter({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(m_content.get(), &enter);
    };
    const auto leave = [&] {
        QDragLeaveEvent event;
        QCoreApplication::sendEvent(m_content.get(), &event);
    };
    const auto picture = [this] { return m_content->grab().toImage(); };
    // Where the border of the drop zone runs, and where the frame around the editor does.
    for (const int distance : {25, 4}) {
        const QImage before = picture();
        const qreal scale = before.devicePixelRatio();
        const QPoint border(qRound(distance * scale), before.height() / 2 + 4);
        hover();
        const QImage over = picture();
        EXPECT_NE(over.pixel(border), before.pixel(border)) << distance;
        leave();
        EXPECT_TRUE(picture() == before) << distance;
        if (!state().videoURL()) {
            ASSERT_TRUE(loadAndWait(kTenSeconds));
        }
    }
}

TEST_F(ContentViewTest, fillsTheBarOfAnExportWithItsProgress) {
    ExportProgressView sheet(m_state, m_content.get());
    const auto* bar = sheet.findChild<QProgressBar*>();
    for (const double fraction : {0.0, 0.25, 0.5, 1.0}) {
        sheet.setProgress(fraction);
        EXPECT_EQ(bar->value() - bar->minimum(), fraction * (bar->maximum() - bar->minimum()));
    }
}

TEST_F(ContentViewTest, saysHowMuchLongerAnExportTakes) {
    ExportProgressView sheet(m_state, m_content.get());
    const auto* bar = sheet.findChild<QProgressBar*>();
    const QSize size = sheet.sizeHint();
    sheet.setProgress(0.25);
    EXPECT_EQ(bar->accessibleDescription(), QStringLiteral("25%"));
    const auto caption = [&sheet] {
        for (const QLabel* label : sheet.findChildren<QLabel*>()) {
            if (label->text().startsWith(QStringLiteral("about ")))
                return label->text();
        }
        return QString();
    };
    EXPECT_EQ(caption(), QString());
    // By the clock, without further progress.
    ASSERT_TRUE(pumpUntil([&] { return !caption().isEmpty(); }));
    EXPECT_TRUE(caption().endsWith(QStringLiteral(" s left"))) << caption().toStdString();
    EXPECT_EQ(bar->accessibleDescription(), QStringLiteral("25%, ") + caption());
    EXPECT_EQ(sheet.sizeHint(), size);
}

TEST_F(ContentViewTest, keepsTheExportSheetUntilTheExportHasEnded) {
    ASSERT_TRUE(startLongExport());
    const QPointer<ExportProgressView> sheet = shown<ExportProgressView>();
    EXPECT_EQ(m_content->attachedSheet(), sheet);
    auto* bar = sheet->findChild<QProgressBar*>();
    EXPECT_EQ(bar->width(), 260);
    ASSERT_TRUE(pumpUntil([bar] { return bar->value() > 0; }));

    QTest::keyClick(sheet, Qt::Key_Escape);
    sheet->close();
    QTest::mouseClick(m_content.get(), Qt::LeftButton, Qt::NoModifier, QPoint(5, 5));
    pumpPending();
    ASSERT_TRUE(sheet);
    EXPECT_TRUE(sheet->isVisible());
    EXPECT_TRUE(state().exportProgress());

    auto* cancel = sheet->findChild<QPushButton*>();
    EXPECT_EQ(cancel->text(), QStringLiteral("Cancel"));
    QTest::mouseClick(cancel, Qt::LeftButton);
    EXPECT_TRUE(pumpUntil([&sheet] { return !sheet; }));
    EXPECT_FALSE(state().exportProgress());
    EXPECT_EQ(m_content->attachedSheet(), nullptr);
    EXPECT_EQ(shown<ErrorAlert>(), nullptr);
    EXPECT_TRUE(std::filesystem::is_empty(m_folder.path()));
}

TEST_F(ContentViewTest, givesTheKeyboardToNoControlBeforeTheUserDoes) {
    ASSERT_TRUE(loadAndWait(kTenSeconds));
    EXPECT_EQ(m_content->focusWidget(), shown<EditorView>());
    QTest::keyClick(m_content.get(), Qt::Key_R);
    EXPECT_EQ(state().rotation(), 270);
}

TEST_F(ContentViewTest, mayGoWhileItsVideoPlaysAndExports) {
    ASSERT_TRUE(startLongExport());
    m_content.reset();
    EXPECT_TRUE(state().exportProgress());
    state().togglePlayback();
    pumpPending();
}

} // namespace
} // namespace brisklet
