#pragma once

#include <QCoroTask>
#include <QUrl>

#include <memory>
#include <optional>

namespace brisklet {

/// Finds files of other computers and devices in the folders of this one, as far as the desktop has
/// mounted them there. Main thread.
class RemoteFiles {
public:
    RemoteFiles() = default;
    RemoteFiles(const RemoteFiles&) = delete;
    RemoteFiles& operator=(const RemoteFiles&) = delete;
    virtual ~RemoteFiles() = default;

    /// The file URL under which this computer has the file or folder of that address; none where
    /// the desktop knows no way to it. Looks at no file, and answers after a limited time.
    virtual QCoro::Task<std::optional<QUrl>> find(QUrl address) = 0;
};

/// The file URL of an existing file: the URL itself where the file is on this computer, else where
/// `remoteFiles` (which may be null) finds it. Throws std::runtime_error with a sentence that names
/// the address where there is no way to it. Main thread.
QCoro::Task<QUrl> findFile(std::shared_ptr<RemoteFiles> remoteFiles, QUrl url);

/// The same for a file that need not exist: its folder is looked for.
QCoro::Task<QUrl> findPlace(std::shared_ptr<RemoteFiles> remoteFiles, QUrl url);

} // namespace brisklet
