#include "FakeDesktop.h"

#include <utility>

namespace testsupport {

FakeScreenSaver::FakeScreenSaver(QDBusConnection bus) : m_bus(std::move(bus)) {
    m_bus.registerObject(QStringLiteral("/org/freedesktop/ScreenSaver"), this,
                         QDBusConnection::ExportAllSlots);
    appear();
}

void FakeScreenSaver::appear() {
    m_bus.registerService(QStringLiteral("org.freedesktop.ScreenSaver"));
}

void FakeScreenSaver::disappear() {
    m_bus.unregisterService(QStringLiteral("org.freedesktop.ScreenSaver"));
}

FakePortal::FakePortal(QDBusConnection bus) : m_bus(std::move(bus)) {
    m_bus.registerObject(QStringLiteral("/org/freedesktop/portal/desktop"), this,
                         QDBusConnection::ExportAllSlots);
    m_bus.registerObject(QStringLiteral("/request/1"), &request, QDBusConnection::ExportAllSlots);
    m_bus.registerService(QStringLiteral("org.freedesktop.portal.Desktop"));
}

FakeNotifications::FakeNotifications(QDBusConnection bus) : m_bus(std::move(bus)) {
    m_bus.registerObject(QStringLiteral("/org/freedesktop/Notifications"), this,
                         QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals);
    m_bus.registerService(QStringLiteral("org.freedesktop.Notifications"));
}

FakeFileManager::FakeFileManager(QDBusConnection bus) : m_bus(std::move(bus)) {
    m_bus.registerObject(QStringLiteral("/org/freedesktop/FileManager1"), this,
                         QDBusConnection::ExportAllSlots);
    m_bus.registerService(QStringLiteral("org.freedesktop.FileManager1"));
}

FakeLauncher::FakeLauncher(QDBusConnection bus) : m_bus(std::move(bus)) {
    m_bus.connect(QString(), QString(), QStringLiteral("com.canonical.Unity.LauncherEntry"),
                  QStringLiteral("Update"), this, SLOT(update(QString, QVariantMap)));
}

} // namespace testsupport
