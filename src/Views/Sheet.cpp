#include "Views/Sheet.h"

#include "Support/MainThread.h"
#include "Views/Painting/Theme.h"

#include <QMouseEvent>
#include <QPainter>
#include <QWindow>

namespace brisklet {

Sheet::Sheet(QWidget* window) : QDialog(window, flags()) {
    verifyMainThread();
}

void Sheet::paintFrame(QWidget& sheet) {
    QPainter painter(&sheet);
    painter.setPen(QPen(theme::secondary(sheet.palette()), 1));
    painter.drawRect(QRectF(sheet.rect()).adjusted(0.5, 0.5, -0.5, -0.5));
}

void Sheet::paintEvent(QPaintEvent* event) {
    QDialog::paintEvent(event);
    paintFrame(*this);
}

void Sheet::mousePressEvent(QMouseEvent* event) {
    QDialog::mousePressEvent(event);
    if (event->button() == Qt::LeftButton && windowHandle() != nullptr)
        windowHandle()->startSystemMove();
}

} // namespace brisklet
