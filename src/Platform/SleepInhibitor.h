#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>
#include <QString>

class QDBusServiceWatcher;

namespace brisklet {

/// Keeps the computer from going to sleep, through the desktop portal or, where there is none,
/// through the screen saver's service. Does nothing where there is neither. Never blocks. Main
/// thread.
class SleepInhibitor final : public QObject {
    Q_OBJECT

public:
    explicit SleepInhibitor(QDBusConnection bus, QObject* parent = nullptr);
    /// Lets the computer sleep.
    ~SleepInhibitor() override;

    /// `reason` is a sentence for the user. Does nothing while sleep is inhibited already. After a
    /// refusal it is not asked again before release(), or before one of the services reappears.
    void inhibit(const QString& reason);
    void release();

private:
    void askPortal(const QString& reason);
    void askScreenSaver(const QString& reason);
    void hold(const QDBusMessage& releasingCall);
    void watchServices();
    void serviceAppeared();

    QDBusConnection m_bus;
    bool m_isWanted = false;
    bool m_isAsked = false;
    bool m_isRefused = false;
    QString m_reason;
    /// Created after the first refusal.
    QDBusServiceWatcher* m_services = nullptr;
    /// The call that ends the inhibition; invalid while nothing is inhibited.
    QDBusMessage m_release;
};

} // namespace brisklet
