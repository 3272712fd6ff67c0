#include "Platform/DesktopMounts.h"

#include "Platform/GvfsMount.h"
#include "Support/FileUrl.h"
#include "Support/MainThread.h"

#include <QCoroFuture>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QFile>
#include <QFuture>
#include <QPromise>

#include <memory>
#include <utility>

namespace brisklet {

namespace {

/// Calls a method; the future gets the reply, or an error message after the time limit.
QFuture<QDBusMessage> call(QDBusConnection bus, const QDBusMessage& message,
                           std::chrono::milliseconds limit) {
    const auto promise = std::make_shared<QPromise<QDBusMessage>>();
    promise->start();
    const auto pending = bus.asyncCall(message, static_cast<int>(limit.count()));
    auto* watcher = new QDBusPendingCallWatcher(pending);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, watcher, [watcher, promise] {
        promise->addResult(watcher->reply());
        promise->finish();
        watcher->deleteLater();
    });
    return promise->future();
}

QDBusMessage listGvfsMounts() {
    // All releases have this method, but not the newer ones of this interface.
    return QDBusMessage::createMethodCall(
        QStringLiteral("org.gtk.vfs.Daemon"), QStringLiteral("/org/gtk/vfs/mounttracker"),
        QStringLiteral("org.gtk.vfs.MountTracker"), QStringLiteral("ListMounts"));
}

QDBusMessage mountByKio(const QUrl& address) {
    QDBusMessage message = QDBusMessage::createMethodCall(
        QStringLiteral("org.kde.KIOFuse"), QStringLiteral("/org/kde/KIOFuse"),
        QStringLiteral("org.kde.KIOFuse.VFS"), QStringLiteral("mountUrl"));
    message << QString::fromLatin1(address.toEncoded());
    return message;
}

std::optional<QUrl> placeInReply(const QDBusMessage& reply) {
    const QString path = reply.arguments().value(0).toString();
    if (reply.type() != QDBusMessage::ReplyMessage || !path.startsWith(u'/'))
        return std::nullopt;
    return urlOf(QFile::encodeName(path).toStdString());
}

} // namespace

DesktopMounts::DesktopMounts(QDBusConnection bus) : DesktopMounts(std::move(bus), Limits()) {}

DesktopMounts::DesktopMounts(QDBusConnection bus, Limits limits)
    : m_bus(std::move(bus)), m_limits(limits) {}

QCoro::Task<std::optional<QUrl>> DesktopMounts::find(QUrl address) {
    verifyMainThread();
    // For file URLs with another host's name the desktop only uses the path.
    if (address.scheme() == u"file")
        co_return std::nullopt;
    const QDBusConnection bus = m_bus;
    const Limits limits = m_limits;
    const QFuture<QDBusMessage> listing = call(bus, listGvfsMounts(), limits.listing);
    const QDBusMessage mounts = co_await listing;
    if (const auto path = pathInMounts(gvfsMountsIn(mounts), address))
        co_return urlOf(*path);
    const QFuture<QDBusMessage> mounting = call(bus, mountByKio(address), limits.mounting);
    const QDBusMessage place = co_await mounting;
    co_return placeInReply(place);
}

} // namespace brisklet
