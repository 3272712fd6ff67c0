#include "Views/Painting/Symbols.h"

#include <QPaintDevice>
#include <QPainter>
#include <QPixmapCache>
#include <QSvgRenderer>

#include <algorithm>
#include <cmath>

/// The linker leaves out the resources of a static library unless something refers to them.
static void initialiseResources() {
    Q_INIT_RESOURCE(symbols);
}

namespace brisklet {

namespace {

QString fileOf(Symbol symbol) {
    switch (symbol) {
    case Symbol::play:
        return QStringLiteral(":/symbols/play.fill.svg");
    case Symbol::pause:
        return QStringLiteral(":/symbols/pause.fill.svg");
    case Symbol::speaker:
        return QStringLiteral(":/symbols/speaker.wave.2.fill.svg");
    case Symbol::speakerSlashed:
        return QStringLiteral(":/symbols/speaker.slash.fill.svg");
    case Symbol::rotateLeft:
        return QStringLiteral(":/symbols/rotate.left.svg");
    case Symbol::crop:
        return QStringLiteral(":/symbols/crop.svg");
    case Symbol::film:
        return QStringLiteral(":/symbols/film.svg");
    case Symbol::chevronLeft:
        return QStringLiteral(":/symbols/chevron.compact.left.svg");
    case Symbol::chevronRight:
        return QStringLiteral(":/symbols/chevron.compact.right.svg");
    case Symbol::chevronDown:
        return QStringLiteral(":/symbols/chevron.down.svg");
    case Symbol::exclamationTriangle:
        return QStringLiteral(":/symbols/exclamationmark.triangle.svg");
    }
    return {};
}

QPixmap drawn(Symbol symbol, int pixels, const QColor& color) {
    QPixmap pixmap(pixels, pixels);
    pixmap.fill(Qt::transparent);
    initialiseResources();
    QPainter painter(&pixmap);
    QSvgRenderer(fileOf(symbol)).render(&painter);
    // The files are black; only their opacity is used.
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(pixmap.rect(), color);
    return pixmap;
}

} // namespace

QPixmap symbolPixmap(Symbol symbol, qreal side, const QColor& color, qreal devicePixelRatio) {
    const int pixels = std::max(1, static_cast<int>(std::lround(side * devicePixelRatio)));
    const QString key = QStringLiteral("brisklet-symbol-%1-%2-%3")
                            .arg(static_cast<int>(symbol))
                            .arg(pixels)
                            .arg(color.rgba(), 0, 16);
    QPixmap pixmap;
    if (!QPixmapCache::find(key, &pixmap)) {
        pixmap = drawn(symbol, pixels, color);
        QPixmapCache::insert(key, pixmap);
    }
    pixmap.setDevicePixelRatio(devicePixelRatio);
    return pixmap;
}

void paintSymbol(QPainter& painter, Symbol symbol, const QRectF& rect, const QColor& color) {
    const qreal side = std::min(rect.width(), rect.height());
    const qreal ratio = painter.device()->devicePixelRatioF();
    // On whole device pixels, so that horizontal and vertical lines stay sharp.
    const auto aligned = [ratio](qreal points) { return std::round(points * ratio) / ratio; };
    painter.drawPixmap(
        QPointF(aligned(rect.center().x() - side / 2), aligned(rect.center().y() - side / 2)),
        symbolPixmap(symbol, side, color, ratio));
}

} // namespace brisklet
