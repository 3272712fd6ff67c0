#include "Platform/FileManagerWindow.h"

#include "Support/FileUrl.h"
#include "Support/MainThread.h"
#include "Support/Workers.h"

#include <QCoroFuture>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDesktopServices>
#include <QFuture>
#include <QPromise>

#include <filesystem>
#include <memory>
#include <system_error>

namespace brisklet {

namespace {

/// A file manager may have to be started first.
constexpr int kLongestAnswerMs = 10'000;

enum class Found { file, folder, nothing };

Found find(const std::filesystem::path& path) {
    std::error_code ignored;
    if (std::filesystem::exists(path, ignored))
        return Found::file;
    return std::filesystem::is_directory(path.parent_path(), ignored) ? Found::folder
                                                                      : Found::nothing;
}

/// Whether the file manager has taken the call.
QFuture<bool> callFileManager(const QDBusConnection& bus, const QString& method, const QUrl& url) {
    QDBusMessage message =
        QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.FileManager1"),
                                       QStringLiteral("/org/freedesktop/FileManager1"),
                                       QStringLiteral("org.freedesktop.FileManager1"), method);
    const QString startupId;
    message << QStringList{QString::fromLatin1(url.toEncoded())} << startupId;
    const auto promise = std::make_shared<QPromise<bool>>();
    promise->start();
    auto* watcher = new QDBusPendingCallWatcher(bus.asyncCall(message, kLongestAnswerMs));
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, watcher, [watcher, promise] {
        promise->addResult(!watcher->isError());
        promise->finish();
        watcher->deleteLater();
    });
    return promise->future();
}

} // namespace

QCoro::Task<FolderShowing> showInFileManager(QDBusConnection bus, QUrl file) {
    verifyMainThread();
    const std::filesystem::path path = pathOf(file);
    auto looking = runOnWorker([path] { return find(path); });
    const Found found = co_await looking;
    if (found == Found::nothing)
        co_return FolderShowing::folderGone;
    const QUrl folder = urlOf(path.parent_path());
    const QFuture<bool> showing = found == Found::file
                                      ? callFileManager(bus, QStringLiteral("ShowItems"), file)
                                      : callFileManager(bus, QStringLiteral("ShowFolders"), folder);
    const bool isShown = co_await showing;
    co_return isShown || QDesktopServices::openUrl(folder) ? FolderShowing::shown
                                                           : FolderShowing::noFileManager;
}

} // namespace brisklet
