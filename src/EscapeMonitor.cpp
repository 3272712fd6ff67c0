#include "EscapeMonitor.h"

#include "Support/MainThread.h"

#include <QApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QMenuBar>
#include <QWidget>

#include <algorithm>

namespace brisklet {

namespace {

bool hasSheet(const QWidget& window) {
    return std::ranges::any_of(window.findChildren<QWidget*>(), [](const QWidget* child) {
        return child->isWindow() && child->isModal() && child->isVisible();
    });
}

/// Such as the alert that follows a failed export.
bool isDialogOf(const QWidget& window, const QWidget& dialog) {
    return dialog.parentWidget() != nullptr && dialog.parentWidget()->window() == &window;
}

bool isClosable(const QWidget& window) {
    const Qt::WindowFlags flags = window.windowFlags();
    return !flags.testFlag(Qt::CustomizeWindowHint) || flags.testFlag(Qt::WindowCloseButtonHint);
}

} // namespace

void EscapeMonitor::sheetGone(QWidget& window) {
    verifyMainThread();
    m_uncovered = &window;
    m_longestWait.setRemainingTime(QApplication::doubleClickInterval());
}

bool EscapeMonitor::eventFilter(QObject* watched, QEvent* event) {
    const bool isPress = event->type() == QEvent::KeyPress;
    if ((!isPress && event->type() != QEvent::ShortcutOverride) ||
        !closesWindow(*static_cast<QKeyEvent*>(event)))
        return QObject::eventFilter(watched, event);
    if (isMeantForSheet(*static_cast<QKeyEvent*>(event))) {
        event->accept();
        return true;
    }
    QWidget* window = isPress ? windowToClose() : nullptr;
    if (window == nullptr)
        return false;
    window->close();
    return true;
}

bool EscapeMonitor::isMeantForSheet(const QKeyEvent& event) {
    // Decided before a command takes the key.
    if (event.type() != QEvent::ShortcutOverride)
        return m_isHeldBack;
    const QWidget* active = QApplication::activeWindow();
    const bool isThere = m_uncovered && active != nullptr &&
                         QApplication::activePopupWidget() == nullptr &&
                         (active == m_uncovered || isDialogOf(*m_uncovered, *active));
    if (isThere)
        m_uncovered.clear();
    const bool isInTime = isThere && !m_longestWait.hasExpired();
    m_isHeldBack = isInTime || (m_isHeldBack && event.isAutoRepeat());
    return m_isHeldBack;
}

bool EscapeMonitor::closesWindow(const QKeyEvent& event) {
    constexpr auto kOther = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    return event.key() == Qt::Key_Escape && !(event.modifiers() & kOther);
}

QWidget* EscapeMonitor::windowToClose() {
    QWidget* window = QApplication::activeWindow();
    if (window == nullptr || QApplication::activePopupWidget() != nullptr)
        return nullptr;
    // A menu that was left by this key leaves the keyboard with its bar, which it leaves the same
    // way.
    const auto* menuBar = qobject_cast<QMenuBar*>(QApplication::focusWidget());
    if (menuBar != nullptr && menuBar->activeAction() != nullptr)
        return nullptr;
    const bool isPanel = qobject_cast<QDialog*>(window) != nullptr || window->parentWidget();
    return !isPanel && !hasSheet(*window) && isClosable(*window) ? window : nullptr;
}

} // namespace brisklet
