#pragma once

#include <QCoroTask>
#include <QDBusConnection>
#include <QUrl>

namespace brisklet {

/// Has the desktop show a file of this computer in its folder: by the file manager that serves
/// org.freedesktop.FileManager1, with the file selected, else the folder by whatever opens folders.
/// A file that has gone meanwhile leaves the folder to show. False if that has gone too, or if
/// nothing opens folders. Main thread, which is not blocked.
QCoro::Task<bool> showInFileManager(QDBusConnection bus, QUrl file);

} // namespace brisklet
