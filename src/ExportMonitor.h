#pragma once

#include "Platform/DesktopNotifications.h"
#include "Platform/LauncherProgress.h"
#include "Platform/SleepInhibitor.h"

#include <QDBusConnection>
#include <QList>
#include <QObject>
#include <QPointer>

namespace brisklet {

class WindowRootView;

/// Tells the desktop of the exports of all windows: the computer stays awake while one runs, the
/// taskbar shows how far they are, and the end of one in a window that the user does not look at is
/// announced. Main thread.
class ExportMonitor final : public QObject {
    Q_OBJECT

public:
    explicit ExportMonitor(QDBusConnection bus, QObject* parent = nullptr);

    /// Follows the exports of one window for as long as it lives.
    void watch(WindowRootView* window);

private:
    void update();
    void announce(WindowRootView* window, const QString& title, const QString& text);

    SleepInhibitor m_inhibitor;
    DesktopNotifications m_notifications;
    LauncherProgress m_progress;
    QList<QPointer<WindowRootView>> m_windows;
    /// The window that the user looked at when an export was heard of last.
    QPointer<WindowRootView> m_lookedAt;
};

} // namespace brisklet
