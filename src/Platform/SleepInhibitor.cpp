#include "Platform/SleepInhibitor.h"

#include "Support/MainThread.h"

#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QVariantMap>

#include <utility>

namespace brisklet {

namespace {

/// The portal's flag for suspending.
constexpr uint kSuspend = 4;

QString portalService() {
    return QStringLiteral("org.freedesktop.portal.Desktop");
}

QString screenSaverService() {
    return QStringLiteral("org.freedesktop.ScreenSaver");
}

QDBusMessage screenSaverCall(const QString& method) {
    return QDBusMessage::createMethodCall(screenSaverService(),
                                          QStringLiteral("/org/freedesktop/ScreenSaver"),
                                          QStringLiteral("org.freedesktop.ScreenSaver"), method);
}

} // namespace

SleepInhibitor::SleepInhibitor(QDBusConnection bus, QObject* parent)
    : QObject(parent), m_bus(std::move(bus)) {}

SleepInhibitor::~SleepInhibitor() {
    release();
}

void SleepInhibitor::inhibit(const QString& reason) {
    verifyMainThread();
    m_isWanted = true;
    // The answer to a request that is still on its way counts for this one too.
    if (m_isAsked || m_isRefused || m_release.type() != QDBusMessage::InvalidMessage)
        return;
    m_isAsked = true;
    m_reason = reason;
    askPortal(reason);
}

void SleepInhibitor::release() {
    verifyMainThread();
    m_isWanted = false;
    m_isRefused = false;
    if (m_release.type() != QDBusMessage::InvalidMessage)
        m_bus.send(std::exchange(m_release, QDBusMessage()));
}

void SleepInhibitor::askPortal(const QString& reason) {
    QDBusMessage call = QDBusMessage::createMethodCall(
        portalService(), QStringLiteral("/org/freedesktop/portal/desktop"),
        QStringLiteral("org.freedesktop.portal.Inhibit"), QStringLiteral("Inhibit"));
    call << QString() << kSuspend << QVariantMap{{QStringLiteral("reason"), reason}};
    auto* watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher, reason] {
        watcher->deleteLater();
        const QDBusPendingReply<QDBusObjectPath> reply = *watcher;
        if (reply.isError())
            askScreenSaver(reason);
        else
            hold(QDBusMessage::createMethodCall(portalService(), reply.value().path(),
                                                QStringLiteral("org.freedesktop.portal.Request"),
                                                QStringLiteral("Close")));
    });
}

void SleepInhibitor::askScreenSaver(const QString& reason) {
    QDBusMessage call = screenSaverCall(QStringLiteral("Inhibit"));
    call << QStringLiteral("com.quorvan.brisklet") << reason;
    auto* watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        watcher->deleteLater();
        const QDBusPendingReply<uint> reply = *watcher;
        if (reply.isError()) {
            m_isAsked = false;
            m_isRefused = m_isWanted;
            watchServices();
            return;
        }
        QDBusMessage releasingCall = screenSaverCall(QStringLiteral("UnInhibit"));
        releasingCall << reply.value();
        hold(releasingCall);
    });
}

void SleepInhibitor::hold(const QDBusMessage& releasingCall) {
    m_isAsked = false;
    m_release = releasingCall;
    if (!m_isWanted)
        release();
}

void SleepInhibitor::watchServices() {
    if (m_services != nullptr)
        return;
    m_services = new QDBusServiceWatcher(this);
    m_services->setConnection(m_bus);
    m_services->setWatchMode(QDBusServiceWatcher::WatchForRegistration);
    m_services->setWatchedServices({portalService(), screenSaverService()});
    connect(m_services, &QDBusServiceWatcher::serviceRegistered, this,
            &SleepInhibitor::serviceAppeared);
}

void SleepInhibitor::serviceAppeared() {
    if (std::exchange(m_isRefused, false))
        inhibit(m_reason);
}

} // namespace brisklet
