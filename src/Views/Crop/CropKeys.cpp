#include "Views/Crop/CropKeys.h"

#include <QCoreApplication>
#include <QKeySequence>

#include <algorithm>
#include <array>

namespace brisklet {

namespace {

constexpr double kStep = 1;
constexpr double kShiftStep = 10;

/// What the arrow keys change with these modifiers held.
struct Part {
    Qt::KeyboardModifiers modifiers;
    /// Of the keys to the left and right, and of those up and down; none moves the whole crop.
    std::optional<CropHandle> sideways;
    std::optional<CropHandle> upright;
    const char* effect;
};

constexpr std::array kParts{
    Part{Qt::NoModifier, {}, {}, QT_TRANSLATE_NOOP("brisklet::CropOverlayView", "Move the crop")},
    Part{Qt::ControlModifier, CropHandle::right, CropHandle::bottom,
         QT_TRANSLATE_NOOP("brisklet::CropOverlayView", "Move its right or bottom side")},
    Part{Qt::AltModifier, CropHandle::left, CropHandle::top,
         QT_TRANSLATE_NOOP("brisklet::CropOverlayView", "Move its left or top side")},
};

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
    const auto part = std::ranges::find(
        kParts, modifiers & ~(Qt::ShiftModifier | Qt::KeypadModifier), &Part::modifiers);
    if (!direction || part == kParts.end())
        return std::nullopt;
    const double step = modifiers & Qt::ShiftModifier ? kShiftStep : kStep;
    return CropKey{*direction * step, direction->x() != 0 ? part->sideways : part->upright};
}

QList<Shortcut> CropKey::shortcuts() {
    // The contexts are literals, since lupdate sees no others.
    //: “Ctrl+” or “Alt+” may stand before it.
    const QString arrows = QCoreApplication::translate("brisklet::CropOverlayView", "Arrow keys");
    QList<Shortcut> shortcuts;
    for (const Part& part : kParts) {
        // "Ctrl+", in the words of the desktop.
        const QString held = QKeySequence(static_cast<int>(part.modifiers.toInt()))
                                 .toString(QKeySequence::NativeText);
        shortcuts << Shortcut{
            held + arrows, QCoreApplication::translate("brisklet::CropOverlayView", part.effect)};
    }
    shortcuts << Shortcut{
        QCoreApplication::translate("brisklet::CropOverlayView", "Shift with these keys"),
        QCoreApplication::translate("brisklet::CropOverlayView", "Ten times as far")};
    return shortcuts;
}

} // namespace brisklet
