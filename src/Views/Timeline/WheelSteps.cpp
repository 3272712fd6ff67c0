#include "Views/Timeline/WheelSteps.h"

#include <QGuiApplication>
#include <QStyleHints>
#include <QWheelEvent>

#include <cmath>
#include <cstdlib>

namespace brisklet {

namespace {

constexpr double kAnglePerNotch = QWheelEvent::DefaultDeltasPerStep;
constexpr double kPointsPerFrame = 12;
constexpr double kShiftFactor = 10;
/// After such a rest, the wheel moves what is under the pointer then.
constexpr quint64 kMomentMs = 1500;

/// In the direction in which the wheel was turned most: Shift, Alt or the device may make a
/// vertical turn a horizontal one.
int alongStrip(const QPoint& delta, bool isInverted) {
    const int amount = std::abs(delta.x()) > std::abs(delta.y()) ? -delta.x() : delta.y();
    return isInverted ? -amount : amount;
}

double framesOf(const QWheelEvent& event) {
    // On X11 the pixels are not pixels: Qt passes on the increments of the driver.
    static const bool hasPixels = QGuiApplication::platformName() != QStringLiteral("xcb");
    if (hasPixels && !event.pixelDelta().isNull())
        return alongStrip(event.pixelDelta(), event.inverted()) / kPointsPerFrame;
    return alongStrip(event.angleDelta(), event.inverted()) / kAnglePerNotch;
}

} // namespace

bool WheelSteps::continues(const QWheelEvent& event) const {
    const QPointF moved = event.globalPosition() - m_origin;
    return event.phase() != Qt::ScrollBegin && event.timestamp() - m_timestamp < kMomentMs &&
           moved.manhattanLength() < QGuiApplication::styleHints()->startDragDistance();
}

WheelSteps::Step WheelSteps::take(const QWheelEvent& event, EditMarker under) {
    if (!continues(event)) {
        m_marker = under;
        m_origin = event.globalPosition();
        m_remainder = 0;
    }
    m_timestamp = event.timestamp();
    const double factor = event.modifiers() & Qt::ShiftModifier ? kShiftFactor : 1;
    const double frames = factor * framesOf(event);
    // What was left of the other direction is no part of this one.
    if (frames * m_remainder < 0)
        m_remainder = 0;
    const double all = m_remainder + frames;
    const double whole = std::trunc(all);
    m_remainder = all - whole;
    return {.marker = m_marker, .frames = static_cast<int>(whole)};
}

} // namespace brisklet
