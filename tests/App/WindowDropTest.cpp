#include "AppFixture.h"

#include "Views/ContentView.h"
#include "Views/Controls/ControlsView.h"
#include "Views/Controls/ExportButton.h"
#include "Views/Crop/CropOverlayView.h"
#include "Views/DropZoneView.h"
#include "Views/EditorView.h"
#include "Views/Timeline/TimelineView.h"
#include "Views/VideoArea.h"

#include <QDragEnterEvent>
#include <QDragLeaveEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QPointer>
#include <QPushButton>

namespace brisklet {
namespace {

using testsupport::pumpUntil;

/// Files that are dragged from another program over a window. The events go to the window itself,
/// as those of the desktop do, so it is Qt that finds who is to have them.
class WindowDropTest : public AppFixture {
protected:
    void enter(const QPoint& point) {
        QDragEnterEvent event(point, kActions, &m_data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(m_window->windowHandle(), &event);
        m_answer = event.isAccepted() ? event.dropAction() : Qt::IgnoreAction;
    }

    /// Whether a drop there would be taken. What was answered last holds unless somebody says
    /// otherwise, as with the desktop's own events.
    bool moveTo(const QPoint& point) {
        QDragMoveEvent event(point, kActions, &m_data, Qt::LeftButton, Qt::NoModifier);
        if (m_answer != Qt::IgnoreAction) {
            event.setDropAction(m_answer);
            event.accept();
        }
        QCoreApplication::sendEvent(m_window->windowHandle(), &event);
        m_answer = event.isAccepted() ? event.dropAction() : Qt::IgnoreAction;
        return m_answer != Qt::IgnoreAction;
    }

    bool drop(const QPoint& point) {
        QDropEvent event(point, kActions, &m_data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(m_window->windowHandle(), &event);
        return event.isAccepted();
    }

    void leave() {
        QDragLeaveEvent event;
        QCoreApplication::sendEvent(m_window->windowHandle(), &event);
    }

    QPoint middleOf(const QWidget& view) {
        return view.mapTo(m_window.data(), view.rect().center());
    }

    bool hasVideo(const QUrl& url) {
        return pumpUntil([&] { return m_window->state()->videoURL() == url; });
    }

    static constexpr Qt::DropActions kActions = Qt::CopyAction;
    QPointer<WindowRootView> m_window = openWindow();
    QMimeData m_data;
    /// What is to become of the files where the pointer is.
    Qt::DropAction m_answer = Qt::IgnoreAction;
};

TEST_F(WindowDropTest, loadsAFileThatIsDroppedOnAnyPartOfAnEmptyWindow) {
    auto* zone = m_window->findChild<DropZoneView*>();
    ASSERT_NE(zone, nullptr);
    m_data.setUrls({video(1)});
    const QRect content = m_window->content().geometry();
    enter(content.topLeft() + QPoint(3, 3));
    for (const QPoint& point : {content.center(), content.bottomRight() - QPoint(3, 3),
                                middleOf(*zone->findChild<QPushButton*>())}) {
        EXPECT_TRUE(moveTo(point)) << point.x() << ' ' << point.y();
        EXPECT_TRUE(zone->isLit());
    }
    leave();
    EXPECT_FALSE(zone->isLit());
    enter(content.center());
    EXPECT_TRUE(moveTo(content.center()));
    EXPECT_TRUE(drop(content.center()));
    EXPECT_FALSE(zone->isLit());
    EXPECT_TRUE(hasVideo(video(1)));
}

TEST_F(WindowDropTest, replacesTheVideoWhereverOnTheEditorAFileIsDropped) {
    ASSERT_TRUE(loadAndWait(*m_window, video(1)));
    m_window->state()->setCropRect(media::Rect{0.1, 0.1, 0.8, 0.8});
    const auto* editor = m_window->findChild<EditorView*>();
    double seconds = 1;
    for (const QWidget* part : std::initializer_list<const QWidget*>{
             &editor->videoArea(), &editor->videoArea().cropOverlay(), &editor->timeline(),
             &editor->controls(), &editor->controls().exportButton()}) {
        const QUrl url = video(++seconds);
        m_data.setUrls({url});
        enter(middleOf(*part));
        EXPECT_TRUE(moveTo(middleOf(*part))) << seconds;
        EXPECT_TRUE(drop(middleOf(*part))) << seconds;
        ASSERT_TRUE(hasVideo(url)) << seconds;
    }
}

TEST_F(WindowDropTest, refusesWhatIsNoFile) {
    m_data.setText(QStringLiteral("not a file"));
    const QPoint middle = m_window->content().geometry().center();
    enter(middle);
    EXPECT_FALSE(moveTo(middle));
    leave();
    EXPECT_FALSE(m_window->findChild<DropZoneView*>()->isLit());
    // The same way with a file.
    m_data.setUrls({video(1)});
    enter(middle);
    EXPECT_TRUE(moveTo(middle));
    leave();
}

} // namespace
} // namespace brisklet
