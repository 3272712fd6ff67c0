#include "Support/RemoteFiles.h"

#include "Support/FileUrl.h"
#include "Support/MainThread.h"

#include <QByteArray>

#include <stdexcept>
#include <utility>

namespace brisklet {

QCoro::Task<QUrl> findLocalFile(std::shared_ptr<RemoteFiles> remoteFiles, QUrl url) {
    verifyMainThread();
    if (isOnThisComputer(url))
        co_return url;
    std::optional<QUrl> found;
    if (remoteFiles) {
        auto finding = remoteFiles->find(url);
        found = co_await finding;
    }
    if (!found)
        throw std::runtime_error(notOnThisComputerMessage(url).toStdString());
    co_return std::move(*found);
}

QCoro::Task<QUrl> findLocalDestination(std::shared_ptr<RemoteFiles> remoteFiles, QUrl url) {
    verifyMainThread();
    if (isOnThisComputer(url))
        co_return url;
    std::optional<QUrl> folder;
    if (remoteFiles) {
        auto finding = remoteFiles->find(url.adjusted(QUrl::RemoveFilename));
        folder = co_await finding;
    }
    if (!folder)
        throw std::runtime_error(notOnThisComputerMessage(url).toStdString());
    const QByteArray name = url.fileName(QUrl::FullyEncoded).toLatin1();
    co_return urlOf(pathOf(*folder) / QByteArray::fromPercentEncoding(name).toStdString());
}

} // namespace brisklet
