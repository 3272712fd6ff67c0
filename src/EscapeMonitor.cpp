#include "EscapeMonitor.h"

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

bool isClosable(const QWidget& window) {
    const Qt::WindowFlags flags = window.windowFlags();
    return !flags.testFlag(Qt::CustomizeWindowHint) || flags.testFlag(Qt::WindowCloseButtonHint);
}

} // namespace

bool EscapeMonitor::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress || !closesWindow(*static_cast<QKeyEvent*>(event)))
        return QObject::eventFilter(watched, event);
    QWidget* window = windowToClose();
    if (window == nullptr)
        return false;
    window->close();
    return true;
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
