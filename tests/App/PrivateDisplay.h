#pragma once

#include "QtSupport/EventPump.h"

#include <QProcess>
#include <QStandardPaths>
#include <QString>
#include <QStringList>

#include <memory>

namespace testsupport {

/// An X display of a test's own, which ends with it, seen through the eyes of xdotool. Main thread.
class PrivateDisplay final {
public:
    PrivateDisplay() {
        if (QStandardPaths::findExecutable(QStringLiteral("xdotool")).isEmpty())
            return;
        m_server.start(QStringLiteral("Xvfb"),
                       {QStringLiteral("-displayfd"), QStringLiteral("1"),
                        QStringLiteral("-screen"), QStringLiteral("0"),
                        QStringLiteral("1280x800x24"), QStringLiteral("-nolisten"),
                        QStringLiteral("tcp"),
                        // Else the server begins anew, deaf for a moment, after each last client.
                        QStringLiteral("-noreset")});
        if (m_server.waitForStarted() && m_server.waitForReadyRead())
            m_name = u':' + QString::fromLatin1(m_server.readLine()).trimmed();
    }

    PrivateDisplay(const PrivateDisplay&) = delete;
    PrivateDisplay& operator=(const PrivateDisplay&) = delete;

    ~PrivateDisplay() {
        m_server.terminate();
        m_server.waitForFinished();
    }

    [[nodiscard]] bool isRunning() const { return !m_name.isEmpty(); }

    [[nodiscard]] const QString& name() const { return m_name; }

    /// The titles of all windows on it that can be seen.
    [[nodiscard]] QStringList titles() const {
        QStringList titles;
        const QString windows = ask({QStringLiteral("search"), QStringLiteral("--onlyvisible"),
                                     QStringLiteral("--name"), QStringLiteral(".+")});
        for (const QString& window : windows.split(u'\n', Qt::SkipEmptyParts))
            titles << ask({QStringLiteral("getwindowname"), window}).trimmed();
        titles.sort();
        return titles;
    }

    /// Starts to close the one window of this title as a window manager would: that one, whichever
    /// has the keyboard.
    [[nodiscard]] std::unique_ptr<QProcess> close(const QString& title) const {
        const QString window = ask({QStringLiteral("search"), QStringLiteral("--onlyvisible"),
                                    QStringLiteral("--name"), title})
                                   .trimmed();
        auto process = std::make_unique<QProcess>();
        process->setProcessEnvironment(environment());
        process->start(QStringLiteral("python3"),
                       {QStringLiteral(BRISKLET_SOURCE_DIR "/tests/App/close_window.py"), window});
        return process;
    }

private:
    [[nodiscard]] QProcessEnvironment environment() const {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("DISPLAY"), m_name);
        return environment;
    }

    [[nodiscard]] QString ask(const QStringList& question) const {
        QProcess process;
        process.setProcessEnvironment(environment());
        process.start(QStringLiteral("xdotool"), question);
        process.waitForFinished();
        return QString::fromUtf8(process.readAllStandardOutput());
    }

    QProcess m_server;
    QString m_name;
};

} // namespace testsupport
