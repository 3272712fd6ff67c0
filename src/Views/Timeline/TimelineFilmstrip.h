#pragma once

#include "Views/Timeline/TimelineGeometry.h"

#include <QImage>
#include <QList>
#include <QPixmap>

class QPainter;

namespace brisklet {

/// Draws the row of stills. Keeps it as one pixmap for the pixels of the screen, which is made anew
/// when the stills, the size or the scale of the screen change. Main thread.
class TimelineFilmstrip final {
public:
    /// Each still fills its tile and is cut to it, whatever its shape. Nothing without stills.
    void paint(QPainter& painter, const TimelineGeometry& geometry, const QList<QImage>& stills);

private:
    void make(const QSize& pixels, const TimelineGeometry& geometry, const QList<QImage>& stills);

    QPixmap m_row;
    QList<qint64> m_keys;
};

} // namespace brisklet
