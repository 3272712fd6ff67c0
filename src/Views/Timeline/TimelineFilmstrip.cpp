#include "Views/Timeline/TimelineFilmstrip.h"

#include "Views/Painting/DeviceGrid.h"

#include <QPainter>

#include <cmath>

namespace brisklet {

namespace {

QList<qint64> keysOf(const QList<QImage>& images) {
    QList<qint64> keys;
    keys.reserve(images.size());
    for (const QImage& image : images)
        keys.append(image.cacheKey());
    return keys;
}

} // namespace

void TimelineFilmstrip::paint(QPainter& painter, const TimelineGeometry& geometry,
                              const QList<QImage>& stills) {
    const DeviceGrid grid(painter);
    const QRectF area = grid.rect(geometry.filmstrip());
    const QSize pixels(qRound(area.width() / grid.pixel()), qRound(area.height() / grid.pixel()));
    if (pixels.isEmpty() || stills.isEmpty())
        return;
    if (QList<qint64> keys = keysOf(stills); m_row.size() != pixels || m_keys != keys) {
        make(pixels, geometry, stills);
        m_keys = std::move(keys);
    }
    m_row.setDevicePixelRatio(1 / grid.pixel());
    painter.drawPixmap(area.topLeft(), m_row);
}

void TimelineFilmstrip::make(const QSize& pixels, const TimelineGeometry& geometry,
                             const QList<QImage>& stills) {
    m_row = QPixmap(pixels);
    m_row.fill(Qt::black);
    QPainter painter(&m_row);
    const QRectF strip = geometry.filmstrip();
    const double ratio = pixels.width() / strip.width();
    const auto edge = [&](double position) { return qRound((position - strip.x()) * ratio); };
    const int count = static_cast<int>(stills.size());
    for (int index = 0; index < count; ++index) {
        const QRectF tile = geometry.tile(index, count);
        const QRect target(QPoint(edge(tile.left()), 0),
                           QPoint(edge(tile.right()) - 1, pixels.height() - 1));
        if (target.isEmpty() || stills[index].isNull())
            continue;
        const QImage filling = stills[index].scaled(target.size(), Qt::KeepAspectRatioByExpanding,
                                                    Qt::SmoothTransformation);
        const QPoint surplus((filling.width() - target.width()) / 2,
                             (filling.height() - target.height()) / 2);
        painter.drawImage(target.topLeft(), filling, QRect(surplus, target.size()));
    }
}

} // namespace brisklet
