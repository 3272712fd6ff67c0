#include "Views/Crop/CropKeys.h"

namespace brisklet {

namespace {

constexpr double kStep = 1;
constexpr double kShiftStep = 10;

std::optional<QPointF> directionOf(int key) {
    switch (key) {
    case Qt::Key_Left:
        return QPointF(-1, 0);
    case Qt::Key_Right:
        return QPointF(1, 0);
    case Qt::Key_Up:
        return QPointF(0, -1);
    case Qt::Key_Down:
        return QPointF(0, 1);
    default:
        return std::nullopt;
    }
}

} // namespace

std::optional<CropKey> CropKey::of(int key, Qt::KeyboardModifiers modifiers) {
    const auto direction = directionOf(key);
    if (!direction)
        return std::nullopt;
    CropKey result{*direction * (modifiers & Qt::ShiftModifier ? kShiftStep : kStep), {}};
    const bool isSideways = direction->x() != 0;
    switch (modifiers & ~(Qt::ShiftModifier | Qt::KeypadModifier)) {
    case Qt::NoModifier:
        return result;
    case Qt::ControlModifier:
        result.handle = isSideways ? CropHandle::right : CropHandle::bottom;
        return result;
    case Qt::AltModifier:
        result.handle = isSideways ? CropHandle::left : CropHandle::top;
        return result;
    default:
        return std::nullopt;
    }
}

} // namespace brisklet
