#pragma once

#include "Support/RemoteFiles.h"

#include <QDBusConnection>

#include <chrono>

namespace brisklet {

/// Finds remote files that the desktop has mounted: asks GVfs (GNOME and most other desktops) for
/// its mounts, then KDE's KIO FUSE, which mounts on demand. Main thread, which is never blocked.
class DesktopMounts final : public RemoteFiles {
public:
    /// How long to wait for either. KIO FUSE may have to connect to a server and to ask the user
    /// for a password.
    struct Limits {
        std::chrono::milliseconds listing{5000};
        std::chrono::milliseconds mounting{60000};
    };

    explicit DesktopMounts(QDBusConnection bus);
    DesktopMounts(QDBusConnection bus, Limits limits);

    QCoro::Task<std::optional<QUrl>> find(QUrl address) override;

private:
    QDBusConnection m_bus;
    Limits m_limits;
};

} // namespace brisklet
