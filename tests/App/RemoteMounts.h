#pragma once

#include <QByteArray>
#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusObjectPath>
#include <QHash>
#include <QList>
#include <QObject>
#include <QString>
#include <QVariantMap>

namespace testsupport {

/// One entry in GVfs' list of mounts, as far as it matters.
struct GvfsMount {
    /// "type", "host", "user" …
    QVariantMap attributes;
    /// What is mounted of the other side.
    QByteArray prefix = "/";
    /// Empty where the mount has no place among the folders of this computer.
    QByteArray folder;
};

inline QByteArray zeroTerminated(QByteArray text) {
    return text.append('\0');
}

inline QDBusArgument& operator<<(QDBusArgument& argument, const GvfsMount& mount) {
    QVariantMap attributes;
    for (auto item = mount.attributes.begin(); item != mount.attributes.end(); ++item)
        attributes.insert(item.key(), zeroTerminated(item.value().toString().toUtf8()));
    const QString text = QStringLiteral("x");
    argument.beginStructure();
    argument << QStringLiteral(":1.1") << QDBusObjectPath(QStringLiteral("/mount")) << text << text
             << text << text << text << QString() << true << zeroTerminated(mount.folder);
    argument.beginStructure();
    argument << zeroTerminated(mount.prefix) << attributes;
    argument.endStructure();
    argument << zeroTerminated("/");
    argument.endStructure();
    return argument;
}

/// Nobody reads it this way; the bus library wants both.
inline const QDBusArgument& operator>>(const QDBusArgument& argument, GvfsMount& /*mount*/) {
    return argument;
}

} // namespace testsupport

Q_DECLARE_METATYPE(testsupport::GvfsMount)

namespace testsupport {

/// GNOME's table of mounts.
class FakeGvfs final : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.gtk.vfs.MountTracker")

public:
    explicit FakeGvfs(QDBusConnection bus);

    QList<GvfsMount> mounts;
    bool answers = true;
    int askCount = 0;

public Q_SLOTS:

    QList<testsupport::GvfsMount> ListMounts() {
        ++askCount;
        setDelayedReply(!answers);
        return mounts;
    }

private:
    QDBusConnection m_bus;
};

/// KDE's service that mounts an address on demand.
class FakeKioFuse final : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.KIOFuse.VFS")

public:
    explicit FakeKioFuse(QDBusConnection bus);

    /// Addresses, and the paths that they are mounted at.
    QHash<QString, QString> places;
    QList<QString> asked;

public Q_SLOTS:

    QString mountUrl(const QString& address) {
        asked << address;
        if (!places.contains(address))
            sendErrorReply(QStringLiteral("org.kde.KIOFuse.VFS.Error.CannotMount"));
        return places.value(address);
    }

private:
    QDBusConnection m_bus;
};

} // namespace testsupport
