#pragma once

#include <QString>

namespace brisklet {

/// Tells the launcher that the start with this id (from DESKTOP_STARTUP_ID or from a D-Bus call) is
/// complete, so that it no longer shows a busy pointer. Qt does so for a start that opens a window;
/// this is for starts whose request another process takes over. Does nothing without an id, or on
/// displays other than X11, where launchers use activation tokens. Main thread; needs the
/// application object.
void endStartupNotification(const QString& id);

} // namespace brisklet
