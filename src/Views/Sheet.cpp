#include "Views/Sheet.h"

#include "Support/MainThread.h"
#include "Views/Painting/Theme.h"

#include <QMouseEvent>
#include <QPainter>
#include <QWindow>

#include <utility>

namespace brisklet {

void SheetFrame::paint(QDialog& dialog) {
    verifyMainThread();
    QPainter painter(&dialog);
    painter.setPen(QPen(theme::secondary(dialog.palette()), 1));
    painter.drawRect(QRectF(dialog.rect()).adjusted(0.5, 0.5, -0.5, -0.5));
    QWindow* window = dialog.windowHandle();
    const auto place = std::exchange(m_place, std::nullopt);
    if (place && window != nullptr && window->position() != *place)
        QMetaObject::invokeMethod(
            window, [window, place] { window->setPosition(*place); }, Qt::QueuedConnection);
}

Sheet::Sheet(QWidget* window) : QDialog(window, SheetFrame::flags()) {
    verifyMainThread();
}

void Sheet::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    m_frame.shown(*this);
}

void Sheet::paintEvent(QPaintEvent* event) {
    QDialog::paintEvent(event);
    m_frame.paint(*this);
}

void Sheet::mousePressEvent(QMouseEvent* event) {
    QDialog::mousePressEvent(event);
    if (event->button() == Qt::LeftButton && windowHandle() != nullptr)
        windowHandle()->startSystemMove();
}

} // namespace brisklet
