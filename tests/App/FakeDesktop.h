#pragma once

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusObjectPath>
#include <QObject>
#include <QStringList>
#include <QVariantMap>

namespace testsupport {

/// The session's screen saver.
class FakeScreenSaver final : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.ScreenSaver")

public:
    explicit FakeScreenSaver(QDBusConnection bus);

    /// Takes its name again, as after a restart: whoever holds it back is told that it is there.
    void appear();
    void disappear();

    bool isRefusing = false;
    int refusals = 0;
    int inhibitors = 0;
    int everInhibited = 0;
    QString reason;

public Q_SLOTS:

    uint Inhibit(const QString& /*application*/, const QString& why) {
        if (isRefusing) {
            ++refusals;
            sendErrorReply(QDBusError::AccessDenied, QStringLiteral("Refused"));
            return 0;
        }
        ++inhibitors;
        ++everInhibited;
        reason = why;
        return 42;
    }

    void UnInhibit(uint cookie) {
        if (cookie == 42)
            --inhibitors;
    }

private:
    QDBusConnection m_bus;
};

/// What the portal gives for an inhibition; closing it ends that.
class FakePortalRequest final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Request")

public:
    int closings = 0;

public Q_SLOTS:

    void Close() { ++closings; }
};

/// The desktop portal, as far as sleep goes.
class FakePortal final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Inhibit")

public:
    explicit FakePortal(QDBusConnection bus);

    int inhibitions = 0;
    uint flags = 0;
    FakePortalRequest request;

public Q_SLOTS:

    QDBusObjectPath Inhibit(const QString& /*window*/, uint which, const QVariantMap& /*options*/) {
        ++inhibitions;
        flags = which;
        return QDBusObjectPath(QStringLiteral("/request/1"));
    }

private:
    QDBusConnection m_bus;
};

/// The desktop's notifications.
class FakeNotifications final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")

public:
    explicit FakeNotifications(QDBusConnection bus);

    QStringList titles;
    QStringList texts;

Q_SIGNALS:
    void ActionInvoked(uint id, const QString& action);
    void NotificationClosed(uint id, uint reason);

public Q_SLOTS:

    uint Notify(const QString& /*application*/, uint /*replaces*/, const QString& /*icon*/,
                const QString& title, const QString& text, const QStringList& /*actions*/,
                const QVariantMap& /*hints*/, int /*duration*/) {
        titles << title;
        texts << text;
        return 7;
    }

private:
    QDBusConnection m_bus;
};

/// A file manager.
class FakeFileManager final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.FileManager1")

public:
    explicit FakeFileManager(QDBusConnection bus);

    QStringList items;
    QStringList folders;

public Q_SLOTS:

    void ShowItems(const QStringList& uris, const QString& /*startupId*/) { items << uris; }

    void ShowFolders(const QStringList& uris, const QString& /*startupId*/) { folders << uris; }

private:
    QDBusConnection m_bus;
};

/// The taskbar.
class FakeLauncher final : public QObject {
    Q_OBJECT

public:
    explicit FakeLauncher(QDBusConnection bus);

    QString entry;
    bool isVisible = false;
    bool wasVisible = false;
    double progress = 0;

private:
    Q_SLOT void update(const QString& application, const QVariantMap& properties) {
        entry = application;
        isVisible = properties.value(QStringLiteral("progress-visible")).toBool();
        wasVisible = wasVisible || isVisible;
        progress = properties.value(QStringLiteral("progress")).toDouble();
    }

    QDBusConnection m_bus;
};

} // namespace testsupport
