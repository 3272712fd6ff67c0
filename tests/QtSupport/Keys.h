#pragma once

#include <QPointer>
#include <QTest>
#include <QWindow>

namespace testsupport {

/// Presses a key and lets go of it, unless the window has gone by then: QTest's own click goes on
/// with the window that the press has closed.
inline void clickKey(QWindow* window, Qt::Key key,
                     Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    const QPointer<QWindow> alive = window;
    QTest::keyPress(window, key, modifiers);
    if (alive)
        QTest::keyRelease(window, key, modifiers);
}

} // namespace testsupport
