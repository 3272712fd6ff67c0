#pragma once

#include "Support/RemoteFiles.h"

#include <QDBusConnection>

#include <chrono>

namespace brisklet {

/// What the desktop has mounted of other computers and devices: asks GVfs (GNOME and most others)
/// for its mounts, then KDE's KIO FUSE, which mounts on demand. Main thread; never blocks it.
class DesktopMounts final : public RemoteFiles {
public:
    /// How long each of the two is waited for. The second may have to connect to a server, and to
    /// ask the user for a password.
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
