#pragma once

#include <QDBusConnection>

#include <optional>

namespace brisklet {

/// Shows progress on the program's icon in the desktop's taskbar or dock, where that supports it.
/// Main thread.
class LauncherProgress final {
public:
    explicit LauncherProgress(QDBusConnection bus);

    /// The fraction done, 0 to 1; none hides it.
    void show(std::optional<double> fraction);

private:
    QDBusConnection m_bus;
    std::optional<double> m_shown;
};

} // namespace brisklet
