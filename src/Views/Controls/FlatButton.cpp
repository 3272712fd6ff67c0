#include "Views/Controls/FlatButton.h"

#include "Views/Painting/ButtonPainting.h"
#include "Views/Painting/Theme.h"

#include <QKeyEvent>
#include <QPainter>

namespace brisklet {

namespace {

constexpr qreal kSymbolSide = 18;

} // namespace

FlatButton::FlatButton(QWidget* parent) : QAbstractButton(parent) {
    setFocusPolicy(Qt::TabFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void FlatButton::setSymbol(Symbol symbol) {
    if (m_symbol == symbol)
        return;
    m_symbol = symbol;
    update();
}

void FlatButton::setTint(Tint tint) {
    if (m_tint == tint)
        return;
    m_tint = tint;
    update();
}

QSize FlatButton::sizeHint() const {
    return {kFrameWidth + 2 * kPadding, kHeight};
}

bool FlatButton::event(QEvent* event) {
    // While it has the focus, the keys that press a button must not trigger shortcuts.
    if (event->type() == QEvent::ShortcutOverride) {
        const auto* keyEvent = static_cast<QKeyEvent*>(event);
        if (keyEvent->modifiers() == Qt::NoModifier && keyEvent->key() == Qt::Key_Space)
            event->accept();
    }
    return QAbstractButton::event(event);
}

void FlatButton::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    buttonpainting::paintState(painter, rect(), palette(), isEnabled() && underMouse(),
                               isEnabled() && isDown());
    paintSymbol(
        painter, m_symbol,
        QRectF((width() - kSymbolSide) / 2, (height() - kSymbolSide) / 2, kSymbolSide, kSymbolSide),
        symbolColor());
    if (hasFocus())
        buttonpainting::paintFocusRing(painter, rect(), theme::accent(palette()));
}

void FlatButton::enterEvent(QEnterEvent* event) {
    QAbstractButton::enterEvent(event);
    update();
}

void FlatButton::leaveEvent(QEvent* event) {
    QAbstractButton::leaveEvent(event);
    update();
}

QColor FlatButton::symbolColor() const {
    if (!isEnabled())
        return palette().color(QPalette::Disabled, QPalette::WindowText);
    switch (m_tint) {
    case Tint::accent:
        return theme::accent(palette());
    case Tint::red:
        return theme::red(palette());
    case Tint::primary:
        break;
    }
    return theme::primary(palette());
}

} // namespace brisklet
