#include "RemoteMounts.h"

#include <QDBusMetaType>

#include <utility>

namespace testsupport {

FakeGvfs::FakeGvfs(QDBusConnection bus) : m_bus(std::move(bus)) {
    qDBusRegisterMetaType<GvfsMount>();
    qDBusRegisterMetaType<QList<GvfsMount>>();
    m_bus.registerObject(QStringLiteral("/org/gtk/vfs/mounttracker"), this,
                         QDBusConnection::ExportAllSlots);
    m_bus.registerService(QStringLiteral("org.gtk.vfs.Daemon"));
}

FakeKioFuse::FakeKioFuse(QDBusConnection bus) : m_bus(std::move(bus)) {
    m_bus.registerObject(QStringLiteral("/org/kde/KIOFuse"), this, QDBusConnection::ExportAllSlots);
    m_bus.registerService(QStringLiteral("org.kde.KIOFuse"));
}

} // namespace testsupport
