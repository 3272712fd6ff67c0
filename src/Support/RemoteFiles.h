#pragma once

#include <QCoroTask>
#include <QUrl>

#include <memory>
#include <optional>

namespace brisklet {

/// Finds the local path of files on other computers and devices that the desktop has mounted here.
/// Main thread.
class RemoteFiles {
public:
    RemoteFiles() = default;
    RemoteFiles(const RemoteFiles&) = delete;
    RemoteFiles& operator=(const RemoteFiles&) = delete;
    virtual ~RemoteFiles() = default;

    /// The file URL of the mounted file or folder of that address; none if the desktop has no mount
    /// for it. Touches no disk, and answers after a limited time.
    virtual QCoro::Task<std::optional<QUrl>> find(QUrl address) = 0;
};

/// The file URL under which an existing file can be opened here: `url` itself if the file is on
/// this computer, otherwise what `remoteFiles` (may be null) finds. Throws std::runtime_error with
/// a sentence that names the address if there is no way to it. Main thread.
QCoro::Task<QUrl> findLocalFile(std::shared_ptr<RemoteFiles> remoteFiles, QUrl url);

/// The same for a file that is to be written and need not exist: finds its folder.
QCoro::Task<QUrl> findLocalDestination(std::shared_ptr<RemoteFiles> remoteFiles, QUrl url);

} // namespace brisklet
