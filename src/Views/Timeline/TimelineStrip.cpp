#include "Views/Timeline/TimelineStrip.h"

#include "Models/EditState.h"
#include "Views/Painting/DeviceGrid.h"
#include "Views/Painting/Theme.h"
#include "Views/Timeline/TimelineMarker.h"
#include "Views/Timeline/TimelinePainting.h"

#include <QApplication>
#include <QCursor>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <chrono>
#include <utility>

namespace brisklet {

namespace {

/// How long a filmstrip may take before the strip says that it is coming.
constexpr std::chrono::seconds kUntilNotice(1);
} // namespace

TimelineStrip::TimelineStrip(std::shared_ptr<EditState> state, int stripHeight, int handleWidth,
                             QWidget* parent)
    : QWidget(parent),
      m_state(std::move(state)),
      m_stripHeight(stripHeight),
      m_handleWidth(handleWidth) {
    std::ranges::transform(kEditMarkers, m_markers.begin(), [this](EditMarker marker) {
        return new TimelineMarker(m_state, marker, this);
    });
    setMouseTracking(true);
    setFixedHeight(stripHeight);
    observe();
    refresh();
}

TimelineGeometry TimelineStrip::geometryNow() const {
    return {.duration = m_state->duration(),
            .trimStart = m_state->trimStart(),
            .trimEnd = m_state->trimEnd(),
            .currentTime = m_state->currentTime(),
            .width = static_cast<double>(width()),
            .stripHeight = static_cast<double>(m_stripHeight),
            .handleWidth = static_cast<double>(m_handleWidth)};
}

TimelineMarker& TimelineStrip::marker(EditMarker marker) const {
    return *m_markers.at(static_cast<std::size_t>(marker));
}

QList<ShortcutGroup> TimelineStrip::shortcutGroups() const {
    return {{tr("Timeline, by mouse"),
             {{tr("Click or drag"), tr("Move the playhead")},
              {tr("Drag a handle"), tr("Move the trim start or the trim end")},
              {tr("Drag with Shift"), tr("Move a tenth as far as the pointer")},
              {tr("Drag with Shift, far above or below"), tr("Move a hundredth as far")},
              //: Of the mouse; or two fingers on a touchpad.
              {tr("Wheel"), tr("Step by a frame")},
              {tr("Wheel with Shift"), tr("Step by ten frames")},
              {tr("Wheel over a handle"), tr("Step with that end of the range")},
              {tr("Esc during a drag"), tr("Take the drag back")}}},
            {tr("Trim start, playhead and trim end, reached by Tab"), TimelineMove::shortcuts()}};
}

void TimelineStrip::observe() {
    const EditState* state = m_state.get();
    connect(state, &EditState::durationChanged, this, &TimelineStrip::refresh);
    connect(state, &EditState::trimStartChanged, this, &TimelineStrip::refresh);
    connect(state, &EditState::trimEndChanged, this, &TimelineStrip::refresh);
    connect(state, &EditState::currentTimeChanged, this, &TimelineStrip::refresh);
    connect(state, &EditState::thumbnailsChanged, this, qOverload<>(&QWidget::update));
    connect(state, &EditState::isMakingThumbnailsChanged, this, &TimelineStrip::followThumbnails);
    connect(state, &EditState::videoURLChanged, this, &TimelineStrip::followThumbnails);
    m_untilNotice.setSingleShot(true);
    connect(&m_untilNotice, &QTimer::timeout, this, [this] {
        m_showsNotice = true;
        update();
    });
    followThumbnails();
    connect(&m_escape, &DragEscape::interrupted, this, &TimelineStrip::endDrag);
    for (TimelineMarker* marker : m_markers)
        connect(marker, &TimelineMarker::focusShownChanged, this, qOverload<>(&QWidget::update));
}

void TimelineStrip::followThumbnails() {
    m_showsNotice = false;
    // Once, and without a picture that moves: a window that waits for a slow disk stays idle.
    if (m_state->isMakingThumbnails())
        m_untilNotice.start(kUntilNotice);
    else
        m_untilNotice.stop();
    update();
}

void TimelineStrip::refresh() {
    const TimelineGeometry now = geometryNow();
    repaintDifference(std::exchange(m_shown, now), now);
    placeMarkers(now);
    for (TimelineMarker* marker : m_markers) {
        // While the video plays, announcing the playhead would interrupt everything else.
        if (marker->marker() != EditMarker::playhead || !m_state->isPlaying())
            marker->announceValue();
    }
    showHover();
    m_readout.refresh();
}

void TimelineStrip::repaintDifference(const TimelineGeometry& before, const TimelineGeometry& now) {
    if (before.duration != now.duration || before.width != now.width) {
        update();
        return;
    }
    const auto repaint = [this](const QRectF& rect, EditMarker marker) {
        const double reach = TimelinePainting::reach(marker);
        const QRectF around = rect.adjusted(-reach, 0, reach, 0);
        update(TimelinePainting::visible(around, m_shown).toAlignedRect());
    };
    if (before.currentTime != now.currentTime) {
        repaint(before.marker(EditMarker::playhead), EditMarker::playhead);
        repaint(now.marker(EditMarker::playhead), EditMarker::playhead);
    }
    for (const EditMarker end : {EditMarker::trimStart, EditMarker::trimEnd}) {
        if (before.marker(end) != now.marker(end))
            repaint(before.marker(end).united(now.marker(end)), end);
    }
}

void TimelineStrip::placeMarkers(const TimelineGeometry& geometry) {
    for (TimelineMarker* marker : m_markers) {
        // The playhead is as wide as a handle and its own bar together.
        const double reach = marker->marker() == EditMarker::playhead ? m_handleWidth / 2.0 : 0;
        const QRectF rect = geometry.marker(marker->marker()).adjusted(-reach, 0, reach, 0);
        const double x =
            std::clamp(rect.x(), -rect.width(), std::max(geometry.width, -rect.width()));
        marker->setGeometry(QRectF(x, 0, rect.width(), rect.height()).toAlignedRect());
    }
}

void TimelineStrip::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    refresh();
}

