#include "Views/Timeline/FineDrag.h"

#include <algorithm>

namespace brisklet {

namespace {

double factorOf(DragSpeed speed) {
    switch (speed) {
    case DragSpeed::full:
        return 1;
    case DragSpeed::tenth:
        return 0.1;
    case DragSpeed::hundredth:
        return 0.01;
    }
    return 1;
}

} // namespace

DragSpeed FineDrag::speedAt(const QPointF& pointer, double stripHeight,
                            Qt::KeyboardModifiers modifiers) {
    if (!(modifiers & Qt::ShiftModifier))
        return DragSpeed::full;
    const double distance = std::max(-pointer.y(), pointer.y() - stripHeight);
    return distance > stripHeight ? DragSpeed::hundredth : DragSpeed::tenth;
}

double FineDrag::moveTo(double pointer, DragSpeed speed, double lowest, double highest) {
    // At the pointer it stays exactly there, without the rounding of a sum.
    const bool isAtPointer = m_position == m_pointer;
    const double moved = m_position + factorOf(speed) * (pointer - m_pointer);
    m_pointer = pointer;
    if (speed == DragSpeed::full)
        m_position = isAtPointer ? pointer : moved;
    else
        m_position = std::max(std::min(moved, highest), lowest);
    return m_position;
}

} // namespace brisklet
