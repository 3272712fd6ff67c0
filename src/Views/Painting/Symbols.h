#pragma once

#include <QColor>
#include <QPixmap>
#include <QRectF>

class QPainter;

namespace brisklet {

/// The program's own symbols, all drawn on a grid of 24 units with one line weight.
enum class Symbol {
    play,
    pause,
    speaker,
    speakerSlashed,
    rotateLeft,
    crop,
    film,
    chevronLeft,
    chevronRight,
    chevronDown,
    exclamationTriangle,
};

/// Draws `symbol` in one colour, as large as fits into `rect`, centred, sharp on the device that
/// `painter` paints on. Main thread.
void paintSymbol(QPainter& painter, Symbol symbol, const QRectF& rect, const QColor& color);

/// The symbol on a square of `side` points, for a screen of `devicePixelRatio`. Cached. Main
/// thread.
QPixmap symbolPixmap(Symbol symbol, qreal side, const QColor& color, qreal devicePixelRatio);

} // namespace brisklet
