#include "Platform/DesktopNotifications.h"

#include "Support/MainThread.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QStringList>
#include <QVariantMap>

#include <utility>

namespace brisklet {

namespace {

QString serviceName() {
    return QStringLiteral("org.freedesktop.Notifications");
}

QString objectPath() {
    return QStringLiteral("/org/freedesktop/Notifications");
}

QString defaultAction() {
    return QStringLiteral("default");
}

} // namespace

DesktopNotifications::DesktopNotifications(QDBusConnection bus, QObject* parent)
    : QObject(parent), m_bus(std::move(bus)) {
    m_bus.connect(serviceName(), objectPath(), serviceName(), QStringLiteral("ActionInvoked"), this,
                  SLOT(actionInvoked(uint, QString)));
    m_bus.connect(serviceName(), objectPath(), serviceName(), QStringLiteral("NotificationClosed"),
                  this, SLOT(notificationClosed(uint)));
}

void DesktopNotifications::show(const QString& title, const QString& text,
                                std::function<void()> chosen) {
    verifyMainThread();
    QDBusMessage call = QDBusMessage::createMethodCall(serviceName(), objectPath(), serviceName(),
                                                       QStringLiteral("Notify"));
    constexpr int kUsualDuration = -1;
    call << QStringLiteral("Brisklet") << uint{0} << QStringLiteral("com.quorvan.brisklet")
         << title
         // Services interpret markup in the body.
         //: A button of the notification of an export that has ended: shows the window.
         << text.toHtmlEscaped() << QStringList{defaultAction(), tr("Show")}
         << QVariantMap{{QStringLiteral("desktop-entry"), QStringLiteral("com.quorvan.brisklet")}}
         << kUsualDuration;
    auto* watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this,
            [this, watcher, chosen = std::move(chosen)] {
                watcher->deleteLater();
                const QDBusPendingReply<uint> reply = *watcher;
                if (!reply.isError())
                    m_actions.insert(reply.value(), chosen);
            });
}

void DesktopNotifications::actionInvoked(uint id, const QString& action) {
    const auto chosen = m_actions.value(id);
    if (chosen && action == defaultAction())
        chosen();
}

void DesktopNotifications::notificationClosed(uint id) {
    m_actions.remove(id);
}

} // namespace brisklet
