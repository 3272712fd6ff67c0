#pragma once

#include "QtSupport/PrivateBus.h"

#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

#include <csignal>

namespace testsupport {

/// What a start of the program gets on a bus and an X display of a test's own; offscreen where
/// `display` is empty.
inline QProcessEnvironment environmentOn(const PrivateBus& bus, const QString& display) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), bus.address());
    environment.insert(QStringLiteral("DISPLAY"), display);
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"),
                       display.isEmpty() ? QStringLiteral("offscreen") : QStringLiteral("xcb"));
    // What it tells is compared with English, whatever the language of the person is.
    environment.insert(QStringLiteral("LANGUAGE"), QStringLiteral("en"));
    return environment;
}

/// Another start of the program. Main thread.
class OtherStart {
public:
    OtherStart(const QProcessEnvironment& environment, const QStringList& arguments,
               const QString& folder = QStringLiteral("/")) {
        m_process.setProcessEnvironment(environment);
        m_process.setWorkingDirectory(folder);
        m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_process.start(QStringLiteral(BRISKLET_APP), arguments);
    }

    OtherStart(const OtherStart&) = delete;
    OtherStart& operator=(const OtherStart&) = delete;

    ~OtherStart() {
        m_process.terminate();
        m_process.waitForFinished();
    }

    [[nodiscard]] bool hasEnded() const { return m_process.state() == QProcess::NotRunning; }

    [[nodiscard]] int exitCode() const { return m_process.exitCode(); }

    /// Whether it is so far that it ends in order when it is asked to (proc_pid_status(5)).
    [[nodiscard]] bool hearsTermination() const {
        QFile status(QStringLiteral("/proc/%1/status").arg(m_process.processId()));
        if (!status.open(QIODevice::ReadOnly))
            return false;
        const QByteArray all = status.readAll();
        const auto mask = all.mid(all.indexOf("SigCgt:\t") + 8, 16).toULongLong(nullptr, 16);
        return (mask >> (SIGTERM - 1) & 1U) != 0;
    }

    /// Asks it to end, as a session that ends does.
    void terminate() { m_process.terminate(); }

    [[nodiscard]] bool hasCrashed() const { return m_process.exitStatus() == QProcess::CrashExit; }

    /// Whether this file is part of the running process.
    [[nodiscard]] bool hasLoaded(const QByteArray& file) const {
        QFile maps(QStringLiteral("/proc/%1/maps").arg(m_process.processId()));
        return maps.open(QIODevice::ReadOnly) && maps.readAll().contains(file);
    }

private:
    QProcess m_process;
};

} // namespace testsupport
