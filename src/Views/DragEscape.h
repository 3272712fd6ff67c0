#pragma once

#include <QObject>

#include <functional>

class QWidget;

namespace brisklet {

/// Makes the Escape key take back the drag of a view while the mouse button is held. Other keys do
/// nothing meanwhile: what they change would be a part of the drag. Only Shift goes on to the view.
/// Dialogs and menus keep their keys. Main thread.
///
///     no drag ──begin──▶ drag ──Escape: takeBack──▶ held ──end──▶ no drag
///                         └──────────end──────────────────────────▲
class DragEscape final : public QObject {
    Q_OBJECT

public:
    /// A member of `view`.
    explicit DragEscape(QWidget& view) : m_view(view) {}

    /// To be called for a press of the mouse that may become a drag. `takeBack` is called at most
    /// once, before end(); the view then ignores the mouse until the next press.
    void begin(std::function<void()> takeBack);
    /// To be called when the mouse is released, or what it dragged no longer exists. Does nothing
    /// without a drag.
    void end();

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// A dialog has blocked the window, or the view was hidden, so the view will not get the
    /// release of the mouse. The view calls end().
    void interrupted();

private:
    QWidget& m_view;
    std::function<void()> m_takeBack;
};

} // namespace brisklet