void TimelineStrip::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    beginDrag(event->position(), event->modifiers());
}

void TimelineStrip::mouseMoveEvent(QMouseEvent* event) {
    // If a dialog took the pointer meanwhile, the release of the button went to it.
    if (!(event->buttons() & Qt::LeftButton))
        endDrag();
    if (m_drag)
        dragTo(event->position(), event->modifiers());
    else
        pointAt(event->position());
}

void TimelineStrip::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton)
        return;
    endDrag();
    pointAt(event->position());
}

void TimelineStrip::leaveEvent(QEvent* event) {
    QWidget::leaveEvent(event);
    // What the wheel does to a handle afterwards is another step to undo.
    if (m_pointer)
        m_state->history().endRun();
    m_pointer.reset();
    showHover();
}

void TimelineStrip::wheelEvent(QWheelEvent* event) {
    if (!m_state->videoURL()) {
        event->ignore();
        return;
    }
    event->accept();
    if (m_drag)
        return;
    const WheelSteps::Step step = m_wheel.take(*event, geometryNow().draggedAt(event->position()));
    if (step.frames != 0)
        m_state->stepMarker(step.marker, step.frames);
}

void TimelineStrip::beginDrag(const QPointF& pointer, Qt::KeyboardModifiers modifiers) {
    const TimelineGeometry geometry = geometryNow();
    const EditMarker dragged = geometry.draggedAt(pointer);
    m_gesture = std::make_unique<EditGesture>(m_state);
    m_escape.begin([this, origin = m_state->dragOrigin(dragged)] {
        m_drag.reset();
        m_readout.setDragged(std::nullopt);
        m_state->takeBackDrag(origin);
        m_gesture.reset();
        pointAt(mapFromGlobal(QCursor::pos()));
    });
    qApp->installEventFilter(this);
    m_drag = Drag{.marker = dragged, .path = FineDrag(pointer.x()), .pointer = pointer};
    moveFocusFromOthers(dragged);
    const DragSpeed speed = FineDrag::speedAt(pointer, m_stripHeight, modifiers);
    if (speed == DragSpeed::full || geometry.markerAt(pointer) != dragged) {
        dragTo(pointer, modifiers);
        return;
    }
    // Grabbed for a fine drag, a marker does not jump to the pointer.
    m_drag->path = FineDrag(pointer.x(), geometry.x(m_state->time(dragged)));
    showSpeed(speed);
    m_state->moveMarker(dragged, m_state->time(dragged));
}

