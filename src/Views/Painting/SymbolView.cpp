#include "Views/Painting/SymbolView.h"

#include <QPainter>

namespace brisklet {

SymbolView::SymbolView(Symbol symbol, int side, QWidget* parent)
    : QWidget(parent), m_symbol(symbol) {
    setFixedSize(side, side);
}

void SymbolView::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    paintSymbol(painter, m_symbol, rect(), palette().color(foregroundRole()));
}

} // namespace brisklet
