#pragma once

#include "Views/Painting/Symbols.h"

#include <QWidget>

namespace brisklet {

/// A symbol without a function, in the colour of its foreground role. Main thread.
class SymbolView final : public QWidget {
    Q_OBJECT

public:
    /// `side` in points.
    SymbolView(Symbol symbol, int side, QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Symbol m_symbol;
};

} // namespace brisklet
