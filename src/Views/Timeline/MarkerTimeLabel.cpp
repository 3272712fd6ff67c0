#include "Views/Timeline/MarkerTimeLabel.h"

#include "Views/Painting/TabularText.h"
#include "Views/Painting/Theme.h"

#include <QPainter>

#include <algorithm>

namespace brisklet {

namespace {

constexpr QMargins kPadding(6, 2, 6, 2);
/// To the strip and to the edges of the parent, points.
constexpr int kDistance = 3;
constexpr double kRadius = 4;

} // namespace

MarkerTimeLabel::MarkerTimeLabel(QWidget* parent) : TabularLabel(parent) {
    setTextFormat(Qt::PlainText);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
}

QSize MarkerTimeLabel::sizeHint() const {
    return TabularLabel::sizeHint().grownBy(kPadding);
}

void MarkerTimeLabel::showBeside(const QRect& strip, double x, const QString& text) {
    if (text != this->text())
        setText(text);
    const QRect area = parentWidget()->rect();
    const QSize size = sizeHint();
    const int left = std::clamp(qRound(x - size.width() / 2.0), kDistance,
                                std::max(area.width() - kDistance - size.width(), kDistance));
    const int above = strip.top() - kDistance - size.height();
    setGeometry({QPoint(left, above >= 0 ? above : strip.bottom() + 1 + kDistance), size});
    if (isHidden()) {
        raise();
        show();
    }
}

void MarkerTimeLabel::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(theme::quaternary(palette()));
    painter.setBrush(palette().color(QPalette::Window));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), kRadius, kRadius);
    painter.setPen(theme::primary(palette()));
    const QPointF baseline(kPadding.left(), kPadding.top() + fontMetrics().ascent());
    tabular::paint(painter, baseline, text(), font());
}

} // namespace brisklet
