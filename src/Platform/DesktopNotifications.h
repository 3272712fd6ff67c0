#pragma once

#include <QDBusConnection>
#include <QHash>
#include <QObject>
#include <QString>

#include <functional>

namespace brisklet {

/// Tells the user something through the desktop's notifications. Without such a service nothing
/// happens. Main thread.
class DesktopNotifications final : public QObject {
    Q_OBJECT

public:
    explicit DesktopNotifications(QDBusConnection bus, QObject* parent = nullptr);

    /// Plain text. `chosen` is called when the user picks the notification.
    void show(const QString& title, const QString& text, std::function<void()> chosen);

private:
    Q_SLOT void actionInvoked(uint id, const QString& action);
    Q_SLOT void notificationClosed(uint id);

    QDBusConnection m_bus;
    QHash<uint, std::function<void()>> m_actions;
};

} // namespace brisklet
