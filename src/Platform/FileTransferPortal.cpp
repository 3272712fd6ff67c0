#include "Platform/FileTransferPortal.h"

#include "Support/MainThread.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QVariantMap>

#include <utility>

namespace brisklet {

void retrieveTransferredFiles(QDBusConnection bus, const QByteArray& key,
                              std::function<void(const QList<QUrl>&)> done) {
    verifyMainThread();
    auto message = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.portal.Documents"),
        QStringLiteral("/org/freedesktop/portal/documents"),
        QStringLiteral("org.freedesktop.portal.FileTransfer"), QStringLiteral("RetrieveFiles"));
    message << QString::fromLatin1(key) << QVariantMap();
    auto* watcher = new QDBusPendingCallWatcher(bus.asyncCall(message));
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, watcher,
                     [watcher, answer = std::move(done)] {
                         const QDBusPendingReply<QStringList> reply = *watcher;
                         QList<QUrl> files;
                         if (reply.isValid()) {
                             for (const QString& path : reply.value())
                                 files << QUrl::fromLocalFile(path);
                         }
                         watcher->deleteLater();
                         answer(files);
                     });
}

} // namespace brisklet
