#include "Views/Timeline/TimelineStrip.h"

#include "Models/EditState.h"
#include "Views/Painting/DeviceGrid.h"
#include "Views/Painting/Symbols.h"
#include "Views/Painting/Theme.h"
#include "Views/Timeline/TimelineEdits.h"
#include "Views/Timeline/TimelineMarker.h"

#include <QCursor>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
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
/// Of the blur that has the shadow's radius of one point.
constexpr double kShadowDeviation = 0.75;
constexpr double kSymbolOpacity = 0.6;
/// The square that the handles' symbols are drawn on, points: of bold text of size 11.
constexpr double kSymbolSide = 18;
constexpr double kFocusWidth = 2;
/// From the playhead to its focus ring, points.
constexpr double kFocusDistance = 2;

QColor blackOf(double opacity) {
    return QColor::fromRgbF(0, 0, 0, static_cast<float>(opacity));
}

/// The part that can be seen, and a little around it: painting need not take on any number that a
/// damaged file makes.
QRectF bounded(const QRectF& rect, const QRectF& strip) {
    const double reach = 2 * strip.height();
    return rect.intersected(strip.adjusted(-reach, 0, reach, 0));
}

QPainterPath handlePath(const QRectF& rect, HandleEdge edge) {
    QPainterPath path;
    path.addRoundedRect(rect, kCornerRadius, kCornerRadius);
    // The side toward the range has square corners.
    QPainterPath inner;
    const double left = edge == HandleEdge::leading ? rect.center().x() : rect.left();
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
    using Role = TimelineMarker::Role;
    m_markers = {new TimelineMarker(m_state, Role::trimStart, this),
                 new TimelineMarker(m_state, Role::playhead, this),
                 new TimelineMarker(m_state, Role::trimEnd, this)};
    setMouseTracking(true);
    setFixedHeight(stripHeight);
    observe();
    refresh();
}

TimelineGeometry TimelineStrip::geometryNow() const {
    return timeline::geometryOf(*m_state, width(), m_stripHeight, m_handleWidth);
}

void TimelineStrip::observe() {
    const EditState* state = m_state.get();
    connect(state, &EditState::durationChanged, this, &TimelineStrip::refresh);
    connect(state, &EditState::trimStartChanged, this, &TimelineStrip::refresh);
    connect(state, &EditState::trimEndChanged, this, &TimelineStrip::refresh);
    connect(state, &EditState::currentTimeChanged, this, &TimelineStrip::refresh);
    connect(state, &EditState::thumbnailsChanged, this, qOverload<>(&QWidget::update));
    connect(&m_escape, &DragEscape::interrupted, this, &TimelineStrip::endDrag);
    for (TimelineMarker* marker : m_markers)
        connect(marker, &TimelineMarker::focusShownChanged, this, qOverload<>(&QWidget::update));
}

void TimelineStrip::refresh() {
    const TimelineGeometry now = geometryNow();
    repaintDifference(std::exchange(m_shown, now), now);
    placeMarkers(now);
    for (TimelineMarker* marker : m_markers) {
        // Nobody listens to a clock that runs: only a playhead that is moved speaks.
        if (marker->role() != TimelineMarker::Role::playhead || !m_state->isPlaying())
            marker->announceValue();
    }
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
    // One more point: lines may have been put on the pixels of the screen.
    constexpr double kPlayheadReach = kShadowReach + kFocusDistance + kFocusWidth + 1;
    constexpr double kHandleReach = kFrameWidth + 1;
    if (before.currentTime != now.currentTime) {
        repaint(before.playhead(), kPlayheadReach);
        repaint(now.playhead(), kPlayheadReach);
    }
    for (const HandleEdge edge : {HandleEdge::leading, HandleEdge::trailing}) {
        if (before.handle(edge) != now.handle(edge))
            repaint(before.handle(edge).united(now.handle(edge)), kHandleReach);
    }
}

void TimelineStrip::placeMarkers(const TimelineGeometry& geometry) {
    const auto place = [&](TimelineMarker& marker, const QRectF& rect) {
        const double x =
            std::clamp(rect.x(), -rect.width(), std::max(geometry.width, -rect.width()));
        marker.setGeometry(QRectF(x, 0, rect.width(), rect.height()).toAlignedRect());
    };
    const double reach = m_handleWidth / 2.0;
    place(*m_markers[0], geometry.handle(HandleEdge::leading));
    place(*m_markers[1], geometry.playhead().adjusted(-reach, 0, reach, 0));
    place(*m_markers[2], geometry.handle(HandleEdge::trailing));
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
    const auto handle = geometryNow().handleAt(event->position());
    beginDrag(!handle                          ? Drag::playhead
              : *handle == HandleEdge::leading ? Drag::leading
                                               : Drag::trailing);
    moveFocusFromOthers();
    dragTo(event->position().x());
}

