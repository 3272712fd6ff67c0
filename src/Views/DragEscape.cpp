#include "Views/DragEscape.h"

#include "Support/MainThread.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>
#include <QWindow>

#include <utility>

namespace brisklet {

namespace {

bool isEscape(const QKeyEvent& event) {
    constexpr auto kOther = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    return event.key() == Qt::Key_Escape && !(event.modifiers() & kOther);
}

/// Whether keys go to an editor window: no dialog and no menu has them.
bool hasEditorKeyboard() {
    const QWidget* active = QApplication::activeWindow();
    return (active == nullptr || active->parentWidget() == nullptr) &&
           QApplication::activePopupWidget() == nullptr;
}

} // namespace

void DragEscape::begin(std::function<void()> takeBack) {
    verifyMainThread();
    m_takeBack = std::move(takeBack);
    // The event filter that is installed last is called first.
    qApp->installEventFilter(this);
}

void DragEscape::end() {
    verifyMainThread();
    m_takeBack = {};
    qApp->removeEventFilter(this);
}

bool DragEscape::eventFilter(QObject* watched, QEvent* event) {
    const QEvent::Type type = event->type();
    if ((type == QEvent::WindowBlocked && watched == m_view.window()->windowHandle()) ||
        (type == QEvent::Hide && watched == &m_view)) {
        Q_EMIT interrupted();
        return false;
    }
    if ((type != QEvent::ShortcutOverride && type != QEvent::KeyPress) || !hasEditorKeyboard())
        return false;
    const auto& key = *static_cast<QKeyEvent*>(event);
    if (key.key() == Qt::Key_Shift)
        return false;
    event->accept();
    if (type == QEvent::KeyPress && isEscape(key)) {
        if (const auto takeBack = std::exchange(m_takeBack, {}))
            takeBack();
    }
    return true;
}

} // namespace brisklet
