#pragma once

#include "Views/Shortcuts/ShortcutSource.h"

class QWidget;

namespace brisklet {

/// All keys and gestures of a window, as they are registered now: those of its menus, one group per
/// menu; those of its controls (QShortcut, named by its whatsThis); and what its views handle
/// themselves (ShortcutSource). Main thread.
QList<ShortcutGroup> shortcutsOf(const QWidget& window);

} // namespace brisklet
