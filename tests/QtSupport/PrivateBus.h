#pragma once

#include <QDBusConnection>
#include <QProcess>
#include <QString>

#include <atomic>

namespace testsupport {

/// A message bus of a test's own, which ends with it. Main thread.
class PrivateBus final {
public:
    PrivateBus() {
        m_daemon.start(QStringLiteral("dbus-daemon"),
                       {QStringLiteral("--session"), QStringLiteral("--nofork"),
                        QStringLiteral("--print-address=1")});
        if (m_daemon.waitForStarted() && m_daemon.waitForReadyRead())
            m_address = QString::fromLatin1(m_daemon.readLine()).trimmed();
    }

    PrivateBus(const PrivateBus&) = delete;
    PrivateBus& operator=(const PrivateBus&) = delete;

    ~PrivateBus() {
        m_daemon.terminate();
        m_daemon.waitForFinished();
    }

    [[nodiscard]] bool isRunning() const { return !m_address.isEmpty(); }

    [[nodiscard]] const QString& address() const { return m_address; }

    /// A new connection to it.
    [[nodiscard]] QDBusConnection connect() const {
        static std::atomic<int> number = 0;
        return QDBusConnection::connectToBus(
            m_address, QStringLiteral("private-bus-%1").arg(number.fetch_add(1)));
    }

private:
    QProcess m_daemon;
    QString m_address;
};

} // namespace testsupport
