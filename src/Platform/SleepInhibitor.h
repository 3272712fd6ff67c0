#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>
#include <QString>

class QDBusServiceWatcher;

namespace brisklet {

/// Keeps the computer from going to sleep, through the desktop portal or, where there is none,
/// through the screen saver's service. Where neither is there nothing happens. Neither call waits.
/// Main thread.
class SleepInhibitor final : public QObject {
    Q_OBJECT

public:
    explicit SleepInhibitor(QDBusConnection bus, QObject* parent = nullptr);
    /// Lets the computer sleep.
    ~SleepInhibitor() override;

    /// `reason` is a sentence for the user. Does nothing while it inhibits already. A refusal holds
    /// until release(), or until one of the services appears anew.
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
    /// Made with the first refusal.
    QDBusServiceWatcher* m_services = nullptr;
    /// Ends what was granted; of no type while nothing was.
    QDBusMessage m_release;
};

} // namespace brisklet
