#pragma once

#include "Views/Shortcuts/ShortcutSource.h"

class QKeySequence;
class QWidget;

namespace brisklet {

/// All keys and gestures of a window, as they are registered now: those of its menus, one group per
/// menu; those of its controls (QShortcut, named by its whatsThis); and what its views handle
/// themselves (ShortcutSource). Main thread.
QList<ShortcutGroup> shortcutsOf(const QWidget& window);

/// The name of a key as people read it, also in text that runs from right to left: there "[" would
/// be shown as the opposite bracket, and the question mark of "Ctrl+?" before it. Main thread.
QString nameOf(const QKeySequence& key);

} // namespace brisklet
