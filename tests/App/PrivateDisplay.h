#pragma once

#include "QtSupport/EventPump.h"

#include <QProcess>
#include <QStandardPaths>
#include <QString>
#include <QStringList>

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

private:
    [[nodiscard]] QString ask(const QStringList& question) const {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("DISPLAY"), m_name);
        process.setProcessEnvironment(environment);
        process.start(QStringLiteral("xdotool"), question);
        process.waitForFinished();
        return QString::fromUtf8(process.readAllStandardOutput());
    }

    QProcess m_server;
    QString m_name;
};

} // namespace testsupport
