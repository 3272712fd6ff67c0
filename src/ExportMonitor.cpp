#include "ExportMonitor.h"

#include "Models/EditState.h"
#include "Support/FileUrl.h"
#include "Support/MainThread.h"
#include "WindowRootView.h"

#include <QApplication>

namespace brisklet {

namespace {

/// Whether the user has this window, or a dialog of it, before them.
bool isLookedAt(const WindowRootView* window) {
    const QWidget* active = QApplication::activeWindow();
    while (active != nullptr && active != window)
        active = active->parentWidget();
    return active != nullptr;
}

} // namespace

ExportMonitor::ExportMonitor(QDBusConnection bus, QObject* parent)
    : QObject(parent), m_inhibitor(bus), m_notifications(bus), m_progress(bus) {}

void ExportMonitor::watch(WindowRootView* window) {
    verifyMainThread();
    m_windows.removeAll(nullptr);
    m_windows.append(window);
    const EditState* state = window->state().get();
    connect(state, &EditState::exportProgressChanged, this, &ExportMonitor::update);
    connect(state, &EditState::exportFinished, this,
            [this, window = QPointer(window)](const QUrl& file) {
                announce(window, tr("Export finished"), shownName(file));
            });
    connect(state, &EditState::exportFailed, this,
            [this, window = QPointer(window)](const QString& message) {
                announce(window, tr("Export failed"), message);
            });
}

void ExportMonitor::update() {
    m_windows.removeAll(nullptr);
    double sum = 0;
    int count = 0;
    for (const auto& window : m_windows) {
        if (const auto progress = window->state()->exportProgress()) {
            if (isLookedAt(window))
                m_lookedAt = window;
            else if (m_lookedAt == window)
                m_lookedAt = nullptr;
            sum += *progress;
            ++count;
        }
    }
    if (count == 0) {
        m_inhibitor.release();
        m_progress.show(std::nullopt);
        return;
    }
    //: Why the computer is not to sleep; some desktops show it.
    m_inhibitor.inhibit(tr("A video is being exported."));
    m_progress.show(sum / count);
}

void ExportMonitor::announce(WindowRootView* window, const QString& title, const QString& text) {
    // The sheet over the window has just gone, and the keyboard is on its way back from it.
    const bool isBetween = QApplication::activeWindow() == nullptr && m_lookedAt == window;
    if (window == nullptr || isBetween || isLookedAt(window))
        return;
    m_notifications.show(title, text, [shown = QPointer(window)] {
        if (shown)
            shown->bringToFront();
    });
}

} // namespace brisklet
