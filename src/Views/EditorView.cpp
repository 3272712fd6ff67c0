#include "Views/EditorView.h"

#include "Views/Controls/ControlsView.h"
#include "Views/Crop/CropOverlayView.h"
#include "Views/LostVideoView.h"
#include "Views/Timeline/TimelineMarker.h"
#include "Views/Timeline/TimelineStrip.h"
#include "Views/Timeline/TimelineView.h"
#include "Views/VideoArea.h"

#include <QPushButton>
#include <QStyle>

#include <algorithm>

namespace brisklet {

namespace {

/// Around the rows and between them, points.
constexpr int kPadding = 12;
constexpr int kSpacing = 12;
constexpr int kStripHeight = 56;
constexpr int kHandleWidth = 12;

} // namespace

EditorView::EditorView(const std::shared_ptr<EditState>& state, QWidget* parent)
    : QWidget(parent),
      m_videoArea(new VideoArea(state, this)),
      m_lostVideo(new LostVideoView(state, this)),
      m_timeline(new TimelineView(state, kStripHeight, kHandleWidth, this)),
      m_controls(new ControlsView(state, this)) {
    // The timeline passes the focus on to its playhead; the marker before that one comes first in
    // the order of the tab key.
    setTabOrder(&m_videoArea->cropOverlay(), &m_lostVideo->openAgainButton());
    setTabOrder(&m_lostVideo->openAgainButton(), m_timeline->strip().markers().front());
}

QSize EditorView::minimumSizeHint() const {
    return {m_controls->minimumSizeHint().width() + 2 * kPadding,
            m_timeline->sizeHint().height() + m_controls->sizeHint().height() + 2 * kPadding +
                2 * kSpacing};
}

void EditorView::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    const int rowWidth = width() - 2 * kPadding;
    const int controlsHeight = m_controls->sizeHint().height();
    const int timelineHeight = m_timeline->sizeHint().height();
    const int controlsTop = height() - kPadding - controlsHeight;
    const int timelineTop = controlsTop - kSpacing - timelineHeight;
    m_videoArea->setGeometry(kPadding, kPadding, rowWidth,
                             std::max(0, timelineTop - kSpacing - kPadding));
    m_lostVideo->setGeometry(m_videoArea->geometry());
    m_timeline->setGeometry(kPadding, timelineTop, rowWidth, timelineHeight);
    // The frames of the buttons align with the rows above, not their highlights.
    const int inset = ControlsView::leftInset();
    const QRect row(kPadding - inset, controlsTop, rowWidth + inset, controlsHeight);
    m_controls->setGeometry(QStyle::visualRect(layoutDirection(), rect(), row));
}

} // namespace brisklet
