#pragma once

#include <QPoint>
#include <QTest>
#include <QWheelEvent>
#include <QWidget>
#include <QWindow>

namespace testsupport {

/// A mouse over one window. Its events go to the window, as those of a real one do, so it is Qt
/// that finds the view under the pointer. Positions are in the coordinates of `view`.
class Pointer final {
public:
    explicit Pointer(QWidget& view) : m_view(view) {}

    void press(const QPoint& point, Qt::MouseButton button = Qt::LeftButton,
               Qt::KeyboardModifiers modifiers = Qt::NoModifier) const {
        QTest::mousePress(window(), button, modifiers, inWindow(point));
    }

    void moveTo(const QPoint& point, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const {
        QTest::mouseEvent(QTest::MouseMove, window(), Qt::NoButton, modifiers, inWindow(point));
    }

    struct Turn {
        QPoint angle;
        QPoint pixels;
        Qt::KeyboardModifiers modifiers = Qt::NoModifier;
        Qt::ScrollPhase phase = Qt::NoScrollPhase;
        bool isInverted = false;
        /// Milliseconds.
        quint64 timestamp = 0;
    };

    void turnWheel(const QPoint& point, const Turn& turn) const {
        const QPoint place = inWindow(point);
        QWheelEvent event(place, window()->mapToGlobal(place), turn.pixels, turn.angle,
                          Qt::NoButton, turn.modifiers, turn.phase, turn.isInverted);
        event.setTimestamp(turn.timestamp);
        QCoreApplication::sendEvent(window(), &event);
    }

    void release(const QPoint& point, Qt::MouseButton button = Qt::LeftButton) const {
        QTest::mouseRelease(window(), button, Qt::NoModifier, inWindow(point));
    }

    void click(const QPoint& point, Qt::MouseButton button = Qt::LeftButton) const {
        press(point, button);
        release(point, button);
    }

    void drag(const QPoint& from, const QPoint& to) const {
        press(from);
        moveTo(to);
        release(to);
    }

private:
    [[nodiscard]] QWindow* window() const { return m_view.window()->windowHandle(); }

    [[nodiscard]] QPoint inWindow(const QPoint& point) const {
        return m_view.mapTo(m_view.window(), point);
    }

    QWidget& m_view;
};

} // namespace testsupport
