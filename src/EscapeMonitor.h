#pragma once

#include <QObject>

class QKeyEvent;
class QWidget;

namespace brisklet {

/// Closes the active window on Escape, with whatever Shift or Caps Lock say, but leaves the key to
/// dialogs, to windows with a dialog over them and to open menus. An event filter of the
/// application. Main thread.
class EscapeMonitor final : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    static bool closesWindow(const QKeyEvent& event);
    static QWidget* windowToClose();
};

} // namespace brisklet
