#pragma once

#include <QPoint>
#include <QTest>
#include <QWidget>
#include <QWindow>

namespace testsupport {

/// A mouse over one window. Its events go to the window, as those of a real one do, so it is Qt
/// that finds the view under the pointer. Positions are in the coordinates of `view`.
class Pointer final {
public:
    explicit Pointer(QWidget& view) : m_view(view) {}

    void press(const QPoint& point, Qt::MouseButton button = Qt::LeftButton) const {
        QTest::mousePress(window(), button, Qt::NoModifier, inWindow(point));
    }

    void moveTo(const QPoint& point) const { QTest::mouseMove(window(), inWindow(point)); }

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
