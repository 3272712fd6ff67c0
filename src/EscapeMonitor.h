#pragma once

#include <QDeadlineTimer>
#include <QObject>
#include <QPointer>
#include <QWidget>

class QKeyEvent;

namespace brisklet {

/// Closes the active window on Escape, with whatever Shift or Caps Lock say, but leaves the key to
/// dialogs, to windows with a dialog over them and to open menus. An event filter of the
/// application. Main thread.
class EscapeMonitor final : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    /// To be called when the sheet over a window has gone by itself. The first press of the key
    /// within the desktop's double-click interval was meant for the sheet, and does nothing.
    void sheetGone(QWidget& window);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool isMeantForSheet(const QKeyEvent& event);
    static bool closesWindow(const QKeyEvent& event);
    static QWidget* windowToClose();

    /// Whose sheet has gone, until the next press of the key in it.
    QPointer<QWidget> m_uncovered;
    QDeadlineTimer m_longestWait;
    /// The key was meant for the sheet when it was pressed, and is held perhaps.
    bool m_isHeldBack = false;
};

} // namespace brisklet
