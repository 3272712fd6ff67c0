#pragma once

#include "AppDelegate.h"
#include "FocusedValues.h"
#include "Platform/DesktopApplication.h"

#include <QDBusConnection>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QTimer>
#include <QUrl>
#include <QVariantMap>

#include <memory>
#include <optional>

namespace brisklet {

class ExportMonitor;
class UpdateDriver;
class Updater;
class WindowRootView;

/// What the program was asked for when it was started.
struct LaunchRequest {
    QList<QUrl> files;
    /// The launcher's activation token, for a process that runs already.
    QVariantMap platformData;
    /// The session's bus started the program and says what for in a call of its own.
    bool isStartedByBus = false;
};

/// The program: its windows, what they share, and its place in the desktop's session. Ends the
/// event loop when the last window has been closed. Needs a QApplication, which it must not
/// outlive. Main thread.
class BriskletApp final : public QObject {
    Q_OBJECT

public:
    /// `applicationId` decides whether the program checks for updates by itself.
    explicit BriskletApp(const QString& applicationId = builtInApplicationId(),
                         QObject* parent = nullptr);
    ~BriskletApp() override;

    /// The identifier that this program was built with.
    static QString builtInApplicationId();

    /// Opens the windows that were asked for, at least one. False where another process of the
    /// session has taken the request over: then there is nothing to run. Without a bus, or with one
    /// that is not connected, the program is on its own. Throws std::runtime_error where the other
    /// process does not answer.
    bool launch(const LaunchRequest& request, const std::optional<QDBusConnection>& bus);

    /// Shows a new window, which takes a file that waits for one.
    WindowRootView* openWindow();

    [[nodiscard]] QList<WindowRootView*> windows() const;

    [[nodiscard]] FocusedValues& focusedValues() { return m_focusedValues; }

    [[nodiscard]] Updater& updater() { return *m_updater; }

    /// Closes every window. Those that export ask first, and keep the program running.
    void quit();

private:
    bool joinSession(const LaunchRequest& request);
    void finishLaunching();
    void open(const QList<QUrl>& files, const QVariantMap& platformData);
    void activate(const QVariantMap& platformData);
    void activateAction(const QString& action, const QVariantMap& platformData);
    void lastWindowClosed();

    AppDelegate m_delegate;
    FocusedValues m_focusedValues;
    std::unique_ptr<UpdateDriver> m_updateDriver;
    std::unique_ptr<Updater> m_updater;
    std::optional<QDBusConnection> m_bus;
    std::unique_ptr<DesktopApplication> m_session;
    ExportMonitor* m_exportMonitor = nullptr;
    /// Runs while a start by the bus waits for the call that says what for.
    QTimer m_busCall;
    QList<QPointer<WindowRootView>> m_windows;
};

} // namespace brisklet
