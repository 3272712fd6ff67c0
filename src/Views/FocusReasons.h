#pragma once

#include <QtCore/qnamespace.h>

namespace brisklet {

/// Whether a focus with this reason came by the keyboard, and so is to be shown.
inline bool isKeyboardFocus(Qt::FocusReason reason) {
    return reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason ||
           reason == Qt::ShortcutFocusReason;
}

/// Whether the focus moves to another window or a menu for a while, or comes back from there: it
/// stays as visible as it was.
inline bool isPassingFocus(Qt::FocusReason reason) {
    return reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason ||
           reason == Qt::MenuBarFocusReason;
}

} // namespace brisklet
