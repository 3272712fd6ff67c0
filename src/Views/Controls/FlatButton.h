#pragma once

#include "Views/Painting/Symbols.h"

#include <QAbstractButton>

namespace brisklet {

/// A button that shows only a symbol until the pointer is over it or it has the focus. The symbol
/// is in a frame of kFrameWidth points; the highlight around it is kPadding wider on each side.
/// Takes the focus by Tab only, so that a click leaves the focus where it was. Main thread.
class FlatButton final : public QAbstractButton {
    Q_OBJECT

public:
    static constexpr int kFrameWidth = 20;
    static constexpr int kPadding = 6;
    static constexpr int kHeight = 28;

    /// The colour of the symbol.
    enum class Tint { primary, accent, red };

    explicit FlatButton(QWidget* parent = nullptr);

    /// Both repaint if the value has changed.
    void setSymbol(Symbol symbol);
    void setTint(Tint tint);

    [[nodiscard]] Symbol symbol() const { return m_symbol; }

    [[nodiscard]] Tint tint() const { return m_tint; }

    [[nodiscard]] QSize sizeHint() const override;

    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    [[nodiscard]] QColor symbolColor() const;

    Symbol m_symbol = Symbol::play;
    Tint m_tint = Tint::primary;
};

} // namespace brisklet
