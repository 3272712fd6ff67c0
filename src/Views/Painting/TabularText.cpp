#include "Views/Painting/TabularText.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>

namespace brisklet::tabular {

namespace {

bool isDigit(QChar letter) {
    return letter >= u'0' && letter <= u'9';
}

qreal digitWidth(const QFontMetricsF& metrics) {
    qreal widest = 0;
    for (char16_t digit = u'0'; digit <= u'9'; ++digit)
        widest = std::max(widest, metrics.horizontalAdvance(QChar(digit)));
    return widest;
}

/// Calls `place(part, x, width)` for each digit and each run of other letters; returns the total
/// width.
template<typename Place>
qreal layOut(const QString& text, const QFontMetricsF& metrics, Place place) {
    const qreal cell = digitWidth(metrics);
    qreal x = 0;
    for (qsizetype begin = 0; begin < text.size();) {
        qsizetype end = begin + 1;
        if (!isDigit(text[begin])) {
            while (end < text.size() && !isDigit(text[end]))
                ++end;
        }
        const QString part = text.mid(begin, end - begin);
        const qreal partWidth = isDigit(text[begin]) ? cell : metrics.horizontalAdvance(part);
        place(part, x, partWidth);
        x += partWidth;
        begin = end;
    }
    return x;
}

/// Whether letters of it run from right to left. Its parts then have other places than their order.
bool hasRightToLeft(const QString& text) {
    return std::ranges::any_of(text, [](QChar letter) {
        return letter.direction() == QChar::DirR || letter.direction() == QChar::DirAL;
    });
}

} // namespace

qreal width(const QString& text, const QFont& font) {
    if (hasRightToLeft(text))
        return QFontMetricsF(font).horizontalAdvance(text);
    return layOut(text, QFontMetricsF(font), [](const QString&, qreal, qreal) {});
}

void paint(QPainter& painter, const QPointF& origin, const QString& text, const QFont& font) {
    const QFontMetricsF metrics(font);
    painter.setFont(font);
    if (hasRightToLeft(text)) {
        painter.setLayoutDirection(Qt::RightToLeft);
        painter.drawText(origin, text);
        return;
    }
    // The order of times and numbers is the same in every language.
    painter.setLayoutDirection(Qt::LeftToRight);
    layOut(text, metrics, [&](const QString& part, qreal x, qreal cell) {
        const qreal inset = (cell - metrics.horizontalAdvance(part)) / 2;
        painter.drawText(origin + QPointF(x + inset, 0), part);
    });
}

} // namespace brisklet::tabular
