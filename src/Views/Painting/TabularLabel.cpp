#include "Views/Painting/TabularLabel.h"

#include "Views/Painting/TabularText.h"

#include <QPainter>

#include <cmath>

namespace brisklet {

QSize TabularLabel::sizeHint() const {
    return {static_cast<int>(std::ceil(tabular::width(text(), font()))), fontMetrics().height()};
}

void TabularLabel::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setPen(palette().color(foregroundRole()));
    const QFontMetrics metrics = fontMetrics();
    const int top = (height() - metrics.height()) / 2;
    tabular::paint(painter, QPointF(0, top + metrics.ascent()), text(), font());
}

} // namespace brisklet
