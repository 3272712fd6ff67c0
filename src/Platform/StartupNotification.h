#pragma once

#include <QString>

namespace brisklet {

/// Tells the launcher that the start with this id (DESKTOP_STARTUP_ID, or what came with a call) is
/// over, so that the pointer no longer shows it as busy. Qt does so for the start that makes its
/// first window; this is for those that another process answers. Does nothing without an id, and on
/// displays other than X11, whose launchers go by activation tokens. Main thread; needs the
/// application object.
void endStartupNotification(const QString& id);

} // namespace brisklet
