#include "Views/Timeline/TimelinePainting.h"

#include "Views/Painting/Symbols.h"
#include "Views/Painting/Theme.h"

#include <QPainter>
#include <QPainterPath>

#include <array>
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
/// From the playhead to its focus ring, points.
constexpr double kFocusDistance = 2;

/// In the order in which their handles are painted.
constexpr std::array kRangeEnds{EditMarker::trimStart, EditMarker::trimEnd};

QColor blackOf(double opacity) {
    return QColor::fromRgbF(0, 0, 0, static_cast<float>(opacity));
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

TimelinePainting::TimelinePainting(QPainter& painter, const TimelineGeometry& geometry,
                                   QPalette palette)
    : m_painter(painter), m_geometry(geometry), m_grid(painter), m_palette(std::move(palette)) {}

void TimelinePainting::paint(std::optional<EditMarker> focused) {
    paintShades();
    paintRangeFrame();
    paintPlayhead();
    for (const EditMarker end : kRangeEnds)
        paintHandle(end);
    if (focused)
        paintFocus(*focused);
}

double TimelinePainting::reach(EditMarker marker) {
    // One point more, since lines may be moved to the nearest pixels of the screen.
    return (marker == EditMarker::playhead ? kShadowReach + kFocusDistance + kFocusWidth
                                           : kFrameWidth) +
           1;
}

QRectF TimelinePainting::visible(const QRectF& rect, const TimelineGeometry& geometry) {
    const QRectF strip = geometry.strip();
    const double reach = 2 * strip.height();
    return rect.intersected(strip.adjusted(-reach, 0, reach, 0));
}

void TimelinePainting::paintShades() {
    for (const QRectF& shade : {m_geometry.leftShade(), m_geometry.rightShade()})
        m_painter.fillRect(m_grid.rect(visible(shade, m_geometry)), blackOf(kShadeOpacity));
}

void TimelinePainting::paintRangeFrame() {
    const QRectF frame = m_grid.rect(visible(m_geometry.rangeFrame(), m_geometry));
    const double line = m_grid.thickness(kFrameWidth);
    QPainterPath border;
    border.setFillRule(Qt::OddEvenFill);
    border.addRect(frame);
    if (frame.width() > 2 * line)
        border.addRect(frame.adjusted(line, line, -line, -line));
    m_painter.fillPath(border, kYellow);
}

void TimelinePainting::paintPlayhead() {
    const QRectF wanted = visible(m_geometry.marker(EditMarker::playhead), m_geometry);
    if (wanted.isEmpty())
        return;
    const QRectF bar(m_grid.x(wanted.x()), 0, m_grid.thickness(wanted.width()), wanted.height());
    const double pixel = m_grid.pixel();
    // How much of a blurred bar falls at a distance beside it (Gaussian blur).
    const auto share = [&](double distance) {
        const double scale = kShadowDeviation * std::sqrt(2.0);
        return (std::erf((distance + bar.width()) / scale) - std::erf(distance / scale)) / 2;
    };
    for (double distance = 0; distance < kShadowReach; distance += pixel) {
        const QColor color = blackOf(kShadowOpacity * share(distance + pixel / 2));
        m_painter.fillRect(QRectF(bar.left() - distance - pixel, 0, pixel, bar.height()), color);
        m_painter.fillRect(QRectF(bar.right() + distance, 0, pixel, bar.height()), color);
    }
    m_painter.fillRect(bar, Qt::white);
}

void TimelinePainting::paintHandle(EditMarker end) {
    const QRectF handle = m_geometry.marker(end);
    if (!handle.intersects(m_geometry.strip()))
        return;
    const QRectF rect(m_grid.x(handle.x()), 0, m_grid.thickness(handle.width()), handle.height());
    QPainterPath path = handlePath(rect, end);
    if (!m_geometry.strip().contains(rect)) {
        QPainterPath strip;
        strip.addRoundedRect(m_geometry.strip(), kCornerRadius, kCornerRadius);
        path = path.intersected(strip);
    }
    m_painter.fillPath(path, kYellow);
    QRectF symbol(0, 0, kSymbolSide, kSymbolSide);
    symbol.moveCenter(rect.center());
    paintSymbol(m_painter,
                end == EditMarker::trimStart ? Symbol::chevronLeft : Symbol::chevronRight, symbol,
                blackOf(kSymbolOpacity));
}

void TimelinePainting::paintFocus(EditMarker marker) {
    const double line = m_grid.thickness(kFocusWidth);
    const double reach = marker == EditMarker::playhead ? kFocusDistance + line : 0;
    const QRectF rect = m_grid.rect(m_geometry.marker(marker)).adjusted(-reach, 0, reach, 0);
    const QRectF middle = rect.adjusted(line / 2, line / 2, -line / 2, -line / 2);
    m_painter.setBrush(Qt::NoBrush);
    m_painter.setPen(QPen(theme::accentFill(m_palette), line));
    m_painter.drawRoundedRect(middle, kCornerRadius - line / 2, kCornerRadius - line / 2);
    m_painter.setPen(Qt::NoPen);
}

} // namespace brisklet
