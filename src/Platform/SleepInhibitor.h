#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>
#include <QString>

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

    /// `reason` is a sentence for the user. Does nothing while it inhibits already.
    void inhibit(const QString& reason);
    void release();

private:
    void askPortal(const QString& reason);
    void askScreenSaver(const QString& reason);
    void hold(const QDBusMessage& releasingCall);

    QDBusConnection m_bus;
    bool m_isWanted = false;
    bool m_isAsked = false;
    /// Ends what was granted; of no type while nothing was.
    QDBusMessage m_release;
};

} // namespace brisklet
