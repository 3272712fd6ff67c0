#pragma once

#include <QList>
#include <QObject>
#include <QUrl>

class QWidget;

namespace brisklet {

class EscapeMonitor;

/// What the desktop tells the application. Main thread.
class AppDelegate final : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    /// Installs the monitor of the Escape key, which then stays.
    void applicationDidFinishLaunching();

    /// Opens files from outside, in this order.
    static void open(const QList<QUrl>& files);

    /// To be called when an export has ended, and its sheet over the window has gone.
    void exportEnded(QWidget& window);

    static bool applicationShouldTerminateAfterLastWindowClosed() { return true; }

private:
    EscapeMonitor* m_escapeMonitor = nullptr;
};

} // namespace brisklet
