#pragma once

#include <QCoroTask>
#include <QDBusConnection>
#include <QUrl>

namespace brisklet {

/// What came of having a folder shown.
enum class FolderShowing {
    shown,
    folderGone,   ///< The folder is not there.
    noFileManager ///< Nothing opens folders here.
};

/// Has the desktop show a file of this computer in its folder: by the file manager that serves
/// org.freedesktop.FileManager1, with the file selected, else the folder by whatever opens folders.
/// A file that has gone meanwhile leaves the folder to show. Main thread, which is not blocked.
QCoro::Task<FolderShowing> showInFileManager(QDBusConnection bus, QUrl file);

} // namespace brisklet
