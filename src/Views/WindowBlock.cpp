#include "Views/WindowBlock.h"

#include "Support/MainThread.h"

#include <QApplication>
#include <QEvent>
#include <QWidget>
#include <QWindow>

namespace brisklet {

namespace {

/// What a user does to a window, but for closing, moving and resizing it.
bool isInput(QEvent::Type type) {
    switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::Enter:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TabletPress:
    case QEvent::TabletMove:
    case QEvent::TabletRelease:
    case QEvent::NativeGesture:
    case QEvent::ContextMenu:
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
        return true;
    default:
        return false;
    }
}

bool isPress(QEvent::Type type) {
    return type == QEvent::MouseButtonPress || type == QEvent::TouchBegin ||
           type == QEvent::TabletPress || type == QEvent::KeyPress;
}

} // namespace

WindowBlock::WindowBlock(QWidget& window, QWidget& sheet)
    : QObject(&sheet), m_window(window), m_sheet(sheet) {
    verifyMainThread();
    while (QWidget* popup = QApplication::activePopupWidget())
        popup->close();
    // As Qt tells a window that a modal dialog blocks it: a drag in it ends.
    QEvent blocked(QEvent::WindowBlocked);
    if (QWindow* handle = window.windowHandle())
        QCoreApplication::sendEvent(handle, &blocked);
    qApp->installEventFilter(this);
}

bool WindowBlock::eventFilter(QObject* watched, QEvent* event) {
    const QEvent::Type type = event->type();
    if (watched == &m_window && type == QEvent::WindowActivate) {
        // The window manager may not be done with the activation of the window.
        QMetaObject::invokeMethod(this, &WindowBlock::showSheet, Qt::QueuedConnection);
        return false;
    }
    if (!isKeptAway(watched, *event))
        return false;
    event->ignore();
    if (isPress(type))
        showSheet();
    return true;
}

bool WindowBlock::isKeptAway(const QObject* watched, const QEvent& event) const {
    // Input comes to the native window first, which passes it on to its widgets. The keys of
    // commands go to the commands, past the window.
    if (event.type() == QEvent::Shortcut)
        return QApplication::activeWindow() == &m_window;
    return isInput(event.type()) && m_window.windowHandle() != nullptr &&
           watched == m_window.windowHandle();
}

void WindowBlock::showSheet() {
    m_sheet.raise();
    // A dialog over the sheet keeps the keyboard: Qt passes it on to that one.
    m_sheet.activateWindow();
}

} // namespace brisklet
