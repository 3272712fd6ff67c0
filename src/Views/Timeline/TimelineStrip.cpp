#include "Views/Timeline/TimelineStrip.h"

#include "Models/EditState.h"
#include "Views/Painting/DeviceGrid.h"
#include "Views/Painting/Symbols.h"
#include "Views/Painting/Theme.h"
#include "Views/Timeline/TimelineMarker.h"

#include <QApplication>
#include <QCursor>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <utility>

namespace brisklet {

namespace {

constexpr QColor kYellow(0xff, 0xcc, 0x00);
constexpr double kShadeOpacity = 0.55;
constexpr double kFrameWidth = 2;
constexpr double kCornerRadius = 6;
constexpr double kShadowOpacity = 0.33;
/// How far the playhead's shadow can be seen, points.
constexpr double kShadowReach = 2;
/// The standard deviation of a blur whose radius is one point.
constexpr double kShadowDeviation = 0.75;
constexpr double kSymbolOpacity = 0.6;
/// The side of the square in which a handle's symbol is drawn, points: that of bold text of
/// size 11.
constexpr double kSymbolSide = 18;
constexpr double kFocusWidth = 2;
/// How long a filmstrip may take before the strip says that it is coming.
constexpr std::chrono::seconds kUntilNotice(1);
/// From the playhead to its focus ring, points.
constexpr double kFocusDistance = 2;

/// In the order in which their handles are painted.
constexpr std::array kRangeEnds{EditMarker::trimStart, EditMarker::trimEnd};

QColor blackOf(double opacity) {
    return QColor::fromRgbF(0, 0, 0, static_cast<float>(opacity));
}

/// The visible part and a little around it, so that painting need not cope with the huge numbers
/// that a damaged file can state.
QRectF bounded(const QRectF& rect, const QRectF& strip) {
    const double reach = 2 * strip.height();
    return rect.intersected(strip.adjusted(-reach, 0, reach, 0));
}

QPainterPath handlePath(const QRectF& rect, EditMarker end) {
    QPainterPath path;
    path.addRoundedRect(rect, kCornerRadius, kCornerRadius);
    // The corners on the side of the range are square.
    QPainterPath inner;
    const double left = end == EditMarker::trimStart ? rect.center().x() : rect.left();
    inner.addRect(QRectF(left, rect.top(), rect.width() / 2, rect.height()));
    return path.united(inner);
}

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
    const auto repaint = [this](const QRectF& rect, double reach) {
        const QRectF around = rect.adjusted(-reach, 0, reach, 0);
        update(bounded(around, m_shown.strip()).toAlignedRect());
    };
    // One point more, since lines may be moved to the nearest pixels of the screen.
    constexpr double kPlayheadReach = kShadowReach + kFocusDistance + kFocusWidth + 1;
    constexpr double kHandleReach = kFrameWidth + 1;
    if (before.currentTime != now.currentTime) {
        repaint(before.marker(EditMarker::playhead), kPlayheadReach);
        repaint(now.marker(EditMarker::playhead), kPlayheadReach);
    }
    for (const EditMarker end : kRangeEnds) {
        if (before.marker(end) != now.marker(end))
            repaint(before.marker(end).united(now.marker(end)), kHandleReach);
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
    const DeviceGrid grid(painter);
    const TimelineGeometry geometry = geometryNow();
    if (m_state->thumbnails().isEmpty())
        painter.fillRect(grid.rect(geometry.filmstrip()), theme::quaternary(palette()));
    else
        m_filmstrip.paint(painter, geometry, m_state->thumbnails());
    if (m_showsNotice)
        paintNotice(painter);
    paintShades(painter, grid);
    paintRangeFrame(painter, grid);
    paintPlayhead(painter, grid);
    for (const EditMarker end : kRangeEnds)
        paintHandle(painter, grid, end);
    paintFocus(painter, grid);
}

void TimelineStrip::paintNotice(QPainter& painter) const {
    painter.setFont(theme::captionFont(font()));
    painter.setPen(theme::primary(palette()));
    painter.drawText(geometryNow().filmstrip(), Qt::AlignCenter, tr("Making the filmstrip…"));
    painter.setPen(Qt::NoPen);
}

void TimelineStrip::paintShades(QPainter& painter, const DeviceGrid& grid) const {
    const TimelineGeometry geometry = geometryNow();
    for (const QRectF& shade : {geometry.leftShade(), geometry.rightShade()})
        painter.fillRect(grid.rect(bounded(shade, geometry.strip())), blackOf(kShadeOpacity));
}

void TimelineStrip::paintRangeFrame(QPainter& painter, const DeviceGrid& grid) const {
    const TimelineGeometry geometry = geometryNow();
    const QRectF frame = grid.rect(bounded(geometry.rangeFrame(), geometry.strip()));
    const double line = grid.thickness(kFrameWidth);
    QPainterPath border;
    border.setFillRule(Qt::OddEvenFill);
    border.addRect(frame);
    if (frame.width() > 2 * line)
        border.addRect(frame.adjusted(line, line, -line, -line));
    painter.fillPath(border, kYellow);
}

void TimelineStrip::paintPlayhead(QPainter& painter, const DeviceGrid& grid) const {
    const TimelineGeometry geometry = geometryNow();
    const QRectF wanted = bounded(geometry.marker(EditMarker::playhead), geometry.strip());
    if (wanted.isEmpty())
        return;
    const QRectF bar(grid.x(wanted.x()), 0, grid.thickness(wanted.width()), wanted.height());
    const double pixel = grid.pixel();
    // How much of a blurred bar falls at a distance beside it (Gaussian blur).
    const auto share = [&](double distance) {
        const double scale = kShadowDeviation * std::sqrt(2.0);
        return (std::erf((distance + bar.width()) / scale) - std::erf(distance / scale)) / 2;
    };
    for (double distance = 0; distance < kShadowReach; distance += pixel) {
        const QColor color = blackOf(kShadowOpacity * share(distance + pixel / 2));
        painter.fillRect(QRectF(bar.left() - distance - pixel, 0, pixel, bar.height()), color);
        painter.fillRect(QRectF(bar.right() + distance, 0, pixel, bar.height()), color);
    }
    painter.fillRect(bar, Qt::white);
}

void TimelineStrip::paintHandle(QPainter& painter, const DeviceGrid& grid, EditMarker end) const {
    const TimelineGeometry geometry = geometryNow();
    const QRectF handle = geometry.marker(end);
    if (!handle.intersects(geometry.strip()))
        return;
    const QRectF rect(grid.x(handle.x()), 0, grid.thickness(handle.width()), handle.height());
    QPainterPath path = handlePath(rect, end);
    if (!geometry.strip().contains(rect)) {
        QPainterPath strip;
        strip.addRoundedRect(geometry.strip(), kCornerRadius, kCornerRadius);
        path = path.intersected(strip);
    }
    painter.fillPath(path, kYellow);
    QRectF symbol(0, 0, kSymbolSide, kSymbolSide);
    symbol.moveCenter(rect.center());
    paintSymbol(painter, end == EditMarker::trimStart ? Symbol::chevronLeft : Symbol::chevronRight,
                symbol, blackOf(kSymbolOpacity));
}

void TimelineStrip::paintFocus(QPainter& painter, const DeviceGrid& grid) const {
    const auto focused = std::find_if(m_markers.begin(), m_markers.end(),
                                      [](auto* marker) { return marker->isFocusShown(); });
    if (focused == m_markers.end())
        return;
    const TimelineGeometry geometry = geometryNow();
    const double line = grid.thickness(kFocusWidth);
    const EditMarker marker = (*focused)->marker();
    const double reach = marker == EditMarker::playhead ? kFocusDistance + line : 0;
    const QRectF rect = grid.rect(geometry.marker(marker)).adjusted(-reach, 0, reach, 0);
    const QRectF middle = rect.adjusted(line / 2, line / 2, -line / 2, -line / 2);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(theme::accentFill(palette()), line));
    painter.drawRoundedRect(middle, kCornerRadius - line / 2, kCornerRadius - line / 2);
    painter.setPen(Qt::NoPen);
}

} // namespace brisklet
