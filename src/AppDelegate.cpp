#include "AppDelegate.h"

#include "EscapeMonitor.h"
#include "Support/MainThread.h"
#include "Support/OpenBridge.h"

#include <QCoreApplication>

namespace brisklet {

void AppDelegate::applicationDidFinishLaunching() {
    verifyMainThread();
    if (m_escapeMonitor != nullptr)
        return;
    m_escapeMonitor = new EscapeMonitor(this);
    QCoreApplication::instance()->installEventFilter(m_escapeMonitor);
}

void AppDelegate::exportEnded(QWidget& window) {
    verifyMainThread();
    if (m_escapeMonitor != nullptr)
        m_escapeMonitor->sheetGone(window);
}

void AppDelegate::open(const QList<QUrl>& files) {
    verifyMainThread();
    for (const QUrl& file : files)
        OpenBridge::open(file);
}

} // namespace brisklet
