#pragma once

#include <QObject>

#include <functional>

class QWidget;

namespace brisklet {

/// Has the Escape key take back the drag of a view, for as long as the mouse is held: it reaches
/// neither the window, which it would close, nor its commands. Dialogs and menus keep the key.
/// Main thread.
///
///     no drag ──begin──▶ drag ──Escape: takeBack──▶ held ──end──▶ no drag
///                         └──────────end──────────────────────────▲
class DragEscape final : public QObject {
    Q_OBJECT

public:
    /// Is part of `view`.
    explicit DragEscape(QWidget& view) : m_view(view) {}

    /// A press of the mouse that may become a drag. `takeBack` is called once at most, before
    /// end(); it ends what the view does with the mouse until that is pressed anew.
    void begin(std::function<void()> takeBack);
    /// The mouse was released, or what it held has gone. Nothing happens where there is no drag.
    void end();

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// A dialog took the window from the drag: the release of the mouse goes to nobody. Whoever
    /// drags calls end().
    void interrupted();

private:
    [[nodiscard]] bool hasEscapeKey() const;

    QWidget& m_view;
    std::function<void()> m_takeBack;
};

} // namespace brisklet
