#pragma once

#include "QtSupport/EventPump.h"

#include <QApplication>
#include <QWidget>

namespace testsupport {

/// Shows a window and gives it the keyboard. QTest's own wait is content with the window that a
/// dialog belongs to.
inline bool showActive(QWidget& window) {
    window.show();
    // What other windows asked for before is over first.
    pumpPending();
    window.activateWindow();
    return pumpUntil([&window] { return QApplication::activeWindow() == &window; });
}

} // namespace testsupport
