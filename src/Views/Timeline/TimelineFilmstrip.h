#pragma once

#include "Views/Timeline/TimelineGeometry.h"

#include <QImage>
#include <QList>
#include <QPixmap>

class QPainter;

namespace brisklet {

/// Draws the row of stills. Caches it as one pixmap in device pixels, which is made again when the
/// stills, the size or the scale of the screen change. Main thread.
class TimelineFilmstrip final {
public:
    /// Each still is scaled to fill its tile and clipped to it. Draws nothing without stills.
    void paint(QPainter& painter, const TimelineGeometry& geometry, const QList<QImage>& stills);

private:
    void make(const QSize& pixels, const TimelineGeometry& geometry, const QList<QImage>& stills);

    QPixmap m_row;
    QList<qint64> m_keys;
};

} // namespace brisklet
