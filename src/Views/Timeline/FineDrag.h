#pragma once

#include <QPointF>
#include <Qt>

namespace brisklet {

/// How far what is dragged moves when the pointer does.
enum class DragSpeed { full, tenth, hundredth };

/// Turns positions of the pointer into those of what it drags along the strip, in points. At full
/// speed both are the same; at the lower ones what is dragged moves a part as far. It does not jump
/// when the speed changes: after a slow part of a drag, it stays as far from the pointer as it came
/// to be. A value type.
class FineDrag final {
public:
    /// What is dragged goes to the pointer.
    explicit FineDrag(double pointer) : FineDrag(pointer, pointer) {}

    /// What is dragged stays at `position`, and moves with the pointer from there.
    FineDrag(double pointer, double position) : m_pointer(pointer), m_position(position) {}

    /// The speed for a pointer in the coordinates of a strip: full without Shift; with it a tenth,
    /// and a hundredth where the pointer is farther above or below the strip than its height.
    static DragSpeed speedAt(const QPointF& pointer, double stripHeight,
                             Qt::KeyboardModifiers modifiers);

    /// The pointer has moved. At the lower speeds what is dragged stays from `lowest` to `highest`,
    /// so that it moves back as soon as the pointer turns round.
    double moveTo(double pointer, DragSpeed speed, double lowest, double highest);

private:
    double m_pointer;
    double m_position;
};

} // namespace brisklet