void TimelineStrip::mouseMoveEvent(QMouseEvent* event) {
    // The release went elsewhere where a dialog took the pointer.
    if (!(event->buttons() & Qt::LeftButton))
        endDrag();
    if (m_drag == Drag::none)
        showCursor(event->position());
    else
        dragTo(event->position().x());
}

void TimelineStrip::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton)
        return;
    endDrag();
    showCursor(event->position());
}

void TimelineStrip::beginDrag(Drag drag) {
    m_drag = drag;
    const auto dragged =
        drag == Drag::playhead ? timeline::Dragged::playhead : timeline::Dragged::edge;
    m_escape.begin([this, dragged, start = timeline::dragStart(*m_state)] {
        m_drag = Drag::none;
        timeline::takeBack(*m_state, start, dragged);
        showCursor(mapFromGlobal(QCursor::pos()));
    });
}

void TimelineStrip::endDrag() {
    m_drag = Drag::none;
    m_escape.end();
}

void TimelineStrip::dragTo(double position) {
    const double time = geometryNow().time(position);
    switch (m_drag) {
    case Drag::none:
        return;
    case Drag::playhead:
        m_state->seek(time);
        return;
    case Drag::leading:
        timeline::moveEdge(*m_state, HandleEdge::leading, time);
        return;
    case Drag::trailing:
        timeline::moveEdge(*m_state, HandleEdge::trailing, time);
        return;
    }
}

void TimelineStrip::moveFocusFromOthers() {
    const std::size_t dragged = m_drag == Drag::leading ? 0 : m_drag == Drag::playhead ? 1 : 2;
    // Who goes on with the mouse expects the arrow keys to step frames again.
    for (std::size_t index = 0; index < m_markers.size(); ++index) {
        if (index != dragged && m_markers[index]->hasFocus()) {
            playhead().setFocus(Qt::MouseFocusReason);
            return;
        }
    }
}

void TimelineStrip::showCursor(const QPointF& position) {
    if (geometryNow().handleAt(position))
        setCursor(Qt::SizeHorCursor);
    else
        unsetCursor();
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
    paintShades(painter, grid);
    paintRangeFrame(painter, grid);
    paintPlayhead(painter, grid);
    paintHandle(painter, grid, HandleEdge::leading);
    paintHandle(painter, grid, HandleEdge::trailing);
    paintFocus(painter, grid);
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
    const QRectF wanted = bounded(geometry.playhead(), geometry.strip());
    if (wanted.isEmpty())
        return;
    const QRectF bar(grid.x(wanted.x()), 0, grid.thickness(wanted.width()), wanted.height());
    const double pixel = grid.pixel();
    // How much of a bar under a Gaussian blur is left beside it.
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

void TimelineStrip::paintHandle(QPainter& painter, const DeviceGrid& grid, HandleEdge edge) const {
    const TimelineGeometry geometry = geometryNow();
    const QRectF handle = geometry.handle(edge);
    if (!handle.intersects(geometry.strip()))
        return;
    const QRectF rect(grid.x(handle.x()), 0, grid.thickness(handle.width()), handle.height());
    QPainterPath path = handlePath(rect, edge);
    if (!geometry.strip().contains(rect)) {
        QPainterPath strip;
        strip.addRoundedRect(geometry.strip(), kCornerRadius, kCornerRadius);
        path = path.intersected(strip);
    }
    painter.fillPath(path, kYellow);
    QRectF symbol(0, 0, kSymbolSide, kSymbolSide);
    symbol.moveCenter(rect.center());
    paintSymbol(painter, edge == HandleEdge::leading ? Symbol::chevronLeft : Symbol::chevronRight,
                symbol, blackOf(kSymbolOpacity));
}

void TimelineStrip::paintFocus(QPainter& painter, const DeviceGrid& grid) const {
    const auto focused = std::find_if(m_markers.begin(), m_markers.end(),
                                      [](auto* marker) { return marker->isFocusShown(); });
    if (focused == m_markers.end())
        return;
    const TimelineGeometry geometry = geometryNow();
    const double line = grid.thickness(kFocusWidth);
    const auto role = (*focused)->role();
    QRectF rect;
    if (role == TimelineMarker::Role::playhead) {
        const double reach = kFocusDistance + line;
        rect = grid.rect(geometry.playhead()).adjusted(-reach, 0, reach, 0);
    } else {
        rect = grid.rect(geometry.handle(
            role == TimelineMarker::Role::trimStart ? HandleEdge::leading : HandleEdge::trailing));
    }
    const QRectF middle = rect.adjusted(line / 2, line / 2, -line / 2, -line / 2);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(theme::accentFill(palette()), line));
    painter.drawRoundedRect(middle, kCornerRadius - line / 2, kCornerRadius - line / 2);
    painter.setPen(Qt::NoPen);
}

} // namespace brisklet