void TimelineStrip::endDrag() {
    m_drag.reset();
    m_gesture.reset();
    m_escape.end();
    qApp->removeEventFilter(this);
    m_readout.setDragged(std::nullopt);
}

void TimelineStrip::dragTo(const QPointF& pointer, Qt::KeyboardModifiers modifiers) {
    const TimelineGeometry geometry = geometryNow();
    const EditMarker marker = m_drag->marker;
    const DragSpeed speed = FineDrag::speedAt(pointer, m_stripHeight, modifiers);
    const double position =
        m_drag->path.moveTo(pointer.x(), speed, geometry.x(m_state->earliest(marker)),
                            geometry.x(m_state->latest(marker)));
    m_drag->pointer = pointer;
    showSpeed(speed);
    m_state->moveMarker(marker, geometry.time(position));
}

void TimelineStrip::showSpeed(DragSpeed speed) {
    m_readout.setDragged(m_drag->marker, speed);
    if (std::exchange(m_drag->speed, speed) == speed)
        return;
    if (speed != DragSpeed::full)
        setCursor(speed == DragSpeed::tenth ? Qt::SplitHCursor : Qt::CrossCursor);
    else if (m_drag->marker == EditMarker::playhead)
        unsetCursor();
    else
        setCursor(Qt::SizeHorCursor);
}

/// During a drag: shows the speed as soon as Shift is pressed or released, before the mouse moves.
bool TimelineStrip::eventFilter(QObject* watched, QEvent* event) {
    const QEvent::Type type = event->type();
    if (m_drag && (type == QEvent::KeyPress || type == QEvent::KeyRelease) &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Shift) {
        const auto modifiers = type == QEvent::KeyPress ? Qt::ShiftModifier : Qt::NoModifier;
        showSpeed(FineDrag::speedAt(m_drag->pointer, m_stripHeight, modifiers));
    }
    return QWidget::eventFilter(watched, event);
}

void TimelineStrip::moveFocusFromOthers(EditMarker dragged) {
    // A user who goes on with the mouse expects the arrow keys to step frames again.
    for (const TimelineMarker* each : m_markers) {
        if (each->marker() != dragged && each->hasFocus()) {
            marker(EditMarker::playhead).setFocus(Qt::MouseFocusReason);
            return;
        }
    }
}

void TimelineStrip::pointAt(const QPointF& position) {
    if (geometryNow().draggedAt(position) == EditMarker::playhead)
        unsetCursor();
    else
        setCursor(Qt::SizeHorCursor);
    m_pointer = rect().contains(position.toPoint()) ? std::optional(position) : std::nullopt;
    showHover();
}

void TimelineStrip::showHover() {
    auto hovered = m_pointer ? geometryNow().markerAt(*m_pointer) : std::nullopt;
    // The playhead of a playing video passes under the pointer.
    if (hovered == EditMarker::playhead && m_state->isPlaying())
        hovered.reset();
    m_readout.setHovered(hovered);
}

void TimelineStrip::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const TimelineGeometry geometry = geometryNow();
    if (m_state->thumbnails().isEmpty())
        painter.fillRect(DeviceGrid(painter).rect(geometry.filmstrip()),
                         theme::quaternary(palette()));
    else
        m_filmstrip.paint(painter, geometry, m_state->thumbnails());
    if (m_showsNotice)
        paintNotice(painter);
    TimelinePainting(painter, geometry, palette()).paint(focusedMarker());
}

std::optional<EditMarker> TimelineStrip::focusedMarker() const {
    for (const TimelineMarker* each : m_markers) {
        if (each->isFocusShown())
            return each->marker();
    }
    return std::nullopt;
}

void TimelineStrip::paintNotice(QPainter& painter) const {
    painter.setFont(theme::captionFont(font()));
    painter.setPen(theme::primary(palette()));
    painter.drawText(geometryNow().filmstrip(), Qt::AlignCenter, tr("Making the filmstrip…"));
    painter.setPen(Qt::NoPen);
}

} // namespace brisklet
